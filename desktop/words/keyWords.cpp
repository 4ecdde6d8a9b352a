#include "desktop/words/Words.h"

namespace caudalera::words {

namespace {

constexpr Word key[] = {
    {"QShortcut", "Alt", "Alt"},
    {"QShortcut", "Backspace", "Retroceso"},
    {"QShortcut", "Backtab", "Mayús+Tab"},
    {"QShortcut", "Cancel", "Cancelar"},
    {"QShortcut", "Caps Lock", "BloqMayús"},
    {"QShortcut", "CapsLock", "BloqMayús"},
    {"QShortcut", "Clear", "Limpiar"},
    {"QShortcut", "Close", "Cerrar"},
    {"QShortcut", "Control", "Ctrl"},
    {"QShortcut", "Copy", "Copiar"},
    {"QShortcut", "Ctrl", "Ctrl"},
    {"QShortcut", "Cut", "Cortar"},
    {"QShortcut", "Del", "Supr"},
    {"QShortcut", "Delete", "Supr"},
    {"QShortcut", "Down", "Abajo"},
    {"QShortcut", "End", "Fin"},
    {"QShortcut", "Enter", "Intro"},
    {"QShortcut", "Esc", "Esc"},
    {"QShortcut", "Escape", "Esc"},
    {"QShortcut", "Exit", "Salir"},
    {"QShortcut", "Find", "Buscar"},
    {"QShortcut", "Help", "Ayuda"},
    {"QShortcut", "Home", "Inicio"},
    {"QShortcut", "Ins", "Ins"},
    {"QShortcut", "Insert", "Ins"},
    {"QShortcut", "Left", "Izquierda"},
    {"QShortcut", "Menu", "Menú"},
    {"QShortcut", "Meta", "Meta"},
    {"QShortcut", "New", "Nuevo"},
    {"QShortcut", "Num", "Num"},
    {"QShortcut", "Num Lock", "BloqNum"},
    {"QShortcut", "NumLock", "BloqNum"},
    {"QShortcut", "Number Lock", "BloqNum"},
    {"QShortcut", "Open", "Abrir"},
    {"QShortcut", "Page Down", "AvPág"},
    {"QShortcut", "Page Up", "RePág"},
    {"QShortcut", "Paste", "Pegar"},
    {"QShortcut", "Pause", "Pausa"},
    {"QShortcut", "PgDown", "AvPág"},
    {"QShortcut", "PgUp", "RePág"},
    {"QShortcut", "Print", "ImprPant"},
    {"QShortcut", "Print Screen", "ImprPant"},
    {"QShortcut", "Redo", "Rehacer"},
    {"QShortcut", "Return", "Entrar"},
    {"QShortcut", "Right", "Derecha"},
    {"QShortcut", "Save", "Guardar"},
    {"QShortcut", "Scroll Lock", "BloqDespl"},
    {"QShortcut", "ScrollLock", "BloqDespl"},
    {"QShortcut", "Select", "Seleccionar"},
    {"QShortcut", "Shift", "Mayús"},
    {"QShortcut", "Space", "Espacio"},
    {"QShortcut", "SysReq", "PetSis"},
    {"QShortcut", "System Request", "PetSis"},
    {"QShortcut", "Tab", "Tab"},
    {"QShortcut", "Undo", "Deshacer"},
    {"QShortcut", "Up", "Arriba"},
};

} // namespace

std::span<const Word> keyWords() {
    return key;
}

} // namespace caudalera::words
