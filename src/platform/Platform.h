#pragma once

namespace etiquetas {

class CommandStart;
class Files;
class Focus;
class FolderPicker;
class MessageBoxes;
class Pictures;
class Pointer;
class Printers;
class PrintSurface;
class Process;

/// What the machine offers, one interface each. All must outlive the system that uses them.
struct Platform {
    Printers& printers;
    PrintSurface& surface;
    MessageBoxes& messages;
    Pictures& pictures;
    Files& files;
    Focus& focus;
    Pointer& pointer;
    Process& process;
    FolderPicker& folders;
    CommandStart& commands;
};

} // namespace etiquetas
