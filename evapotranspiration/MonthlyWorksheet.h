#pragma once

#include "shell/numbers/Serie.h"
#include "shell/text/MonthData.h"
#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <span>
#include <string>
#include <string_view>
#include <vector>

namespace caudalera {

/// What the windows built on MonthlyWorksheet show differently.
struct MonthlyTexts {
    std::string ingreso;
    std::string marcoLatitud;
    std::span<const std::string_view> latitudes;
    /// What a calculation says of fewer than twelve rows.
    std::string faltanMeses;
};

/// The template of the windows that compute a year of twelve months at a latitude: rows labelled by
/// month, the latitude, a grid of results and a chart over the months. A window supplies its texts,
/// the calculation of the year and the curves.
class MonthlyWorksheet : public Worksheet {
public:
    MonthlyWorksheet(Program& program, std::string name, std::string caption,
                     SeriesLayout seriesLayout, const MonthlyTexts& textos);

    DataEntry ingreso;
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Frame fraLatitud;
    List cobLatitud;
    List cobLatitudNS{*this, "cobLatitudNS", {"N", "S"}, "N"};
    MSFlexGrid grddis{*this, "grddis"};
    Label lblEjeMeses{*this, "lblEjeMeses", rotuloEjeMeses};
    Graph Graph1{*this, "Graph1"};

protected:
    static constexpr long meses = mesesCortos.size();

    /// A calculation has come to its end since the start or the last load of a file.
    bool calculado = false;

    /// Latitude and hemisphere as tables name them.
    std::string clave() const { return cobLatitud.text() + cobLatitudNS.text(); }
    /// Month of a row when the grid was read last.
    const std::string& etiquetaMes(long mes) const { return etiquetas_[mes]; }

    Layout marcoLatitud();
    /// Reads the grid. Fewer than twelve rows have a message and are not read: what was read before
    /// stands.
    void leerMeses();
    /// Behind that message.
    virtual void trasFaltarMeses() {}
    /// The steps of a calculation. A failure ends them where they stand.
    virtual void calcularAnno() = 0;
    /// What the chart shows.
    virtual std::vector<Graph::Series> curvas() const = 0;
    /// What its curves measure, with the unit.
    virtual std::string tituloCurvas() const = 0;
    static Graph::Series curva(std::string leyenda, std::span<const float> valores);

    void calcular() override;
    void leerFila(long fila) override;
    std::string etiquetaFila(long fila) const override;
    void trasAgregarFila() override;
    void borrarResultados() override;
    void antesDeAccesar() override;

private:
    void graficar();

    std::string faltanMeses_;
    SerieDe<std::string> etiquetas_{meses};
};

} // namespace caudalera
