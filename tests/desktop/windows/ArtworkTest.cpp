#include "app/registry.h"
#include "desktop/style/Style.h"
#include "recording/RecordingPlatform.h"

#include <QApplication>
#include <QDirIterator>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QSet>
#include <QStyle>
#include <QSvgRenderer>
#include <QTest>

using namespace caudalera;

namespace {

/// Colours that a drawing leaves on a ground of a colour that none of them uses.
int coloursOf(QSvgRenderer& renderer, const QSize& size) {
    QImage image(size, QImage::Format_RGB32);
    image.fill(qRgb(255, 0, 255));
    QPainter painter(&image);
    renderer.render(&painter);
    painter.end();
    QSet<QRgb> colours;
    for (int y = 0; y < image.height(); ++y)
        for (int x = 0; x < image.width(); ++x)
            colours.insert(image.pixel(x, y));
    return static_cast<int>(colours.size());
}

} // namespace

class ArtworkTest : public QObject {
    Q_OBJECT

private slots:
    void initTestCase() { style::apply(*qApp); }

    void boxesAndDialogsHaveIconsOfTheFamily() {
        const std::pair<QStyle::StandardPixmap, const char*> ours[] = {
            {QStyle::SP_MessageBoxInformation, "Informacion"},
            {QStyle::SP_MessageBoxWarning, "Advertencia"},
            {QStyle::SP_MessageBoxCritical, "Fallo"},
            {QStyle::SP_MessageBoxQuestion, "Pregunta"},
            {QStyle::SP_ArrowBack, "Atras"},
            {QStyle::SP_ArrowForward, "Adelante"},
            {QStyle::SP_FileDialogToParent, "Subir"},
            {QStyle::SP_FileDialogNewFolder, "CarpetaNueva"},
            {QStyle::SP_FileDialogListView, "Lista"},
            {QStyle::SP_FileDialogDetailedView, "Detalles"},
            {QStyle::SP_DirIcon, "Carpeta"},
            {QStyle::SP_FileIcon, "Archivo"},
            {QStyle::SP_ComputerIcon, "Equipo"},
        };
        for (const auto& [which, name] : ours) {
            const QImage shown =
                QApplication::style()->standardIcon(which).pixmap(48, 48).toImage();
            QVERIFY2(!shown.isNull(), name);
            QCOMPARE(shown, style::icon(QString::fromUtf8(name)).pixmap(48, 48).toImage());
        }
    }

    void everyDrawingLoadsAndDraws_data() {
        QTest::addColumn<QString>("path");
        for (const char* folder : {":/icons", ":/drawings"}) {
            QDirIterator files{QLatin1String(folder), {QStringLiteral("*.svg")}};
            while (files.hasNext()) {
                const QString path = files.next();
                QTest::newRow(qPrintable(path)) << path;
            }
        }
    }
    void everyDrawingLoadsAndDraws() {
        QFETCH(QString, path);
        QSvgRenderer renderer(path);
        QVERIFY(renderer.isValid());
        // More than the bare ground.
        QVERIFY(coloursOf(renderer, {48, 48}) > 2);
    }

    void everyIconExistsWithItsHover_data() {
        QTest::addColumn<QString>("name");
        for (const char* name :
             {"Calcular", "Graficar", "Limpiar",     "Imprimir",  "Menu",         "Reporte",
              "Crear",    "Accesar",  "Calculadora", "Ordenar",   "LimpiarDatos", "Q",
              "T",        "Pmayor",   "Pmenor",      "calcularI", "Agregar",      "Cponderado",
              "salir",    "CalX",     "CalY",        "Velocidad", "app"})
            QTest::newRow(name) << QString::fromLatin1(name);
    }
    void everyIconExistsWithItsHover() {
        QFETCH(QString, name);
        const QIcon icon = style::icon(name);
        QVERIFY(!icon.isNull());
        const QImage normal = icon.pixmap(24, QIcon::Normal).toImage();
        const QImage hover = icon.pixmap(24, QIcon::Active).toImage();
        QVERIFY(!normal.isNull());
        QVERIFY(normal != hover);
    }

    /// At the size of a button the one leans on the right tail, the other on the left one.
    void theTailsAreToldApart() {
        const auto ink = [](const char* name, bool right) {
            const QImage image =
                style::icon(QString::fromLatin1(name)).pixmap(16, QIcon::Normal).toImage();
            int dark = 0;
            for (int y = 0; y < image.height(); ++y)
                for (int x = right ? 8 : 0; x < (right ? 16 : 8); ++x)
                    dark += image.pixelColor(x, y).alphaF() > 0.6 ? 1 : 0;
            return dark;
        };
        QVERIFY(ink("Pmayor", true) >= 2 * ink("Pmayor", false));
        QVERIFY(ink("Pmenor", false) >= 2 * ink("Pmenor", true));
    }

    void everyPictureHasItsDrawing() {
        int pictures = 0;
        forEveryControl([&](const Control& control) {
            const auto* picture = dynamic_cast<const Picture*>(&control);
            if (!picture)
                return;
            ++pictures;
            const QString path = style::drawingPath(QString::fromStdString(picture->image()));
            QVERIFY2(QFile::exists(path), qPrintable(told(control) + " has no " + path));
        });
        QVERIFY(pictures > 0);
    }

    /// The calculator's keys, whose names do not begin as those of commands do, have none.
    void everyCommandHasItsIcon() {
        int commands = 0;
        forEveryControl([&](const Control& control) {
            if (control.kind() != ControlKind::button || !control.name().starts_with('b'))
                return;
            ++commands;
            const QString name = QString::fromStdString(control.name()).mid(1);
            for (const char* suffix : {"", "-hover"}) {
                const QString path = QStringLiteral(":/icons/%1%2.svg").arg(name, suffix);
                QVERIFY2(QFile::exists(path), qPrintable(told(control) + " has no " + path));
            }
        });
        QVERIFY(commands > 0);
    }

    void theIconsAreSquareAndTheCoverIsWide() {
        QCOMPARE(QSvgRenderer(QStringLiteral(":/icons/Calcular.svg")).defaultSize(), QSize(24, 24));
        const QSize cover =
            QSvgRenderer(style::drawingPath(QStringLiteral("portada"))).defaultSize();
        QVERIFY(cover.width() >= 2 * cover.height());
    }

    void aButtonWithoutDrawingHasNoIcon() {
        QVERIFY(style::icon(QStringLiteral("NoExiste")).isNull());
    }

private:
    /// Of all windows that there are.
    template <typename Check>
    static void forEveryControl(const Check& check) {
        RecordingPlatform platform;
        Program program(platform, ventanas());
        for (const WindowEntry& entry : ventanas()) {
            const auto window = entry.create(program);
            for (const Control* control : window->controls())
                check(*control);
        }
    }
    static QString told(const Control& control) {
        return QString::fromStdString(control.window().name() + "." + control.name());
    }
};

QTEST_MAIN(ArtworkTest)
#include "ArtworkTest.moc"
