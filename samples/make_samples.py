#!/usr/bin/env python3
"""Makes the sample installation files of this folder: order files, logos and product photographs.

    make_samples.py           writes everything anew (needs Pillow, and DejaVu and Liberation fonts)
    make_samples.py --check   reads the files here as a loader would and tells what is wrong

All names, codes and numbers are invented. Barcodes have the leading digits that are kept for
numbers of a shop's own (2, and 04), so that none of them can be a real product.
"""

import re
import sys
from collections import namedtuple
from pathlib import Path

HERE = Path(__file__).resolve().parent

# ------------------------------------------------------------------------------------ the layouts
# Fields of a line, by the line's width. "spare" is a field that nothing reads; "pack" may stand
# twice, since an item of widths 14 and 15 is found only when both places hold the same text.

BOX = {width: fields.split() for width, fields in {
    10: "quantity colour size spare description barcode master week mark promotion",
    11: "quantity colour size spare description barcode master week mark promotion suffix",
    12: "quantity colour size spare description barcode master week mark promotion suffix spare",
    13: "quantity colour size spare description barcode master price week mark suffix promotion"
        " spare",
}.items()}

ACCESSORY = {width: fields.split() for width, fields in {
    8: "quantity colour size description week mark barcode master",
    11: "quantity colour size description week mark barcode master price suffix promotion",
    12: "quantity colour size description week mark barcode master price suffix promotion spare",
    13: "quantity colour size description week mark barcode master price suffix promotion spare"
        " spare",
}.items()}

CORRUGATED = {width: fields.split() for width, fields in {
    13: "quantity spare master supplier colour description pack sizes pairs total week destination"
        " volume",
    14: "quantity spare master supplier colour description pack pack sizes pairs total week"
        " destination volume",
    15: "quantity spare master supplier colour description pack pack pairs total week destination"
        " volume suffix spare",
    16: "quantity spare master supplier colour description pack sizes pairs total week destination"
        " volume suffix spare spare",
    17: "quantity spare master supplier colour description pack spare sizes pairs total week"
        " destination volume suffix spare spare",
}.items()}

LAYOUTS = {"FRENTE": BOX, "ACESSORIO": ACCESSORY, "CORRUGADO": CORRUGATED}

# Texts stand in columns of this many characters, filled with blanks.
COLUMNS = {"colour": 16, "description": 42, "supplier": 30, "destination": 20}

TITLES = {
    "quantity": "QTDE", "colour": "COR", "size": "TAMANHO", "description": "DESCRIÇÃO",
    "barcode": "CÓDIGO EAN", "master": "CÓD. MASTER", "week": "SEMANA", "mark": "BANDEIRA",
    "promotion": "PROMOÇÃO", "suffix": "ANO", "price": "PREÇO", "supplier": "FORNECEDOR",
    "pack": "PRÉ PACK", "sizes": "GRADE", "pairs": "GRADE", "total": "TOTAL",
    "destination": "DESTINO", "volume": "VOLUME", "spare": "RESERVA",
}

# --------------------------------------------------------------------------------------- the data

SUPPLIER_NUMBER = "48215067000193"
SUPPLIER = "CALÇADOS UMBAÍRA"
COLOURS = ["PRETO", "CAFÉ", "ÁGUA", "PÊSSEGO", "MAÇÃ VERDE", "CÉU", "AREIA", "CORAÇÃO"]

# `name` is the banner in the file's name, `title` how the header line writes it.
Order = namedtuple("Order", "number name title mark week suffix promotion destination")

ORDERS = {order.number: order for order in [
    Order("1400050831", "BRISAKO", "BRISA KO", "BK", "32", "26", "A1", "PEDRA MANSA"),
    Order("1400076509", "BRISAKO", "BRISAKO", "BK", "33", "  ", "B2", "PEDRA MANSA"),
    Order("1400081124", "BRISAKO", "Brisa Ko", "BK", "35", "26", "C10", "VILA AROEIRAL"),
    Order("1500031742", "LUMIRA", "LUMIRA", "LU", "34", "26", "A3", "VILA AROEIRAL"),
    Order("1500031860", "LUMIRA", "LUMIRA", "LU", "36", "26", "D4", "PEDRA MANSA"),
]}

BOX_PREFIX, ACCESSORY_PREFIX = "2", "04"  # of barcodes

# Box items: width, product code, description, colour, price, pairs of each size.
SNEAKER, SANDAL, BOOT = "3104527", "3104881", "3105206"

BOX_FILES = {
    "1400050831": [
        (13, SNEAKER, "TÊNIS CASUAL FEMININO CANO BAIXO", "CAFÉ", "139,99",
         "33:1 34:2 35:3 36:3 37:2 38:2 39:1"),
        (13, SNEAKER, "TÊNIS CASUAL FEMININO CANO BAIXO", "ÁGUA", "139,99",
         "34:1 35:2 36:2 37:2 38:1"),
        (13, SANDAL, "SANDÁLIA SALTO BLOCO TIRAS CRUZADAS", "PÊSSEGO", "119,90",
         "33:1 34:1 35:2 36:2 37:1 38:1"),
        (13, BOOT, "BOTA CANO CURTO ZÍPER LATERAL", "PRETO", "199,99",
         "38:1 39:2 40:3 41:3 42:2 43:1 44:1"),
        (13, "3105340", "PANTUFA BEBÊ PELÚCIA", "CORAÇÃO", "0,00", "1:2 2:3 3:2"),
        (13, "3105413", "GALOCHA IMPERMEÁVEL SOLADO TRATORADO", "CÉU", "89,90", "235:2 240:3 245:2"),
    ],
    "1400076509": [
        (11, SANDAL, "SANDÁLIA SALTO BLOCO TIRAS CRUZADAS", "AREIA", "", "34:2 35:4 36:4 37:3 38:1"),
        (11, "3106018", "CHINELO", "MAÇÃ VERDE", "", "33:6 35:8 37:8 39:6"),
        (11, "3106227", "SAPATO SOCIAL SALTO ALTURA7CM", "PRETO", "", "37:1 38:2 39:2 40:1"),
    ],
    "1400081124": [
        (10, BOOT, "BOTA CANO CURTO ZÍPER LATERAL", "CAFÉ", "", "39:2 40:2 41:2 42:1"),
        (10, "3107155", "MOCASSIM/DRIVER PESPONTO À MÃO", "AREIA", "", "38:1 39:2 40:2 41:1"),
    ],
    "1500031742": [
        (12, "3108309", "TÊNIS CORRIDA AMORTECIMENTO LEVE", "CÉU", "",
         "33:1 34:1 35:2 36:2 37:3 38:3 39:3 40:2 41:2 42:2 43:1 44:1 45:1 46:1"),
        (12, "3108434", "SAPATILHA BICO FINO LAÇO", "PÊSSEGO", "", "33:1 34:2 35:2 36:2 37:1"),
        (12, SNEAKER, "TÊNIS CASUAL FEMININO CANO BAIXO", "PRETO", "", "34:2 35:3 36:3 37:2"),
    ],
    "1500031860": [
        (10, "3109017", "TAMANCO SOLADO DE CORTIÇA", "CAFÉ", "", "35:1 36:2 37:2"),
        (11, "3109122", "RASTEIRA PEDRARIA E MIÇANGA", "ÁGUA", "", "34:1 35:2 36:1"),
        (12, "3109226", "ALPARGATA JUTA TRANÇADA", "AREIA", "", "37:2 38:2 39:2"),
        (13, "3109330", "PAPETE INFANTIL VELCRO DUPLO", "MAÇÃ VERDE", "79,90", "8:1 9:2 10:2 11:1"),
    ],
}

# Accessory items: width, product code, description, colour, price, pairs of each size ("0": none).
ACCESSORY_FILES = {
    "1400050831": [
        (12, "5201104", "BOLSA TRANSVERSAL ALÇA DUPLA MATELASSÊ", "CAFÉ", "159,90", "0:12"),
        (12, "5201217", "CARTEIRA ZÍPER", "CORAÇÃO", "59,99", "0:8"),
        (12, "5201323", "MEIA CANO MÉDIO – 3 PARES", "ÁGUA", "0,00", "0:20"),
    ],
    "1400076509": [
        (8, "5202016", "MOCHILA ESCOLAR FECHO MAGNÉTICO", "CÉU", "", "0:6"),
        (8, "5202129", "PALMILHA GEL", "AREIA", "", "0:24"),
    ],
    "1500031742": [
        (11, "5203038", "CINTO FIVELA FORRADA", "PRETO", "49,90", "85:2 90:4 95:4 100:2"),
        (11, "5203144", "MEIA SAPATILHA INVISÍVEL", "PÊSSEGO", "19,90", "34:10 39:10"),
    ],
    "1500031860": [
        (13, "5204050", "CHAPÉU DE PRAIA ABA LARGA TRANÇADO", "AREIA", "99,90", "0:5"),
        (12, "5204163", "NECESSAIRE ACOLCHOADA", "PÊSSEGO", "39,90", "0:9"),
        (8, "5204279", "CADARÇO REFLETIVO", "CÉU", "", "0:30"),
    ],
}

# Packs: width, product code, description, colour, pack code ("" for a barcode), pairs of each size
# in one carton, number of cartons. Of width 13 only a first line can be chosen.
CORRUGATED_FILES = {
    "1400050831": [
        (16, SNEAKER, "TÊNIS CASUAL FEMININO CANO BAIXO", "CAFÉ", "",
         "33:1 34:2 35:3 36:3 37:2 38:1", 12),
        (16, SNEAKER, "TÊNIS CASUAL FEMININO CANO BAIXO", "ÁGUA", "", "34:2 35:4 36:4 37:2", 4),
        (16, BOOT, "BOTA CANO CURTO ZÍPER LATERAL", "PRETO", "", "38:1 39:2 40:2 41:2 42:1", 1),
    ],
    "1400076509": [
        (14, SANDAL, "SANDÁLIA SALTO BLOCO TIRAS CRUZADAS", "AREIA", "", "34:2 35:4 36:4 37:2", 9),
        (14, "3106018", "CHINELO", "MAÇÃ VERDE", "", "33:6 35:6 37:6 39:6", 3),
    ],
    "1400081124": [
        (13, BOOT, "BOTA CANO CURTO ZÍPER LATERAL", "CAFÉ", "9000417205", "39:3 40:3 41:3 42:3", 7),
    ],
    "1500031742": [
        (17, "3108309", "TÊNIS CORRIDA AMORTECIMENTO LEVE", "CÉU", "9000418310",
         "35:1 36:2 37:2 38:2 39:2 40:1", 10),
        (17, "3108434", "SAPATILHA BICO FINO LAÇO", "PÊSSEGO", "9000418427",
         "33:2 34:3 35:3 36:2 37:2", 5),
    ],
    "1500031860": [
        (15, "3109017", "TAMANCO SOLADO DE CORTIÇA", "CAFÉ", "9000419036", "35:3 36:3 37:6", 3),
        (16, "3109122", "RASTEIRA PEDRARIA E MIÇANGA", "ÁGUA", "", "34:4 35:4 36:4", 2),
        (13, "3109226", "ALPARGATA JUTA TRANÇADA", "AREIA", "9000419258", "37:4 38:4 39:4", 2),
    ],
}

# ----------------------------------------------------------------------------- writing order files


def check_digit(code):
    """The GS1 check digit of 12 digits."""
    total = sum(int(digit) * weight for digit, weight in zip(code, [1, 3] * 6))
    return str(-total % 10)


def serial_of(prefix, code, colour, slot):
    """A barcode's 12 digits."""
    digits = 12 - len(prefix) - len(code)
    return f"{prefix}{code}{100 * COLOURS.index(colour) + slot:0{digits}d}"


def sizes_of(text):
    return [part.split(":") for part in text.split()]


def item_values(order, code, description, colour, price):
    return {
        "colour": colour, "description": description, "spare": "", "price": price,
        "master": f"{code}{COLOURS.index(colour):03d}", "mark": order.mark, "week": order.week,
        "suffix": order.suffix, "promotion": order.promotion,
    }


def size_rows(order, prefix, items):
    """Rows of box and accessory items, one for each size; barcodes with and without check digit."""
    for width, code, description, colour, price, sizes in items:
        values = item_values(order, code, description, colour, price)
        for slot, (size, quantity) in enumerate(sizes_of(sizes)):
            serial = serial_of(prefix, code, colour, slot)
            values |= {
                "size": size, "quantity": quantity,
                "barcode": serial + (check_digit(serial) if (int(code) + slot) % 2 else ""),
            }
            if prefix == ACCESSORY_PREFIX and width == 11:
                values["master"] = code  # this width is found by the whole code
            yield width, dict(values), int(quantity)


def pack_rows(order, items):
    """Rows of corrugated items: one for each pack, cartons numbered through the order."""
    carton = 1
    for width, code, description, colour, pack, sizes, cartons in items:
        serial = serial_of(BOX_PREFIX, code, colour, 99)
        total = sum(int(pairs) for _, pairs in sizes_of(sizes))
        yield width, item_values(order, code, description, colour, "") | {
            "quantity": str(total * cartons), "supplier": SUPPLIER, "total": str(total),
            "pack": pack or serial + check_digit(serial), "destination": order.destination,
            "sizes": " ".join(size for size, _ in sizes_of(sizes)),
            "pairs": "  ".join(pairs for _, pairs in sizes_of(sizes)),
            "volume": f"{carton}/{carton + cartons - 1}",
        }, total * cartons
        carton += cartons


def order_file(order, kind, rows):
    """Lines of a file: a title first and once more in the body, a blank line and a totals line."""
    rows = list(rows)
    title = f"{order.title} – PEDIDO DE COMPRA {order.number} – {kind}"
    lines = [title]
    for number, (width, values, _) in enumerate(rows):
        names = LAYOUTS[kind][width]
        lines.append(";".join(values[name].ljust(COLUMNS.get(name, 0)) for name in names))
        if number == (len(rows) - 1) // 2:
            lines += [title, ";".join(TITLES[name] for name in names)]
    lines += ["", f"TOTAL DE PARES;{sum(pairs for *_, pairs in rows)}"]
    return "".join(line + "\r\n" for line in lines).encode("cp1252")


def order_files():
    """Every order file: its name and its bytes."""
    for kind, files in (("FRENTE", BOX_FILES), ("ACESSORIO", ACCESSORY_FILES),
                        ("CORRUGADO", CORRUGATED_FILES)):
        for number, items in files.items():
            order = ORDERS[number]
            if kind == "CORRUGADO":
                rows = pack_rows(order, items)
            else:
                rows = size_rows(order, BOX_PREFIX if kind == "FRENTE" else ACCESSORY_PREFIX, items)
            name = (f"ARQUIVO TXT {order.name} - FORNECEDOR {SUPPLIER_NUMBER}"
                    f" - PEDIDO {number} - {kind}.txt")
            yield name, order_file(order, kind, rows)


# --------------------------------------------------------------------------------- drawing pictures

DETAIL = 4  # pictures are drawn this many times larger and then scaled down


def canvas(width, height):
    from PIL import Image, ImageDraw
    image = Image.new("RGB", (width * DETAIL, height * DETAIL), "white")
    return image, ImageDraw.Draw(image)


def save(image, name):
    small = image.resize((image.width // DETAIL, image.height // DETAIL), resample=3)  # bicubic
    small.save(HERE / name, quality=92, dpi=(203, 203))


def scaled(points):
    return [(x * DETAIL, y * DETAIL) for x, y in points]


def word(draw, x, baseline, text, face, size, spacing):
    """A word with its letters set apart; returns where it ends."""
    from PIL import ImageFont
    font = ImageFont.truetype(face, size * DETAIL)
    for letter in text:
        draw.text((x * DETAIL, baseline * DETAIL), letter, "black", font, anchor="ls")
        x += font.getlength(letter) / DETAIL + spacing
    return x


# The layouts print over the right half of a logo's place, so that its ink stands in the left 138 of
# its pixels, and that of LUMIRA clear of the foot, too.


def draw_brisako():
    """The word in two rows, the second ending in waves."""
    image, draw = canvas(355, 80)
    word(draw, 5, 37, "BRISA", "LiberationSans-BoldItalic.ttf", 43, 0)
    end = word(draw, 3, 76, "KO", "LiberationSans-BoldItalic.ttf", 43, 0)
    for row in range(3):
        y = 51 + 10 * row
        wave = [(end + 8 + step, y + 4 * ((step // 12) % 2)) for step in range(0, 49, 12)]
        draw.line(scaled(smooth(wave, closed=False)), "black", 4 * DETAIL, joint="curve")
    save(image, "brisako.jpg")


def draw_lumira():
    """The word over a rule, with rays of light above its last letter."""
    image, draw = canvas(300, 80)
    end = word(draw, 6, 44, "LUMIRA", "DejaVuSans-Bold.ttf", 27, 2) - 2
    draw.rectangle(scaled([(6, 49), (end, 52)]), "black")
    for ray, height in enumerate((4, 8, 12, 8, 4)):
        x = end - 21 + 5 * ray
        draw.line(scaled([(x, 17), (x, 17 - height)]), "black", 2 * DETAIL)
    save(image, "lumira.jpg")


def smooth(points, closed=True):
    """A soft line through the points (Catmull-Rom)."""
    count = len(points)
    result = []
    for i in range(count if closed else count - 1):
        a, b, c, d = (points[(i + k) % count if closed else min(max(i + k, 0), count - 1)]
                      for k in (-1, 0, 1, 2))
        for t in (step / 12 for step in range(12)):
            result.append(tuple(
                0.5 * (2 * q + (r - p) * t + (2 * p - 5 * q + 4 * r - s) * t * t
                       + (3 * q - p - 3 * r + s) * t ** 3)
                for p, q, r, s in zip(a, b, c, d)))
    return result if closed else result + [points[-1]]


# Photographs: shapes from back to front, as colour and points; "line" is a seam or a lace.
PHOTOGRAPHS = {
    SNEAKER: [
        ("#7a4a2b", [(70, 120), (110, 104), (150, 118), (186, 150), (250, 178), (318, 196),
                     (346, 226), (340, 250), (70, 250), (58, 190)]),
        ("#94613d", [(256, 184), (318, 198), (344, 228), (338, 246), (268, 246), (246, 214)]),
        ("#5d3620", [(66, 136), (88, 132), (98, 190), (96, 246), (64, 246), (58, 190)]),
        ("#f3ead9", [(54, 244), (200, 240), (344, 242), (352, 258), (330, 276), (70, 276),
                     (52, 264)]),
        ("line #f3ead9", [(166, 150), (196, 138)]),
        ("line #f3ead9", [(184, 164), (214, 152)]),
        ("line #f3ead9", [(204, 176), (234, 164)]),
        ("line #f3ead9", [(224, 186), (254, 174)]),
        ("line #5d3620", [(110, 216), (160, 200), (214, 214), (236, 240)]),
    ],
    SANDAL: [
        ("#c98a6b", [(60, 178), (110, 176), (108, 276), (72, 276)]),
        ("#e8b79a", [(56, 166), (120, 160), (190, 196), (250, 236), (330, 246), (350, 258),
                     (330, 270), (240, 268), (170, 226), (110, 184), (58, 182)]),
        ("#d39874", [(196, 206), (222, 166), (258, 168), (300, 244), (276, 248), (236, 190),
                     (220, 226)]),
        ("#d39874", [(262, 240), (272, 190), (300, 184), (332, 248), (312, 250), (292, 208),
                     (284, 246)]),
        ("line #b87a58", [(66, 166), (62, 120), (110, 104), (152, 122), (146, 176)]),
        ("line #b87a58", [(64, 140), (108, 128), (150, 142)]),
    ],
    BOOT: [
        ("#2b2b2f", [(84, 50), (176, 46), (182, 130), (206, 172), (282, 192), (332, 212),
                     (344, 246), (84, 248), (76, 160)]),
        ("#3d3d44", [(250, 190), (318, 206), (340, 236), (334, 246), (262, 246)]),
        ("#1a1a1c", [(78, 244), (210, 240), (346, 242), (350, 262), (180, 264), (172, 258),
                     (146, 258), (144, 284), (80, 284)]),
        ("line #b9b9c2", [(128, 52), (130, 150), (138, 238)]),
        ("line #55555e", [(86, 66), (132, 68), (176, 62)]),
    ],
}


def draw_photograph(code):
    image, draw = canvas(400, 300)
    draw.ellipse(scaled([(40, 262), (364, 294)]), "#e6e6e6")
    for colour, points in PHOTOGRAPHS[code]:
        if colour.startswith("line "):
            draw.line(scaled(smooth(points, closed=False)), colour[5:], 5 * DETAIL, joint="curve")
        else:
            draw.polygon(scaled(smooth(points)), colour)
    save(image, f"imagens/{code}.jpg")


# --------------------------------------------------------------------------------------- the check

KEY_FIELDS = {"FRENTE": (6, 4, 1), "ACESSORIO": (7, 3, 1), "CORRUGADO": (6, 5, 4)}


def reduced(line):
    for run in (5, 4, 3, 2, 2):
        line = line.replace(" " * run, " ")
    return line


def compared(kind, fields):
    """What a loader compares with the parts of an item's key."""
    first, second, third = KEY_FIELDS[kind]
    if kind == "CORRUGADO":
        code = fields[7 if len(fields) in (14, 15) else 6].strip(" ")
    else:
        code = fields[first].strip(" ")
        if (kind, len(fields)) != ("ACESSORIO", 11):
            code = code[:7]
    return [code, fields[second].strip(" "), fields[third].strip(" ")]


def check_file(name, raw, seen):
    """Problems of one order file; adds to `seen` what it covers."""
    kind = re.search(r"(FRENTE|ACESSORIO|CORRUGADO)\.txt$", name).group(1)
    if raw.count(b"\n") != raw.count(b"\r\n") or raw.count(b"\r") != raw.count(b"\r\n"):
        yield "a line does not end in CR LF"
    text = raw.decode("cp1252")
    if text.isascii():
        yield "has no accents"
    header, *lines = text.split("\r\n")
    if bool(re.search("BRISA ?KO", header, re.I)) != ("BRISAKO" in name):
        yield "the header names another banner than the file's name"
    items, barcodes, texts, packs_of_13 = {}, set(), 0, 0
    for number, line in enumerate(lines, 2):
        fields = reduced(line).split(";")
        if not fields[0].strip(" ").isdigit():
            texts += bool(line)
            continue
        if len(fields) not in LAYOUTS[kind]:
            yield f"line {number} has {len(fields)} fields"
            continue
        seen.add((kind, len(fields)))
        first, second, third = (fields[position] for position in KEY_FIELDS[kind])
        key = " | ".join([first if kind == "CORRUGADO" else first[:7], second, third])
        items.setdefault(key, []).append(number)
        if compared(kind, fields) != [part.strip(" ") for part in key.split("|")]:
            yield f"line {number} is not found by its own key"
        if kind == "CORRUGADO" and len(fields) == 13:
            packs_of_13 += 1
            if packs_of_13 > 1:
                yield f"line {number} of width 13 can not be chosen, since one stands before it"
        for code in re.findall(r"(?:^|;)(\d{13})(?=;|$)", ";".join(fields)):
            if check_digit(code[:12]) != code[12]:
                yield f"line {number} has a wrong check digit"
        if kind != "CORRUGADO":
            barcode = fields[5 if kind == "FRENTE" else 6]
            if not re.fullmatch(r"\d{12,13}", barcode):
                yield f"line {number} has the barcode '{barcode}'"
            if barcode[:12] in barcodes:
                yield f"line {number} repeats a barcode"
            barcodes.add(barcode[:12])
            seen.add(("barcode", len(barcode)))
            if not re.fullmatch(r"\d{1,3}", fields[2]):
                yield f"line {number} has the size '{fields[2]}'"
            seen.add(("size", len(fields[2])))
    if any(len(numbers) > 14 for numbers in items.values()):
        yield "an item has more than fourteen sizes"
    if texts < 3:
        yield "lacks a repeated title or a totals line"


def check():
    wanted = {(kind, width) for kind, layouts in LAYOUTS.items() for width in layouts}
    wanted |= {("barcode", 12), ("barcode", 13), ("size", 1), ("size", 2), ("size", 3)}
    problems, seen = [], set()
    made = dict(order_files())
    present = {path.name: path.read_bytes() for path in HERE.glob("*.txt")}
    for name in sorted(made.keys() | present.keys()):
        if made.get(name) != present.get(name):
            problems.append(f"{name}: is not what this script makes")
        if name in present:
            problems += [f"{name}: {problem}" for problem in check_file(name, present[name], seen)]
    problems += [f"nothing covers {kind} {width}" for kind, width in sorted(wanted - seen)]
    pictures = ["brisako.jpg", "lumira.jpg", *(f"imagens/{code}.jpg" for code in PHOTOGRAPHS)]
    for name in pictures:
        path = HERE / name
        if not path.exists() or not path.read_bytes().startswith(b"\xff\xd8\xff"):
            problems.append(f"{name}: is no JPEG picture")
    for problem in problems:
        print(problem)
    print(f"{len(present)} order files, {len(pictures)} pictures, {len(problems)} problems")
    return 1 if problems else 0


def main():
    if sys.argv[1:] == ["--check"]:
        return check()
    if sys.argv[1:]:
        print(__doc__, file=sys.stderr)
        return 2
    for name, raw in order_files():
        (HERE / name).write_bytes(raw)
        print(name)
    (HERE / "imagens").mkdir(exist_ok=True)
    draw_brisako()
    draw_lumira()
    for code in PHOTOGRAPHS:
        draw_photograph(code)
    return check()


if __name__ == "__main__":
    sys.exit(main())
