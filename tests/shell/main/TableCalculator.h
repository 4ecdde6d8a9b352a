#pragma once

#include <optional>
#include <string>

namespace caudalera {

/// A second pocket calculator, in doubles and the C library alone, to hold the program's against.
/// It knows nothing of the program's code and shares none with it.
class TableCalculator {
public:
    /// What a key did beside changing the display.
    struct Outcome {
        bool refused = false;
        /// Number of the run-time failure that the key ends in; the calculator is of no use then.
        std::optional<int> failure{};

        bool operator==(const Outcome&) const = default;
    };

    /// Presses the key that the window's button has the name of: "cmdNum(5)", "cmdOp(1)",
    /// "cmdSci(sin-1)", "cmdMem(M+)", "OptDegree" ...
    Outcome press(const std::string& key);
    const std::string& display() const { return display_; }

private:
    Outcome pressOperation(int code);
    Outcome pressFunction(const std::string& name);
    void pressMemory(const std::string& name);
    void pressClear(const std::string& name);
    void type(char character);
    void eraseLast();
    void changeSign();
    Outcome equals();
    Outcome cancel();
    void put(double result);
    double& operand() { return inSecond_ ? second_ : first_; }

    double first_ = 0;
    double second_ = 0;
    int pending_ = 0;
    bool inSecond_ = false;
    bool beginsNumber_ = true;
    bool degrees_ = true;
    double memory_ = 0;
    std::string display_ = "0.";
};

} // namespace caudalera
