// Reading a stored cut-out document back into the recess rows, and the diagonal's description
// written into its component and read back.
#include <gtest/gtest.h>

#include "Banco.h"

namespace {

// Recess 0 with rows 2 and 5, recess 1 without rows; six value rows in all.
void preparaFilas(dialog::frmEspEnc& f) {
    f.listComponentes[4].entries = {{u"Pilar A", true}, {u"Pilar B", false}};
    f.idsListas[4] = {40, 41, 0};
    f.EtiqTituloEnc.resize(2);
    f.EtiqTituloEnc[0].Tag = u"2-5";
    f.EtiqValorEnc.resize(6);
    f.TxtValoresEnc.resize(6);
    f.EtiqValorEnc[2].Caption = u"Fondo & <x>";
    f.TxtValoresEnc[2].Text = u"10";
    f.TxtValoresEnc[2].Tag = u"550";
    f.EtiqValorEnc[5].Caption = u"Alto";
    f.TxtValoresEnc[5].Tag = u"720";
}

TEST(CargaValoresCajeos, RestoresByIndexAndSkipsWhatCannotBeRead) {
    banco::Banco banco;
    auto& f = banco.f();
    preparaFilas(f);
    auto& mv = common::modVariables();
    mv.docCajeos = banco.platform.createXmlDocument();
    mv.docCajeos->loadXML(
        u"<CAJEOS><CAJEO><TITULO>Pilar A</TITULO>"
        u"<PARAM><valor>30</valor><INDICE>5</INDICE></PARAM>"  // names ignore case
        u"<PARAM><VALOR>12</VALOR><INDICE>2</INDICE></PARAM>"  // any order of PARAMs
        u"<PARAM><VALOR>x</VALOR><INDICE>1</INDICE></PARAM>"   // not a number: skipped
        u"<PARAM><VALOR>7</VALOR><INDICE>99</INDICE></PARAM>"  // no such row: skipped
        u"<PARAM><INDICE>0</INDICE></PARAM>"                   // takes the previous value
        u"</CAJEO></CAJEOS>");
    f.TxtValoresEnc[1].Text = u"keep";
    f.cargaValoresCajeos();
    EXPECT_EQ(f.TxtValoresEnc[5].Text, u"30");
    EXPECT_EQ(f.TxtValoresEnc[2].Text, u"12");
    EXPECT_EQ(f.TxtValoresEnc[1].Text, u"keep");
    EXPECT_EQ(f.TxtValoresEnc[0].Text, u"7");
}

TEST(DescribeDiagonal, KeepsTheFirstLineAndOneBlock) {
    banco::Banco banco;
    auto& f = banco.f();
    f.textoEncastre1 = u"Por longitudes";
    f.textoEncastre2 = u"Por \u00E1ngulo";
    auto& d = banco.objeto(60).info;
    d[59] = u"1";
    d[49] = u"Corte\r\nPor \u00E1ngulo.-\r\n\u00C1ngulo: 30";
    f.describeDiagonal(u"Por longitudes", u"120", 60, u"80", u"144");
    EXPECT_EQ(d[49], u"Corte\r\nPor longitudes.-\r\nL1: 120 - L2: 80 - L3: 144");
    f.describeDiagonal(u"Por \u00E1ngulo", u"45", 60, u"", u"");
    EXPECT_EQ(d[49], u"Corte\r\nPor \u00E1ngulo.-\r\n\u00C1ngulo: 45");
    d[59] = u"0";
    f.describeDiagonal(u"Por longitudes", u"1", 60, u"2", u"3");
    EXPECT_EQ(d[49], u"Corte\r\nPor \u00E1ngulo.-\r\n\u00C1ngulo: 45");
}

TEST(CargaDiagonal, ReadsBackWhatDescribeDiagonalWrote) {
    banco::Banco banco;
    auto& f = banco.f();
    f.textoEncastre1 = u"Por longitudes";
    f.textoEncastre2 = u"Por \u00E1ngulo";
    f.idDiagonal = 60;
    banco.objeto(60).info[59] = u"1";
    banco.objeto(60).info[49] = u"Corte\r\nPor longitudes.-\r\nL1: 120 - L2: 80 - L3: 144";
    f.cargaDiagonal();
    EXPECT_EQ(f.TextValores[0].Text, u"120");
    EXPECT_EQ(f.TextValores[1].Text, u"80");
    EXPECT_EQ(f.TextValores[2].Text, u"144");
    EXPECT_TRUE(f.TextValores[2].Enabled);
    EXPECT_FALSE(f.TextValores[3].Enabled);
    EXPECT_TRUE(f.FormaDiagonal[0].Visible);
}

}  // namespace
