#include "shell/report/frmPadre.h"

#include "shell/files/TextFile.h"
#include "shell/text/Text.h"
#include "shell/window/Program.h"

#include <algorithm>

namespace caudalera {

namespace {

constexpr const char* archivosRtf = "Archivos (*.RTF)|*.RTF";

} // namespace

frmPadre::frmPadre(Program& program) : Window(program, "frmPadre", "Guardar datos") {
    mnuFile.entries = {&mnuFileNew, &mnuFileOpen,  nullptr, &mnuFileSave, &mnuFileSaveAs,
                       nullptr,     &mnuFilePrint, nullptr, &mnuFileExit};
    mnuEdit.entries = {&mnuEditCut, &mnuEditCopy, &mnuEditPaste};
    menuBar = {&mnuFile, &mnuEdit};
    mnuFileNew.onClick = [this] { newDocument(); };
    mnuFileOpen.onClick = [this] { abrir(); };
    mnuFileSave.onClick = [this] { guardar(); };
    mnuFileSaveAs.onClick = [this] { guardarComo(); };
    mnuFilePrint.onClick = [this] { imprimir(); };
    mnuFileExit.onClick = [this] { this->program().unload(*this); };
    mnuEditCut.onClick = [this] { cortar(); };
    mnuEditCopy.onClick = [this] { copiar(); };
    mnuEditPaste.onClick = [this] { pegar(); };
}

void frmPadre::load() {
    const auto read = [this](const char* key, double start) {
        const auto text = platform().setting(key);
        return text ? Val(*text) : start;
    };
    place.left = read("MainLeft", 1000);
    place.top = read("MainTop", 1000);
    place.width = read("MainWidth", 6500);
    place.height = read("MainHeight", 6500);
    newDocument();
}

void frmPadre::unload() {
    if (place.minimized)
        return;
    platform().setSetting("MainLeft", textoPlano(place.left));
    platform().setSetting("MainTop", textoPlano(place.top));
    platform().setSetting("MainWidth", textoPlano(place.width));
    platform().setSetting("MainHeight", textoPlano(place.height));
}

frmDocumento& frmPadre::newDocument() {
    ++documentsMade_;
    documents_.push_back(
        std::make_shared<frmDocumento>("Documento " + textoPlano(long{documentsMade_})));
    activated_.push_back(documents_.back().get());
    return *activated_.back();
}

void frmPadre::activate(frmDocumento& document) {
    std::erase(activated_, &document);
    activated_.push_back(&document);
}

void frmPadre::closeDocument(frmDocumento& document) {
    const auto found = std::find_if(documents_.begin(), documents_.end(),
                                    [&](const auto& each) { return each.get() == &document; });
    if (found == documents_.end())
        return;
    std::erase(activated_, &document);
    documents_.erase(found);
}

frmDocumento& frmPadre::documentForReport() {
    return active() ? *active() : newDocument();
}

std::string frmPadre::elegirArchivo(FileDialog::Kind kind, const char* title,
                                    const char* filter) const {
    return platform().showFileDialog({kind, title, filter, {}}).value_or("");
}

void frmPadre::abrir() {
    if (!active())
        newDocument();
    const std::string path = elegirArchivo(FileDialog::Kind::open, "Abrir", archivosRtf);
    if (path.empty())
        return;
    active()->rtfText.assign(readRtf(leerArchivo(path)).paragraphs());
    active()->caption = path;
}

void frmPadre::guardar() {
    if (!active())
        throw RuntimeFailure(Failure::noActiveChild);
    frmDocumento& documento = *active();
    std::string path = documento.caption;
    // A caption that begins so belongs to a document with no file yet.
    if (path.starts_with("Document")) {
        path = elegirArchivo(FileDialog::Kind::save, "Guardar", archivosRtf);
        if (path.empty())
            return;
    }
    escribirArchivo(path, writeRtf(documento.rtfText, platform().reportFont()));
}

void frmPadre::guardarComo() {
    if (!active())
        return;
    const std::string path =
        elegirArchivo(FileDialog::Kind::save, "Guardar como", "Archivos RTF(*.RTF)|*.RTF");
    if (path.empty())
        return;
    active()->caption = path;
    escribirArchivo(path, writeRtf(active()->rtfText, platform().reportFont()));
}

void frmPadre::imprimir() {
    if (!active())
        return;
    const bool selection = active()->rtfText.selLength() > 0;
    if (platform().showPrintDialog({"Imprimir", selection}))
        platform().printDocument(*active(), selection);
}

void frmPadre::copiar() {
    if (active()) {
        platform().setClipboardRichText(
            writeRtf(active()->rtfText.selection(), platform().reportFont()));
    }
}

void frmPadre::cortar() {
    if (!active())
        return;
    copiar();
    active()->rtfText.setSelText("");
}

void frmPadre::pegar() {
    if (!active())
        return;
    const std::string source = platform().clipboardRichText();
    if (looksLikeRtf(source)) {
        active()->rtfText.setSelRich(readRtf(source));
    } else {
        active()->rtfText.setSelText(source);
    }
}

frmPadre* ventanaDeReportes(const Program& program) {
    return dynamic_cast<frmPadre*>(program.find("frmPadre"));
}

} // namespace caudalera
