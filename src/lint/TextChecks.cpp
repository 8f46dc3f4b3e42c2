// Keyed texts of table 2 (column 9): a missing message text shows as an empty text, a missing
// caption leaves the designed one, and a few keys steer what the dialog writes.
#include "lint/Reading.h"
#include "lint/TextKeys.h"
#include "vb/Strings.h"

namespace lint {

namespace {

// Why a key gives no text: no line, or a line without column 9; empty when it has a text.
String noText(const Subject& s, const String& key) {
    const sim::TableLine* line = lineByCode(s.table(2), key);
    if (!line) return u"no such line";
    return cell(*line, 9).empty() ? u"the line has no text in column 9" : String();
}

void checkMessage(const Subject& s, const TextKey& key, Report& r) {
    const String why = noText(s, key.key);
    if (!why.empty()) r.finding(2, key.key, why + u", so " + key.shows + u" is empty");
}

// True when the key has no line (told together with the others); an empty text is a finding.
bool checkCaption(const Subject& s, const TextKey& key, Report& r) {
    if (!lineByCode(s.table(2), key.key)) return true;
    const String why = noText(s, key.key);
    if (!why.empty()) r.finding(2, key.key, why + u", so " + key.shows + u" is empty");
    return false;
}

void checkRecessKey(const Subject& s, const TextKey& key, Report& r) {
    if (lineByCode(s.table(2), key.key)) {
        checkCaption(s, key, r);
        return;
    }
    r.finding(2, key.key,
              u"no such line: the dialog then never writes the recess values into the recess "
              u"components' descriptions (information 49), as this line's presence switches "
              u"that on; " +
                  String(key.shows) + u" keeps its designed text");
}

void checkDiagonalKey(const Subject& s, const TextKey& key, Report& r) {
    const String why = noText(s, key.key);
    if (why.empty()) return;
    r.finding(2, key.key,
              why + u": " + key.shows +
                  u" is empty, and with an empty name the dialog never writes such a diagonal "
                  u"into the diagonal component's description (information 49)");
}

// The dialog reads a diagonal back by searching its description for TR_0046's text first.
void checkDiagonalNames(const Subject& s, Report& r) {
    const auto* lengths = lineByCode(s.table(2), u"TR_0046");
    const auto* angle = lineByCode(s.table(2), u"TR_0047");
    if (!lengths || !angle) return;
    const String a = cell(*lengths, 9), b = cell(*angle, 9);
    if (a.empty() || b.empty() || vb::InStr(b, a, vb::Compare::Text) == 0) return;
    r.finding(2, u"TR_0047",
              u"the text of TR_0046, " + quoted(a) + u", is part of this line's text " + quoted(b) +
                  u" (letter case aside): the dialog searches a diagonal's description for "
                  u"TR_0046's text first, so a diagonal given by an angle reads back as one "
                  u"given by lengths");
}

void checkSpecial(const Subject& s, const TextKey& key, Report& r) {
    if (String(key.key) == u"TR_0008") return checkRecessKey(s, key, r);
    checkDiagonalKey(s, key, r);
}

// The keys of the placement messages; every other key is the dialog's.
bool isDialogKey(const String& key) {
    for (const char16_t* own :
         {u"TR_9001", u"TR_9014", u"TR_9015", u"TR_9016", u"TR_9017", u"TR_9021"})
        if (key == own) return false;
    return true;
}

// A catalogue written without the dialog in mind is told so once, not key by key.
bool noDialogTexts(const Subject& s, Report& r) {
    for (const auto& key : textKeys())
        if (isDialogKey(key.key) && lineByCode(s.table(2), key.key)) return false;
    r.finding(2, String(),
              u"none of the special-editing dialog's texts is here (TR_0001 to TR_0047, TR_9003 "
              u"to TR_9020): if the dialog opens on a cabinet of this catalogue, its title and "
              u"messages are empty, its captions stay as designed, and it writes neither recess "
              u"values nor diagonals into the descriptions (information 49)");
    return true;
}

}  // namespace

void checkTexts(const Subject& s, Report& r) {
    const bool dialogTold = noDialogTexts(s, r);
    std::vector<String> captions;
    for (const auto& key : textKeys()) {
        if (dialogTold && isDialogKey(key.key)) continue;
        if (key.use == TextUse::Message) checkMessage(s, key, r);
        if (key.use == TextUse::Special) checkSpecial(s, key, r);
        if (key.use == TextUse::Caption && checkCaption(s, key, r)) captions.push_back(key.key);
    }
    checkDiagonalNames(s, r);
    if (captions.empty()) return;
    r.warning(2, String(),
              String(captions.size() == 1 ? u"no line " : u"no lines ") + joined(captions) +
                  u": these dialog captions keep their designed Spanish text, untranslated");
}

}  // namespace lint
