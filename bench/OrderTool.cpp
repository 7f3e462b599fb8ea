// One load of an order by a process of its own, as compare.py has it beside its peer:
//
//     etiquetas_bench_order make LINES LINES_PER_ITEM FILE    writes an order
//     etiquetas_bench_order load FILE                         loads it, and tells what that took

#include "bench/Cost.h"
#include "bench/Orders.h"
#include "support/FakePlatform.h"
#include "workbench/Campos.h"

#include <cstdio>
#include <iterator>
#include <span>

namespace etiquetas {

namespace {

// Stand-ins in memory for all files but one, which is read from the disk.
class OrderOnDisk final : public test::FakeFiles {
  public:
    OrderOnDisk(test::Journal& told, std::string path)
        : test::FakeFiles(told), path_(std::move(path)) {
        bytes[Text(name)] = {};
    }

    [[nodiscard]] std::string read(TextView path) const override {
        if (path != name) {
            return test::FakeFiles::read(path);
        }
        std::ifstream file(path_, std::ios::binary | std::ios::ate);
        std::string order(static_cast<std::size_t>(file.tellg()), '\0');
        file.seekg(0);
        file.read(order.data(), static_cast<std::streamsize>(order.size()));
        return order;
    }

  private:
    static constexpr TextView name = u"/programa/77 FRENTE.TXT";
    std::string path_;
};

int make(std::int64_t lines, std::int64_t lines_per_item, const char* path) {
    std::ofstream(path, std::ios::binary) << orderOf(lines, lines_per_item);
    return 0;
}

int load(const char* path) {
    test::FakePlatform machine;
    OrderOnDisk files(machine, path);
    const Platform fake = machine.platform();
    FrmPadrao form({fake.printers, fake.surface, fake.messages, files, files, fake.focus,
                    fake.pointer, fake.process, fake.folders, fake.commands});
    FrmPadrao_load(form);
    form.txtarquivo.text = u"77";
    form.cmbtipo.choose(3); // "Oculta"
    const std::size_t memory_before = memory("VmRSS");
    const double before = cpuMilliseconds();
    txtarquivo_leave(form);
    const double took = cpuMilliseconds() - before;
    std::printf("{\"cpu_ms\": %.3f, \"peak_bytes\": %zu, \"items\": %zu}\n", took,
                memory("VmHWM") - memory_before, form.cmb_referencia.entries.size());
    return 0;
}

} // namespace

} // namespace etiquetas

int main(int argc, char** argv) {
    const std::span<char*> words(argv, static_cast<std::size_t>(argc));
    if (words.size() == 5 && std::string_view(words[1]) == "make") {
        return etiquetas::make(std::stoll(words[2]), std::stoll(words[3]), words[4]);
    }
    if (words.size() == 3 && std::string_view(words[1]) == "load") {
        return etiquetas::load(words[2]);
    }
    std::fputs("usage: etiquetas_bench_order make LINES LINES_PER_ITEM FILE | load FILE\n", stderr);
    return 2;
}
