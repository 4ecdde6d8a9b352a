// Long random sequences of keys, key by key against the second calculator.

#include "tests/shell/main/TableCalculator.h"
#include "tests/support/WindowTest.h"

#include <map>
#include <random>
#include <set>
#include <utility>

namespace caudalera {
namespace {

/// All keys but the one whose result nothing can foretell; a digit is as likely as all others.
class Keys {
public:
    explicit Keys(unsigned seed) : random_(seed) {}

    std::string next() {
        static const std::vector<std::string> others = {
            "cmdOp(1)",    "cmdOp(2)",      "cmdOp(3)",      "cmdOp(4)",      "cmdOp(5)",
            "cmdOp(6)",    "cmdOp(7)",      "cmdOp(8)",      "cmdOp(9)",      "cmdOp(10)",
            "cmdOp(11)",   "cmdOp(12)",     "cmdOp(13)",     "cmdOp(14)",     "cmdEquals",
            "cmdEquals",   "cmdEquals",     "cmdDecimal",    "cmdDecimal",    "cmdValue",
            "cmdValue",    "cmdBackSpace",  "cmdClear(C)",   "cmdClear(CE)",  "cmdMem(M+)",
            "cmdMem(MS)",  "cmdMem(MR)",    "cmdMem(MC)",    "cmdSci(sin)",   "cmdSci(cos)",
            "cmdSci(tan)", "cmdSci(sin-1)", "cmdSci(cos-1)", "cmdSci(tan-1)", "cmdSci(pi)",
            "OptDegree",   "OptRadian"};
        if (below(2) == 0)
            return "cmdNum(" + std::to_string(below(10)) + ")";
        return others[below(others.size())];
    }

private:
    std::size_t below(std::size_t bound) { return random_() % bound; }

    // The standard's own distributions differ from one library to the next.
    std::mt19937 random_;
};

/// What came to pass in all sequences, so that none of it is missed unseen.
struct Seen {
    int keys = 0;
    int refusals = 0;
    std::map<int, int> failures;
    std::set<std::string> displays;
};

class CalculadoraRandomTest : public ::testing::Test {
protected:
    /// Presses keys until the calculator fails for good or a thousand are pressed.
    void run(unsigned seed) {
        RecordingPlatform platform;
        Program program(platform, ventanas());
        program.start();
        program.act([&] { program.show("frmCalculadora"); });
        Window& window = *program.find("frmCalculadora");
        const Control& display = *window.find("lblDisplay");
        TableCalculator table;
        Keys keys(seed);
        std::string pressed;
        for (int i = 0; i < 1000; ++i) {
            const std::string key = keys.next();
            pressed += ' ' + key;
            const TableCalculator::Outcome expected = table.press(key);
            program.click(*window.find(key));
            TableCalculator::Outcome found;
            found.refused = !std::exchange(platform.messages, {}).empty();
            if (program.ended())
                found.failure = program.ended()->number;
            ASSERT_EQ(found.refused, expected.refused) << "seed " << seed << pressed;
            ASSERT_EQ(found.failure, expected.failure) << "seed " << seed << pressed;
            ++seen.keys;
            seen.refusals += expected.refused ? 1 : 0;
            if (expected.failure) {
                ++seen.failures[*expected.failure];
                return;
            }
            ASSERT_EQ(display.caption, table.display()) << "seed " << seed << pressed;
            seen.displays.insert(table.display());
        }
    }

    Seen seen;
};

TEST_F(CalculadoraRandomTest, EveryKeyDoesWhatTheSecondCalculatorDoes) {
    for (unsigned seed = 1; seed <= 1000 && !HasFatalFailure(); ++seed)
        run(seed);
    EXPECT_GT(seen.keys, 20000);
    EXPECT_GT(seen.refusals, 200);
    EXPECT_GT(seen.displays.size(), 5000U);
    for (const int failure : {5, 6, 11})
        EXPECT_GT(seen.failures[failure], 20) << failure;
}

} // namespace
} // namespace caudalera
