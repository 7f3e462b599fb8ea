#pragma once

#include "desktop/machine/QtPrinters.h"
#include "desktop/printing/JobDelivery.h"

#include <QWidget>

#include <cstddef>
#include <functional>
#include <memory>
#include <utility>
#include <vector>

class QMenu;

namespace Ui {
class PreviewWindow;
}

namespace etiquetas {

/// The window of the built-in device that prints nowhere: it shows the pages of a job as they would
/// come out.
class PreviewWindow final : public QWidget {
    Q_OBJECT
    Q_DISABLE_COPY_MOVE(PreviewWindow)

  public:
    PreviewWindow();
    ~PreviewWindow() override;

    /// Shows a job in place of the one before, from its first page on.
    void showJob(const PreviewedJob& job);
    /// The printers that the job can be printed on.
    void offer(std::vector<PrintTarget> printers) { printers_ = std::move(printers); }
    /// What writes the job into a file that the operator has named.
    void onSave(std::function<void(const PreviewedJob&, const QString& path)> save) {
        save_ = std::move(save);
    }
    /// What prints the job on a printer.
    void onPrint(std::function<void(const PreviewedJob&, const PrintTarget&)> print) {
        print_ = std::move(print);
    }

    [[nodiscard]] const PreviewedJob& job() const { return job_; }

  private:
    void connectPages();
    void connectZoom();
    void fillPrinters();
    void goTo(std::size_t page);
    void showZoom();
    void save();

    std::unique_ptr<Ui::PreviewWindow> form_;
    QMenu* printer_menu_;
    PreviewedJob job_;
    std::size_t page_ = 0;
    std::vector<PrintTarget> printers_;
    std::function<void(const PreviewedJob&, const QString&)> save_;
    std::function<void(const PreviewedJob&, const PrintTarget&)> print_;
};

} // namespace etiquetas
