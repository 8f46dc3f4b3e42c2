#include "lint/Reading.h"

#include "rules/ExplicaDimension.h"
#include "rules/Modelos.h"
#include "vb/Strings.h"

namespace lint {

const std::array<Kind, 7>& kinds() {
    static const std::array<Kind, 7> all = [] {
        constexpr const char16_t* kNames[] = {u"width",
                                              u"height",
                                              u"depth",
                                              u"width and height",
                                              u"width and depth",
                                              u"height and depth",
                                              u"width, height and depth"};
        std::array<Kind, 7> out;
        for (int k = 0; k < 7; ++k)
            out[k] = {k,
                      rules::codigoMO(k),
                      rules::codigoEX(k),
                      rules::nombreTipo(k),
                      rules::prefijoTipo(k),
                      kNames[k]};
        return out;
    }();
    return all;
}

String cell(const sim::TableLine& line, int column) {
    const auto it = line.cols.find(column);
    return it == line.cols.end() ? String() : it->second;
}

const sim::TableLine* lineByCode(const sim::Table* table, const String& code) {
    return table ? table->line(table->rankFromCode(code)) : nullptr;
}

const sim::TableLine* lineByName(const sim::Table* table, const String& name) {
    return table ? table->line(table->rankFromName(name)) : nullptr;
}

std::vector<const sim::TableLine*> linesOf(const sim::Table* table) {
    std::vector<const sim::TableLine*> lines;
    for (int32_t rank = 1; table && rank <= table->size(); ++rank)
        lines.push_back(table->line(rank));
    return lines;
}

bool RuleText::emptyPiecesAfterFirst() const {
    for (size_t i = 1; i < pieces.size(); ++i)
        if (pieces[i].empty()) return true;
    return false;
}

std::vector<String> RuleText::named() const {
    std::vector<String> out;
    for (const auto& piece : pieces)
        if (!piece.empty()) out.push_back(piece);
    return out;
}

RuleText readRule(const String& text) {
    const rules::ReglaLeida read = rules::leeRegla(text);
    return {text.substr(0, 3), read.resto, read.piezas, read.todos};
}

bool isDoorModel(const sim::TableLine& line) {
    return rules::modeloValido(cell(line, 3), cell(line, 1), cell(line, 4));
}

String modelPlace(const sim::TableLine& line) {
    return line.code.empty() ? u"(no code, model " + quoted(cell(line, 3)) + u")" : line.code;
}

std::vector<String> doorModels(const sim::Table* table8) {
    std::vector<String> names;
    for (const auto* line : linesOf(table8))
        if (isDoorModel(*line)) names.push_back(cell(*line, 3));
    return names;
}

rules::NombreDeCodigo modelNameOf(const sim::Table* table8) {
    return [table8](const String& code) -> std::optional<String> {
        const sim::TableLine* line = lineByCode(table8, code);
        if (!line) return std::nullopt;
        return cell(*line, 3);
    };
}

std::optional<String> ruleOf(const Subject& s, const Kind& kind) {
    const sim::TableLine* line = lineByCode(s.table(2), kind.permission);
    if (!line) return std::nullopt;
    return cell(*line, 2);
}

bool permits(const Subject& s, const Kind& kind, const String& model) {
    return rules::reglaPermite(ruleOf(s, kind), model, true, modelNameOf(s.table(8)));
}

namespace {

// "C:\Cat\Cocinas\cocinas.cat" -> "cocinas"
String fileStem(const String& path) {
    const size_t slash = path.find_last_of(u"\\/");
    String name = slash == String::npos ? path : path.substr(slash + 1);
    const size_t dot = name.find_last_of(u'.');
    return dot == String::npos ? name : name.substr(0, dot);
}

}  // namespace

std::vector<const sim::SceneObject*> cabinetsOf(const Subject& s) {
    const String stem = fileStem(s.catalog.path);
    std::vector<const sim::SceneObject*> found;
    for (const int32_t id : s.world.scene.order()) {
        const sim::SceneObject* object = s.world.scene.find(id);
        if (object && vb::equalText(info(*object, 0), stem)) found.push_back(object);
    }
    return found;
}

String info(const sim::SceneObject& object, int code) {
    const auto it = object.info.find(code);
    return it == object.info.end() ? String() : it->second;
}

String quoted(const String& text) {
    return u"\"" + text + u"\"";
}

String number(long n) {
    return vb::fromUtf8(std::to_string(n));
}

String joined(const std::vector<String>& items) {
    String out;
    for (size_t i = 0; i < items.size(); ++i) out += (i ? u", " : u"") + items[i];
    return out;
}

String joinedQuoted(const std::vector<String>& items) {
    std::vector<String> q;
    for (const auto& item : items) q.push_back(quoted(item));
    return joined(q);
}

}  // namespace lint
