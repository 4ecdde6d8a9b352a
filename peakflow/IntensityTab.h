#pragma once

#include "peakflow/intensidadProvincial.h"
#include "regression/ajustePotencial.h"
#include "shell/numbers/Serie.h"
#include "shell/report/ReportWriter.h"
#include "shell/window/Window.h"
#include "shell/worksheet/DataEntry.h"

#include <optional>
#include <vector>

namespace caudalera {

class RainfallFlowWindow;

/// The tab that finds the largest rainfall intensity: a duration, given or from the concentration
/// time, and a return period go into the equation of a province or into a power fit to the user's
/// records, which are the rows of the window's `grdt`. The intensity found goes to its `txtiq`.
class IntensityTab {
    // Before the controls, which are built from it. The window that the tab is part of, as its
    // controls know it and as the tab does.
    Window& ventana_;
    RainfallFlowWindow& hoja_;

public:
    explicit IntensityTab(RainfallFlowWindow& window);

    TextBox txtLi{ventana_, "txtLi", "Distancia al punto más alejado (L):", "m"};
    TextBox txtHi{ventana_, "txtHi", "Desnivel (H):", "m"};
    TextBox txtTi{ventana_, "txtTi", "Período de retorno (T):"};

    Frame fraDuracion{ventana_, "fraDuracion", "La duración es conocida ?"};
    OptionGroup duracionAdi;
    Option optDuracionAdiNo{ventana_, "optDuracionAdiNo", "No", duracionAdi};
    Option optDuracionAdiSi{ventana_, "optDuracionAdiSi", "Sí", duracionAdi};
    TextBox txtDuracionAdi{ventana_, "txtDuracionAdi"};
    Label lblDuracionAdi{ventana_, "lblDuracionAdi", "min"};

    Frame fraOpciones{ventana_, "fraOpciones", "Opciones cálculo:"};
    OptionGroup opciones;
    Option optProvincias{ventana_, "optProvincias",
                         "San José, Puntarenas, Cartago, Limón, Liberia, Alajuela", opciones};
    Option optRegistros{ventana_, "optRegistros", "Registro de datos", opciones};

    Frame fraProvincias{ventana_, "fraProvincias", "Provincia:"};
    OptionGroup provincias;
    Option optSanJose{ventana_, "optSanJose", "San José", provincias};
    Option optPuntarenas{ventana_, "optPuntarenas", "Puntarenas", provincias};
    Option optCartago{ventana_, "optCartago", "Cartago", provincias};
    Option optLimon{ventana_, "optLimon", "Limón", provincias};
    Option optLiberia{ventana_, "optLiberia", "Liberia", provincias};
    Option optAlajuela{ventana_, "optAlajuela", "Alajuela", provincias};

    DataEntry ingreso{ventana_,
                      "Ingreso de los tríos de datos T, D, Imáx:",
                      {"lbleti1i", "lbleti2i", "lbleti3i"}};

    Button bcalcularI{ventana_, "bcalcularI", "Calcular I"};
    Frame fraResultadosI{ventana_, "fraResultadosI", "Resultados:"};
    TextBox txttci{ventana_, "txttci", "Tiempo de concentración ó duración (tc):", "min"};
    TextBox txtImaxi{ventana_, "txtImaxi", "Intensidad máxima (I):", "mm/hr"};
    Label lblecuacioni{ventana_, "lblecuacioni", "Ecuación de cálculo de Imáx:"};
    TextBox txtecuacioni{ventana_, "txtecuacioni"};

    /// Whether an intensity was found since the start or the last load of a file.
    bool calculado() const { return calculado_; }

    Layout disposicion();
    std::vector<const Control*> resultados() const { return {&txttci, &txtImaxi, &txtecuacioni}; }
    /// What choosing the tab does, and clearing it.
    void entrar();
    void limpiar();
    /// What a load of records resets before its dialog opens.
    void antesDeAccesar();
    /// The records, if they are the source, and the sentence that tells the intensity.
    void escribirReporte(ReportWriter& reporte) const;

private:
    void mostrarDuracion(bool conocida);
    void elegirProvincias();
    void elegirRegistros();
    void mostrarEcuacion(bool si);

    void calcular();
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
