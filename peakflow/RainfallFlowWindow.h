#pragma once

#include "peakflow/IntensityTab.h"
#include "shell/numbers/Integer16.h"
#include "shell/worksheet/Worksheet.h"

#include <array>
#include <string>
#include <vector>

namespace caudalera {

/// What the windows built on RainfallFlowWindow show differently.
struct RainfallFlowTexts {
    std::string dibujo;
    std::string rotuloC;
    std::string rotuloArea;
    std::string rotuloAreaGrupo;
    std::vector<std::string> coberturas;
    std::string coberturaInicial;
    /// Empty for none.
    std::string unidadCobertura;
    std::vector<std::string> texturas;
    std::string texturaInicial;
    /// Headers of `grdC`.
    std::vector<std::string> encabezadosGrupos;
    std::vector<int> anchosGrupos;
    /// Title, length of the rules and heading row of the groups' table in the report, and the
    /// widths of the columns behind the first.
    std::string tituloReporte;
    long guionesReporte = 0;
    std::string columnasReporte;
    std::array<long, 5> anchosReporte{};
};

/// A flow from a coefficient C, an area and a rainfall intensity I, in three tabs: the first
/// computes Q, the second weighs C from groups of areas and the third finds I; these two hand
/// their results to the first.
class RainfallFlowWindow : public Worksheet {
public:
    RainfallFlowWindow(Program& program, std::string name, std::string caption,
                       RainfallFlowTexts textos);

private:
    // Before the controls, which are built from them.
    RainfallFlowTexts textos_;

public:
    IntensityTab intensidad{*this};
    Tabs SSTab1{*this, "SSTab1", {"Cálculo de Q", "Cálculo de C", "Cálculo de I"}};

    TextBox txtcq{*this, "txtcq", textos_.rotuloC};
    TextBox txtaq{*this, "txtaq", textos_.rotuloArea, "has"};
    TextBox txtiq{*this, "txtiq", "Intensidad máxima (I):", "mm/hr"};
    Label lblMensajeI{
        *this, "lblMensajeI",
        "para una duración igual al tiempo de concentración y un período de retorno T"};
    Frame fraResultadoQ{*this, "fraResultadoQ", "Resultado:"};
    TextBox txtqmax{*this, "txtqmax", "Q máximo:", "m3/s"};
    Picture Picture1{*this, "Picture1", textos_.dibujo};

    TextBox txtgrupo{*this, "txtgrupo", "Grupo N°:"};
    TextBox txtac{*this, "txtac", textos_.rotuloAreaGrupo, "has"};
    Label lblZonasNoUrbanas{*this, "lblZonasNoUrbanas", "Zonas no urbanas:"};
    List cboCobertura{
        *this,        "cboCobertura",         textos_.coberturas, textos_.coberturaInicial,
        "Cobertura:", textos_.unidadCobertura};
    List cboTextura{*this, "cboTextura", textos_.texturas, textos_.texturaInicial, "Textura:"};
    TextBox txts{*this, "txts", "Pendiente", "%"};
    Button bAgregar{*this, "bAgregar", "&Agregar"};
    MSFlexGrid grdC{*this, "grdC"};
    Button bCponderado{*this, "bCponderado", "C ponderado"};
    Frame fraResultadosC{*this, "fraResultadosC", "Resultados:"};
    TextBox txtCponderado{*this, "txtCponderado", "C ponderado:"};
    TextBox txtatotal{*this, "txtatotal", "Área total:", "has"};

    /// Whether an intensity was found since the start or the last load of a file.
    bool calculado() const { return intensidad.calculado(); }

    void load() override;

protected:
    /// A field that Q needs and how the message that asks for it names it.
    struct CampoDeQ {
        TextBox* campo;
        std::string nombre;
    };
    /// What `grdC` shows of a group beside its number and area.
    struct Grupo {
        Real C;
        std::string cobertura;
        std::string textura;
        std::string pendiente;
    };

    /// In the order they are tested.
    virtual std::vector<CampoDeQ> camposDeQ() = 0;
    /// Q in m3/s.
    virtual Real caudal() const = 0;
    /// Whether the entry of a group is complete; if not, its message was shown.
    virtual bool grupoCompleto() = 0;
    virtual Grupo describirGrupo() const = 0;
    /// Behind a group that was added.
    virtual void vaciarEntradaDeGrupo();
    /// Lines of the report between the rule and those of C, the area, I and Q.
    virtual void escribirDatosPrevios(ReportWriter& /*reporte*/) const {}

    /// The three tabs, with the window's own lines of fields in the first two.
    Layout disposicion(std::vector<Layout::FieldLine> lineasQ,
                       std::vector<Layout::FieldLine> lineasGrupo);

    void calcular() override;
    void limpiar() override;
    void reiniciarResultados() override;
    /// Of the three tabs one calculates from the grid.
    std::vector<const Control*> resultados() const override { return intensidad.resultados(); }
    void antesDeAccesar() override { intensidad.antesDeAccesar(); }
    void escribirReporte(ReportWriter& reporte) override;

    /// Lets the user bring in digits and one decimal point alone.
    static void soloNumeros(const std::vector<TextBox*>& campos);

private:
    // A part of this window, with its grid and messages at hand.
    friend class IntensityTab;

    void elegirPestana();
    void reiniciarGrupos();
    void numerarGrupo();
    void agregar();
    void ponderar();
    void escribirGrupos(ReportWriter& reporte) const;

    Integer16 grupos_;
    static constexpr long capacidadGrupos = 30;
    SerieSimple areaGrupo_{capacidadGrupos};
    SerieSimple CGrupo_{capacidadGrupos};
};

} // namespace caudalera
