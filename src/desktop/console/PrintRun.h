#pragma once

#include "desktop/console/ConsoleMachine.h"
#include "desktop/console/ConsoleOptions.h"

#include <QJsonArray>
#include <QString>

#include <vector>

namespace etiquetas {

/// Prints the items of an order one after another, through the commands of the Workbench.
class PrintRun {
  public:
    explicit PrintRun(const ConsoleOptions& options) : options_(options), machine_(options) {}

    /// Tells each item in a line on the standard output, and returns the exit code.
    [[nodiscard]] int run();

  private:
    /// What came of an item.
    struct Outcome {
        int number = 0; // in the order, from 1
        QString item;
        int labels = 0;
        int expected = 0;
        std::size_t pages = 0;
        QString where; // printer or file
        bool printed = false;
    };

    [[nodiscard]] int printOrder();
    [[nodiscard]] bool choosePrinter();
    [[nodiscard]] bool load();
    [[nodiscard]] bool findChosenItems();
    [[nodiscard]] bool wholeOrderStands(int number);
    [[nodiscard]] bool standOn(int number);
    [[nodiscard]] bool narrowVolumes();
    void printItem(int number);
    [[nodiscard]] Outcome pressPrint(int number);
    void takePrinted(int place);
    void report(const Outcome& outcome);

    ConsoleOptions options_;
    ConsoleMachine machine_;
    std::vector<int> chosen_; // numbers of the items, from 1, in their order
    int count_ = 0;           // of all items
    int taken_off_ = 0;       // items that have left the list, all of them from its beginning
    bool is_whole_ = true;    // the lines of all items in the list are there
    bool all_printed_ = true;
    std::size_t reported_ = 0;
    QJsonArray told_;
};

} // namespace etiquetas
