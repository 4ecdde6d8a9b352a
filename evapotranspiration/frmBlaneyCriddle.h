#pragma once

#include "evapotranspiration/MonthlyWorksheet.h"
#include "evapotranspiration/blaneyCriddle.h"
#include "evapotranspiration/tablasDeLatitud.h"

#include <optional>

namespace caudalera {

/// Reference and crop evapotranspiration of the months of a year by the modified Blaney-Criddle
/// method.
class frmBlaneyCriddle : public MonthlyWorksheet {
public:
    explicit frmBlaneyCriddle(Program& program);

    Frame fraClima{*this, "fraClima", "Datos climáticos:"};
    OptionGroup clima;
    Option OptEstimado{*this, "OptEstimado", "Estimados", clima};
    Option OptMedido{*this, "OptMedido", "Medidos", clima};

    Frame fraClimaEstimado{*this, "fraClimaEstimado", "Datos climáticos estimados:"};
    List cobInsolacion;
    Label lblNubosidad{*this, "lblNubosidad", "(en función de la nubosidad)"};
    List cobHumedad;
    List cobViento;

    Frame fraClimaMedido{*this, "fraClimaMedido", "Datos climáticos medidos:"};
    TextBox txtcn{*this, "txtcn", "Número de horas de insolación real (n):"};
    TextBox txtchrmin{*this, "txtchrmin", "Humedad relativa mínima (HRmin) (%):"};
    TextBox txtcv{*this, "txtcv", "Velocidad del viento  (Km/hr):"};

    Frame fraKc{*this, "fraKc", "Datos Kc cultivo:"};
    OptionGroup origenKc;
    Option optKcEstimado{*this, "optKcEstimado", "Estimado", origenKc};
    Option optKcTabla{*this, "optKcTabla", "Tabla", origenKc};
    Frame fraKcEstimado{*this, "fraKcEstimado", "Dato Kc cultivo estimado:"};
    List cobKc;
    Frame fraKcTabla{*this, "fraKcTabla", "Dato Kc cultivo tabla:"};
    TextBox txtKcTabla{*this, "txtKcTabla", "Kc:"};

    void load() override;

protected:
    void calcularAnno() override;
    std::vector<Graph::Series> curvas() const override;
    std::string tituloCurvas() const override;
    void limpiar() override;
    void reiniciarResultados() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    /// Estimated classes give the coefficients of the whole year; with the measured hours n of
    /// sunshine those of each month follow from the class of n/N.
    struct Clima {
        std::optional<CoeficientesBlaney> coeficientes;
        Real n;
        ClaseClimatica humedad = ClaseClimatica::baja;
        ClaseClimatica viento = ClaseClimatica::baja;
    };

    void disponer();
    void mostrarClima(bool estimado);
    void mostrarKc(bool estimado);
    // What is asked for; none, behind its message, if something is missing.
    std::optional<Clima> leerClima();
    std::optional<Clima> leerClimaEstimado();
    std::optional<Clima> leerClimaMedido();
    std::optional<Real> leerKc();
    std::optional<Real> leerMedida(TextBox& campo, const char* magnitud);

    void calcularMeses(const Clima& dadoClima, Real Kc);
    void escribirResultados();
    void reporteDeDatos(ReportWriter& reporte) const;

    TablaDeLatitud porcentajes_{tablaHorasDiurnas};
    TablaDeLatitud insolacion_{tablaInsolacionMaxima};
    SerieSimple T{meses};
    SerieSimple P{meses};
    SerieSimple N{meses};
    SerieSimple ETo{meses};
    SerieSimple ETr{meses};
    SerieSimple ETrMensual{meses};
};

} // namespace caudalera
