#include <gtest/gtest.h>

#include <fstream>
#include <iterator>
#include <string>

#include "shell/richtext/RichText.h"
#include "tests/shell/richtext/RichTextShow.h"

// Files that a word processor (LibreOffice 7.4) wrote: from the sources that stand beside them, and
// from a report of our own. What is expected here is what those sources say.

namespace caudalera {
namespace {

RichText fromFile(const std::string& name) {
    const std::string path =
        std::string(CAUDALERA_SOURCE_DIR) + "/tests/shell/richtext/data/" + name;
    std::ifstream file(path, std::ios::binary);
    EXPECT_TRUE(file.is_open()) << path;
    return readRtf(std::string{std::istreambuf_iterator<char>(file), {}});
}

/// Its file states font and size (12 points, its own default) everywhere.
std::string withoutStatedDefault(std::string lines, const std::string& font) {
    for (const std::string& stated : {"|," + font + ",24]", "," + font + ",24]"}) {
        for (std::size_t at = lines.find(stated); at != std::string::npos;
             at = lines.find(stated, at)) {
            lines.replace(at, stated.size(), "]");
        }
    }
    return lines;
}

TEST(RtfFilesTest, OurReportAfterAVisitToTheWordProcessor) {
    EXPECT_EQ(withoutStatedDefault(show(fromFile("informe-libreoffice.rtf")), "Arial"),
              "c200/200 [Resultados]\n"
              "c200/200 \n"
              "c200/200 [Distribución de Gumbel: ][señal|b][ y ][año|iu]\n"
              "l200/200 [Área\t12.5\tkm² {x} \\ 5 €][ rojo 😀|,Courier New,28,#c00020]\n"
              "r0/400 [derecha]\n"
              "j720/0 [justificado; λ = 0.5 – fin]\n"
              "l200/200 [--------------------]\n"
              "l200/200 \n");
}

TEST(RtfFilesTest, AWebPageWithListAndTable) {
    // 1 cm is 567 twips and font size 5 of a page 18 points. The heading's font and size come from
    // the word processor's style; the list's indent is its 1.25 cm.
    EXPECT_EQ(show(fromFile("muestra-html.rtf")),
              "c0/0 [Distribución de Gumbel|b,DejaVu Serif,48]\n"
              "l0/0 [Caudal ][máximo|b][ de ][diseño|i][ y ][subrayado|u][.]\n"
              "r0/0 [A la derecha]\n"
              "j567/1134 [Con sangría ][rojo|,#c00020][ ][grande|,Courier New,36]\n"
              "l709/0 [Punto uno]\n"
              "l709/0 [Punto dos]\n"
              "l0/0 [Enlace ][aquí|u,#80][ € “comillas” – λ 😀]\n"
              "l0/0 [Año\t1990\t]\n"
              "l0/0 [Mes\t5\t]\n"
              "l0/0 [Fin]\n");
}

TEST(RtfFilesTest, ALetterWithHeaderFooterAndNote) {
    // Half an inch is 720 twips, 8.5 points are 17 half points.
    EXPECT_EQ(withoutStatedDefault(show(fromFile("carta-odt.rtf")), "DejaVu Serif"),
              "c720/360 [Cálculo de la ][evapotranspiración|bi]\n"
              "l0/0 \n"
              "j0/0 [Año\tQ (m³/s)]\n"
              "j0/0 [1990\t][12.5|,Courier New,17,#6400]\n"
              "l0/0 [Con nota y ][puntos|u][ {llaves} \\barra]\n"
              "l0/0 [10\u00A0mm, auto\u00ADmático, d\u2011e, ≥ 0, «ñandú»]\n"
              "l0/0 \n");
}

TEST(RtfFilesTest, WhatWasReadIsWrittenAndReadTheSame) {
    for (const char* name : {"informe-libreoffice.rtf", "muestra-html.rtf", "carta-odt.rtf"}) {
        const RichText text = fromFile(name);
        EXPECT_GT(text.length(), 50U) << name;
        EXPECT_EQ(show(readRtf(writeRtf(text))), show(text)) << name;
    }
}

} // namespace
} // namespace caudalera
