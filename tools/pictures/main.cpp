// caudalera_pictures SOURCE [WINDOW...]: opens each window (those named, or all), plays the example
// of its page in the manual and saves its picture, with the record of what it shows, among the
// manual's pictures. Ends with a non-zero status, saying why, at the first example that does not
// give what its page says.

#include "app/registry.h"
#include "desktop/Views.h"
#include "desktop/session/Session.h"
#include "desktop/style/Style.h"
#include "desktop/words/Words.h"
#include "manual/maker/Page.h"
#include "manual/player/ExamplePlayer.h"
#include "manual/player/PictureRecord.h"

#include <QApplication>
#include <QFile>
#include <QFileDialog>
#include <QImage>
#include <QLineEdit>
#include <QMessageBox>
#include <QPushButton>
#include <QSettings>
#include <QTemporaryDir>
#include <QTest>
#include <QTimer>

#include <cstdio>
#include <cstdlib>
#include <filesystem>

namespace {

using namespace caudalera;

[[noreturn]] void fail(const std::string& what) {
    std::fprintf(stderr, "pictures: %s\n", what.c_str());
    std::exit(1);
}

/// The user's hands for what stands in front of the windows.
class Hands {
public:
    Hands() {
        QObject::connect(&timer_, &QTimer::timeout, [this] { look(); });
        timer_.start(50);
    }

    void answerFile(const std::filesystem::path& file) {
        file_ = QString::fromStdU16String(file.u16string());
    }

private:
    void look() {
        QWidget* modal = QApplication::activeModalWidget();
        if (auto* box = qobject_cast<QMessageBox*>(modal); box && !box->buttons().isEmpty())
            box->buttons().constFirst()->click();
        if (auto* dialog = qobject_cast<QFileDialog*>(modal); dialog && !file_.isEmpty()) {
            auto* name = dialog->findChild<QLineEdit*>(QStringLiteral("fileNameEdit"));
            name->setText(std::exchange(file_, {}));
            QTest::keyClick(name, Qt::Key_Return);
        }
    }

    QTimer timer_;
    QString file_;
};

void write(const std::filesystem::path& file, const std::string& text) {
    QFile out(file);
    if (!out.open(QIODevice::WriteOnly) || out.write(text.data(), qint64(text.size())) < 0)
        fail("cannot write " + file.string());
}

void makePicture(const std::filesystem::path& source, const std::string& name) {
    const manual::Page page = manual::readPage(source / "manual" / "pages" / (name + ".md"));
    Hands hands;
    Session session(ventanas(), makeView);
    session.start();
    manual::ExamplePlayer player(session.program(), [&](const std::string& sample) {
        hands.answerFile(source / "samples" / sample);
    });
    const auto act = [&](const std::function<void()>& event) {
        session.act(event);
        QTest::qWait(50);
    };
    act([&] { player.open(name); });
    const std::string record = manual::pictureRecord(*player.window(), page.example);
    std::string fault;
    for (const manual::Step& step : page.example) {
        act([&] { fault = player.play(step); });
        if (!fault.empty())
            break;
    }
    if (!fault.empty())
        fail(name + ": " + fault);
    act([&] { player.open(name); });
    QTest::qWait(400);
    QWidget* view = session.viewOf(*player.window());
    const std::filesystem::path pictures = source / "manual" / "pictures";
    // No frame of a window manager, no caret that comes and goes.
    if (QWidget* focused = view->focusWidget())
        focused->clearFocus();
    const QImage image = view->grab().toImage();
    if (!image.save(QString::fromStdU16String((pictures / (name + ".png")).u16string()), "PNG", 0))
        fail("cannot write the picture of " + name);
    write(pictures / (name + ".txt"), record);
    std::printf("%s %dx%d\n", name.c_str(), image.width(), image.height());
}

} // namespace

int main(int argc, char** argv) {
    QApplication application(argc, argv);
    if (argc < 2)
        fail("usage: caudalera_pictures SOURCE [WINDOW...]");
    const QTemporaryDir store;
    QSettings::setPath(QSettings::NativeFormat, QSettings::UserScope, store.path());
    QApplication::setQuitOnLastWindowClosed(false);
    words::install(application);
    style::apply(application);
    const std::filesystem::path source = std::filesystem::absolute(argv[1]);
    for (const WindowEntry& entry : ventanas()) {
        const QString name = QString::fromUtf8(entry.name.data(), qsizetype(entry.name.size()));
        if (argc == 2 || QApplication::arguments().mid(2).contains(name))
            makePicture(source, name.toStdString());
    }
    return 0;
}
