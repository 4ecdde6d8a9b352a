// The window: what its keys read, how the keyboard works them, how it comes and goes.

#include "tests/shell/main/CalculadoraTest.h"

namespace caudalera {
namespace {

struct KeyFace {
    std::string name;
    std::string caption;
    std::string toolTip;
};

const std::vector<KeyFace> faces = {
    {"cmdDecimal", ".", "Punto decimal"},
    {"cmdValue", "±", "Convertir positivo/negativo"},
    {"cmdBackSpace", "<<", "Backspace"},
    {"cmdClear(C)", "C", "Resets de constante corriente y valores, cancelando toda operación"},
    {"cmdClear(CE)", "CE", "Limpiar última operación"},
    {"cmdEquals", "=", ""},
    {"cmdOp(1)", "÷", "Operación - división"},
    {"cmdOp(2)", "×", "Operación - multiplicación"},
    {"cmdOp(3)", "−", "Operación - subtracción"},
    {"cmdOp(4)", "+", "Operación - adición"},
    {"cmdOp(5)", "√x", "Operación - raiz cuadrada"},
    {"cmdOp(6)", "%", "Operación - porcentaje - 30 (como) % (de) 300 = 1"},
    {"cmdOp(7)", "1/x", "Operación - inversa"},
    {"cmdOp(8)", "xⁿ", "Operación - potencia n"},
    {"cmdOp(9)", "x³", "Operación - elevar al cubo"},
    {"cmdOp(10)", "x²", "Operación - elevar al cuadrado"},
    {"cmdOp(11)", "mod", "Operación - (16 mod 5 = 1),(74  mod 10 = 4)"},
    {"cmdOp(12)", "ent", "Operación - valor entero"},
    {"cmdOp(13)", "ⁿ√x", "Operación - raiz n"},
    {"cmdOp(14)", "³√x", "Operación - raiz cúbica"},
    {"cmdSci(sin)", "sin", ""},
    {"cmdSci(cos)", "cos", ""},
    {"cmdSci(tan)", "tan", ""},
    {"cmdSci(sin-1)", "sin-1", ""},
    {"cmdSci(cos-1)", "cos-1", ""},
    {"cmdSci(tan-1)", "tan-1", ""},
    {"cmdSci(pi)", "Pi", ""},
    {"cmdSci(ran)", "ran", ""},
    {"cmdMem(M+)", "M+", "Adicionar valor corriente a la memoria"},
    {"cmdMem(MS)", "MS", "Almacenar valor corriente en la memoria"},
    {"cmdMem(MR)", "MR", "Mostrar contenido memoria"},
    {"cmdMem(MC)", "MC", "Limpiar memoria"},
};

TEST_F(CalculadoraTest, TheKeysReadAsTheyShould) {
    EXPECT_EQ(window("frmCalculadora").caption, "Calculadora científica");
    for (const KeyFace& face : faces) {
        const auto& key = control<Button>(face.name);
        EXPECT_EQ(key.caption, face.caption) << face.name;
        EXPECT_EQ(key.toolTip, face.toolTip) << face.name;
    }
    for (char digit = '0'; digit <= '9'; ++digit) {
        const auto& key = control<Button>(std::string("cmdNum(") + digit + ")");
        EXPECT_EQ(key.caption, std::string(1, digit));
        EXPECT_EQ(key.toolTip, "Entrada numérica");
    }
    std::size_t buttons = 0;
    for (const Control* each : window("frmCalculadora").controls())
        buttons += each->kind() == ControlKind::button ? 1 : 0;
    EXPECT_EQ(buttons, faces.size() + 10) << "and there are no others";
}

TEST_F(CalculadoraTest, AnglesAreInDegreesAtFirst) {
    EXPECT_EQ(control<Option>("OptDegree").caption, "deg");
    EXPECT_EQ(control<Option>("OptRadian").caption, "rad");
    EXPECT_TRUE(control<Option>("OptDegree").checked());
    EXPECT_FALSE(control<Option>("OptRadian").checked());
    press("rad");
    EXPECT_FALSE(control<Option>("OptDegree").checked());
}

TEST_F(CalculadoraTest, TheDisplayHasItsMenu) {
    EXPECT_EQ(control<MenuEntry>("mnuCopy").caption, "Copy");
    EXPECT_EQ(control<MenuEntry>("mnuPaste").caption, "Paste");
}

TEST_F(CalculadoraTest, TheKeyboardWorksTheKeysWhateverHasTheFocus) {
    for (const char* focused : {"cmdNum(3)", "cmdSci(sin)", "OptRadian"}) {
        press("C");
        type(focused, "1234567890");
        EXPECT_EQ(display(), "1234567890") << focused;
        press("C");
        type(focused, "12.5");
        EXPECT_EQ(display(), "12.5");
        type(focused, "*2=");
        EXPECT_EQ(display(), "25.");
        type(focused, "/4+1,75-3");
        key(focused, Key::Kind::enter);
        EXPECT_EQ(display(), "5.") << "25 / 4 + 1.75 - 3, the comma being the point";
        type(focused, "30%300=");
        EXPECT_EQ(display(), "10.");
        type(focused, "2^10=");
        EXPECT_EQ(display(), "1024.");
        type(focused, "78\b");
        EXPECT_EQ(display(), "7");
        type(focused, "+9");
        key(focused, Key::Kind::forwardDelete);
        EXPECT_EQ(display(), "7.") << "CE";
        type(focused, "+9");
        key(focused, Key::Kind::escape);
        EXPECT_EQ(display(), "0.") << "C";
    }
    EXPECT_TRUE(control<Option>("OptDegree").checked());
}

TEST_F(CalculadoraTest, OtherKeysAreTheControlsOwn) {
    type("cmdNum(3)", "abc :;");
    EXPECT_EQ(display(), "3") << "the blank presses the button that has the focus";
    EXPECT_EQ(focus(), "cmdNum(3)");
    key("cmdNum(4)", Key::Kind::up);
    key("cmdNum(4)", Key::Kind::down);
    EXPECT_EQ(display(), "3");
    EXPECT_EQ(focus(), "cmdNum(4)");
    type("OptRadian", " ");
    EXPECT_TRUE(control<Option>("OptRadian").checked());
}

TEST_F(CalculadoraTest, TheKeyboardNeedsNoFocus) {
    Window& calculator = window("frmCalculadora");
    const auto& shown = control<Label>("lblDisplay");
    program.key(calculator, {Key::Kind::character, U'7'});
    EXPECT_EQ(shown.caption, "7");
    program.key(window("frmCaudalera"), {Key::Kind::character, U'7'});
    EXPECT_EQ(shown.caption, "7") << "that window has no use for keys";
    // Kept, as a view keeps what it shows.
    const auto gone = program.windows().back();
    ASSERT_EQ(gone.get(), &calculator);
    program.close(calculator);
    program.key(*gone, {Key::Kind::character, U'8'});
    EXPECT_EQ(shown.caption, "7") << "a window that is gone takes none";
}

TEST_F(CalculadoraTest, ARefusalFromTheKeyboardIsTold) {
    type("cmdEquals", "5/0");
    key("cmdEquals", Key::Kind::enter);
    expectMessage({"No se puede cumplir con su petición.\r\n"
                   "Esta operación ha sido cancelada.",
                   "Error en cálculo", Icon::error});
    EXPECT_EQ(display(), "0");
}

TEST_F(CalculadoraTest, AFailureFromTheKeyboardIsFatal) {
    type("cmdEquals", "0^-1");
    press("neg");
    EXPECT_FALSE(program.ended());
    press("C 0 ^ 1 neg");
    key("cmdEquals", Key::Kind::enter);
    EXPECT_TRUE(fatal(5));
}

TEST_F(CalculadoraTest, EveryCalculationOpensTheOneCalculator) {
    press("12 +");
    const Window* const calculator = &window("frmCalculadora");
    for (const char* name : {"frmParamEsta", "frmPenman", "frmQmaxRacional"}) {
        open(name);
        EXPECT_TRUE(control<Button>("bCalculadora").enabled) << name;
        click("bCalculadora");
        EXPECT_EQ(program.front(), calculator) << name;
        EXPECT_TRUE(window(name).visible) << name;
        click("bMenu");
        EXPECT_EQ(program.find(name), nullptr);
    }
    ASSERT_EQ(program.find("frmCalculadora"), calculator) << "it outlives them";
    open("frmCalculadora");
    press("5 =");
    EXPECT_EQ(display(), "17.") << "with all that it held";
}

TEST_F(CalculadoraTest, ClosingItLosesOperandsAndMemory) {
    press("5 MS rad 12 + 3");
    program.close(window("frmCalculadora"));
    open("frmCalculadora");
    EXPECT_EQ(display(), "0.");
    EXPECT_EQ(text("lblMemoria"), "");
    EXPECT_EQ(text("lblPendiente"), "");
    EXPECT_TRUE(control<Option>("OptDegree").checked());
    press("MR");
    EXPECT_EQ(display(), "0.");
}

} // namespace
} // namespace caudalera
