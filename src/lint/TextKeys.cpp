#include "lint/TextKeys.h"

#include "lint/Reading.h"

namespace lint {

namespace {

constexpr auto M = TextUse::Message;
constexpr auto C = TextUse::Caption;
constexpr auto S = TextUse::Special;

}  // namespace

const std::vector<TextKey>& textKeys() {
    static const std::vector<TextKey> keys = {
        {u"TR_9001", M, u"the caption of every message of the rules and of the dialog"},
        {u"TR_9014", M, u"the message when two or three changed measures are refused"},
        {u"TR_9015", M, u"the message when one changed measure is refused"},
        {u"TR_9016", M,
         u"the second line of the refused-measures message when a cabinet is placed or finished"},
        {u"TR_9017", M, u"the first line of the summary of a scene-wide check"},
        {u"TR_9021", M, u"the notice for door models of the ST programme"},
        {u"TR_9003", M, u"the dialog's message when a special measure was left unchanged"},
        {u"TR_9004", M, u"the caption of the dialog's message about unchanged measures"},
        {u"TR_9006", M, u"the caption of the dialog's message about recess values"},
        {u"TR_9007", M, u"the caption of the dialog's message about diagonal values"},
        {u"TR_9010", M, u"the dialog's message when a recess value is above its maximum"},
        {u"TR_9011", M, u"the dialog's message when a recess value is missing"},
        {u"TR_9018", M, u"the start of the dialog's line for a width out of its limits"},
        {u"TR_9019", M, u"the start of the dialog's line for a height out of its limits"},
        {u"TR_9020", M, u"the start of the dialog's line for a depth out of its limits"},
        {u"TR_0001", M, u"the dialog's title before the cabinet's reference"},
        {u"TR_0009", M, u"the width's name in the dialog's message about unchanged measures"},
        {u"TR_0010", M, u"the height's name in the dialog's message about unchanged measures"},
        {u"TR_0011", M, u"the depth's name in the dialog's message about unchanged measures"},
        {u"TR_0008", S, u"the heading \"Encastres de pilar\""},
        {u"TR_0046", S, u"the name of a diagonal given by lengths"},
        {u"TR_0047", S, u"the name of a diagonal given by an angle"},
        {u"TR_0002", C, u"the caption \"Costados\""},
        {u"TR_0003", C, u"the caption \"Frentes\""},
        {u"TR_0004", C, u"the caption \"Equip. interior\""},
        {u"TR_0005", C, u"the caption \"Otros\""},
        {u"TR_0006", C, u"the caption \"Tipos de especiales\""},
        {u"TR_0007", C, u"the caption \"Diagonales\""},
        {u"TR_0012", C, u"the caption \"ANCHO - ALTO\""},
        {u"TR_0013", C, u"the caption \"ANCHO - FONDO\""},
        {u"TR_0014", C, u"the caption \"ALTO - FONDO\""},
        {u"TR_0015", C, u"the caption \"ANCHO - ALTO - FONDO\""},
        {u"TR_0016", C, u"the caption \"Medidas\""},
        {u"TR_0017", C, u"the caption \"Ancho:\""},
        {u"TR_0018", C, u"the caption \"Alto:\""},
        {u"TR_0019", C, u"the caption \"Fondo:\""},
        {u"TR_0021", C, u"the caption \"Cancelar valores\""},
        {u"TR_0022", C, u"the instruction for the special types"},
        {u"TR_0023", C, u"the instruction for the diagonal"},
        {u"TR_0024", C, u"the caption \"No Disponible\""},
        {u"TR_0027", C, u"the caption of the accept button"},
        {u"TR_0028", C, u"the caption \"Salir sin guardar\""},
        {u"TR_0037", C, u"the caption \"Vista previa:\""},
        {u"TR_0038", C, u"the caption \"Valores:\""},
        {u"TR_0043", C, u"the diagonal instruction of a cabinet without a diagonal"},
        {u"TR_0044", C, u"the caption \"Medidas por defecto\""},
    };
    return keys;
}

const std::vector<String>& codesRead() {
    static const std::vector<String> codes = [] {
        std::vector<String> all;
        for (const auto& kind : kinds()) {
            all.push_back(kind.permission);
            all.push_back(kind.exception);
        }
        for (const auto& key : textKeys()) all.push_back(key.key);
        return all;
    }();
    return codes;
}

}  // namespace lint
