#pragma once

#include "base/Text.h"
#include "platform/Fields.h"

namespace etiquetas {

/// The printer parameters. The operator sees the order folder, the panel of the standard labels and
/// the commands; the fields of the hidden panels are stored and shown back all the same.
///
/// Each load starts from the fields as they are designed here. `to_front` is set when the open
/// dialog is asked for again: whoever shows the dialog brings it to the front and clears it.
struct ParametroDialog {
    Text Caption = u"Parâmetro de Impressão";

    Label Label6{u"Local de Armazenamento Padrão dos Arquivos..."};
    TextField TXTPATH;
    Command CMD_GETPATH{.caption = u"...",
                        .tooltip =
                            u"Clique aqui para Selecionar a Pasta que irá conter os arquivos..."};
    Panel Frame5{u"Etiqueta Padrão"};
    Label Label7{u"Etiqueta Oculta : 40 x 20 x 2 "};
    Label Label8{u"Etiqueta PACK  : 140 x 100 x 1 "};
    Label Label9{u"Etiqueta Acessório : 40 x 20 x 2"};
    Label Label10{u"Etiqueta Frente de Caixa: 100 x 40 x 1"};
    Command cmd_grava{u"&Gravar Parâmetros"};
    Command cmd_sair{u"&Sair"};

    Panel Frame1{u"Linguagem de Impressão", false};
    Option optzpl{u"ZPL "};
    Option optppla{u"PPLA"};

    Panel Frame2{u"Porta de Comunicação da Impressora", false};
    Option optParalela{u"Porta Paralela"};
    Option optSerial{u"Porta Serial"};
    Option optUsb{u"Porta USB"};
    Panel FrameParalela{u"Porta Paralela"};
    Label Label1{u"Informe a Porta de Impressão"};
    ListField cmbparalela1;
    Panel FrameSerial{u"Porta Serial"};
    Label Label2{u"Informe a Porta de Impressão"};
    ListField cmbserial;
    Label Label3{u"Configuração da Porta Serial"};
    TextField txtserialconfiguracao{.text = u"9800,N,8,1"}; // no standard rate; only stored
    Panel FrameUSB{u"Porta USB", false};
    Label Label5{u"Informe a Porta de Impressão"};
    ListField cmbparalela2;
    Label Label4{u"Nome do Compartilhamento"};
    TextField txtnomecompartilhamento;

    Panel Frame3{u"Formato da Etiqueta Oculta", false};
    Option optoculta1{u"30x10x3"};
    Option optoculta2{u"10x30x7"};
    Option optoculta3{u"10x30x8"};
    Option optoculta4{u"30x10x2"};

    Panel Frame4{u"Formato da Etiqueta Frente de Caixa/Acessório", false};
    Option optfrentecaixa1{u"40x45x2"};
    Option optfrentecaixa2{u"45x40x2"};

    bool open = false;
    bool to_front = false;
};

} // namespace etiquetas
