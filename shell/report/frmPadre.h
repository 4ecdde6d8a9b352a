#pragma once

#include "shell/numbers/Integer16.h"
#include "shell/report/frmDocumento.h"
#include "shell/window/Window.h"

#include <memory>
#include <vector>

namespace caudalera {

/// The report window: a menu and any number of documents.
class frmPadre : public Window {
public:
    explicit frmPadre(Program& program);

    MenuEntry mnuFile{*this, "mnuFile", "&Archivo"};
    MenuEntry mnuFileNew{*this, "mnuFileNew", "&Nuevo"};
    MenuEntry mnuFileOpen{*this, "mnuFileOpen", "A&brir..."};
    MenuEntry mnuFileSave{*this, "mnuFileSave", "&Guardar"};
    MenuEntry mnuFileSaveAs{*this, "mnuFileSaveAs", "Guardar &como ..."};
    MenuEntry mnuFilePrint{*this, "mnuFilePrint", "I&mprimir..."};
    MenuEntry mnuFileExit{*this, "mnuFileExit", "&Salir"};
    MenuEntry mnuEdit{*this, "mnuEdit", "&Edición"};
    MenuEntry mnuEditCut{*this, "mnuEditCut", "Cor&tar"};
    MenuEntry mnuEditCopy{*this, "mnuEditCopy", "&Copiar"};
    MenuEntry mnuEditPaste{*this, "mnuEditPaste", "&Pegar"};
    StatusBar sbStatusBar{*this, "sbStatusBar", 1};

    /// Position and size in twips.
    struct Place {
        double left = 1000;
        double top = 1000;
        double width = 6500;
        double height = 6500;
        bool minimized = false;

        bool operator==(const Place&) const = default;
    };
    Place place;

    /// Who shows one shares it, as with windows.
    const std::vector<std::shared_ptr<frmDocumento>>& documents() const { return documents_; }
    /// nullptr if there is none.
    frmDocumento* active() const { return activated_.empty() ? nullptr : activated_.back(); }
    void activate(frmDocumento& document);
    /// Closes a document with no question; the one that was active before becomes active again.
    void closeDocument(frmDocumento& document);
    frmDocumento& newDocument();
    /// The active document; without one a new one is made, so that a report always has its place.
    frmDocumento& documentForReport();

    void load() override;
    void unload() override;

private:
    void abrir();
    void guardar();
    void guardarComo();
    void imprimir();
    void copiar();
    void cortar();
    void pegar();
    /// Empty if it was cancelled.
    std::string elegirArchivo(FileDialog::Kind kind, const char* title, const char* filter) const;

    std::vector<std::shared_ptr<frmDocumento>> documents_;
    /// The same documents, the one that was activated last at the end.
    std::vector<frmDocumento*> activated_;
    /// Documents made so far, for their names.
    Integer16 documentsMade_;
};

/// The report window of a program; nullptr while it is not loaded.
frmPadre* ventanaDeReportes(const Program& program);

} // namespace caudalera
