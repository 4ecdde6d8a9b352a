#include "desktop/report/DocumentStrip.h"

#include "desktop/richtext/QtText.h"
#include "shell/report/frmPadre.h"

#include <QDir>
#include <QFileInfo>
#include <QSignalBlocker>
#include <algorithm>
#include <limits>
#include <utility>

namespace caudalera {

namespace {

/// Characters that a name may take.
constexpr int widestName = 32;

QString labelOf(const QString& caption) {
    // An ampersand of a name is no shortcut.
    return QFileInfo(QDir::fromNativeSeparators(caption))
        .fileName()
        .replace(u'&', QStringLiteral("&&"));
}

} // namespace

DocumentStrip::DocumentStrip(const frmPadre& padre, Choose choose, QWidget* parent)
    : QTabBar(parent), padre_(padre), choose_(std::move(choose)) {
    setObjectName(QStringLiteral("documents"));
    setShape(QTabBar::RoundedSouth);
    setElideMode(Qt::ElideMiddle);
    setUsesScrollButtons(true);
    setExpanding(false);
    // The keyboard stays in the text.
    setFocusPolicy(Qt::NoFocus);
    connect(this, &QTabBar::currentChanged, this, [this](int index) { this->choose(index); });
}

void DocumentStrip::sync() {
    const QSignalBlocker blocker(this);
    const auto& documents = padre_.documents();
    for (int i = count() - 1; i >= 0; --i) {
        const auto* each = shown_[static_cast<std::size_t>(i)];
        if (std::any_of(documents.begin(), documents.end(),
                        [each](const auto& document) { return document.get() == each; }))
            continue;
        removeTab(i);
        shown_.erase(shown_.begin() + i);
    }
    // Documents keep their order, and new ones come at the end.
    for (std::size_t i = 0; i < documents.size(); ++i) {
        const int tab = static_cast<int>(i);
        const QString caption = toQString(documents[i]->caption);
        if (i == shown_.size()) {
            addTab(labelOf(caption));
            shown_.push_back(documents[i].get());
        } else if (tabText(tab) != labelOf(caption)) {
            setTabText(tab, labelOf(caption));
        }
        setTabToolTip(tab, caption);
        if (documents[i].get() == padre_.active())
            setCurrentIndex(tab);
    }
    setVisible(!documents.empty());
}

QSize DocumentStrip::tabSizeHint(int index) const {
    const QSize wanted = QTabBar::tabSizeHint(index);
    return wanted.boundedTo(
        {fontMetrics().averageCharWidth() * widestName, std::numeric_limits<int>::max()});
}

void DocumentStrip::choose(int index) {
    if (index >= 0)
        choose_(*shown_[static_cast<std::size_t>(index)]);
}

} // namespace caudalera
