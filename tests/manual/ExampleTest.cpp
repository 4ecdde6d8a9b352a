#include "manual/maker/Example.h"

#include <gtest/gtest.h>

#include <stdexcept>

namespace caudalera::manual {
namespace {

TEST(Example, StepsTellWhatIsDoneWhere) {
    const auto steps = parseExample("cargar bAccesar \"Accesar\" serie.X\n"
                                    "\n"
                                    "resultado grddis 3 2 \"P(X)\" 0.5 %\n"
                                    "resultado lblmensaje Ajuste \"Los datos se ajustan\"\n"
                                    "fila grdt 1.5 2\n");
    ASSERT_EQ(steps.size(), 4U);
    EXPECT_EQ(steps[0].kind, Step::Kind::load);
    EXPECT_EQ(steps[0].control, "bAccesar");
    EXPECT_EQ(steps[0].caption, "Accesar");
    EXPECT_EQ(steps[0].value(), "serie.X");
    EXPECT_EQ(steps[1].kind, Step::Kind::gridCell);
    EXPECT_EQ(steps[1].row, 3);
    EXPECT_EQ(steps[1].column, 2);
    EXPECT_EQ(steps[1].caption, "P(X)");
    EXPECT_EQ(steps[1].value(), "0.5");
    EXPECT_EQ(steps[1].unit, "%");
    EXPECT_EQ(steps[1].key(), "grddis.3.2");
    EXPECT_EQ(steps[2].kind, Step::Kind::field);
    EXPECT_EQ(steps[2].value(), "Los datos se ajustan");
    EXPECT_EQ(steps[2].key(), "lblmensaje");
    EXPECT_EQ(steps[3].values, (std::vector<std::string>{"1.5", "2"}));
}

TEST(Example, AStepThatIsNotKnownIsRefused) {
    EXPECT_THROW(parseExample("mirar bCalcular"), std::runtime_error);
    EXPECT_THROW(parseExample("pulsar bCalcular"), std::runtime_error);
    EXPECT_THROW(parseExample("pulsar bCalcular Calcular dos"), std::runtime_error);
    EXPECT_THROW(parseExample("pulsar bCalcular \"Calcular"), std::runtime_error);
}

TEST(Example, ResultsStandBelowTheStepThatShowsThem) {
    EXPECT_EQ(exampleHtml(parseExample("pulsar bCalcular Calcular\n"
                                       "resultado txtxm \"Media <x>\" 1.5 m3/s\n"
                                       "resultado lblmensaje Ajuste \"Se ajustan\"\n"
                                       "escribir txtt T 100\n"
                                       "fila grdt 1 2\n"
                                       "fila grdt 3 4\n")),
              "<ol>\n"
              "<li>Pulse <b>Calcular</b>.\n"
              "<table class=\"results\">\n"
              "<tr><td>Media &lt;x&gt;</td><td class=\"number\">1.5 m3/s</td></tr>\n"
              "<tr><td>Ajuste</td><td class=\"text\">Se ajustan</td></tr>\n"
              "</table>\n"
              "</li>\n"
              "<li>Escriba <code>100</code> en <b>T</b>.</li>\n"
              "<li>Escriba en la tabla, con ENTER detrás de cada valor: "
              "<code>1</code> · <code>2</code><br><code>3</code> · <code>4</code></li>\n"
              "</ol>\n");
}

} // namespace
} // namespace caudalera::manual
