#include "desktop/style/Title.h"
#include "tests/desktop/DesktopFixture.h"

#include <QAbstractButton>
#include <QLabel>
#include <QRegularExpression>

namespace caudalera {

class AboutViewTest : public QObject {
    Q_OBJECT

private slots:
    void init() {
        desktop_ = std::make_unique<DesktopFixture>();
        desktop_->open("frmacerc");
    }
    void cleanup() { desktop_.reset(); }

    void itTellsNameVersionLicenceAndWhatItIsBuiltWith() {
        QCOMPARE(text("nombre"), QStringLiteral("Caudalera"));
        QCOMPARE(text("licencia"),
                 QStringLiteral("Software libre, licencia GPL versión 3 o posterior"));
        QCOMPARE(text("version"), QStringLiteral("Versión " CAUDALERA_VERSION));
        const auto built =
            QRegularExpression(
                QStringLiteral("^Hecho en C\\+\\+ con Qt (\\S+) y QCustomPlot 2\\.\\S+$"))
                .match(text("hechoCon"));
        QVERIFY(built.hasMatch());
        QCOMPARE(built.captured(1), QString::fromLatin1(qVersion()));
    }

    void whatTheWindowItselfHasStaysAsItIs() {
        QCOMPARE(desktop_->view().windowTitle(),
                 QStringLiteral("Acerca de Caudalera para Windows"));
        QCOMPARE(text("lblProducto"), QStringLiteral("Caudalera: cálculos hidrológicos y "
                                                     "estadísticos aplicados a la hidrología."));
        auto& close = desktop_->widget<QAbstractButton>("bsalir");
        QCOMPARE(close.text(), QStringLiteral("&Cerrar"));
        QVERIFY(close.hasFocus());
        QVERIFY(desktop_->widget<QWidget>("imgLogo").isVisible());
    }

    void theNameIsLarge() {
        const auto height = [&](const char* name) {
            return desktop_->widget<QLabel>(name).fontInfo().pixelSize();
        };
        QVERIFY(height("nombre") >= 2 * height("version"));
        QVERIFY(height("nombre") >= 2 * height("lblProducto"));
    }

    void allOfItStandsInTheMiddleAndIsSeenWhole() {
        const QWidget& view = desktop_->view();
        int below = 0;
        for (const char* name :
             {"imgLogo", "nombre", "version", "lblProducto", "licencia", "hechoCon", "bsalir"}) {
            const auto& widget = desktop_->widget<QWidget>(name);
            QVERIFY2(std::abs(widget.geometry().center().x() - view.rect().center().x()) <= 1,
                     name);
            QVERIFY2(widget.y() >= below, name);
            below = widget.geometry().bottom();
            if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
                QVERIFY2(label->alignment() & Qt::AlignHCenter, name);
                const QSize room = widget.size();
                const QRect drawn = label->fontMetrics().boundingRect(
                    QRect(QPoint(), room), Qt::TextWordWrap | Qt::AlignCenter, label->text());
                QVERIFY2(QRect(QPoint(), room).contains(drawn), name);
            }
        }
        QVERIFY(below < view.height());
        QVERIFY(view.width() >= style::titleWidth(view.windowTitle()));
    }

    void escapeEnterAndTheButtonCloseItAndShowTheMainWindow_data() {
        QTest::addColumn<int>("key");
        QTest::newRow("escape") << int(Qt::Key_Escape);
        QTest::newRow("enter") << int(Qt::Key_Return);
        QTest::newRow("button") << 0;
    }
    void escapeEnterAndTheButtonCloseItAndShowTheMainWindow() {
        QFETCH(int, key);
        const long before = long(desktop_->program().find("frmCaudalera")->shown);
        if (key == 0) {
            desktop_->clickButton("bsalir");
        } else {
            desktop_->press(static_cast<Qt::Key>(key));
        }
        QVERIFY(!desktop_->program().find("frmacerc"));
        QVERIFY(long(desktop_->program().find("frmCaudalera")->shown) > before);
        QVERIFY(!desktop_->program().ended());
    }

    void itsFrameClosesIt() {
        desktop_->view().close();
        QVERIFY(!desktop_->program().find("frmacerc"));
    }

private:
    QString text(const char* name) { return desktop_->widget<QLabel>(name).text(); }

    std::unique_ptr<DesktopFixture> desktop_;
};

} // namespace caudalera

using caudalera::AboutViewTest;
QTEST_MAIN(AboutViewTest)
#include "AboutViewTest.moc"
