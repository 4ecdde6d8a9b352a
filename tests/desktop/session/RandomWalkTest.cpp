#include "tests/desktop/session/RandomWalk.h"

#include <QTest>
#include <cstdio>

namespace caudalera {

/// CAUDALERA_WALK_STEPS and CAUDALERA_WALK_SEED take another way, or a longer one;
/// CAUDALERA_WALK_TRACE tells each step before it is taken.
class RandomWalkTest : public QObject {
    Q_OBJECT

private slots:
    void noWayThroughTheWindowsBreaksThem_data() {
        QTest::addColumn<unsigned>("seed");
        bool given = false;
        const int only = qEnvironmentVariableIntValue("CAUDALERA_WALK_SEED", &given);
        const QList<unsigned> seeds =
            given ? QList<unsigned>{static_cast<unsigned>(only)} : QList<unsigned>{1, 2, 3, 4};
        for (const unsigned seed : seeds)
            QTest::addRow("seed %u", seed) << seed;
    }
    void noWayThroughTheWindowsBreaksThem() {
        QFETCH(unsigned, seed);
        bool given = false;
        const int wanted = qEnvironmentVariableIntValue("CAUDALERA_WALK_STEPS", &given);
        const int steps = given ? wanted : 400;
        qInfo("seed %u, %d steps", seed, steps);
        RandomWalk walk(seed);
        for (int i = 0; i < steps; ++i) {
            walk.step();
            const QString wrong = walk.contradiction();
            if (!wrong.isEmpty())
                std::fprintf(stderr, "%s\n", qPrintable(walk.lastSteps()));
            QVERIFY2(
                wrong.isEmpty(),
                qPrintable(QStringLiteral("seed %1, step %2: %3").arg(seed).arg(i).arg(wrong)));
        }
        qInfo("%d windows opened, %d boxes, %d programs ended", walk.opened(), walk.boxes(),
              walk.ended());
        // A walk that got nowhere has shown nothing.
        QVERIFY(walk.opened() > 10);
    }
};

} // namespace caudalera

using caudalera::RandomWalkTest;
QTEST_MAIN(RandomWalkTest)
#include "RandomWalkTest.moc"
