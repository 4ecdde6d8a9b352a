#include "peakflow/frmQmaxRacional.h"

#include "peakflow/caudalRacional.h"
#include "peakflow/coeficientesEscorrentia.h"
#include "shell/text/Text.h"

namespace caudalera {

namespace {

/// Text of the list of urban surfaces while the group is not urban; none of its items.
constexpr const char* sinZonaUrbana = "Zonas urbanas";

RainfallFlowTexts textos() {
    return {
        .dibujo = "racional",
        .rotuloC = "Coeficiente C:",
        .rotuloArea = "Área cuenca:",
        .rotuloAreaGrupo = "Area (a):",
        .coberturas = coberturasDelSuelo(),
        .coberturaInicial = "Terrenos cultivados",
        .unidadCobertura = {},
        .texturas = texturasDelSuelo(),
        .texturaInicial = "Franco arenosa",
        .encabezadosGrupos = {"Grupo N°", "Área", "Cobertura", "Textura", "Pendiente", "C"},
        .anchosGrupos = {900, 1200, 3400, 2000, 1300, 900},
        .tituloReporte = "Serie de datos de área, cobertura y de C parciales:",
        .guionesReporte = 140,
        .columnasReporte = " N°\t Área\t Cobertura\t\t\t Textura\t\t Pendiente\t C",
        .anchosReporte = {10, 40, 22, 10, 10},
    };
}

} // namespace

frmQmaxRacional::frmQmaxRacional(Program& program)
    : RainfallFlowWindow(program, "frmQmaxRacional",
                         "Cálculo del caudal máximo utilizando el método Racional", textos()),
      cboZUrbana(*this, "cboZUrbana", superficiesUrbanas(), sinZonaUrbana, "Zonas urbanas") {
    layout = disposicion({txtcq, txtaq, txtiq, {nullptr, {&lblMensajeI}, nullptr}},
                         {txtgrupo,
                          txtac,
                          {nullptr, {&lblZonasNoUrbanas}, nullptr},
                          cboCobertura,
                          cboTextura,
                          txts,
                          cboZUrbana});
    encadenar({&txtcq, &txtaq, &txtiq, &bCalcular});
}

std::vector<RainfallFlowWindow::CampoDeQ> frmQmaxRacional::camposDeQ() {
    return {{&txtcq, "C"}, {&txtaq, "el área"}, {&txtiq, "la Imáx"}};
}

Real frmQmaxRacional::caudal() const {
    return caudalRacional(Val(txtcq.text()), Val(txtiq.text()), Val(txtaq.text()));
}

bool frmQmaxRacional::grupoCompleto() {
    return exigir(txtac, {"Ingresar dato en forma adecuada"});
}

RainfallFlowWindow::Grupo frmQmaxRacional::describirGrupo() const {
    const std::string& superficie = cboZUrbana.text();
    if (superficie != sinZonaUrbana)
        return {coeficienteUrbano(superficie), superficie, {}, {}};
    const double pendiente = Val(txts.text());
    return {coeficienteNoUrbano(cboCobertura.text(), cboTextura.text(), pendiente),
            cboCobertura.text(), cboTextura.text(), textoPlano(pendiente)};
}

void frmQmaxRacional::vaciarEntradaDeGrupo() {
    RainfallFlowWindow::vaciarEntradaDeGrupo();
    cboZUrbana.setText(sinZonaUrbana);
}

} // namespace caudalera
