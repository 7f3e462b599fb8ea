#pragma once

#include "barcodes/Code39.h"
#include "barcodes/EAN13and8.h"
#include "model/FrmPadrao.h"
#include "support/Failures.h"
#include "support/FakeDesk.h"
#include "support/FakeFiles.h"
#include "support/FakePrinters.h"
#include "support/OrderLines.h"
#include "workbench/Inicio.h"

#include <memory>

namespace etiquetas::test {

/// A machine of fakes that share one journal.
struct FakePlatform : Journal, FakeDesk {
    FakePlatform() : FakeDesk(static_cast<Journal&>(*this)) {}

    FakeFiles files{*this};
    Pictures& pictures = files;
    FakePrinters printers{*this};

    Platform platform() {
        return {printers, printers, *this, files, files, *this, *this, *this, *this, *this};
    }
};

/// The window before it has been loaded, and the machine that it stands on.
struct Workbench {
    FakePlatform machine;
    FrmPadrao form{machine.platform()};

    void takeLogos() {
        form.pctlogo1.picture = know({1, 1, {1}}, "logo brisa ko");
        form.pctlogo2.picture = know({1, 1, {2}}, "logo lumira");
        form.LogoBrisakoOk = form.LogoLumiraOk = true;
    }
    void takePhotograph() {
        form.pctimage.picture = know({1, 1, {3}}, "photograph");
        form.tem_imagem = true;
    }

    /// From here on the transcript tells these bars by their code.
    void knowBars(const Picture& bars, TextView code) { know(*bars, "bars", " " + inQuotes(code)); }
    void knowEanBars(TextView twelve_digits) {
        PictureBox box(machine.pictures);
        DesenhaEan13(box, 1, twelve_digits, false);
        knowBars(box.Picture(), twelve_digits);
    }
    void knowCode39Bars(Text code) {
        PictureBox box(machine.pictures);
        DesenhaCode39(box, 1, code, false, false);
        knowBars(box.Picture(), code);
    }

  private:
    Picture know(const Raster& raster, const std::string& name, const std::string& text = {}) {
        machine.printers.known_pictures[raster.pixels] = {name, text};
        return std::make_shared<Raster>(raster);
    }
};

/// The window once it has been loaded; the log is empty.
struct LoadedWorkbench : Workbench {
    LoadedWorkbench() {
        FrmPadrao_load(form);
        machine.forget();
    }
};

} // namespace etiquetas::test
