#pragma once
// How the rules read a catalogue, written once for every check: the seven kinds and their
// codes, the rule texts of table 2, table-8 door models, and the scene's cabinets.
#include <array>
#include <vector>

#include "lint/Checks.h"

namespace lint {

struct Kind {
    const char16_t* permission;  // MO_ code
    const char16_t* exception;   // EX_ code
    const char16_t* name;        // in an author's words
};
extern const std::array<Kind, 7> kKinds;

String cell(const sim::TableLine& line, int column);  // "" for a missing column
const sim::TableLine* lineByCode(const sim::Table* table, const String& code);
const sim::TableLine* lineByName(const sim::Table* table, const String& name);
// Every line of the table in rank order (none for a missing table).
std::vector<const sim::TableLine*> linesOf(const sim::Table* table);

// A rule text of an MO_ or EX_ line as the rules take it apart: the first three characters
// are skipped and the rest is split at every blank, empty pieces kept.
struct RuleText {
    String skipped;
    String rest;
    std::vector<String> pieces;

    bool blankFourth() const { return !rest.empty() && rest[0] == u' '; }
    bool emptyPiecesAfterFirst() const;
    std::vector<String> named() const;  // the pieces that are not empty
};
RuleText readRule(const String& text);

// modeloValido: a name that does not begin with "@" and a script in column 4.
bool isDoorModel(const sim::TableLine& line);
// A table-8 line in a finding's place: its code, or its model name when it has no code.
String modelPlace(const sim::TableLine& line);
// The door-model names of table 8 in line order, as the rules collect them.
std::vector<String> doorModels(const sim::Table* table8);

// Scene objects of this catalogue: their information 0 is the catalogue's file name without
// folder and extension (compared without case).
std::vector<const sim::SceneObject*> cabinetsOf(const Subject& s);
String info(const sim::SceneObject& object, int code);

String quoted(const String& text);                // "text"
String number(long n);                            // 12
String joined(const std::vector<String>& items);  // a, b, c
String joinedQuoted(const std::vector<String>& items);

}  // namespace lint
