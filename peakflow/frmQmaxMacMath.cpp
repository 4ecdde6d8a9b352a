#include "peakflow/frmQmaxMacMath.h"

#include "peakflow/macMath.h"
#include "shell/text/Text.h"

namespace caudalera {

namespace {

RainfallFlowTexts textos() {
    return {
        .dibujo = "macmath",
        .rotuloC = "Coeficiente (C):",
        .rotuloArea = "Área cuenca (A):",
        .rotuloAreaGrupo = "Area parcial (A):",
        .coberturas = coberturasMacMath(),
        .coberturaInicial = "0 - 20",
        .unidadCobertura = "%",
        .texturas = texturasMacMath(),
        .texturaInicial = "Arenosa",
        .encabezadosGrupos = {"Grupo N°", "Área", "Cobertura (%)", "Textura", "Pendiente (%)", "C"},
        .anchosGrupos = {900, 1400, 1800, 1800, 1800, 1000},
        .tituloReporte = "Serie de datos de área, cobertura, textura, pendiente y de C parciales:",
        .guionesReporte = 120,
        .columnasReporte = " N°\t Área\t Cobertura (%)\t\t\t Textura\t\t Pendiente (%)\t C",
        .anchosReporte = {10, 22, 22, 30, 10},
    };
}

} // namespace

frmQmaxMacMath::frmQmaxMacMath(Program& program)
    : RainfallFlowWindow(program, "frmQmaxMacMath",
                         "Cálculo del caudal máximo utilizando el método de Mac Math", textos()),
      txtsp(*this, "txtsp", "Pendiente cauce (S):", "o/oo") {
    layout = disposicion({txtsp, txtcq, txtaq, txtiq, {nullptr, {&lblMensajeI}, nullptr}},
                         {txtgrupo,
                          txtac,
                          {nullptr, {&lblZonasNoUrbanas}, nullptr},
                          cboCobertura,
                          cboTextura,
                          txts});
    soloNumeros({&txtsp});
    encadenar({&txtsp, &txtcq, &txtaq, &txtiq, &bCalcular});
}

std::vector<RainfallFlowWindow::CampoDeQ> frmQmaxMacMath::camposDeQ() {
    return {{&txtcq, "C"}, {&txtaq, "el área"}, {&txtiq, "la Imáx"}, {&txtsp, "la pendiente"}};
}

Real frmQmaxMacMath::caudal() const {
    return caudalMacMath(Val(txtcq.text()), Val(txtiq.text()), Val(txtaq.text()),
                         Val(txtsp.text()));
}

bool frmQmaxMacMath::grupoCompleto() {
    return exigir(txtac, {"Ingresar el dato del área en forma adecuada", "Error"}) &&
           exigir(txts, {"Ingresar el dato de la pendiente en forma adecuada", "Error"});
}

RainfallFlowWindow::Grupo frmQmaxMacMath::describirGrupo() const {
    const double pendiente = Val(txts.text());
    return {coeficienteMacMath(cboCobertura.text(), cboTextura.text(), pendiente),
            cboCobertura.text(), cboTextura.text(), textoPlano(pendiente)};
}

void frmQmaxMacMath::escribirDatosPrevios(ReportWriter& reporte) const {
    reporte << "     Pendiente cauce S: " << txtsp.text() << " o/oo" << ReportWriter::LF;
}

} // namespace caudalera
