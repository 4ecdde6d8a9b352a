#pragma once

#include "gauging/aforo.h"
#include "shell/numbers/Serie.h"
#include "shell/window/Graph.h"
#include "shell/worksheet/DataEntry.h"
#include "shell/worksheet/Worksheet.h"

#include <vector>

namespace caudalera {

/// Discharge of a river cross-section gauged with a current meter, with a side calculator that
/// turns a reading of the meter into a velocity.
class frmAforoCorren : public Worksheet {
public:
    explicit frmAforoCorren(Program& program);

    TextBox txtho{*this, "txtho", "Profundidad en el margen (ho):", "m"};
    TextBox txtvo{*this, "txtvo", "Velocidad en el margen (vo):", "m/s"};
    DataEntry ingreso{*this, "Ingreso de datos:"};
    Button bGraficar{*this, "bGraficar", "&Graficar", "Mostrar gráfico"};
    Label lblEsquema{*this, "lblEsquema", "Esquema de ingreso de datos:"};
    Picture Picture1{*this, "Picture1", "aforo"};

    Frame fraCalcularV{*this, "fraCalcularV", "¿Calcular velocidad?"};
    OptionGroup calcularVelocidad;
    Option optSi{*this, "optSi", "Si", calcularVelocidad};
    Option optNo{*this, "optNo", "No", calcularVelocidad};
    Frame fraVelocidad{*this, "fraVelocidad", "Datos para velocidad:"};
    Label lblEcuacionV{*this, "lblEcuacionV", "v = a n + b"};
    Label lblDondeN{*this, "lblDondeN", "donde: n = NR/ t"};
    TextBox txtNR{*this, "txtNR", "Nº revoluciones (NR):"};
    TextBox txtTiempo{*this, "txtTiempo", "Tiempo (t):", "s"};
    TextBox txtA{*this, "txtA", "a:"};
    TextBox txtB{*this, "txtB", "b: "};
    Button bVelocidad{*this, "bVelocidad", "Valor de v"};
    TextBox txtV{*this, "txtV", {}, "m/s"};

    MSFlexGrid grdavq{*this, "grdavq"};
    TextBox txtQ{*this, "txtQ", "Caudal total (Q):", "m3/s"};
    Graph Graph1{*this, "Graph1"};

    void load() override;

protected:
    void calcular() override;
    void limpiar() override;
    void escribirReporte(ReportWriter& reporte) override;
    void leerCuadricula() override;
    void reiniciarResultados() override;
    void borrarResultados() override;
    std::vector<Real> ultimoRegistro() const override;
    void recibirUltimoRegistro(std::span<const float> registro) override;

private:
    void disponer();
    void ponerMargenEnCero();
    void aforarSeccion();
    void escribirAforo(const Aforo& aforo);
    void valorDeV();
    void graficar();

    static constexpr long capacidad = 500;
    /// What the grid held when it was read last, and behind it the record that ends the file.
    Serie L{capacidad};
    Serie h{capacidad};
    Serie v{capacidad};

    /// The section as the last calculation read it, which is what the chart shows.
    struct Seccion {
        Integer16 tramos;
        SeccionAforada::Vertical margen;
        Serie L{capacidad};
        Serie h{capacidad};
        Serie v{capacidad};

        SeccionAforada datos() const {
            return {margen, L.primeros(tramos), h.primeros(tramos), v.primeros(tramos)};
        }
    };
    Seccion seccion_;

    static constexpr long capacidadPerfil = 300;
    Serie perfilX{capacidadPerfil};
    Serie perfilY{capacidadPerfil};
    bool calculado = false;
};

} // namespace caudalera
