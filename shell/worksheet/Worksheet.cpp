#include "shell/worksheet/Worksheet.h"

#include "shell/text/Text.h"
#include "shell/window/Program.h"
#include "shell/worksheet/PastedBlock.h"

namespace caudalera {

namespace {

constexpr const char* mascaraCelda = "#0.0#######";
constexpr const char* mascaraAlta = "0.0#######";

} // namespace

Worksheet::Worksheet(Program& program, std::string name, std::string text,
                     std::string encabezadoFilas, SeriesLayout seriesLayout)
    : CalculationWindow(program, std::move(name), std::move(text)),
      formatoSerie_(std::move(seriesLayout)), encabezadoFilas_(std::move(encabezadoFilas)),
      cdCrear_(FileDialog::Kind::save, "Ubicar directorio y escribir el nombre archivo a crear",
               formatoSerie_.saveFilter),
      cdAccesar_(FileDialog::Kind::open, "Seleccionar el archivo a cargar",
                 formatoSerie_.filterToOpen()) {
    mnuEdicion.entries = {&mnuEditInsertar, nullptr, &mnuEditEliminar};
    txtt.visible = false;
    grdt.editor = &txtt;
    grdt.popup = &mnuEdicion;
    grdt.history = &historia_;
    historia_.onRestored = [this] { trasRestablecer(); };
    grdt.columnWidths.assign(formatoSerie_.fields.size() + 1, 1800);
    grdt.columnWidths.front() = 700;

    grdt.onKeyPress = [this](char32_t codigo) { empezarEdicion(codigo); };
    grdt.onEnter = [this] {
        avanzar();
        grdt.setTopRow(grdt.Row());
    };
    grdt.onGotFocus = [this] { guardarEdicion(); };
    grdt.onLeaveCell = grdt.onScroll = [this] { ocultarTxtt(); };
    grdt.onRowColChange = [this] { cambioDeFila(); };
    grdt.onRightClick = [this] { botonDerecho(); };
    txtt.onKey = [this](Key key) { return teclaEnTxtt(key); };
    txtt.asPasted = numberAsPasted;
    txtt.onGotFocus = [this] {
        StatusBar1.panels[0] =
            "Para introducir o modificar datos, digitarlos y luego presionar ENTER";
    };
    txtt.onLostFocus = [this] { StatusBar1.panels[0].clear(); };
    mnuEditInsertar.onClick = [this] {
        tomarFila();
        insertarFila();
    };
    mnuEditEliminar.onClick = [this] {
        tomarFila();
        eliminarFila();
    };
    mandatoDeArchivo(bCrear);
    mandatoDeArchivo(bAccesar);
    bCalcular.onClick = [this] { registrarCalculo([this] { calcular(); }); };
    bLimpiar.onClick = [this] {
        limpiar();
        estado_.done("pantalla limpia");
    };
    bCrear.onClick = [this] { crear(); };
    bAccesar.onClick = [this] { accesar(); };
}

void Worksheet::load() {
    reiniciarCuadricula();
    reiniciarResultados();
    setFocus(grdt);
}

void Worksheet::ocultarTxtt() {
    txtt.visible = false;
    if (focus() == &txtt)
        setFocus(grdt);
}

void Worksheet::reiniciarCuadricula() {
    ocultarTxtt();
    grdt.reset(2, static_cast<long>(formatoSerie_.fields.size()) + 1, 1, 1);
    grdt.setTextMatrix(0, 0, encabezadoFilas_);
    for (std::size_t i = 0; i < formatoSerie_.fields.size(); ++i)
        grdt.setTextMatrix(0, static_cast<long>(i) + 1, formatoSerie_.fields[i]);
    marcarFilaDeAlta(marcadorOtro);
}

void Worksheet::borrarResultados() {
    reiniciarResultados();
    vaciarCampos();
}

void Worksheet::limpiar() {
    reiniciarCuadricula();
    borrarResultados();
}

std::string Worksheet::etiquetaFila(long fila) const {
    return Str(fila);
}

void Worksheet::renumerarFilas() {
    for (long fila = 1; fila < filaDeAlta(); ++fila)
        grdt.setTextMatrix(fila, 0, etiquetaFila(fila));
}

void Worksheet::marcarFilaDeAlta(const char* marcador) {
    grdt.setTextMatrix(filaDeAlta(), 0, marcador);
}

void Worksheet::leerCuadricula() {
    n = contarFilas();
    for (long i = 1; i <= n; ++i)
        leerFila(i);
}

void Worksheet::leerFila(long fila) {
    ++filasLeidas_;
    for (std::size_t columna = 0; columna < columnas.size(); ++columna) {
        const Real valor = valorCelda(fila, static_cast<long>(columna) + 1);
        if (Serie* const* serie = std::get_if<Serie*>(&columnas[columna])) {
            (**serie)[fila] = valor;
        } else {
            (*std::get<SerieSimple*>(columnas[columna]))[fila] = toSingle(valor);
        }
    }
}

void Worksheet::irAFilaDeAlta() {
    grdt.setCol(1);
    grdt.setRow(filaDeAlta());
    setFocus(grdt);
}

Real Worksheet::valorCelda(long fila, long columna) const {
    return Val(grdt.TextMatrix(fila, columna));
}

void Worksheet::vaciarDatos(long fila) {
    for (long col = 1; col < grdt.Cols(); ++col)
        grdt.setTextMatrix(fila, col, {});
}

void Worksheet::empezarEdicion(char32_t codigo) {
    txtt.visible = true;
    if (codigo <= 32) {
        txtt.enterText(formatear(valorCelda(grdt.Row(), grdt.Col()), mascaraCelda));
        txtt.select(0, longitud(txtt.text()));
    } else {
        txtt.enterText({});
        txtt.type({Key::Kind::character, codigo});
    }
    setFocus(txtt);
}

void Worksheet::guardarEdicion() {
    if (!txtt.visible)
        return;
    grdt.setTextMatrix(grdt.Row(), grdt.Col(), txtt.text());
    txtt.visible = false;
}

bool Worksheet::teclaEnTxtt(Key key) {
    switch (key.kind) {
    case Key::Kind::escape:
        txtt.visible = false;
        setFocus(grdt);
        return true;
    case Key::Kind::down:
        guardarEdicion();
        setFocus(grdt);
        if (grdt.Row() < filaDeAlta())
            grdt.setRow(grdt.Row() + 1);
        return true;
    case Key::Kind::up:
        guardarEdicion();
        setFocus(grdt);
        if (grdt.Row() > 1)
            grdt.setRow(grdt.Row() - 1);
        return true;
    case Key::Kind::enter:
        txtt.enterText(formatear(Real(Val(txtt.text())), mascaraCelda));
        guardarEdicion();
        setFocus(grdt);
        avanzar();
        return true;
    case Key::Kind::character:
    case Key::Kind::forwardDelete:
        return false;
    }
    return false;
}

void Worksheet::avanzar() {
    if (grdt.Row() != filaDeAlta()) {
        grdt.setRow(grdt.Row() + 1);
        return;
    }
    if (grdt.Col() < grdt.Cols() - 1) {
        grdt.setCol(grdt.Col() + 1);
        return;
    }
    const long fila = grdt.Row();
    for (long col = 1; col < grdt.Cols(); ++col)
        grdt.setTextMatrix(fila, col, formatear(valorCelda(fila, col), mascaraAlta));
    grdt.setRows(grdt.Rows() + 1);
    grdt.setCol(1);
    grdt.setRow(filaDeAlta());
    // The rows above have their labels.
    grdt.setTextMatrix(fila, 0, etiquetaFila(fila));
    marcarFilaDeAlta(marcadorActual);
    trasAgregarFila();
}

void Worksheet::cambioDeFila() {
    const long alta = filaDeAlta();
    if (grdt.Row() == alta) {
        grdt.setTextMatrix(alta, 0, marcadorActual);
        return;
    }
    mnuEditInsertar.enabled = true;
    grdt.setTextMatrix(alta, 0, marcadorOtro);
    vaciarDatos(alta);
}

void Worksheet::botonDerecho() {
    mnuEditInsertar.enabled = grdt.Row() != filaDeAlta();
    grdt.setCol(1);
    grdt.setSelectionEnd(grdt.Row(), grdt.Cols() - 1);
}

void Worksheet::tomarFila() {
    setFocus(grdt);
    grdt.setCol(1);
}

void Worksheet::insertarFila() {
    if (grdt.Row() == filaDeAlta())
        return;
    grdt.setRows(grdt.Rows() + 1);
    for (long fila = grdt.Rows() - 1; fila > grdt.Row(); --fila) {
        for (long col = 1; col < grdt.Cols(); ++col)
            grdt.setTextMatrix(fila, col, grdt.TextMatrix(fila - 1, col));
    }
    vaciarDatos(grdt.Row());
    renumerarFilas();
    marcarFilaDeAlta(marcadorOtro);
}

void Worksheet::eliminarFila() {
    if (grdt.Row() != filaDeAlta() && grdt.Rows() >= 3) {
        grdt.RemoveItem(grdt.Row());
        renumerarFilas();
        marcarFilaDeAlta(marcadorOtro);
    } else {
        reiniciarCuadricula();
    }
}

} // namespace caudalera
