#pragma once

#include "evapotranspiration/SingleMonthWindow.h"
#include "evapotranspiration/coeficientesCultivo.h"

#include <array>
#include <optional>

namespace caudalera {

/// Reference and crop evapotranspiration of one month at one site by the Hargreaves method.
class frmHargreaves : public SingleMonthWindow {
public:
    explicit frmHargreaves(Program& program);

    List cobMes = listaDeMeses(*this);
    TextBox txtTmin{*this, "txtTmin", "Tmínima:", "ºC"};
    TextBox txtTmax{*this, "txtTmax", "Tmáxima:", "ºC"};

    Frame fraKc{*this, "fraKc", "Datos Kc cultivo:"};
    OptionGroup origenKc;
    Option optKcEstimado{*this, "optKcEstimado", "Estimado", origenKc};
    Option optKcTabla{*this, "optKcTabla", "Tabla", origenKc};
    Frame fraKcTabla{*this, "fraKcTabla", "Dato Kc cultivo tabla:"};
    TextBox txtKcTabla{*this, "txtKcTabla", "Kc:"};
    Frame fraEtapaCul{*this, "fraEtapaCul", "Etapa del cultivo:"};
    OptionGroup etapas;
    Option OptInicio{*this, "OptInicio", "Fase inicial", etapas};
    Option OptMediano{*this, "OptMediano", "Mediados de temporada", etapas};
    Option OptFin{*this, "OptFin", "Fin de temporada", etapas};
    Frame fraKcEstimado{*this, "fraKcEstimado", "Dato Kc cultivo estimado:"};
    Label lblMensajeKC{*this, "lblMensajeKC", OptFin.caption};
    List cobKcIni = listaDeCultivos("cobKcIni", EtapaCultivo::inicio);
    List cobKcMed = listaDeCultivos("cobKcMed", EtapaCultivo::mediados);
    List cobKcFin = listaDeCultivos("cobKcFin", EtapaCultivo::fin);

    Frame fraResultados{*this, "fraResultados", "Resultados:"};
    TextBox txtRa{*this, "txtRa", "Radiación extraterrestre:", "mm/día"};
    TextBox txtETo{*this, "txtETo", "ETo:", "mm/día"};
    TextBox txtETc{*this, "txtETc", "Etc:", "mm/día"};

protected:
    List& meses() override { return cobMes; }
    void calcular() override;
    void limpiar() override;
    void escribirReporte(ReportWriter& reporte) override;

private:
    /// A stage of the crop as the window shows it.
    struct Etapa {
        Option* opcion;
        List* lista;
        EtapaCultivo etapa;
    };
    struct Temperaturas {
        Real minima;
        Real maxima;
    };

    List listaDeCultivos(const char* nombre, EtapaCultivo etapa);
    void disponer();
    void elegirKcEstimado();
    void elegirKcTabla();
    void elegirEtapa(const Etapa& elegida);
    /// Shows the list of the chosen stage alone.
    void mostrarEtapa(const Etapa& elegida);
    void vaciarListas();
    const Etapa& etapaElegida() const;

    /// None, behind its message, if they are missing or in the wrong order.
    std::optional<Temperaturas> leerTemperaturas();
    void tomarKcDeLista();
    /// False, behind its message, if the field is empty.
    bool tomarKcDeTabla();

    std::array<Etapa, 3> etapas_{{{&OptInicio, &cobKcIni, EtapaCultivo::inicio},
                                  {&OptMediano, &cobKcMed, EtapaCultivo::mediados},
                                  {&OptFin, &cobKcFin, EtapaCultivo::fin}}};
    /// Of the last run, which one without a choice keeps.
    float Kc = 0;
};

} // namespace caudalera
