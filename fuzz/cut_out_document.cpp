// The cut-out document (object information 53): whatever the stored text holds, reading it into
// the recess rows (cargaValoresCajeos, after cargaCajeos as the dialog loads it), writing the rows
// back (CadenaCajeos), reading that again and annotating the recess components (anotaCajeos) keep
// their described outcomes.
//
// The dialog has three recesses (rows 0-1, rows 2-3-4, no rows) on the small host of
// FakeDialogo.h. The input is a first byte whose low three bits select the recesses, then
// texts cut at 0xFF: the stored document, the three recess titles and the five row labels.
//
// Properties:
// - a stored text that does not load changes no row; one that loads only puts whole numbers
//   into rows;
// - the written document is "" exactly when no recess is selected; otherwise, when the titles
//   and labels it copies hold none of the format's tags and only characters XML allows ("&",
//   "<" and ">" included), it loads with one CAJEO per selected recess and one PARAM per row of
//   those, and reading it into cleared rows gives back every row value written;
// - anotaCajeos writes only the descriptions (49) of the recess components, keeps what was in
//   front of its block, and a second run changes nothing.
#include <array>

#include "FakeDialogo.h"
#include "FuzzCheck.h"
#include "dialog/TextoCajeos.h"
#include "vb/Conversions.h"

namespace {

using vb::String;

constexpr size_t kRecesses = 3;
constexpr size_t kRows = 5;
const std::array<String, kRecesses> kTags{u"0-1", u"2-3-4", u""};
const std::array<size_t, kRecesses> kFirstRow{0, 2, 5};
const std::array<size_t, kRecesses> kRowsOf{2, 3, 0};
const String kDescription = u"Pilar de obra";

bool allowedInXml(uint32_t c) {
    return c == 0x9 || c == 0xA || c == 0xD || (c >= 0x20 && c <= 0xD7FF) ||
           (c >= 0xE000 && c <= 0xFFFD) || c >= 0x10000;
}

bool holdsTag(const String& text) {
    static const std::array<String, 8> names{u"CAJEOS", u"CAJEO", u"TITULO",   u"PARAM",
                                             u"ETIQ",   u"VALOR", u"VALORMAX", u"INDICE"};
    for (const auto& name : names)
        for (const String& tag : {u"<" + name + u">", u"</" + name + u">"})
            if (vb::InStr(text, tag, vb::Compare::Text) > 0) return true;
    return false;
}

// Whether the writer, which copies texts as they are, can make a document of this text.
bool copiesCleanly(const String& text) {
    if (holdsTag(text)) return false;
    for (size_t i = 0; i < text.size(); ++i) {
        uint32_t c = text[i];
        if (c >= 0xD800 && c <= 0xDBFF && i + 1 < text.size() && text[i + 1] >= 0xDC00 &&
            text[i + 1] <= 0xDFFF) {
            ++i;
            continue;
        }
        if (!allowedInXml(c) || (c >= 0xD800 && c <= 0xDFFF)) return false;
    }
    return true;
}

// The titles of the selected recesses and the labels of their rows copy cleanly.
bool writtenCleanly(const std::vector<String>& t, unsigned selected) {
    for (size_t i = 0; i < kRecesses; ++i) {
        if (((selected >> i) & 1u) == 0) continue;
        if (!copiesCleanly(t[1 + i])) return false;
        for (size_t j = kFirstRow[i]; j < kFirstRow[i] + kRowsOf[i]; ++j)
            if (!copiesCleanly(t[1 + kRecesses + j])) return false;
    }
    return true;
}

void prepare(fakedlg::Banco& banco, const std::vector<String>& t, unsigned selected) {
    auto& f = banco.f();
    for (size_t i = 0; i < kRecesses; ++i) {
        f.listComponentes[4].entries.push_back({t[1 + i], ((selected >> i) & 1u) != 0});
        f.idsListas[4].push_back(static_cast<int32_t>(40 + i));
        banco.mundo.objetos[static_cast<int32_t>(40 + i)].info[49] = kDescription;
    }
    f.EtiqTituloEnc.resize(kRecesses);
    for (size_t i = 0; i < kRecesses; ++i) f.EtiqTituloEnc[i].Tag = kTags[i];
    f.EtiqValorEnc.resize(kRows);
    f.TxtValoresEnc.resize(kRows);
    for (size_t j = 0; j < kRows; ++j) {
        f.EtiqValorEnc[j].Caption = t[1 + kRecesses + j];
        f.TxtValoresEnc[j].Tag = u"100";
    }
    banco.mundo.textos[u"TR_0008"] = u"Encastres de pilar";
}

bool load(fakedlg::Banco& banco, const String& text) {
    auto& mv = common::modVariables();
    mv.docCajeos = dialog::cargaCajeos(banco.plataforma, text);
    return mv.docCajeos->documentElement() != nullptr;
}

std::vector<String> rowTexts(dialog::frmEspEnc& f) {
    std::vector<String> texts;
    for (const auto& box : f.TxtValoresEnc) texts.push_back(box.Text);
    return texts;
}

void checkReading(fakedlg::Banco& banco, const String& stored) {
    auto& f = banco.f();
    const auto before = rowTexts(f);
    const bool loaded = load(banco, stored);
    f.cargaValoresCajeos();
    const auto after = rowTexts(f);
    if (!loaded) FUZZ_CHECK(after == before);
    for (size_t j = 0; j < kRows; ++j) {
        if (after[j] == before[j]) continue;
        const double value = vb::CDbl(vb::Variant(after[j]));
        FUZZ_CHECK(value == static_cast<int32_t>(value) && vb::numberText(value) == after[j]);
    }
}

void checkWriting(fakedlg::Banco& banco, unsigned selected, bool clean) {
    auto& f = banco.f();
    const String written = f.CadenaCajeos();
    FUZZ_CHECK(written.empty() == (selected == 0));
    if (written.empty()) return;
    const bool loaded = load(banco, written);
    if (!clean) return;
    FUZZ_CHECK(loaded);
    size_t recesses = 0, rows = 0;
    for (size_t i = 0; i < kRecesses; ++i) {
        if (((selected >> i) & 1u) == 0) continue;
        ++recesses;
        rows += kRowsOf[i];
    }
    const auto& doc = *common::modVariables().docCajeos;
    FUZZ_CHECK(doc.getElementsByTagName(u"CAJEO").size() == recesses);
    FUZZ_CHECK(doc.getElementsByTagName(u"PARAM").size() == rows);

    const auto values = rowTexts(f);
    for (auto& box : f.TxtValoresEnc) box.Text.clear();
    f.cargaValoresCajeos();
    for (size_t i = 0; i < kRecesses; ++i) {
        if (((selected >> i) & 1u) == 0) continue;
        for (size_t j = kFirstRow[i]; j < kFirstRow[i] + kRowsOf[i]; ++j)
            FUZZ_CHECK(f.TxtValoresEnc[j].Text == values[j]);
    }
}

void checkAnnotation(fakedlg::Banco& banco) {
    auto& f = banco.f();
    const size_t writesBefore = banco.mundo.escrituras.size();
    f.anotaCajeos();
    std::array<String, kRecesses> once;
    for (size_t i = 0; i < kRecesses; ++i) {
        once[i] = banco.mundo.objetos[static_cast<int32_t>(40 + i)].info[49];
        FUZZ_CHECK(once[i].compare(0, kDescription.size(), kDescription) == 0);
    }
    for (size_t w = writesBefore; w < banco.mundo.escrituras.size(); ++w) {
        const auto& [id, code, value] = banco.mundo.escrituras[w];
        FUZZ_CHECK(id >= 40 && id < 40 + static_cast<int32_t>(kRecesses) && code == 49);
    }
    f.anotaCajeos();
    for (size_t i = 0; i < kRecesses; ++i)
        FUZZ_CHECK(banco.mundo.objetos[static_cast<int32_t>(40 + i)].info[49] == once[i]);
}

}  // namespace

extern "C" int LLVMFuzzerTestOneInput(const uint8_t* data, size_t size) {
    if (size == 0) return 0;
    const unsigned selected = data[0] & 7u;
    const auto texts = fuzzcheck::texts(data + 1, size - 1, 1 + kRecesses + kRows);
    fakedlg::Banco banco;
    prepare(banco, texts, selected);
    checkReading(banco, texts[0]);
    checkWriting(banco, selected, writtenCleanly(texts, selected));
    checkAnnotation(banco);
    return 0;
}
