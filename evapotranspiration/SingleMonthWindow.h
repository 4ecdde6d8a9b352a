#pragma once

#include "shell/numbers/Integer16.h"
#include "shell/worksheet/CalculationWindow.h"

#include <optional>
#include <string>

namespace caudalera {

/// What the windows share that compute one month at one site: where it is and which month.
class SingleMonthWindow : public CalculationWindow {
public:
    SingleMonthWindow(Program& program, std::string name, std::string caption);

    Frame fraDatos{*this, "fraDatos", "Datos:"};
    TextBox txtLatitud{*this, "txtLatitud", "Latitud:", "grados"};
    List cobNS{*this, "cobNS", {"N", "S"}, "N"};

    void load() override;

protected:
    /// The list of months, at its place among the fields of a window.
    static List listaDeMeses(Window& window);
    virtual List& meses() = 0;

    /// Latitude and hemisphere side by side.
    Layout::FieldLine lineaDeLatitud();
    /// Hemisphere and month as they are at the start, and the focus on the latitude.
    void reiniciarSitio();
    /// The field's value. An empty field has a message and gets the focus, and gives none.
    std::optional<Real> leer(TextBox& campo, const char* magnitud);
    /// A latitude in degrees as radians of the chosen hemisphere.
    Real enRadianes(Real grados) const;
    /// Takes the number of the chosen month; a text that is no month's leaves the last one.
    void tomarMes();
    Integer16 mes() const { return mes_; }

private:
    Integer16 mes_;
};

} // namespace caudalera
