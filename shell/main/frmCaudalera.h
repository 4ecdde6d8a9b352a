#pragma once

#include "shell/window/Window.h"

#include <deque>

namespace caudalera {

/// The main window: a cover picture, the exit button and the menu that opens the others.
/// Starts the help viewer at the first page; "::/" and a page may stand behind it.
inline constexpr const char* ordenAyuda = "c:\\Caudalera\\hh c:\\Caudalera\\Ayuda.chm";
/// What is shown when there is no viewer to show the help with.
inline const Message sinAyuda = {"Para obtener la ayuda presionar tecla F1 ", "Mensaje de error",
                                 Icon::information};

class frmCaudalera : public Window {
public:
    explicit frmCaudalera(Program& program);

    Picture imgPortada{*this, "imgPortada", "portada"};
    Button bsalir{*this, "bsalir", "&Salir"};

private:
    MenuEntry& title(const char* name, const char* text);
    /// An entry that opens a window; it is enabled when that window exists.
    void opens(MenuEntry& below, const char* name, const char* text, const char* window);
    MenuEntry& entry(MenuEntry& below, const char* name, const char* text);
    void ayuda();

    std::deque<MenuEntry> entries_;
};

} // namespace caudalera
