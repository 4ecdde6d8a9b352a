#pragma once

#include "shell/worksheet/Worksheet.h"
#include "tests/support/WindowTest.h"

#include <optional>
#include <string>
#include <vector>

namespace caudalera {

/// The template alone, as a worksheet with a layout of its own.
class TestSheet : public Worksheet {
public:
    static constexpr long capacidad = 20;
    static constexpr const char* rotulo = "Hoja de prueba";

    enum class Etiquetas { numeros, meses };

    TestSheet(Program& program, const std::string& name, SeriesLayout filas, Etiquetas etiquetas);

    MSFlexGrid grdres{*this, "grdres"};
    TextBox txtres{*this, "txtres", "Media", "m"};
    TextBox txtotro{*this, "txtotro"};
    TextBox txtultimo{*this, "txtultimo"};
    List lista{*this, "lista", {"uno", "dos"}, "uno"};
    OptionGroup grupo;
    Option optA{*this, "optA", "A", grupo};
    Option optB{*this, "optB", "B", grupo};
    Graph Graph1{*this, "Graph1"};

    /// What the window was asked to do, in order.
    std::vector<std::string> pasos;
    /// Pieces behind the title block of its report; `filaDelInforme` is a row of `grdt` that the
    /// report writes too, 0 for none.
    std::vector<std::string> piezas;
    long filaDelInforme = 0;
    std::vector<Real> registroFinal;
    /// Failures that reading the grid and the end of a load are made to meet.
    std::optional<Failure> falloAlLeer;
    std::optional<Failure> falloTrasAccesar;

    using Worksheet::n;
    Real valor(long columna, long i) const {
        return series_[static_cast<std::size_t>(columna - 1)][i];
    }

protected:
    /// Mean of the first column, by "0.##00".
    void calcular() override;
    void limpiar() override;
    void escribirReporte(ReportWriter& reporte) override;
    void reiniciarResultados() override;
    void leerCuadricula() override;
    std::string etiquetaFila(long fila) const override;
    void trasAccesar() override;
    std::vector<Real> ultimoRegistro() const override { return registroFinal; }
    void recibirUltimoRegistro(std::span<const float> registro) override;

private:
    std::vector<Serie> series_;
    Etiquetas etiquetas_;
};

/// The windows of these tests: worksheets of one, two, three and four columns ("hojaUno" to
/// "hojaCuatro"), with months ("hojaMeses", and "hojaMascara" with a mask of its own) and with a
/// last record ("hojaUltimoUno" to "hojaUltimoTres").
const std::vector<WindowEntry>& ventanasDePrueba();

/// A program that opens the windows of these tests; `sheet` loads one.
class SheetTest : public WindowTest {
protected:
    SheetTest() : WindowTest(ventanasDePrueba()) {}

    TestSheet& sheet(const std::string& name = "hojaTres") {
        return dynamic_cast<TestSheet&>(open(name));
    }
    /// Fixed column of `grdt` from row 1 on, joined by '|'.
    std::string marks();
    /// Data cells of `grdt`: rows joined by '/', cells by '|', the append row left out.
    std::string data();
};

} // namespace caudalera
