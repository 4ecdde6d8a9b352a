#pragma once

#include "peakflow/intensidadProvincial.h"
#include "regression/ajustePotencial.h"
#include "shell/worksheet/Worksheet.h"

#include <optional>
#include <string>
#include <vector>

namespace caudalera {

/// A window that finds the largest rainfall intensity in a tab of its own: a duration, given or
/// from the concentration time, and a return period go into the equation of a province or into a
/// power fit to the user's records, which are the rows of `grdt`. The window built on it says
/// where the intensity goes.
class IntensityWorksheet : public Worksheet {
public:
    IntensityWorksheet(Program& program, std::string name, std::string caption);

    TextBox txtLi{*this, "txtLi", "Distancia al punto más alejado (L):", "m"};
    TextBox txtHi{*this, "txtHi", "Desnivel (H):", "m"};
    TextBox txtTi{*this, "txtTi", "Período de retorno (T):"};

    Frame fraDuracion{*this, "fraDuracion", "La duración es conocida ?"};
    OptionGroup duracionAdi;
    Option optDuracionAdiNo{*this, "optDuracionAdiNo", "No", duracionAdi};
    Option optDuracionAdiSi{*this, "optDuracionAdiSi", "Sí", duracionAdi};
    TextBox txtDuracionAdi{*this, "txtDuracionAdi"};
    Label lblDuracionAdi{*this, "lblDuracionAdi", "min"};

    Frame fraOpciones{*this, "fraOpciones", "Opciones cálculo:"};
    OptionGroup opciones;
    Option optProvincias{*this, "optProvincias",
                         "San José, Puntarenas, Cartago, Limón, Liberia, Alajuela", opciones};
    Option optRegistros{*this, "optRegistros", "Registro de datos", opciones};

    Frame fraProvincias{*this, "fraProvincias", "Provincia:"};
    OptionGroup provincias;
    Option optSanJose{*this, "optSanJose", "San José", provincias};
    Option optPuntarenas{*this, "optPuntarenas", "Puntarenas", provincias};
    Option optCartago{*this, "optCartago", "Cartago", provincias};
    Option optLimon{*this, "optLimon", "Limón", provincias};
    Option optLiberia{*this, "optLiberia", "Liberia", provincias};
    Option optAlajuela{*this, "optAlajuela", "Alajuela", provincias};

    Label lbleti1i{*this, "lbleti1i", "Ingreso de los tríos de datos T, D, Imáx:"};
    Label lbleti2i{*this, "lbleti2i", "Nota:"};
    Label lbleti3i{*this, "lbleti3i", "Una vez que digite el dato, presionar ENTER"};

    Button bcalcularI{*this, "bcalcularI", "Calcular I"};
    Frame fraResultadosI{*this, "fraResultadosI", "Resultados:"};
    TextBox txttci{*this, "txttci", "Tiempo de concentración ó duración (tc):", "min"};
    TextBox txtImaxi{*this, "txtImaxi", "Intensidad máxima (I):", "mm/hr"};
    Label lblecuacioni{*this, "lblecuacioni", "Ecuación de cálculo de Imáx:"};
    TextBox txtecuacioni{*this, "txtecuacioni"};

    /// Whether an intensity was found since the start or the last load of a file.
    bool calculado() const { return calculado_; }

protected:
    /// Takes the intensity as the tab shows it.
    virtual void recibirIntensidad(const std::string& texto) = 0;

    Layout disposicionI();
    /// What choosing the tab and clearing it do.
    void entrarEnI();
    void limpiarI();
    /// The records, if they are the source, and the sentence that tells the intensity.
    void escribirReporteI(ReportWriter& reporte) const;

    /// Lets the user bring in digits and one decimal point alone.
    static void soloNumeros(const std::vector<TextBox*>& campos);

    void antesDeAccesar() override;

private:
    void mostrarDuracion(bool conocida);
    void elegirProvincias();
    void elegirRegistros();
    void mostrarIngreso(bool si);
    void mostrarEcuacion(bool si);

    /// Shows the message and gives the field the focus.
    void rechazar(TextBox& campo, const char* texto);
    void calcularI();
    /// False if the command ends there.
    bool tomarDuracion();
    /// In minutes; 0 behind a message if it cannot be found.
    Real duracionDeConcentracion();
    void tomarPeriodo();
    bool intensidadDeProvincia();
    bool intensidadDeRegistros();
    std::optional<Provincia> provinciaElegida() const;

    static constexpr long capacidad = 500;
    Serie T_{capacidad};
    Serie D_{capacidad};
    Serie Imax_{capacidad};
    float periodo_ = 0;
    Real duracion_;
    Real intensidad_;
    bool calculado_ = false;
};

} // namespace caudalera
