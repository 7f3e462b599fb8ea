#include "channel/Pacotes.h"

#include "support/FakePlatform.h"
#include "support/ProgramGolden.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

class PacotesTest : public testing::Test, protected Workbench {
  protected:
    PacotesTest() {
        form.txtarquivo.text = u" 77 ";
        form.txtcliente.text = u" VAREJO ";
        form.txtcodigo.text = u"31.4527 ";
        form.txtcor.text = u" AZUL.1-CLARO-2-ESCURO ";
        form.txtdescricao.text = u"TENIS CASUAL 1.2 ABCDEFGHIJKLMNOPQ";
        form.txtsemana.text = u" 2026.11 ";
    }

    // The lines of the job that begin with a command.
    Log linesOf(const std::string& command) const {
        Log lines = programLines(job);
        std::erase_if(lines, [&](const std::string& line) { return !line.starts_with(command); });
        return lines;
    }

    std::string& job = machine.files.bytes[u"/programa/epltemp.prn"];
    const Text command_file = u"/programa/IMPRIMIR.BAT";
    TextField& quantity = form.txtnumero[2];
};

TEST_F(PacotesTest, CodeStripComesAloneOrAfterItsHeader) {
    quantity.text = u" 3";
    Imprime_OcultaNova(form, {.checked = true});
    EXPECT_TRUE(holdsProgram(job, "zpl_code_strip_with_header"));
    Imprime_OcultaNova(form, {});
    EXPECT_TRUE(holdsProgram(job, "zpl_code_strip"));
    EXPECT_TRUE(machine.files.bytes[command_file].ends_with("> LPT1\n\r\n"));
}

TEST_F(PacotesTest, QuantitiesBeyondSixteenBitsOrOfNoNumberAreLeftOut) {
    struct Case {
        Text quantity;
        Log header_quantities;
        Log copies;
    };
    const Log header_of_four{"^FO540, 40^A0N,25,25^FDQte: 8 | Imp. 4^FS"};
    for (const Case& that :
         {Case{u"4", header_of_four, {"^PQ2,,1,Y"}}, Case{u"32766", {}, {"^PQ16383,,1,Y"}},
          Case{u"32767", {}, {}}, Case{u"", {}, {}}}) {
        quantity.text = that.quantity;
        Imprime_OcultaNova(form, {.checked = true});
        EXPECT_EQ(linesOf("^FO540"), that.header_quantities) << utf8(that.quantity);
        EXPECT_EQ(linesOf("^PQ"), that.copies) << utf8(that.quantity);
        EXPECT_EQ(linesOf("^XZ").size(), 2U) << utf8(that.quantity);
    }
}

TEST_F(PacotesTest, PacksStandTwoOnAStrip) {
    quantity.text = u"2";
    Imprime_Pacote(form);
    EXPECT_TRUE(holdsProgram(job, "zpl_packs_2"));
    EXPECT_TRUE(machine.files.bytes[command_file].ends_with("> LPT1\r\n"));
    quantity.text = u"3";
    Imprime_Pacote(form);
    EXPECT_TRUE(holdsProgram(job, "zpl_packs_3"));
    quantity.text = u"x";
    Imprime_Pacote(form);
    EXPECT_EQ(job, "");
}

TEST_F(PacotesTest, BlankNumberOfPacksIsAskedForAndNothingPrinted) {
    quantity.text = u" ";
    Imprime_Pacote(form);
    EXPECT_EQ(machine.log, Log{"message none ok [] Informe o Número de Pacotes"});
    EXPECT_EQ(machine.focused, &quantity);
}

TEST_F(PacotesTest, CodeIsFilledWithZerosToThirteenCharacters) {
    EXPECT_EQ(RET_CODCERTO(u""), u"0000000000000");
    EXPECT_EQ(RET_CODCERTO(u" 123456789012 "), u"0 123456789012 ");
    EXPECT_EQ(RET_CODCERTO(u"12345678901234"), u"12345678901234");
}

} // namespace etiquetas::test
