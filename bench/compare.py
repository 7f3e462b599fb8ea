#!/usr/bin/env python3
"""Measures what the system costs beside its peers, and prints a table.

    compare.py BUILD_FOLDER [--smoke]

Each figure is the median of seven runs of CPU time; programs that are compared run in turn. With
--smoke each runs once, at its smallest size, so that nothing rots; its figures tell nothing.
"""

import argparse
import json
import os
import pathlib
import re
import resource
import shutil
import statistics
import subprocess
import sys
import tempfile

BENCH = pathlib.Path(__file__).resolve().parent
SAMPLES = BENCH.parent / "samples"

# What the same took before, measured in the same way on one machine.
BEFORE = {
    "load x14": "1.8 to 2.5 times",
    "load x1": "1.8 to 2.5 times",
    "growth x14": "level",
    "growth x1": "2 times",
    "memory x14": "4.5 times",
    "memory x1": "7.1 times",
    "choose x14": "8 ms",
    "choose x1": "20 ms",
    "look up": "7.4 ms",
    "print 1e4": "5.5 s",
    "print 1e5": "444 s",
    "digit x14": "2.6 ms",
    "digit x1": "250 ms",
    "bars": "0.09 times as fast",
    "labels": "3600",
    "page": "2850 bytes",
    "label memory": "3.1 KB",
    "labels beside": "13 times",
    "start": "3.3 times",
    "listings": "4",
    "enter": "300 ms",
}

# The texts of a box front: place in mm, size in points, weight, text.
FRONT_TEXTS = [
    (17.0, 29.4, 8, "Regular", "32/26"), (30.0, 27.0, 16, "Bold", "A1"),
    (30.0, 0.3, 12, "Bold", "527"), (16.0, 6.7, 30, "Bold", "139,"),
    (34.0, 9.0, 9, "Bold", "99"), (10.0, 13.4, 7, "Bold", "R$"),
    (3.0, 14.4, 6, "Regular", "À VISTA"), (35.0, 18.7, 7, "Regular", "LU"),
    (2.3, 18.0, 7, "Bold", "3104527001"), (2.3, 21.0, 7, "Regular", "TÊNIS CASUAL FEMIN"),
    (2.3, 24.0, 7, "Regular", "INO CANO BAIXO"), (2.3, 27.0, 7, "Regular", "CAFÉ"),
    (1.6, 31.0, 32, "Bold", "33"), (15.8, 40.5, 7, "Regular", "231045"),
    (27.2, 40.5, 7, "Regular", "2701003"),
]


class Run:
    """Runs programs; with smoke once, else seven times in turn."""

    def __init__(self, smoke):
        self.smoke = smoke
        self.rounds = 1 if smoke else 7

    def medians(self, **deeds):
        """The median of each deed, which are done in turn."""
        told = {name: [] for name in deeds}
        for _ in range(self.rounds):
            for name, deed in deeds.items():
                told[name].append(deed())
        return {name: statistics.median(each) for name, each in told.items()}


def run_quietly(words, **options):
    done = subprocess.run([str(word) for word in words], capture_output=True, text=True,
                          check=False, **options)
    if done.returncode != 0:
        sys.exit(f"{words[0]} failed:\n{done.stdout}{done.stderr}")
    return done.stdout


def cpu_of(words, **options):
    """CPU seconds, user and system, of a whole process."""
    before = resource.getrusage(resource.RUSAGE_CHILDREN)
    run_quietly(words, **options)
    after = resource.getrusage(resource.RUSAGE_CHILDREN)
    return (after.ru_utime + after.ru_stime) - (before.ru_utime + before.ru_stime)


def benchmark(program, names, run):
    """CPU medians of Google Benchmark cases by name, in seconds, their rounds in random order."""
    words = [program, f"--benchmark_filter=^({'|'.join(names)})(/iterations:[0-9]+)?$",
             "--benchmark_format=json", f"--benchmark_repetitions={run.rounds}",
             "--benchmark_enable_random_interleaving=true"]
    if run.smoke:
        words.append("--benchmark_min_time=0.001")
    told = json.loads(run_quietly(words))
    times = {}
    seconds = {"ns": 1e-9, "us": 1e-6, "ms": 1e-3, "s": 1.0}
    for case in told["benchmarks"]:
        if case.get("error_occurred"):
            sys.exit(f"{case['name']}: {case['error_message']}")
        if case["run_type"] == "iteration":
            name = re.sub("/(iterations|repeats):.*", "", case["name"])
            times.setdefault(name, []).append(case["cpu_time"] * seconds[case["time_unit"]])
    return {name: statistics.median(each) for name, each in times.items()}


def power(number):
    return f"1e{len(str(number)) - 1}"


class Table:
    def __init__(self, smoke):
        self.smoke = smoke
        self.rows = []

    def add(self, what, before, measured, goal, met):
        judged = "" if self.smoke or goal == "-" else "met" if met else "missed"
        self.rows.append((what, before, measured, goal, judged))

    def add_missing(self, what, before, goal, reason):
        self.rows.append((what, before, reason, goal, "-"))

    def tell(self):
        print("| what | before | measured | goal | |")
        print("| --- | --- | --- | --- | --- |")
        for row in self.rows:
            print("| " + " | ".join(row) + " |")


def measure_load(build, work, run, table):
    """An order, loaded beside awk, which counts the same item keys."""
    tool = build / "bench" / "etiquetas_bench_order"
    sizes = [10_000] if run.smoke else [10_000, 100_000, 1_000_000]
    mawk = shutil.which("mawk")
    keys = r'NR > 1 { key = substr($7, 1, 7) "|" $5 "|" $2; if (!(key in seen)) { seen[key]; n++ } }' \
           r" END { print n }"
    empty = work / "empty"
    empty.write_bytes(b"")
    for shape, lines_per_item in (("x14", 14), ("x1", 1)):
        beside, line_cost, memory = {}, {}, {}
        for lines in sizes:
            order = work / f"{lines}-{lines_per_item} FRENTE.TXT"
            run_quietly([tool, "make", lines, lines_per_item, order])
            peaks = []

            def load():
                told = json.loads(run_quietly([tool, "load", order]))
                peaks.append(told["peak_bytes"])
                expected = -(-lines // lines_per_item)
                if told["items"] != expected:
                    sys.exit(f"{told['items']} items instead of {expected}")
                return told["cpu_ms"] / 1e3

            deeds = {"ours": load}
            if mawk:
                deeds["peer"] = lambda: cpu_of([mawk, "-F;", keys, order])
                deeds["nothing"] = lambda: cpu_of([mawk, "-F;", keys, empty])
            told = run.medians(**deeds)
            line_cost[lines] = told["ours"] / lines
            memory[lines] = statistics.median(peaks) / order.stat().st_size
            if mawk:
                beside[lines] = told["ours"] / (told["peer"] - told["nothing"])
            order.unlink()
        what = f"load {shape}, beside mawk"
        if mawk:
            measured = ", ".join(f"{power(lines)}: {times:.2f}" for lines, times in beside.items())
            table.add(what, BEFORE[f"load {shape}"], measured + " times", "1 time at each size",
                      max(beside.values()) <= 1)
        else:
            table.add_missing(what, BEFORE[f"load {shape}"], "1 time at each size",
                              "mawk is not installed")
        growth = line_cost[sizes[-1]] / line_cost[sizes[0]]
        table.add(f"time a line {shape}, {power(sizes[-1])} beside {power(sizes[0])} lines",
                  BEFORE[f"growth {shape}"],
                  f"{growth:.2f} times ({line_cost[sizes[0]] * 1e9:.0f} to"
                  f" {line_cost[sizes[-1]] * 1e9:.0f} ns)", "1.5 times", growth <= 1.5)
        goal = 2 if shape == "x14" else 3
        table.add(f"peak memory over file size {shape}, {power(sizes[-1])} lines",
                  BEFORE[f"memory {shape}"], f"{memory[sizes[-1]]:.1f} times", f"{goal}.0 times",
                  memory[sizes[-1]] <= goal)


def milliseconds(seconds):
    return f"{seconds * 1e3:.3g} ms"


def measure_items(build, run, table):
    """An item chosen, a size looked up, all items printed."""
    lines = 10_000 if run.smoke else 100_000
    prints = [1_000] if run.smoke else [10_000, 100_000]
    names = [f"{case}/lines:{lines}/lines_per_item:{each}"
             for case in ("chooseItem", "lookUpSize") for each in (1, 14)]
    names += [f"printAllItems/lines:{each}/lines_per_item:1" for each in prints]
    times = benchmark(build / "bench" / "etiquetas_core_bench", names, run)
    for shape, each in (("x14", 14), ("x1", 1)):
        took = times[f"chooseItem/lines:{lines}/lines_per_item:{each}"]
        table.add(f"choose the last item, {power(lines)} lines {shape}", BEFORE[f"choose {shape}"],
                  milliseconds(took), "1 ms", took < 1e-3)
    took = max(times[f"lookUpSize/lines:{lines}/lines_per_item:{each}"] for each in (1, 14))
    table.add(f"look up a size at the end of {power(lines)} lines", BEFORE["look up"],
              milliseconds(took), "0.05 ms", took < 0.05e-3)
    for lines in prints:
        took = times[f"printAllItems/lines:{lines}/lines_per_item:1"]
        goal = lines * 60e-6
        table.add(f"print all items of {power(lines)} lines, drawing nothing",
                  BEFORE.get(f"print {power(lines)}", "-"), f"{took:.3g} s", f"{goal:.3g} s",
                  took <= goal)


def measure_bars(build, run, table):
    """The raster of an EAN-13 symbol beside that of a library for all symbols."""
    times = benchmark(build / "bench" / "etiquetas_core_bench",
                      ["drawBars", "zintOwn", "zintAsOurs"], run)
    what = "EAN-13 raster beside zint's"
    if "zintOwn" not in times:
        table.add_missing(what, BEFORE["bars"], "1 time as fast", "zint is not installed")
        return
    own = times["zintOwn"] / times["drawBars"]
    same = times["zintAsOurs"] / times["drawBars"]
    table.add(f"{what}, one pixel a module", BEFORE["bars"], f"{same:.1f} times as fast",
              "1 time, 3 if possible", same >= 1)
    table.add(f"{what}, as it draws by itself", "-", f"{own:.1f} times as fast",
              "1 time, 3 if possible", own >= 1)


def label_file(work):
    texts = "\n".join(
        f'    <Object-text x="{x}mm" y="{y}mm" w="38mm" h="12mm" justify="left" valign="top"'
        f' auto_shrink="False" a0="1" a1="0" a2="0" a3="1" a4="0" a5="0">'
        f'<Span font_family="Carlito" font_size="{size}" font_weight="{weight}"'
        f' font_italic="False" color="0x000000ff">{text}</Span></Object-text>'
        for x, y, size, weight, text in FRONT_TEXTS)
    template = (BENCH / "peers" / "two_box_fronts.glabels").read_text(encoding="utf-8")
    path = work / "fronts.glabels"
    path.write_text(template.replace("@SAMPLES@", str(SAMPLES)).replace("@TEXTS@", texts)
                    .replace("@BARCODE@", "2310452701003"), encoding="utf-8")
    return path


def measure_labels(build, work, run, table):
    """Box fronts into a PDF file."""
    tool = build / "bench" / "etiquetas_bench_labels"
    few, many = (20, 200) if run.smoke else (1_000, 10_000)
    told_by = {}

    def job(labels):
        told = json.loads(run_quietly([tool, labels, work]))
        told_by.setdefault(labels, []).append(told)
        return told["cpu_ms"] / 1e3

    peer = shutil.which("glabels-3-batch")
    deeds = {"few": lambda: job(few), "many": lambda: job(many),
             "process": lambda: cpu_of([tool, few, work])}
    if peer:
        written = work / "peer.pdf"
        deeds["peer"] = lambda: cpu_of([peer, "-s", few // 2, "-o", written, label_file(work)])
    times = run.medians(**deeds)
    rate = many / times["many"]
    table.add(f"{many} box fronts into a PDF: labels a second", BEFORE["labels"], f"{rate:.0f}",
              "9000", rate >= 9000)
    page = statistics.median(told["file_bytes"] for told in told_by[many]) / (many / 2)
    table.add("bytes a page of two labels", BEFORE["page"], f"{page:.0f} bytes", "1750 bytes",
              page <= 1750)
    peak = {labels: statistics.median(told["peak_bytes"] for told in each)
            for labels, each in told_by.items()}
    memory = (peak[many] - peak[few]) / (many - few) / 1024
    table.add("memory a label", BEFORE["label memory"], f"{memory:.1f} KB", "1.5 KB",
              memory <= 1.5)
    what = f"the same beside glabels-3-batch, {few} labels, whole processes"
    if peer:
        if written.stat().st_size < 20 * few:
            sys.exit("glabels-3-batch has drawn no labels")
        times_faster = times["peer"] / times["process"]
        table.add(what, BEFORE["labels beside"], f"{times_faster:.1f} times as fast", "25 times",
                  times_faster >= 25)
    else:
        table.add_missing(what, BEFORE["labels beside"], "25 times", "glabels is not installed")


def measure_window(build, work, run, table):
    """A digit typed, Enter in the order number, and the start of the program."""
    program = build / "bench" / "etiquetas_desktop_bench"
    digits = [("x14", 1_000)] if run.smoke else [("x14", 100_000), ("x1", 1_000_000)]
    files = 1_000 if run.smoke else 50_000
    names = {shape: f"typeDigit/lines:{lines}/lines_per_item:{shape[1:]}"
             for shape, lines in digits}
    enter = f"enterOrderNumber/files:{files}"
    times = benchmark(program, [*names.values(), enter], run)
    for shape, lines in digits:
        took = times[names[shape]]
        table.add(f"a digit typed, {power(lines)} lines {shape}", BEFORE[f"digit {shape}"],
                  milliseconds(took), "0.3 ms", took < 0.3e-3)
    table.add(f"Enter in the order number, folder of {files} files", BEFORE["enter"],
              milliseconds(times[enter]), "1 listing a load", True)
    listings = listings_a_load(program, enter, work)
    if listings:
        table.add("listings of the folder a load", BEFORE["listings"], f"{listings:g}", "1",
                  listings == 1)
    else:
        table.add_missing("listings of the folder a load", BEFORE["listings"], "1",
                          "strace does not work here")
    measure_start(build, work, run, table)


def listings_a_load(program, enter, work):
    """How often a load opens the folder of the orders; 0 where that can't be seen."""
    trace = work / "trace"
    if not shutil.which("strace"):
        return 0
    done = subprocess.run(["strace", "-f", "-o", trace, "-e", "trace=openat", program,
                           f"--benchmark_filter=^{enter}/"], capture_output=True, check=False)
    if done.returncode != 0:
        return 0
    # The last one is that of the bench itself, which takes the folder away.
    told = trace.read_text(errors="replace")
    opened = re.findall(r' FRENTE.TXT", O_RDONLY|/pedidos/?", [^)]*O_DIRECTORY', told)
    steps = "".join("r" if "FRENTE" in each else "l" for each in opened)
    steps = steps[:steps.rindex("r")]
    # A load lists and reads. Looking the order through, now and then, reads once more.
    return steps.count("l") / (steps + "r").count("lr")


def measure_start(build, work, run, table):
    place = work / "instalacao"
    shutil.copytree(SAMPLES, place)
    environment = {**os.environ, "QT_QPA_PLATFORM": "offscreen"}
    start = [build / "bench" / "etiquetas_bench_start", place]
    empty = [build / "bench" / "etiquetas_bench_empty"]
    cpu_of(start, env=environment)  # the first one makes what is missing
    told = run.medians(ours=lambda: cpu_of(start, env=environment),
                       peer=lambda: cpu_of(empty, env=environment),
                       word=lambda: cpu_of([*empty, "Etiquetas"], env=environment))
    times = told["ours"] / told["peer"]
    table.add("exec to first frame beside an empty QMainWindow", BEFORE["start"],
              f"{times:.1f} times ({told['ours'] * 1e3:.0f} and {told['peer'] * 1e3:.0f} ms)",
              "2.3 times", times <= 2.3)
    table.add("exec to first frame beside a QMainWindow with one word", "-",
              f"{told['ours'] / told['word']:.1f} times ({told['word'] * 1e3:.0f} ms)", "-", None)


def main():
    parser = argparse.ArgumentParser(description=__doc__.split("\n", maxsplit=1)[0])
    parser.add_argument("build", type=pathlib.Path)
    parser.add_argument("--smoke", action="store_true")
    arguments = parser.parse_args()
    os.environ["QT_QPA_PLATFORM"] = "offscreen"
    run = Run(arguments.smoke)
    table = Table(arguments.smoke)
    build = arguments.build.resolve()
    with tempfile.TemporaryDirectory() as folder:
        work = pathlib.Path(folder)
        measure_load(build, work, run, table)
        measure_items(build, run, table)
        measure_bars(build, run, table)
        measure_labels(build, work, run, table)
        measure_window(build, work, run, table)
    table.tell()


if __name__ == "__main__":
    main()
