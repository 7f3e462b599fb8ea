#include "channel/FontesMargem.h"
#include "channel/MargensLinguagem.h"
#include "channel/Pacotes.h"
#include "channel/Transporte.h"
#include "support/FakePlatform.h"

#include <gtest/gtest.h>

namespace etiquetas::test {

// Left margins and the top margin, a blank behind each.
static Text shown(const std::vector<Text>& columns, const Text& top) {
    Text texts;
    for (const Text& column : columns) {
        texts += column + u" ";
    }
    return top.empty() ? texts : texts + top + u" ";
}

static Text shown(const MargensLinguagem& dialog) {
    std::vector<Text> columns;
    for (const TextField& column : dialog.txtmargem1) {
        columns.push_back(column.text);
    }
    return shown(columns, dialog.txtmargemsuperior ? dialog.txtmargemsuperior->text : Text());
}

static void type(MargensLinguagem& dialog, const std::vector<Text>& columns, const Text& top) {
    for (std::size_t i = 0; i < columns.size(); ++i) {
        dialog.txtmargem1.at(i).text = columns[i];
    }
    if (dialog.txtmargemsuperior) {
        dialog.txtmargemsuperior->text = top;
    }
}

// The bytes of a file; "/" stands for CR LF, so that several lines share one here.
static std::string bytesOf(TextView lines) {
    return toCodePage1252(replaceAll(lines, u"/", u"\r\n"));
}

// A settings file with these values, one for each key; the keys stand without their common stem.
static std::string settingsOf(const Text& stem, const Text& keys, const Text& values) {
    Text file = u"[MargemOcultaZebra]/";
    for (std::size_t i = 0; i + 1 < split(keys, u' ').size(); ++i) {
        file += stem + Text(split(keys, u' ')[i]) + u"=" + Text(split(values, u' ').at(i)) + u"/";
    }
    return bytesOf(file);
}

class ChannelTest : public testing::Test, protected Workbench {
  protected:
    ChannelTest() {
        form.cmbintensidade.text = u" 25 ";
        form.cmbvelocidade.text = u" 3";
        form.txtcodigo.text = u"31.4527 ";
        form.txtcor.text = u" AZUL.1-CLARO-2-ESCURO ";
    }

    // The job that the test command leaves; the margins that the dialog shows go to `margins`.
    std::string tested(MargensLinguagem dialog, const std::vector<Text>& columns, const Text& top) {
        MargensLinguagem_load(form, dialog);
        type(dialog, columns, top);
        MargensLinguagem_cmd_teste(form, dialog);
        margins = shown(dialog);
        return job;
    }

    std::string& job = machine.files.bytes[u"/programa/epltemp.prn"];
    Text margins;
    const Text command = u"/programa/IMPRIMIR.BAT", settings = u"/programa/Varesko.ini";
    const Text z = u"Margem_oculta_zpl_", p = u"Margem_oculta_ppla_", f = u"Margem_frente_";
    const Text row7 = u"40 160 280 400 520 640 760 ", row7_ppla = u"22 150 275 275 275 275 275 ";
};

TEST_F(ChannelTest, CommandFileOfEachPortIsWrittenOnceAndStarted) {
    form.LBLPORTAPARELELA.caption = u"Lpt2";
    using Case = std::tuple<TextView, TextView, CommandFileEnd, Text>;
    const Text mapped = u"net use Lpt2: /delete\r\nnet use Lpt2: \\\\127.0.0.1\\";
    const Text typed = u"type epltemp.prn > Lpt2";
    for (const auto& [kind, share, end, lines] :
         {Case{u"PARALELA", u"", CommandFileEnd::plain, typed},
          Case{u"paralela", u"Zebra", CommandFileEnd::extra_line_feed, typed + u"\n"},
          Case{u"PARALELA ", u"", CommandFileEnd::plain, mapped + u" /yes\r\n" + typed},
          Case{u"Label17", u" Pé 1 ", CommandFileEnd::extra_line_feed,
               mapped + u"Pé 1 /yes\r\n" + typed + u"\n"}}) {
        machine.log.clear();
        machine.files.bytes.erase(command);
        form.lblporta.caption = kind;
        form.lblcompartilhamento.caption = share;
        sendProgram(form, {u"^XA", u"ç"}, end);
        EXPECT_EQ(job, "^XA\r\n\xE7\r\n");
        EXPECT_EQ(machine.files.bytes[command], toCodePage1252(lines + u"\r\n"));
        EXPECT_EQ(machine.log, (Log{"write /programa/epltemp.prn", "write /programa/IMPRIMIR.BAT",
                                    "start /programa/IMPRIMIR.BAT"}));
    }
    machine.files.bytes[command] = "old";
    machine.failing = {"start"};
    sendProgram(form, {}, CommandFileEnd::plain);
    EXPECT_EQ(machine.files.bytes[command] + job, "old");
    machine.files.bytes.erase(command);
    machine.failing = {"write"};
    sendProgram(form, {}, CommandFileEnd::plain);
    EXPECT_EQ(machine.log.back(), "start /programa/IMPRIMIR.BAT");
    EXPECT_FALSE(machine.files.fileExists(u"/programa/epltemp.prn")) << "no job is sent twice";
}

TEST_F(ChannelTest, DialogsLoadAndStoreTheirKeys) {
    struct Case {
        MargensLinguagem (*make)();
        Text title, frame, stem, keys, columns, top_without_file, top_of_blank_key, top_stored;
    };
    for (const Case& that :
         {Case{FrmMargensOcultaZPL, u"Oculta - ZPL", u"30x10x3", z, u"1 2 3 3_superior ",
               u"55 305 570 ", u"30 ", u"30 ", u"30 "},
          Case{FrmMargensOculta7ZPL, u"Oculta - ZPL", u"10x30x7", z,
               u"71 72 73 74 75 76 77 7_superior ", row7, u"70 ", u"70 ", u"70 "},
          Case{FrmMargensOculta8ZPL, u"Oculta - ZPL", u"10x30x8", z,
               u"71 72 73 74 75 76 77 78 8_superior ", row7 + u"880 ", u"70 ", u"70 ", u"70 "},
          Case{FrmMargensOcultaPPLa, u"Oculta - PPLA", u"30x10x3", p, u"1 2 3 ", u"22 150 275 "},
          Case{FrmMargensCxZPL, u"Frente de Caixa - ZPL", u"40x45x2", f,
               u"zpl_1 zpl_2 zpl_2_superior ", u"25 340 ", u"70 ", u"3 ", u"10 "}}) {
        MargensLinguagem dialog = that.make();
        EXPECT_EQ(dialog.Caption + u"/" + dialog.Frame1.caption,
                  u"Calibrar Margens - Etiqueta " + that.title + u"/Etiqueta " + that.frame);
        machine.files.bytes.erase(settings);
        MargensLinguagem_load(form, dialog);
        EXPECT_EQ(shown(dialog), that.columns + that.top_without_file);
        machine.files.bytes[settings] = "";
        MargensLinguagem_load(form, dialog);
        EXPECT_EQ(shown(dialog), that.columns + that.top_of_blank_key);
        type(dialog, std::vector<Text>(dialog.txtmargem1.size(), u"  "), u" ");
        MargensLinguagem_cmd_gravar(form, dialog);
        EXPECT_EQ(machine.files.bytes[settings],
                  settingsOf(that.stem, that.keys, that.columns + that.top_stored));
        // Each key holds the end of its name, which need be no number: it comes and goes as it is.
        const std::string named = machine.files.bytes[settings] =
            settingsOf(that.stem, that.keys, that.keys);
        MargensLinguagem_load(form, dialog);
        EXPECT_EQ(shown(dialog), that.keys);
        EXPECT_TRUE(dialog.open);
        MargensLinguagem_cmd_gravar(form, dialog);
        EXPECT_EQ(machine.files.bytes[settings], named);
        EXPECT_FALSE(dialog.open);
        txtmargem1_enter(dialog, 1);
        EXPECT_EQ(dialog.txtmargem1[1].selection.length, dialog.txtmargem1[1].text.size());
        EXPECT_EQ(txtmargem1_key(dialog, 1, u'.'), u',');
    }
}

TEST_F(ChannelTest, HiddenLabelInThreeColumns) {
    EXPECT_EQ(tested(FrmMargensOcultaZPL(), {u" 5", u"", u"x.y"}, u" "),
              bytesOf(u"~SD25/^XA/^LT0/^PQ1,,1,Y/^LH0,0/^PR3,3/"
                      u"^FO5,30^A0N,55,45^FD31.4527^FS/^FO305,30^A0N,55,45^FD31.4527^FS/"
                      u"^FOx.y,30^A0N,55,45^FD31.4527^FS/^XZ/"));
    EXPECT_EQ(margins, u" 5 305 x.y 30 ");
    EXPECT_FALSE(machine.files.fileExists(settings));
    form.txtcodigo.text = u" ";
    EXPECT_EQ(tested(FrmMargensOcultaPPLa(), {u"1,5", u"x", u"12345"}, u""),
              bytesOf(u"\2n/\2M0500/\2O0220/\2V0/\2f220/\1D/\2L/D11/A2/"
                      u"19110050015000250100779/191100500151234550100779/Q0001/E/"));
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\r\n"));
}

TEST_F(ChannelTest, TurnedColumnsOnlyGrowToTheRight) {
    Text program = u"~SD25/^XA/^LT0/^PQ1,,1,Y/^LH0,0/^PR3,3/";
    for (const TextView column : {u"40", u"160", u"280", u" 500", u"520", u"x", u"7"}) {
        program.append(u"^FO").append(column).append(u",70^A0B,55,45^FD31.4527 ^FS/");
    }
    EXPECT_EQ(tested(FrmMargensOculta7ZPL(), {u"40", u"30", u"", u" 500", u"400", u"x", u"7"}, u""),
              bytesOf(program + u"^XZ/"));
    EXPECT_EQ(margins, u"40 160 280  500 520 x 7 70 ");
    tested(FrmMargensOculta8ZPL(), {u"", u"160,4", u"160", u"99", u"90", u"", u"", u"1"}, u"");
    EXPECT_EQ(margins, u"40 160,4 160 400 520 640 760 880 70 ");
    EXPECT_EQ(std::count(job.begin(), job.end(), 'B'), 8);
}

TEST_F(ChannelTest, BoxFrontSample) {
    EXPECT_EQ(
        tested(FrmMargensCxZPL(), {u"", u"3.40"}, u""),
        bytesOf(u"~SD25/^XA/^LT0/^LH0,0/^PR3,3/^FO25,10^A0N,100,80^FD267^FS/"
                u"^FO155,10^A0N,35,20^FH\\^FDOURO^FS/^FO155,50^A0N,35,20^FH\\^FD^FS/"
                u"^FO245,40^A0N,70,60^FD35^FS/^FO80,280^A0N,60,40^FD   139,99^FS/"
                u"^FO25,110^A0N,30,20^FDLUMIRA 170000 FE FST SND^FS/^FO25,140^A0N,30,20^FDAL^FS/"
                u"^FO26,170^BY2^BCN,70,N,N,N,D^FD1000000115475^FS/"
                u"^FO95,250^A0N,30,30^FD5016267001^FS/^FO270,140^A0N,30,20^FDF2^FS/"
                u"^FO3.40,10^A0N,100,80^FD267^FS/"
                u"^FO470,10^A0N,35,20^FH\\^FDOURO^FS/^FO470,50^A0N,35,20^FH\\^FD^FS/"
                u"^FO560,40^A0N,70,60^FD35^FS/^FO395,280^A0N,60,40^FD   139,99^FS/"
                u"^FO3\"40,110^A0N,30,20^FDLUMIRA 170000 FE FST SND^FS/"
                u"^FO3\"40,140^A0N,30,20^FDAL^FS/^FO341,170^BY2^BCN,70,N,N,N,D^FD1000000115475^FS/"
                u"^FO410,250^A0N,30,30^FD501626700^FS/^FO585,140^A0N,30,20^FDF2^FS/^XZ/"));
    EXPECT_EQ(margins, u"25 3.40 10 ");
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\n\r\n"));
    // Sums that are beyond 16 bits or of no number are left out.
    tested(FrmMargensCxZPL(), {u"32765", u"x"}, u"9");
    EXPECT_EQ(std::count(job.begin(), job.end(), '\n'), 5 + 4 + 3 + 1);
}

TEST_F(ChannelTest, CodeStripsAndTheirHeader) {
    form.txtcliente.text = u" VAREJO ";
    form.txtarquivo.text = u" 77 ";
    const Text start = u"^XA/^MNY/^LT0/";
    const Text end =
        u"^LH0,0/^FO135, 20^A0N,55,45^FD31.4527^FS/^FO535, 20^A0N,55,45^FD31.4527^FS/^XZ/";
    using Case = std::tuple<TextView, Text, Text>;
    for (const auto& [count, quantities, copies] :
         {Case{u" 3", u"^FO540, 40^A0N,25,25^FDQte: 6 | Imp. 3^FS/", u"^PQ2,,1,Y/"},
          Case{u"4", u"^FO540, 40^A0N,25,25^FDQte: 8 | Imp. 4^FS/", u"^PQ2,,1,Y/"},
          Case{u"32766", u"", u"^PQ16383,,1,Y/"}, Case{u"32767", u"", u""}, Case{u"", u"", u""}}) {
        form.txtnumero[2].text = count;
        Imprime_OcultaNova(form, {.checked = true});
        EXPECT_EQ(job,
                  bytesOf(start +
                          u"^LH0,0/^FO20, 5^GB800,0,4,^FS/"
                          u"^FO20, 15^A0N,20,15^FDFabrica:  VAREJO ^FS/"
                          u"^FO20, 40^A0N,25,25^FDPedido: 77^FS/"
                          u"^FO300, 40^A0N,25,25^FDCor: AZUL.1-CLARO-2-ESCURO^FS/" +
                          quantities + u"^FO20, 65^GB800,0,4,^FS/^XZ/" + start + copies + end));
        Imprime_OcultaNova(form, {});
        EXPECT_EQ(job, bytesOf(start + copies + end));
    }
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\n\r\n"));
}

TEST_F(ChannelTest, PacksStandTwoOnAStrip) {
    form.txtdescricao.text = u"TENIS CASUAL 1.2 ABCDEFGHIJKLMNOPQ";
    form.txtsemana.text = u" 2026.11 ";
    const Text open = u"^XA/^MNY/^LT0/^LH0,0/";
    const auto block = [](const Text& x, const Text& second) {
        return u"^FO" + x + u", 40^A0N,60,50^FD AZUL\"1-^FS/^FO" + x +
               u", 100^A0N,60,50^FDCLARO-2-^FS/^FO" + x + u", 160^A0N,70,60^FD27 ^FS/^FO" + x +
               u", 223^A0N,30,20^FDTENIS CASUAL 1\"2 ABCDEFGHIJKLM^FS/^FO" + x +
               u", 247^A0N,30,20^FDNOPQ^FS/^FO" + x +
               u", 275^BY3,,60^BEN,60,N,N,N^FD00000031\"4527 ^FS/^FO" + x +
               u", 350^A0N,35,25^FD31\"4527^FS/^FO" + second + u", 350^A0N,35,25^FD2026\"11^FS/";
    };
    const Text strip = open + block(u"70", u"250") + block(u"500", u"680") + u"^XZ/";
    using Case = std::pair<TextView, Text>;
    for (const auto& [packs, program] : {Case{u"3", strip + open + block(u"70", u"250") + u"^XZ/"},
                                         Case{u"2", strip}, Case{u"x", u""}}) {
        form.txtnumero[2].text = packs;
        Imprime_Pacote(form);
        EXPECT_EQ(job, bytesOf(program));
    }
    EXPECT_TRUE(machine.files.bytes[command].ends_with("> LPT1\r\n"));
    machine.log.clear();
    form.txtnumero[2].text = u" ";
    Imprime_Pacote(form);
    EXPECT_EQ(machine.log, Log{"message none ok [] Informe o Número de Pacotes"});
    EXPECT_EQ(machine.focused, &form.txtnumero[2]);
    EXPECT_EQ(RET_CODCERTO(u"") + RET_CODCERTO(u"12345678901234"), u"000000000000012345678901234");
}

TEST_F(ChannelTest, MarginSourcesInBothLanguages) {
    const Text c = u"Margem_Corrugada_";
    using Case = std::tuple<MargensDeEtiqueta (*)(const FrmPadrao&), TextView, Text, Text, Text>;
    for (const auto& [source, language, stem, keys, defaults] :
         {Case{pega_margemoculta, u"ZPL", z, u"1 2 3 3_superior ", u"55 305 570 30 "},
          Case{pega_margemoculta, u"PPLA", p, u"1 2 3 ", u"22 150 275 "},
          Case{pega_margemoculta7, u"ZPL", z, u"71 72 73 74 75 76 77 7_superior ", row7 + u"70 "},
          Case{pega_margemoculta7, u"zpl", p, u"71 72 73 74 75 76 77 ", row7_ppla},
          Case{pega_margemoculta8, u"ZPL", z, u"71 72 73 74 75 76 77 78 8_superior ",
               row7 + u"880 70 "},
          Case{pega_margemoculta8, u"", p, u"71 72 73 74 75 76 77 77 ", row7_ppla + u"275 "},
          Case{pega_margemfc, u"ZPL", f, u"zpl_1 zpl_2 zpl_2_superior ", u"25 340 10 "},
          Case{pega_margemfc, u"PPLA", f, u"ppla_1 ppla_2 ", u"4 160 "},
          Case{pega_margemfc2, u"ZPL", f, u"zpl_A1 zpl_A2 zpl_A2_superior ", u"260 610 25 "},
          Case{pega_margemfc2, u"PPLA", f, u"ppla_A1 ppla_A2 zpl_A2_superior ", u"4 160 25 "},
          Case{pega_margemcorrugado, u"ZPL", c, u"zpl ZPL_Superior ", u"25 70 "},
          Case{pega_margemcorrugado, u"PPLA", c, u"ppla PPLA_Superior ", u"19 58 "}}) {
        const auto taken = [&, source = source] {
            const MargensDeEtiqueta all = source(form);
            return shown(all.colunas, all.superior);
        };
        form.lbllinguagem.caption = language;
        machine.files.bytes.erase(settings);
        EXPECT_EQ(taken(), defaults);
        machine.files.bytes[settings] = settingsOf(stem, keys, Text(20, u' '));
        EXPECT_EQ(taken(), defaults);
        machine.files.bytes[settings] = settingsOf(stem, keys, keys);
        EXPECT_EQ(taken(), keys);
    }
}

} // namespace etiquetas::test
