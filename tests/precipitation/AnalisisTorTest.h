#pragma once

#include "precipitation/frmAnalisisTor.h"
#include "tests/support/SeriesBytes.h"
#include "tests/support/WindowTest.h"

#include <string>
#include <vector>

namespace caudalera {

/// The open window of the storm.
class AnalisisTorTest : public WindowTest {
protected:
    AnalisisTorTest() : form(dynamic_cast<frmAnalisisTor&>(open("frmAnalisisTor"))) {}

    frmAnalisisTor& form;

    bool shown(const std::string& name) { return control<Control>(name).visible; }
    /// I and its duration, joined by '|'.
    std::string largest() { return text("txtvI") + "|" + text("txtvD"); }
    void load(const std::string& path) {
        platform.answers.push_back(path);
        click("bAccesar");
    }
    /// Loads `count` intervals of a minute and a millimetre.
    void loadMinutes(int count) {
        std::vector<float> values(static_cast<std::size_t>(2 * count), 1.0F);
        writeSingles(file("minutos.TH"), values);
        load(file("minutos.TH"));
    }
    /// The option's caption that names the chart's vertical axis, and the horizontal one.
    std::vector<std::string> captionsShown() {
        std::vector<std::string> all;
        for (const char* name : {"lblIntensidad", "lblPrecipitacion", "lblTiempo"}) {
            if (shown(name))
                all.push_back(text(name));
        }
        return all;
    }
};

/// 5 mm in 10 min are 30 mm/hr, 24 in 20 are 72, 10 in 8 are 75, 3 in 30 are 6.
inline const std::vector<std::vector<std::string>> tormentaDeCuatro = {
    {"10", "5"}, {"20", "24"}, {"8", "10"}, {"30", "3"}};

} // namespace caudalera
