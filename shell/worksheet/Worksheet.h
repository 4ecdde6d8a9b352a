#pragma once

#include "shell/files/Variables.h"
#include "shell/numbers/Integer16.h"
#include "shell/numbers/Serie.h"
#include "shell/window/GridHistory.h"
#include "shell/worksheet/CalculationWindow.h"
#include "shell/worksheet/CommonDialog.h"
#include "shell/worksheet/DataState.h"
#include "shell/worksheet/SeriesLayout.h"

#include <functional>
#include <span>
#include <string>
#include <variant>
#include <vector>

namespace caudalera {

/// The template of the calculation windows with a data grid: `grdt` and the box `txtt` that floats
/// over the cell being edited, inserting and deleting rows, the file commands. The last row of the
/// grid is always the append row, which is not data. A window hands over how its file lies and the
/// arrays of its data columns; reading the grid, writing and loading the file follow from that.
class Worksheet : public CalculationWindow {
public:
    Worksheet(Program& program, std::string name, std::string caption, std::string encabezadoFilas,
              SeriesLayout seriesLayout);

    MSFlexGrid grdt{*this, "grdt"};
    TextBox txtt{*this, "txtt"};
    MenuEntry mnuEdicion{*this, "mnuEdicion", "Edición"};
    MenuEntry mnuEditInsertar{*this, "mnuEditInsertar", "Insertar Fila"};
    MenuEntry mnuEditEliminar{*this, "mnuEditEliminar", "Eliminar Fila"};
    Button bCrear{*this, "bCrear", "&Crear", "Crear archivo"};
    Button bAccesar{*this, "bAccesar", "&Accesar", "Cargar archivo"};
    StatusBar StatusBar1{*this, "StatusBar1", 1};

    void load() override;
    /// How many data there are and what was done with them last, or that the results are older.
    std::string status() const override;
    std::vector<const Control*> staleResults() const override;

    /// Writes the rows of data as a series file, as many as the grid has.
    void guardarSerie(Variables& variables, const std::string& ruta) const;
    const SeriesLayout& seriesLayout() const { return formatoSerie_; }

protected:
    /// The array of a data column.
    using Columna = std::variant<Serie*, SerieSimple*>;

    /// The arrays that the data columns are read into, in the order of the columns.
    std::vector<Columna> columnas;
    /// Rows of data after the last reading of the grid; holds no reliable value between commands.
    Integer16 n;

    long filaDeAlta() const { return grdt.Rows() - 1; }

    /// Builds `grdt` empty: header and append row, marked "[?]".
    void reiniciarCuadricula();
    /// Builds each result grid empty with its headers.
    virtual void reiniciarResultados() = 0;
    /// Sets `n` and fills the arrays with the numeric reading of the cells, row by row; failure 9
    /// past their capacity.
    virtual void leerCuadricula();
    /// One row of it, for what is read or computed row by row.
    virtual void leerFila(long fila);
    /// Text of the fixed cell of a data row: its number, where a window gives no other.
    virtual std::string etiquetaFila(long fila) const;
    /// Labels the data rows anew; the append row keeps its mark.
    void renumerarFilas();
    /// The controls that hold what is calculated from the grid.
    virtual std::vector<const Control*> resultados() const;
    /// Runs the steps of a calculation; what they write is of the data as they are then.
    void registrarCalculo(const std::function<void()>& pasos);
    /// A row was completed at the append row.
    virtual void trasAgregarFila() {}
    /// Takes the results of an earlier calculation away: the result grids and the registered
    /// fields; a window with more of them adds the rest.
    virtual void borrarResultados();
    /// The data and the results.
    void limpiar() override;
    /// Fields that come with the rows when a file is loaded and are emptied with them.
    void registrarCamposDeSerie(const std::vector<TextBox*>& campos) { historia_.fields = campos; }
    /// Rows and fields of the data stand as they stood before or behind an earlier change.
    virtual void trasRestablecer() { renumerarFilas(); }
    /// What a load resets before the dialog opens, and what once the file is in the grid.
    virtual void antesDeAccesar() { borrarResultados(); }
    virtual void trasAccesar() {}
    /// The record behind those of the rows, in the layouts that have one.
    virtual std::vector<Real> ultimoRegistro() const { return {}; }
    virtual void recibirUltimoRegistro(std::span<const float> /*registro*/) {}

    long filasDelReporte() const override { return grdt.Rows() - 2; }
    void trasReporte() override { estado_.done("reporte listo"); }
    /// Rows of data, read from the grid as a 16-bit count.
    Integer16 contarFilas() const { return grdt.Rows() - 2; }
    /// Puts the cursor on the first free cell of `grdt`.
    void irAFilaDeAlta();
    /// Numeric reading of a cell of `grdt`.
    Real valorCelda(long fila, long columna) const;

private:
    /// Fixed cell of the append row while it is the current one, and otherwise.
    static constexpr const char* marcadorActual = "[->]";
    static constexpr const char* marcadorOtro = "[?]";

    void marcarFilaDeAlta(const char* marcador);
    void avanzar();
    void cambioDeFila();
    void empezarEdicion(char32_t codigo);
    /// While `txtt` is visible its text, as it stands, becomes the current cell's and it is hidden.
    void guardarEdicion();
    /// Without storing what was typed.
    void ocultarTxtt();
    bool teclaEnTxtt(Key key);
    void botonDerecho();
    /// What the right button that opens the pop-up has done already; its entries stand alone too.
    void tomarFila();
    void insertarFila();
    void eliminarFila();
    void crear();
    /// Notes what was done with the file chosen last.
    void anotarArchivo(const char* hecho);
    void accesar();
    void cargar();
    void cargarRegistros(class SeriesFile& archivo);
    void vaciarDatos(long fila);
    /// A row of data as the file stores it.
    std::vector<float> registroDe(long fila) const;

    DataState estado_{grdt};
    /// Rows read since a calculation began.
    long filasLeidas_ = 0;
    SeriesLayout formatoSerie_;
    std::string encabezadoFilas_;
    CommonDialog cdCrear_;
    CommonDialog cdAccesar_;
    GridHistory historia_{grdt};
};

} // namespace caudalera
