#include "peakflow/RainfallFlowWindow.h"

#include "shell/text/Text.h"
#include "shell/worksheet/PastedBlock.h"

#include <algorithm>
#include <string_view>
#include <utility>

namespace caudalera {

namespace {

enum Pestana { pestanaQ, pestanaC, pestanaI };

constexpr long filasDeGrupos = 50;
constexpr long reglaDeResultados = 90;

/// Digits with at most one decimal point, no digit at all included: it is being typed.
bool esNumeroSinSigno(std::string_view texto) {
    return texto.find_first_not_of("0123456789.") == std::string_view::npos &&
           std::count(texto.begin(), texto.end(), '.') <= 1;
}

} // namespace

RainfallFlowWindow::RainfallFlowWindow(Program& program, std::string name, std::string text,
                                       RainfallFlowTexts textos)
    : Worksheet(program, std::move(name), std::move(text), "Trío", layoutTriosTDI("I máx (mm/hr)")),
      textos_(std::move(textos)) {
    lblMensajeI.wraps = true;
    lblZonasNoUrbanas.heading = true;
    for (TextBox* resultado : {&txtqmax, &txtgrupo, &txtCponderado, &txtatotal})
        resultado->result = true;
    grdC.columnWidths = textos_.anchosGrupos;
    grdC.visibleRows = 10;

    soloNumeros(
        {&txtcq, &txtaq, &txtiq, &txtqmax, &txtgrupo, &txtac, &txts, &txtCponderado, &txtatotal});
    SSTab1.onClick = [this] { elegirPestana(); };
    bAgregar.onClick = [this] { agregar(); };
    txts.command = &bAgregar;
    bCponderado.onClick = [this] { ponderar(); };
}

void RainfallFlowWindow::soloNumeros(const std::vector<TextBox*>& campos) {
    for (TextBox* campo : campos) {
        campo->acceptable = esNumeroSinSigno;
        campo->asPasted = numberAsPasted;
    }
}

void RainfallFlowWindow::load() {
    Worksheet::load();
    grupos_ = 0;
    numerarGrupo();
    setFocus(txtcq);
}

Layout RainfallFlowWindow::disposicion(std::vector<Layout::FieldLine> lineasQ,
                                       std::vector<Layout::FieldLine> lineasGrupo) {
    using namespace caudalera::layout;
    return tabs(
        SSTab1,
        {
            row({column({fields(std::move(lineasQ)), frame(fraResultadoQ, fields({txtqmax}))}),
                 control(Picture1).stretched()}),
            row({column({fields(std::move(lineasGrupo)), buttons({&bAgregar})}),
                 column({control(grdC).stretched(),
                         row({buttons({&bCponderado}),
                              frame(fraResultadosC, fields({txtCponderado, txtatotal}))})})
                     .stretched()}),
            intensidad.disposicion(),
        });
}

void RainfallFlowWindow::elegirPestana() {
    switch (SSTab1.tab()) {
    case pestanaQ:
        setFocus(txtcq);
        break;
    case pestanaC:
        setFocus(txtac);
        break;
    default:
        intensidad.entrar();
    }
}

void RainfallFlowWindow::reiniciarResultados() {
    grdC.reset(filasDeGrupos, 6, 1, 0);
    grdC.setHeaders(textos_.encabezadosGrupos);
}

void RainfallFlowWindow::reiniciarGrupos() {
    grupos_ = 0;
    numerarGrupo();
    reiniciarResultados();
}

void RainfallFlowWindow::numerarGrupo() {
    txtgrupo.setText(Str(static_cast<double>(grupos_ + 1)));
}

void RainfallFlowWindow::limpiar() {
    if (SSTab1.tab() == pestanaI) {
        intensidad.limpiar();
        return;
    }
    if (SSTab1.tab() == pestanaC) {
        reiniciarGrupos();
        for (TextBox* campo : {&txtac, &txts, &txtCponderado, &txtatotal})
            campo->setText({});
        setFocus(txtac);
        return;
    }
    for (const CampoDeQ& dato : camposDeQ())
        dato.campo->setText({});
    txtqmax.setText({});
    setFocus(txtcq);
}

void RainfallFlowWindow::calcular() {
    for (const auto& [campo, nombre] : camposDeQ()) {
        if (!exigir(*campo,
                    {"Ingresar un valor adecuado para " + nombre, "Error por dato inadecuado"}))
            return;
    }
    txtqmax.setText(formatear(caudal(), "0.##0"));
}

void RainfallFlowWindow::agregar() {
    if (!grupoCompleto())
        return;
    ++grupos_;
    areaGrupo_[grupos_] = toSingle(Val(txtac.text()));
    const Grupo grupo = describirGrupo();
    CGrupo_[grupos_] = toSingle(grupo.C);
    grdC.setTextMatrix(grupos_, 0, textoPlano(long{grupos_}));
    grdC.setTextMatrix(grupos_, 1, Str(areaGrupo_[grupos_]));
    grdC.setTextMatrix(grupos_, 2, grupo.cobertura);
    grdC.setTextMatrix(grupos_, 3, grupo.textura);
    grdC.setTextMatrix(grupos_, 4, grupo.pendiente);
    grdC.setTextMatrix(grupos_, 5, Str(CGrupo_[grupos_]));
    numerarGrupo();
    vaciarEntradaDeGrupo();
    setFocus(txtac);
}

void RainfallFlowWindow::vaciarEntradaDeGrupo() {
    txtac.setText({});
    txts.setText({});
}

void RainfallFlowWindow::ponderar() {
    float sumaCa = 0;
    float sumaA = 0;
    for (long i = 1; i <= grupos_; ++i) {
        const Real a(areaGrupo_[i]);
        sumaCa = toSingle(Real(sumaCa) + Real(CGrupo_[i]) * a);
        sumaA = toSingle(Real(sumaA) + a);
    }
    const Real C = Real(sumaCa) / Real(sumaA);
    txtCponderado.setText(formatear(C, "0.0#"));
    txtcq.setText(txtCponderado.text());
    txtatotal.setText(textoPlano(sumaA));
    txtaq.setText(txtatotal.text());
}

void RainfallFlowWindow::escribirGrupos(ReportWriter& reporte) const {
    constexpr std::string_view LF = ReportWriter::LF;
    reporte << textos_.tituloReporte << LF;
    reporte.encabezado({textos_.columnasReporte}, textos_.guionesReporte);
    for (long i = 1; i <= grupos_; ++i) {
        reporte << grdC.TextMatrix(i, 0) << blancos(5);
        for (long col = 1; col < grdC.Cols(); ++col) {
            const std::string& celda = grdC.TextMatrix(i, col);
            const long ancho = textos_.anchosReporte[static_cast<std::size_t>(col - 1)];
            reporte << celda << blancos(ancho - static_cast<long>(longitud(celda)));
        }
        reporte << LF;
    }
    reporte.cerrarTabla(textos_.guionesReporte);
}

void RainfallFlowWindow::escribirReporte(ReportWriter& reporte) {
    constexpr std::string_view LF = ReportWriter::LF;
    constexpr std::string_view sangria = "     ";
    escribirGrupos(reporte);
    reporte << blancos(25) << "C ponderado:" << txtCponderado.text() << LF;
    reporte << blancos(27) << "Area total:" << txtatotal.text() << " has" << LF;
    reporte << LF << "Cálculo del I máxima:" << LF << LF;
    intensidad.escribirReporte(reporte);
    reporte << "Resultados de los cálculos:" << LF;
    reporte.regla(reglaDeResultados);
    escribirDatosPrevios(reporte);
    reporte << sangria << "Coeficiente C: " << txtcq.text() << LF;
    reporte << sangria << "Área de la cuenca: " << txtaq.text() << " has" << LF;
    reporte << sangria << "I máx: " << txtiq.text() << " mm/hr" << LF;
    reporte << sangria << "Q máx: " << txtqmax.text() << " m3/s" << LF;
}

} // namespace caudalera
