#pragma once

#include "viewer/ChmFile.h"
#include "viewer/HelpSearch.h"
#include "viewer/PageBrowser.h"

#include <QWidget>

class QAction;
class QLineEdit;
class QListWidget;
class QTabWidget;
class QToolBar;
class QTreeWidget;

namespace caudalera::viewer {

/// The help viewer's window: contents, index and search at the left, the page at the right.
class ViewerWindow : public QWidget {
    Q_OBJECT

public:
    /// The file at `path`; a window that says so if there is none that can be read.
    explicit ViewerWindow(const QString& path);

    /// A page by its name within the file ("frmDisGumbel.html"); the first one for an empty name
    /// and for a page that is not there.
    void openTopic(const QString& topic);

private:
    void buildActions(QToolBar& bar);
    QAction* action(QToolBar& bar, const QString& icon, const QString& text,
                    const QKeySequence& keys);
    QWidget* contentsPane();
    QWidget* indexPane();
    QWidget* searchPane();
    void fillContents();
    void fillIndex();
    void fillSearch();
    void search();
    void showHit(int row);
    /// Marks the page that is shown in the contents.
    void followPage();
    void print();

    ChmFile file_;
    HelpSearch search_;
    PageBrowser* browser_;
    QTabWidget* panes_;
    QTreeWidget* contents_ = nullptr;
    QLineEdit* indexFilter_ = nullptr;
    QListWidget* index_ = nullptr;
    QLineEdit* query_ = nullptr;
    QListWidget* hits_ = nullptr;
};

} // namespace caudalera::viewer
