#pragma once

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

    /// Logos of 1 by 2 pixels (BRISA KO) and of 3 by 4 (LUMIRA).
    void takeLogos() {
        form.pctlogo1.picture = knownPicture({1, 2, {}}, "logo brisa ko");
        form.pctlogo2.picture = knownPicture({3, 4, {}}, "logo lumira");
        form.LogoBrisakoOk = form.LogoLumiraOk = true;
    }

    /// A photograph of the item, of 5 by 6 pixels.
    void takePhotograph() {
        form.pctimage.picture = knownPicture({5, 6, {}}, "photograph");
        form.tem_imagem = true;
    }

    /// From here on the transcript tells these bars by their code.
    void knowBars(const Picture& bars, TextView code) {
        machine.printers.known_pictures.push_back({bars, "bars", " " + inQuotes(code)});
    }
    void knowEanBars(TextView twelve_digits) {
        PictureBox box(machine.pictures);
        DesenhaEan13(box, 1, twelve_digits, false);
        knowBars(box.Picture(), twelve_digits);
    }

  private:
    Picture knownPicture(Raster raster, const std::string& name) {
        auto picture = std::make_shared<const Raster>(std::move(raster));
        machine.printers.known_pictures.push_back({picture, name, {}});
        return picture;
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
