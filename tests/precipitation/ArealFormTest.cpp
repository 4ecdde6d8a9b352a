// Texts, start, resets and files of the windows of mean rainfall.

#include "tests/precipitation/ArealTest.h"

namespace caudalera {
namespace {

TEST_F(ArealTest, TheArithmeticMeanHasItsTexts) {
    const auto& form = sheet("frmPromArit");
    EXPECT_EQ(form.caption,
              "Cálculo de la precipitación promedio por el método del promedio aritmético");
    EXPECT_EQ(rowText("grdt", 0), "Estación|Precipitación (mm)");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de las precipitaciones de las estaciones:");
    EXPECT_EQ(text("fraResultado"), "Resultado método del promedio aritmético:");
    EXPECT_EQ(text("bLimpiar"), "Limpiar Pan&talla");
    EXPECT_EQ(form.Picture1.image(), "promedio");
}

TEST_F(ArealTest, ThiessenHasItsTexts) {
    const auto& form = sheet("frmThiessen");
    EXPECT_EQ(form.caption, "Cálculo de la precipitación promedio por el método de Thiessen");
    EXPECT_EQ(rowText("grdt", 0), "Estación|Precipitación (mm)|Área");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los pares de datos de las estaciones:");
    EXPECT_EQ(text("fraResultado"), "Resultado método de Thiessen:");
    EXPECT_EQ(text("bLimpiar"), "Limpiar Pan&talla");
    EXPECT_EQ(form.Picture1.image(), "thiessen");
}

TEST_F(ArealTest, TheIsohyetsHaveTheirTexts) {
    const auto& form = sheet("frmIsoyeta");
    EXPECT_EQ(form.caption, "Cálculo de la precipitación promedio por el método de las isoyetas");
    EXPECT_EQ(rowText("grdt", 0), "Isoyeta|Valor de isoyeta (mm)|Área entre isoyetas");
    EXPECT_EQ(text("lblIngreso"), "Ingreso de los pares de datos de las estaciones:");
    EXPECT_EQ(text("fraResultado"), "Resultado método de isoyetas:");
    EXPECT_EQ(text("bLimpiar"), "&Limpiar");
    EXPECT_EQ(form.Picture1.image(), "isoyetas");
    EXPECT_EQ(control<TextBox>("txtUltimaIsoyeta").label()->caption,
              "Valor de la última isoyeta (mm):");
    EXPECT_EQ(text("lblIsoyetaInicial"), "(isoyeta inicial)");
    EXPECT_EQ(text("lblIsoyetaFinal"), "(isoyeta final)");
    EXPECT_FALSE(control<TextBox>("txtUltimaIsoyeta").result);
}

TEST_F(ArealTest, AllThreeStartEmptyWithTheSameResultField) {
    for (const char* name : {"frmPromArit", "frmThiessen", "frmIsoyeta"}) {
        SCOPED_TRACE(name);
        const auto& form = sheet(name);
        EXPECT_EQ(text("lblNota"), "Nota:");
        EXPECT_EQ(text("lblNotaEnter"), "Una vez que digite el dato, presionar ENTER");
        EXPECT_EQ(form.txtPprom.label()->caption, "Precipitación promedio: ");
        EXPECT_EQ(form.txtPprom.unit()->caption, "mm");
        EXPECT_TRUE(form.txtPprom.result);
        EXPECT_EQ(form.txtPprom.text(), "");
        EXPECT_EQ(form.grdt.Rows(), 2);
        EXPECT_EQ(cellText("grdt", 1, 0), "[?]");
        EXPECT_EQ(focus(), "grdt");
        EXPECT_EQ(form.find("bGraficar"), nullptr);
    }
}

TEST_F(ArealTest, EnterInTheLastIsohyetLeadsToTheCalculation) {
    sheet("frmIsoyeta");
    enter("txtUltimaIsoyeta", "20");
    key("txtUltimaIsoyeta", Key::Kind::enter);
    EXPECT_EQ(focus(), "bCalcular");
    EXPECT_EQ(text("txtUltimaIsoyeta"), "20");
}

TEST_F(ArealTest, LimpiarEmptiesGridAndResult) {
    for (const char* name : {"frmPromArit", "frmThiessen"}) {
        SCOPED_TRACE(name);
        sheet(name);
        loadOnes(2);
        click("bCalcular");
        EXPECT_EQ(text("txtPprom"), "1.0");
        click("bLimpiar");
        EXPECT_EQ(dataRows(), 0);
        EXPECT_EQ(text("txtPprom"), "");
    }
}

TEST_F(ArealTest, LimpiarEmptiesTheLastIsohyetToo) {
    sheet("frmIsoyeta");
    rows({{"10", "5"}});
    enter("txtUltimaIsoyeta", "20");
    click("bCalcular");
    click("bLimpiar");
    EXPECT_EQ(dataRows(), 0);
    EXPECT_EQ(text("txtPprom"), "");
    EXPECT_EQ(text("txtUltimaIsoyeta"), "");
}

TEST_F(ArealTest, ACancelledLoadEmptiesGridAndResult) {
    for (const char* name : {"frmPromArit", "frmThiessen"}) {
        SCOPED_TRACE(name);
        sheet(name);
        loadOnes(2);
        click("bCalcular");
        load(file("no-existe"));
        EXPECT_EQ(dataRows(), 0);
        EXPECT_EQ(text("txtPprom"), "");
    }
}

TEST_F(ArealTest, ACancelledLoadKeepsTheLastIsohyet) {
    sheet("frmIsoyeta");
    rows({{"10", "5"}});
    enter("txtUltimaIsoyeta", "20");
    click("bCalcular");
    click("bAccesar");
    EXPECT_EQ(dataRows(), 0);
    EXPECT_EQ(text("txtPprom"), "");
    EXPECT_EQ(text("txtUltimaIsoyeta"), "20");
}

// Lowest byte first: 10 is 0x41200000, 2.5 0x40200000, 20.5 = 1.28125 * 2^4 0x41A40000.
TEST_F(ArealTest, TheArithmeticMeanSavesOneValueARow) {
    sheet("frmPromArit");
    values({"10", "2.5"});
    save(file("a.P"));
    EXPECT_EQ(bytesOf(file("a.P")), (Bytes{0x00, 0x00, 0x20, 0x41, 0x00, 0x00, 0x20, 0x40}));
    load(file("a.P"));
    EXPECT_EQ(rowText("grdt", 2), " 2|2.5");
}

TEST_F(ArealTest, ThiessenSavesPairs) {
    sheet("frmThiessen");
    rows({{"10", "2.5"}});
    save(file("a.PA"));
    EXPECT_EQ(bytesOf(file("a.PA")), (Bytes{0x00, 0x00, 0x20, 0x41, 0x00, 0x00, 0x20, 0x40}));
    load(file("a.PA"));
    EXPECT_EQ(rowText("grdt", 1), " 1|10.0|2.5");
}

TEST_F(ArealTest, TheIsohyetsSaveTheLastOneBehindThePairs) {
    sheet("frmIsoyeta");
    rows({{"10", "2.5"}});
    enter("txtUltimaIsoyeta", "20.5 mm");
    save(file("a.IA"));
    EXPECT_EQ(bytesOf(file("a.IA")), (Bytes{0x00, 0x00, 0x20, 0x41, 0x00, 0x00, 0x20, 0x40, //
                                            0x00, 0x00, 0xA4, 0x41, 0x00, 0x00, 0x00, 0x00}));
    click("bLimpiar");
    load(file("a.IA"));
    EXPECT_EQ(dataRows(), 1);
    EXPECT_EQ(rowText("grdt", 1), " 1|10.0|2.5");
    EXPECT_EQ(text("txtUltimaIsoyeta"), "20.5");
    EXPECT_EQ(text("txtPprom"), "");
}

// Without rows one record stands there, and an empty last isohyet is 0.
TEST_F(ArealTest, AnEmptyWindowOfIsohyetsSavesOneRecord) {
    sheet("frmIsoyeta");
    save(file("a.IA"));
    EXPECT_EQ(bytesOf(file("a.IA")), Bytes(8, 0x00));
    load(file("a.IA"));
    EXPECT_EQ(dataRows(), 0);
    EXPECT_EQ(text("txtUltimaIsoyeta"), "0");
}

// 0.1 as the single that it is, in 7 digits; a number without decimals has none.
TEST_F(ArealTest, ALoadedLastIsohyetIsPlainText) {
    sheet("frmIsoyeta");
    writeSingles(file("a.IA"), {0.1F, 0});
    load(file("a.IA"));
    EXPECT_EQ(text("txtUltimaIsoyeta"), "0.1");
    writeSingles(file("b.IA"), {7, 8, 120, 5});
    load(file("b.IA"));
    EXPECT_EQ(text("txtUltimaIsoyeta"), "120");
    EXPECT_EQ(rowText("grdt", 1), " 1|7.0|8.0");
}

} // namespace
} // namespace caudalera
