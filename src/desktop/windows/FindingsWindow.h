#pragma once

#include "review/Finding.h"

#include <QDialog>

#include <vector>

class QLabel;
class QTableWidget;

namespace etiquetas {

class WorkbenchWindow;

/// What an operator would stumble over in the loaded order, as a list. It leaves the main window
/// usable.
class FindingsWindow final : public QDialog {
    Q_OBJECT

  public:
    explicit FindingsWindow(WorkbenchWindow& main);

    /// Lists the findings of the order with this file, and brings the window to the front.
    void show(const QString& file, const std::vector<Finding>& findings);

  private:
    void list(const std::vector<Finding>& findings);

    WorkbenchWindow& main_;
    QLabel* heading_ = nullptr;
    QTableWidget* table_ = nullptr;
};

} // namespace etiquetas
