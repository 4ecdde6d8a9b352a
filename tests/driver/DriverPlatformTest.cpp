#include "tests/driver/DriverProcess.h"
#include "tests/support/PosixFiles.h"

#include <filesystem>
#include <fstream>
#include <string>

namespace caudalera {
namespace {

class DriverPlatformTest : public DriverTest {
protected:
    static constexpr const char* sheet = "frmParamEsta";
    void openSheet() { open("mparanoagru", sheet); }
    json seen() { return ok("dialog", {{"answers", json::array()}})["seen"]; }
    std::uintmax_t sizeOf(const std::string& name) {
        return std::filesystem::file_size(file(name));
    }
};

TEST_F(DriverPlatformTest, DialogsTakeTheQueuedAnswersAndAreToldOnce) {
    openSheet();
    ok("rows", {{"window", sheet}, {"rows", {{"1"}, {"2"}}}});
    EXPECT_EQ(ok("dialog", {{"answers", {file("a.X"), file("b.X")}}})["seen"], json::array());
    click(sheet, "bCrear");
    click(sheet, "bCrear");
    EXPECT_EQ(sizeOf("a.X"), 8U);
    EXPECT_EQ(sizeOf("b.X"), 8U);
    const json save = {{"kind", "save"},
                       {"title", "Ubicar directorio y escribir el nombre archivo a crear"},
                       {"filter", "Valores de X|*.X"}};
    EXPECT_EQ(seen(), (json{save, save}));
    EXPECT_EQ(seen(), json::array());
    click(sheet, "bAccesar");
    EXPECT_EQ(seen(), (json{{{"kind", "open"},
                             {"title", "Seleccionar el archivo a cargar"},
                             {"filter", "Valores X|*.X"}}}));
    EXPECT_EQ(cells(sheet, "grdt").size(), 2U) << "an empty queue cancels";
}

TEST_F(DriverPlatformTest, ANullIsCancel) {
    openSheet();
    ok("rows", {{"window", sheet}, {"rows", {{"1"}}}});
    ok("dialog", {{"answers", {nullptr, file("b.X")}}});
    click(sheet, "bCrear");
    EXPECT_FALSE(std::filesystem::exists(file("b.X")));
    click(sheet, "bCrear");
    EXPECT_EQ(sizeOf("b.X"), 4U);
}

TEST_F(DriverPlatformTest, AnErrorInTheAnswersQueuesNoneOfThem) {
    openSheet();
    error("dialog", {{"answers", {file("a.X"), 1}}});
    click(sheet, "bCrear");
    EXPECT_FALSE(std::filesystem::exists(file("a.X")));
}

TEST_F(DriverPlatformTest, TheClipboardIsSetWhenATextIsGiven) {
    EXPECT_EQ(ok("clipboard")["text"], "");
    EXPECT_EQ(ok("clipboard", {{"text", "año\n€ \"x\" \\"}})["text"], "año\n€ \"x\" \\");
    EXPECT_EQ(ok("clipboard")["text"], "año\n€ \"x\" \\");
    EXPECT_EQ(ok("clipboard", {{"text", ""}})["text"], "");
}

TEST_F(DriverPlatformTest, PathsMayHoldAnyCharacter) {
    openSheet();
    ok("rows", {{"window", sheet}, {"rows", {{"1"}}}});
    ok("dialog", {{"answers", {file("añ€ 1.X")}}});
    click(sheet, "bCrear");
    EXPECT_TRUE(std::filesystem::exists(std::filesystem::path(file("")) / u8"añ€ 1.X"));
}

TEST_F(DriverPlatformTest, AFileThatMayNotGrowSoFarStaysAndTheProgramLives) {
    openSheet();
    ok("rows", {{"window", sheet}, {"rows", {{"1"}, {"2"}}}});
    ok("dialog", {{"answers", {file("a.X")}}});
    click(sheet, "bCrear");
    ASSERT_EQ(sizeOf("a.X"), 8U);

    const FileSizeLimit limit(9);
    DriverProcess limited;
    const auto act = [&](json request) { return json::parse(limited.exchange(request.dump())); };
    act({{"op", "menu"}, {"entry", "mparanoagru"}});
    act({{"op", "rows"}, {"window", sheet}, {"rows", {{"3"}, {"4"}, {"5"}}}});
    act({{"op", "dialog"}, {"answers", {file("a.X")}}});
    const json reply = act({{"op", "click"}, {"window", sheet}, {"control", "bCrear"}});
    EXPECT_EQ(reply["ok"], true);
    EXPECT_EQ(reply["messages"], json::array());
    EXPECT_EQ(reply["ended"], nullptr);
    EXPECT_EQ(limited.finish(), 0);
    EXPECT_EQ(sizeOf("a.X"), 8U);
}

TEST_F(DriverPlatformTest, ADocumentThatIsNoUtf8IsToldInUtf8) {
    openSheet();
    click(sheet, "bReporte");
    std::ofstream(file("latin.txt"), std::ios::binary) << "a\xf1o\xff";
    ok("dialog", {{"answers", {file("latin.txt")}}});
    click("frmPadre", "mnuFileOpen");
    EXPECT_EQ(report()["documents"][0]["text"], "añoÿ") << "read as Windows-1252";
}

TEST_F(DriverPlatformTest, NothingIsPrintedOrStartedAtFirst) {
    EXPECT_EQ(ok("printed")["printed"], json::array());
    EXPECT_EQ(ok("processes")["started"], json::array());
    EXPECT_EQ(ok("settings")["settings"], json::object());
}

} // namespace
} // namespace caudalera
