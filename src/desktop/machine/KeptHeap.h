#pragma once

namespace etiquetas {

/// As long as it lives, memory that is freed stays with the process, up to 64 MB of it. The
/// toolkit's writer of PDF files takes and frees two blocks of 16 MB for each page, of which it
/// uses a few kilobytes: without this the system is asked for them anew each time, which took a
/// quarter of a job's time. Nothing where the C library has no such setting.
class KeptHeap {
  public:
    KeptHeap();
    ~KeptHeap();
    KeptHeap(const KeptHeap&) = delete;
    KeptHeap& operator=(const KeptHeap&) = delete;
    KeptHeap(KeptHeap&&) = delete;
    KeptHeap& operator=(KeptHeap&&) = delete;
};

} // namespace etiquetas
