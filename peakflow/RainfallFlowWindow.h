#pragma once

#include "peakflow/IntensityWorksheet.h"
#include "shell/numbers/Integer16.h"

#include <array>
#include <string>
#include <vector>

namespace caudalera {

/// What the windows built on RainfallFlowWindow show differently.
struct RainfallFlowTexts {
    std::string image;
    std::string labelC;
    std::string labelArea;
    std::string labelGroupArea;
    std::vector<std::string> covers;
    std::string startCover;
    std::vector<std::string> textures;
    std::string startTexture;
    /// Headers of `grdC`.
    std::vector<std::string> groupHeaders;
    /// Title, length of the rules and heading row of the groups' table in the report, and the
    /// widths of the columns behind the first.
    std::string reportTitle;
    long reportRule = 0;
    std::string reportHeading;
    std::array<long, 5> reportWidths{};
};

/// A flow from a coefficient C, an area and a rainfall intensity I, in three tabs: the first
/// computes Q, the second weighs C from groups of areas and the third finds I; these two hand
/// their results to the first.
class RainfallFlowWindow : public IntensityWorksheet {
public:
    RainfallFlowWindow(Program& program, std::string name, std::string caption,
                       RainfallFlowTexts texts);

private:
    // Before the controls, which are built from them.
    RainfallFlowTexts texts_;

public:
    Tabs SSTab1{*this, "SSTab1", {"Cálculo de Q", "Cálculo de C", "Cálculo de I"}};

    TextBox txtcq{*this, "txtcq", texts_.labelC};
    TextBox txtaq{*this, "txtaq", texts_.labelArea, "has"};
    TextBox txtiq{*this, "txtiq", "Intensidad máxima (I):", "mm/hr"};
    Label lblMensajeI{
        *this, "lblMensajeI",
        "para una duración igual al tiempo de concentración y un período de retorno T"};
    Frame fraResultadoQ{*this, "fraResultadoQ", "Resultado:"};
    TextBox txtqmax{*this, "txtqmax", "Q máximo:", "m3/s"};
    Picture Picture1{*this, "Picture1", texts_.image};

    TextBox txtgrupo{*this, "txtgrupo", "Grupo N°:"};
    TextBox txtac{*this, "txtac", texts_.labelGroupArea, "has"};
    Label lblZonasNoUrbanas{*this, "lblZonasNoUrbanas", "Zonas no urbanas:"};
    List cboCobertura{*this, "cboCobertura", texts_.covers, texts_.startCover, "Cobertura:"};
    List cboTextura{*this, "cboTextura", texts_.textures, texts_.startTexture, "Textura:"};
    TextBox txts{*this, "txts", "Pendiente", "%"};
    Button bAgregar{*this, "bAgregar", "&Agregar"};
    MSFlexGrid grdC{*this, "grdC"};
    Button bCponderado{*this, "bCponderado", "C ponderado"};
    Frame fraResultadosC{*this, "fraResultadosC", "Resultados:"};
    TextBox txtCponderado{*this, "txtCponderado", "C ponderado:"};
    TextBox txtatotal{*this, "txtatotal", "Área total:", "has"};

    void load() override;

protected:
    /// A field that Q needs and how the message that asks for it names it.
    struct FlowField {
        TextBox* box;
        std::string name;
    };
    /// What `grdC` shows of a group beside its number and area.
    struct Group {
        Real C;
        std::string cover;
        std::string texture;
        std::string slope;
    };

    /// In the order they are tested.
    virtual std::vector<FlowField> camposDeQ() = 0;
    /// Q in m3/s.
    virtual Real caudal() const = 0;
    /// Whether the entry of a group is complete; if not, the user was told.
    virtual bool grupoCompleto() = 0;
    virtual Group describirGrupo() const = 0;
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
    void recibirIntensidad(const std::string& texto) override { txtiq.setText(texto); }
    void escribirReporte(ReportWriter& reporte) override;

private:
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
