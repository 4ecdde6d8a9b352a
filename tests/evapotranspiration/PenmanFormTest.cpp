// What the Penman window shows before and apart from a calculation.

#include "tests/evapotranspiration/PenmanTest.h"

#include "shell/worksheet/CalculationWindow.h"

#include <vector>

namespace caudalera {
namespace {

struct FieldTexts {
    const char* name;
    const char* label;
    const char* unit;
};

const std::vector<FieldTexts> inputs = {
    {"txtLatitud", "Latitud:", "grados"},
    {"txth", "Altitud (h):", "m.s.n.m"},
    {"txtT", "Tmedia (T):", "ºC"},
    {"txtHRmed", "HRmedia", "%"},
    {"txtHRmax", "HRmáxima", "%"},
    {"txtUz", "Velocidad viento:", "km/hr"},
    {"txtHz", "Altura medición viento (z):", "m"},
    {"txtRVdVn", "Relación Vdía/Vnoche", ""},
    {"txtnp", "Horas de insolación real (n):", "hr/día"},
};

const std::vector<FieldTexts> results = {
    {"txtRa", "Ra:", "mm/día"},
    {"txtN", "N:", "hr/día"},
    {"txtRnpNg", "n/N:", ""},
    {"txtFhv", "f(z)2m:", ""},
    {"txtU2", "Vviento2m:", "km/hr"},
    {"txtea", "ea:", "mbar"},
    {"txted", "ed:", "mbar"},
    {"txteaed", "ea-ed:", "mbar"},
    {"txtw", "w:", ""},
    {"txt1w", "1-w:", ""},
    {"txtfu", "f(u):", ""},
    {"txtft", "f(t):", ""},
    {"txtfed", "f(ed):", ""},
    {"txtfnN", "f(n/N):", ""},
    {"txtRn1", "Rn1:", "mm/día"},
    {"txtRs", "Rs:", "mm/día"},
    {"txtRns", "Rns:", "mm/día"},
    {"txtRn", "Rn:", "mm/día"},
    {"txtC", "C:", ""},
    {"txtRadiacion", "Término Radiación:", "mm/día"},
    {"txtAdveccion", "Término Advección:", "mm/día"},
    {"txtETo", "ETo:", "mm/día"},
};

std::string captionOf(const Label* label) {
    return label ? label->caption : std::string();
}

TEST_F(PenmanTest, HasItsCaptionGroupsAndLists) {
    EXPECT_EQ(window("frmPenman").caption, "Cálculo de la evapotranspiración potencial por el "
                                           "método de Penman modificado por la FAO");
    EXPECT_EQ(text("fraDatos"), "Datos:");
    EXPECT_EQ(text("fraParciales"), "Resultados parciales:");
    EXPECT_EQ(text("fraFinales"), "Resultados finales:");
    EXPECT_EQ(control<List>("cobNS").items(), (std::vector<std::string>{"N", "S"}));
    EXPECT_EQ(captionOf(control<List>("cobMes").label()), "Mes:");
    EXPECT_EQ(
        control<List>("cobMes").items(),
        (std::vector<std::string>{"Enero", "Febrero", "Marzo", "Abril", "Mayo", "Junio", "Julio",
                                  "Agosto", "Setiembre", "Octubre", "Noviembre", "Diciembre"}));
}

TEST_F(PenmanTest, LabelsItsFieldsAndTheirUnits) {
    for (const auto* fields : {&inputs, &results})
        for (const FieldTexts& field : *fields) {
            const auto& box = control<TextBox>(field.name);
            EXPECT_EQ(captionOf(box.label()), field.label) << field.name;
            EXPECT_EQ(captionOf(box.unit()), field.unit) << field.name;
            EXPECT_EQ(box.result, fields == &results) << field.name;
        }
}

TEST_F(PenmanTest, StartsAtTenDegreesNorthInJanuaryAndEmptyElsewhere) {
    EXPECT_EQ(focus(), "txtLatitud");
    EXPECT_EQ(text("cobNS"), "N");
    EXPECT_EQ(text("cobMes"), "Enero");
    for (const auto* fields : {&inputs, &results})
        for (const FieldTexts& field : *fields)
            EXPECT_EQ(text(field.name), field.name == std::string("txtLatitud") ? "10" : "")
                << field.name;
}

TEST_F(PenmanTest, HasNoGridNoFilesAndNoChart) {
    for (const char* name : {"grdt", "bCrear", "bAccesar", "bGraficar", "Graph1"})
        EXPECT_EQ(window("frmPenman").find(name), nullptr) << name;
    for (const char* name :
         {"bCalcular", "bReporte", "bLimpiar", "bImprimir", "bMenu", "bCalculadora"})
        EXPECT_NE(window("frmPenman").find(name), nullptr) << name;
}

TEST_F(PenmanTest, LimpiarEmptiesEveryFieldAndLeavesTheLatitudeEmpty) {
    fill();
    choose("cobNS", "S");
    choose("cobMes", "Octubre");
    click("bCalcular");
    click("bLimpiar");
    for (const auto* fields : {&inputs, &results})
        for (const FieldTexts& field : *fields)
            EXPECT_EQ(text(field.name), "") << field.name;
    EXPECT_EQ(text("cobNS"), "N");
    EXPECT_EQ(text("cobMes"), "Enero");
    EXPECT_EQ(focus(), "txtLatitud");
}

TEST_F(PenmanTest, ImprimirPrintsTheWindowAndMenuUnloadsIt) {
    click("bImprimir");
    ASSERT_EQ(platform.printed.size(), 1U);
    EXPECT_EQ(platform.printed[0].what, "window");
    EXPECT_EQ(platform.printed[0].name, "frmPenman");
    click("bMenu");
    EXPECT_EQ(program.find("frmPenman"), nullptr);
    EXPECT_EQ(program.front(), program.find("frmCaudalera"));
}

} // namespace
} // namespace caudalera
