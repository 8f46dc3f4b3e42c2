#pragma once
// Where a placement reads each kind's MO_ and EX_ line, worked out from the rules' own decision
// tables (rules/TablasDecision.h), so that what a check says and what the rules do cannot
// drift apart.
#include <cstdint>
#include <vector>

#include "lint/Reading.h"

namespace lint {

enum class Decision { Exceptions, Permissions };

// One row of a decision table that reads a kind's line: its measure and its place in the table.
struct Use {
    int32_t measure;  // information 12, 13 or 14
    size_t row;
};

// The rows that read kind k's line (its exception list, or its permission).
std::vector<Use> usesOf(Decision table, int k);
// "the width when a child of the cabinet carries "EA_" (unless ...)": the row's exact condition,
// with the earlier rows that would decide first.
String describeUse(Decision table, const Use& use);
String describeUses(Decision table, const std::vector<Use>& uses);  // joined with "; and "

// The kind's own change: exactly its measures differ, on a cabinet whose only marker child is
// the kind's. What each of those measures reads (a kind, or none / the change stays).
struct Read {
    int32_t measure;
    int value;
};
std::vector<Read> ownChange(Decision table, int k);
// Every measure of the kind's own change reads the kind's own line.
bool readsAsWritten(Decision table, int k);
// "a change of the height on a cabinet with an "EAl_" child searches EX_EA for the height"
String describeOwnChange(Decision table, int k);

// The rows that read kind k's line outside its own change, and the marker each of them needs
// (a kind; the height marker for a row that asks whether one was ever found).
std::vector<Use> otherUses(Decision table, int k);
int markerOf(Decision table, const Use& use);

// What it means that no door model is permitted a kind (no line, an empty one): where a
// placement then refuses, and what the dialog then offers.
String nonePermitted(const Kind& kind);

}  // namespace lint
