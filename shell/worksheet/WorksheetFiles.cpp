#include "shell/files/SeriesFile.h"
#include "shell/window/Program.h"
#include "shell/worksheet/Worksheet.h"

namespace caudalera {

namespace {

std::vector<float> enSimple(const std::vector<Real>& valores) {
    std::vector<float> registro;
    registro.reserve(valores.size());
    for (const Real valor : valores)
        registro.push_back(toSingle(valor));
    return registro;
}

} // namespace

std::vector<float> Worksheet::registroDe(long fila) const {
    std::vector<float> registro;
    registro.reserve(formatoSerie_.fields.size());
    for (long columna = 1; columna < grdt.Cols(); ++columna)
        registro.push_back(toSingle(valorCelda(fila, columna)));
    return registro;
}

void Worksheet::guardarSerie(Variables& variables, const std::string& ruta) const {
    SeriesFile archivo(variables, ruta, static_cast<int>(formatoSerie_.fields.size()),
                       SeriesFile::Access::replace);
    for (long fila = 1; fila <= filasDelReporte(); ++fila)
        archivo.write(registroDe(fila));
    if (formatoSerie_.lastRecord)
        archivo.write(enSimple(ultimoRegistro()));
    archivo.close();
}

void Worksheet::crear() {
    Variables& variables = program().variables;
    conTrampa(
        [&] {
            variables.nombreArchivo = cdCrear_.show(platform());
            leerCuadricula();
            guardarSerie(variables, variables.nombreArchivo);
            anotarArchivo("guardado en ");
        },
        [&](const RuntimeFailure& failure) {
            // Rows past the capacity of the arrays end the program in spite of the trap.
            if (failure.failure() == Failure::index)
                throw failure;
            if (failure.failure() == Failure::dialogCancelled)
                mensaje("Error desconocido al salvar el archivo " + variables.nombreArchivo);
        });
}

void Worksheet::accesar() {
    antesDeAccesar();
    Variables& variables = program().variables;
    conTrampa(
        [&] {
            variables.nombreArchivo = cdAccesar_.show(platform());
            cargar();
            trasAccesar();
            anotarArchivo("cargado de ");
        },
        [&](const RuntimeFailure& failure) {
            if (failure.failure() == Failure::dialogCancelled)
                mensaje("Error desconocido al abrir el archivo " + variables.nombreArchivo);
        });
}

void Worksheet::cargar() {
    Variables& variables = program().variables;
    reiniciarCuadricula();
    n = 0;
    SeriesFile archivo(variables, variables.nombreArchivo,
                       static_cast<int>(formatoSerie_.fields.size()), SeriesFile::Access::read);
    variables.numRegistros = archivo.records();
    cargarRegistros(archivo);
    archivo.close();
    marcarFilaDeAlta(marcadorActual);
    grdt.setCol(1);
    grdt.setRow(filaDeAlta());
    n = contarFilas();
}

void Worksheet::cargarRegistros(SeriesFile& archivo) {
    const long datos = program().variables.numRegistros - (formatoSerie_.lastRecord ? 1L : 0L);
    // A grid has its fixed row and one more at least.
    if (datos < 0)
        throw RuntimeFailure(Failure::index);
    grdt.setRows(datos + 2);
    // It may bring what the labels of the rows count from.
    if (formatoSerie_.lastRecord) {
        archivo.goTo(datos + 1);
        recibirUltimoRegistro(archivo.read());
        archivo.goTo(1);
    }
    for (long i = 1; i <= datos; ++i) {
        const auto registro = archivo.read();
        grdt.setTextMatrix(i, 0, etiquetaFila(i));
        for (std::size_t campo = 0; campo < registro.size(); ++campo) {
            const Real valor = Real::checked(registro[campo]);
            grdt.setTextMatrix(i, static_cast<long>(campo) + 1,
                               formatear(static_cast<float>(valor.value()), formatoSerie_.mask));
        }
    }
}

} // namespace caudalera
