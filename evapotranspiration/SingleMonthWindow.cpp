#include "evapotranspiration/SingleMonthWindow.h"

#include "evapotranspiration/radiacionSolar.h"
#include "evapotranspiration/tablasSolares.h"
#include "shell/text/Text.h"

#include <utility>

namespace caudalera {

namespace {

constexpr const char* latitudInicial = "10";
constexpr const char* hemisferioInicial = "N";
constexpr const char* mesInicial = "Enero";

} // namespace

SingleMonthWindow::SingleMonthWindow(Program& program, std::string name, std::string text)
    : CalculationWindow(program, std::move(name), std::move(text)) {}

List SingleMonthWindow::listaDeMeses(Window& window) {
    return {window, "cobMes", {nombresMeses.begin(), nombresMeses.end()}, mesInicial, "Mes:"};
}

Layout::FieldLine SingleMonthWindow::lineaDeLatitud() {
    return {txtLatitud.label(), {&txtLatitud, &cobNS}, txtLatitud.unit()};
}

void SingleMonthWindow::load() {
    txtLatitud.setText(latitudInicial);
    setFocus(txtLatitud);
}

void SingleMonthWindow::reiniciarSitio() {
    cobNS.setText(hemisferioInicial);
    meses().setText(mesInicial);
    setFocus(txtLatitud);
}

std::optional<Real> SingleMonthWindow::leer(TextBox& campo, const char* magnitud) {
    if (!exigir(campo, {std::string("Ingresar un valor adecuado para ") + magnitud,
                        "Mensaje de error", Icon::information}))
        return std::nullopt;
    return Val(campo.text());
}

Real SingleMonthWindow::enRadianes(Real grados) const {
    return latitudEnRadianes(grados, cobNS.text());
}

void SingleMonthWindow::tomarMes() {
    mes_ = numeroDeMes(meses().text()).value_or(mes_);
}

} // namespace caudalera
