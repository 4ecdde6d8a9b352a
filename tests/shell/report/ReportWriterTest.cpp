#include "shell/report/ReportWriter.h"

#include "shell/numbers/RuntimeFailure.h"
#include "tests/support/TestSheet.h"

#include <string>
#include <vector>

namespace caudalera {
namespace {

/// The shapes that reports share, written into a text with nothing else in it.
class ReportWriterTest : public SheetTest {
protected:
    template <class Write>
    std::string written(Write write) {
        RichText text;
        {
            ReportWriter writer(text);
            write(writer);
        }
        return text.text();
    }
};

TEST_F(ReportWriterTest, AHeadingStandsBetweenTwoRules) {
    EXPECT_EQ(written([](ReportWriter& report) { report.encabezado({" Datos: "}, 4); }),
              "----\n Datos: \n----\n");
}

TEST_F(ReportWriterTest, ATableTakesSeveralHeadingLinesAndRowsOfTheWindowsOwn) {
    auto& hoja = sheet();
    rows({{"1", "2", "3"}});
    EXPECT_EQ(written([&](ReportWriter& report) {
                  report.abrirTabla("Pares:", {" Par\t", " (m)\t"}, 3);
                  report.filas(hoja.grdt, 1, 1, "  \t");
                  report << "Suma" << ReportWriter::LF;
                  report.cerrarTabla(5);
              }),
              "Pares:\n\n---\n Par\t\n (m)\t\n---\n"
              " 1  \t1.0  \t2.0  \t3.0  \t\nSuma\n-----\n\n");
}

TEST_F(ReportWriterTest, ADataGridIsATableWithTwoTabsBehindEveryCell) {
    auto& hoja = sheet();
    rows({{"1", "2", "3"}, {"4", "5", "6"}});
    EXPECT_EQ(written([&](ReportWriter& report) {
                  report.tablaDeDatos("Serie:", " N°\t", hoja.grdt, 2, 2);
              }),
              "Serie:\n\n--\n N°\t\n--\n 1\t\t1.0\t\t2.0\t\t3.0\t\t\n"
              " 2\t\t4.0\t\t5.0\t\t6.0\t\t\n--\n\n");
}

TEST_F(ReportWriterTest, AReportAmidAParagraphSplitsIt) {
    RichText text;
    text.setSelText("antes\ndentro\ndespués");
    text.select(9, 0);
    {
        ReportWriter writer(text);
        writer.titulo("Hoja");
        writer << "pie";
    }
    EXPECT_EQ(text.text(), "antes\ndenResultados\n\nHoja\n\n\npietro\ndespués");
    EXPECT_EQ(text.selStart(), text.text().find("tro"));
    std::vector<int> indents;
    for (const Paragraph& paragraph : text.paragraphs())
        indents.push_back(paragraph.format.indent);
    EXPECT_EQ(indents, (std::vector<int>{0, 200, 200, 200, 200, 200, 200, 0}));
}

TEST_F(ReportWriterTest, WhatWasWrittenBeforeAFailureStays) {
    auto& hoja = sheet();
    RichText text;
    EXPECT_THROW(
        {
            ReportWriter writer(text);
            writer << "antes" << ReportWriter::LF;
            writer.filas(hoja.grdt, 5, 5, ReportWriter::TAB);
        },
        RuntimeFailure);
    EXPECT_EQ(text.text(), "antes\n");
    EXPECT_EQ(text.selStart(), 6U);
}

} // namespace
} // namespace caudalera
