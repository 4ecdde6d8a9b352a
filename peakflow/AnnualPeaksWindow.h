#pragma once

#include "peakflow/caudalDeDiseno.h"
#include "shell/numbers/Integer16.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <array>
#include <span>
#include <string>
#include <vector>

namespace caudalera {

/// What the windows built on AnnualPeaksWindow show differently.
struct AnnualPeaksTexts {
    std::string dibujo;
    /// Headers of `grddis`, and what stands in front of each of its cells in the report.
    std::array<std::string, 9> encabezados;
    std::array<std::string, 8> lineasReporte;
    /// Length of the rules around the results in the report.
    long guionesReporte = 0;
    /// The sentence of the report that tells the design flow, up to the return period.
    std::string cierreReporte;
};

/// A design flow from annual peaks, whose rows are labelled by their years, and a return period.
class AnnualPeaksWindow : public Worksheet {
public:
    AnnualPeaksWindow(Program& program, std::string name, std::string caption,
                      AnnualPeaksTexts textos);

private:
    // Before the controls, which are built from them.
    AnnualPeaksTexts textos_;

public:
    TextBox txtanno{*this, "txtanno", "Año de inicio:"};
    DataEntry ingreso{*this, "Ingreso de datos:"};
    Picture Picture1{*this, "Picture1", textos_.dibujo};
    TextBox txtTdato{*this, "txtTdato",
                     "Período de retorno de cálculo del caudal de diseño (T):", "años"};
    Label lblResultados{*this, "lblResultados", "Resultados:"};
    MSFlexGrid grddis{*this, "grddis"};

protected:
    /// Finds the design flow of a return period (years) and shows it.
    virtual void disenar(Real T) = 0;

    /// The peaks as the grid holds them now, in ascending order.
    std::vector<Real> leerOrdenados();
    /// What columns 1 to 4 of `grddis` tell, and the flow itself.
    void escribirDiseno(const std::array<Real, 4>& parametros, const CaudalDeDiseno& diseno);

    /// Sets the layout: `resultados` stand beside the data, with `grddis` below them.
    void disponer(std::vector<Layout> resultados);

    void calcular() override;
    void limpiar() override;
    void reiniciarResultados() override;
    std::string etiquetaFila(long fila) const override;
    std::vector<Real> ultimoRegistro() const override;
    void recibirUltimoRegistro(std::span<const float> registro) override;
    void trasRestablecer() override { tomarAnno(); }
    void escribirReporte(ReportWriter& reporte) override;

private:
    void tomarAnno();
    std::string textoIntervalo(const CaudalDeDiseno& diseno) const;
    std::string textoPartido(Real cota) const;

    static constexpr long capacidad = 500;
    Serie Q_{capacidad};
    /// Year of row 1, as it stood when the field was left.
    Integer16 anno_;
};

} // namespace caudalera
