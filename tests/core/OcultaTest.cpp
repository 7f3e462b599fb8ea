#include "labels/Oculta.h"

#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class OcultaTest : public testing::Test, protected Workbench {
  protected:
    OcultaTest() {
        form.Margem_oculta1 = 3;
        form.Margem_oculta11 = 45;
        form.Margem_oculta2 = 3;
        machine.surface.ScaleMode(ScaleMode::millimetres);
    }

    // What one call draws, "~" standing for the small face of most texts.
    Log drawn(std::int16_t quantity, TextView size = u"34", TextView flag = u"L",
              TextView description = u"TENIS CASUAL") {
        machine.log.clear();
        Imprime_Oculta_40_20_2(form, flag, description, u"527", u"3104527001", u"2044556677888",
                               size, quantity, u" AZUL ");
        Log lines = machine.logged({"print", "unit", "stamp", "page"});
        const std::string small = "print Franklin Gothic Medium 6 ";
        for (std::string& line : lines) {
            line = line.starts_with(small) ? "~ " + line.substr(small.size()) : line;
        }
        return lines;
    }
};

TEST_F(OcultaTest, LayoutInBothColumns) {
    const Log first{"print Calibri 20 bold 33.3 2 in 6: 527",
                    "unit 3",
                    "unit 6",
                    "stamp 141x27 14.6 13 35 8 in 6",
                    "~ 23.6 10.5 in 6: 3104527001",
                    "~ 19.5 16.8 in 6: 204455",
                    "~ 30.7 16.8 in 6: 6677888",
                    "print Calibri 26 bold 6.3 10 in 6: 34",
                    "~ 5.8 3.2 in 6: TENIS CASUAL",
                    "~ 5.8 5.4 in 6: AZUL",
                    "~ 5.8 7.7 in 6: "};
    const Log second{"print Calibri 20 bold 78 2 in 6: 527",
                     "unit 3",
                     "unit 6",
                     "stamp 141x27 59.3 13 35 8 in 6",
                     "~ 68.3 10.5 in 6: 3104527001",
                     "~ 64.2 16.8 in 6: 204455",
                     "~ 75.4 16.8 in 6: 6677888",
                     "print Calibri 26 bold 51 10 in 6: 34",
                     "~ 50.5 3.2 in 6: TENIS CASUAL",
                     "~ 50.5 5.4 in 6: AZUL",
                     "~ 50.5 7.7 in 6: ",
                     "page"};
    EXPECT_EQ(drawn(1), first);
    EXPECT_EQ(drawn(1), second);
    EXPECT_EQ(form.txtbarra.text, u"2044556677888");
    EXPECT_EQ(machine.surface.measured_in, "Franklin Gothic Medium 7");
}

TEST_F(OcultaTest, SizeByItsLengthAndTheFlagWithoutOne) {
    using Case = std::tuple<TextView, std::string, std::size_t>;
    for (const auto& [size, line, lines_of_banner_b] :
         {Case{u"8", "print Calibri 20 bold 9.3 11.5 in 6: 8", 3},
          {u"34", "print Calibri 26 bold 6.3 10 in 6: 34", 3},
          {u"G ", "print Calibri 26 bold 6.3 10 in 6: G ", 3},
          {u"100", "print Calibri 20 bold 5.5 10.8 in 6: 100", 3},
          {u"36/7", "", 3},
          {u"", "", 0},
          {u"  ", "", 0}}) {
        SCOPED_TRACE(utf8(size));
        form.coluna_etiqueta = 1;
        const Log with_l = drawn(1, size);
        form.coluna_etiqueta = 1;
        const Log with_b = drawn(1, size, u"B");
        const std::size_t drawn_sizes = line.empty() ? 0 : 1;
        EXPECT_EQ(with_l.size(), 10 + drawn_sizes);
        EXPECT_EQ(with_b.size(), 7 + drawn_sizes + lines_of_banner_b);
        if (drawn_sizes == 1) {
            EXPECT_EQ(with_l[7], line);
        }
    }
}

TEST_F(OcultaTest, DescriptionBreaks) {
    using Case = std::tuple<TextView, std::array<std::string, 3>>;
    // One millimetre a character, so that the 24th is the first beyond the limit.
    for (const auto& [description, broken] :
         {Case{u"ABCDEFGHIJKLMNOPQRSTUV", {"ABCDEFGHIJKLMNOPQRSTUV", "AZUL", ""}},
          {u"ABCDEFGHIJKLMNOPQRSTUVW", {"ABCDEFGHIJKLMNOPQRSTUVW", "AZUL", ""}},
          {u"ABCDEFGHIJKLMNOPQRSTUVWXYZ", {"ABCDEFGHIJKLMNOPQRSTUVWXYZ", "AZUL", ""}},
          {u"ABCDEFGHIJKLMNOPQRSTUVW YZ", {"ABCDEFGHIJKLMNOPQRSTUVW", "YZ", "AZUL"}},
          {u"ABC EFGHIJKLMNOPQRSTUVW-YZ", {"ABC EFGHIJKLMNOPQRSTUVW-", "YZ", "AZUL"}},
          {u"ABC/EFGHIJKLMNOPQRSTUVWX/Z", {"ABC/EFGHIJKLMNOPQRSTUVWX/", "Z", "AZUL"}},
          {u"ABC.EFGHIJKLMNOPQRSTUVW.7-", {"ABC.EFGHIJKLMNOPQRSTUVW.", "7-", "AZUL"}},
          {u"ABCDEFGHIJKLMNOPQRSTUV-XYZ", {"ABCDEFGHIJKLMNOPQRSTUV-XYZ", "AZUL", ""}},
          {u"ABCDEFGHIJKLMNOPQRSTUVWXY.", {"ABCDEFGHIJKLMNOPQRSTUVWXY.", "AZUL", ""}},
          {u"ABCDEFGHIJKLMNOPQRSTUVW7-Z", {"ABCDEFGHIJKLMNOPQRSTUVW", "7-Z", "AZUL"}},
          {u"ABCDEFGHIJKLMNOPQRSTUV 8X", {"ABCDEFGHIJKLMNOPQRSTUV", "8X", "AZUL"}},
          {u"ABCDEFGHIJKLMNOPQRSTUV78Y9-Z", {"ABCDEFGHIJKLMNOPQRSTUV78Y", "9-Z", "AZUL"}},
          {u"", {"", "AZUL", ""}}}) {
        form.coluna_etiqueta = 1;
        const Log lines = drawn(1, u"34", u"L", description);
        ASSERT_EQ(lines.size(), 11U);
        EXPECT_EQ(lines[8], "~ 5.8 3.2 in 6: " + broken[0]);
        EXPECT_EQ(lines[9], "~ 5.8 5.4 in 6: " + broken[1]);
        EXPECT_EQ(lines[10], "~ 5.8 7.7 in 6: " + broken[2]);
    }
}

TEST_F(OcultaTest, ColumnsAndPages) {
    using Case = std::tuple<std::int16_t, std::int16_t, std::string, std::int16_t>;
    for (const auto& [column, quantity, columns_and_pages, next] : {Case{1, 0, "", 1},
                                                                    {2, 0, "", 2},
                                                                    {1, -1, "", 1},
                                                                    {1, 1, "1", 2},
                                                                    {2, 1, "2|", 1},
                                                                    {1, 3, "12|1", 2},
                                                                    {2, 3, "2|12|", 1}}) {
        form.coluna_etiqueta = column;
        std::string found;
        for (const std::string& line : drawn(quantity, u"")) {
            found += line == "page" ? "|" : "";
            found += line.starts_with("print Calibri 20 bold 33.3 ") ? "1" : "";
            found += line.starts_with("print Calibri 20 bold 78 ") ? "2" : "";
        }
        EXPECT_EQ(found, columns_and_pages) << column << ", " << quantity;
        EXPECT_EQ(form.coluna_etiqueta, next);
    }
}

} // namespace etiquetas::test
