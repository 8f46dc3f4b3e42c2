#pragma once
// A catalogue as the rules read it, for every check: the seven kinds and their codes, the rule
// texts of table 2, table-8 door models, and the scene's cabinets. The reading itself is the
// rules' own (rules/LecturaReglas.h); this only adds where a check names things.
#include <array>
#include <optional>
#include <vector>

#include "lint/Checks.h"
#include "rules/LecturaReglas.h"

namespace lint {

struct Kind {
    int index;
    String permission;  // MO_ code
    String exception;   // EX_ code
    String type;        // the dialog's name of the type: ANCHO ...
    String marker;      // the marker prefix of its child: "EA_" ...
    String name;        // in an author's words
};
const std::array<Kind, 7>& kinds();

String cell(const sim::TableLine& line, int column);  // "" for a missing column
const sim::TableLine* lineByCode(const sim::Table* table, const String& code);
const sim::TableLine* lineByName(const sim::Table* table, const String& name);
// Every line of the table in rank order (none for a missing table).
std::vector<const sim::TableLine*> linesOf(const sim::Table* table);

// A rule text of an MO_ or EX_ line as the rules take it apart: the first three characters
// are skipped and the rest is split at every blank, empty pieces kept.
struct RuleText {
    String skipped;  // the three characters the rules skip, for the messages
    String rest;
    std::vector<String> pieces;
    bool all = false;  // " ALL": every door model

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
// Table 8 as the rules look a listed code up: the model name of the line with that code.
rules::NombreDeCodigo modelNameOf(const sim::Table* table8);
// The rule text of a kind's MO_ line (column 2); nothing when table 2 has no such line.
std::optional<String> ruleOf(const Subject& s, const Kind& kind);
// permisosModelo(model, kind) as a placement's preparation fills it.
bool permits(const Subject& s, const Kind& kind, const String& model);

// Scene objects of this catalogue: their information 0 is the catalogue's file name without
// folder and extension (compared without case).
std::vector<const sim::SceneObject*> cabinetsOf(const Subject& s);
String info(const sim::SceneObject& object, int code);

String quoted(const String& text);                // "text"
String number(long n);                            // 12
String joined(const std::vector<String>& items);  // a, b, c
String joinedQuoted(const std::vector<String>& items);

}  // namespace lint
