#pragma once

#include <QString>

#include <condition_variable>
#include <mutex>
#include <thread>

namespace etiquetas {

/// Tells on the standard error every second what goes on, and how long it has. What takes less than
/// a second is not told of. It has a thread of its own, since printing keeps the program's one busy
/// for as long as the job takes.
class Progress {
  public:
    /// Begins the work of that name; the object's end is the end of the work.
    explicit Progress(QString work);
    ~Progress();
    Progress(const Progress&) = delete;
    Progress(Progress&&) = delete;
    Progress& operator=(const Progress&) = delete;
    Progress& operator=(Progress&&) = delete;

  private:
    void tellEachSecond();

    QString work_;
    std::mutex mutex_;
    std::condition_variable ended_;
    bool is_ended_ = false;
    std::thread teller_;
};

} // namespace etiquetas
