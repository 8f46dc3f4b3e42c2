#include "sim/SimHost.h"

namespace sim {

Variant SimAppli::StartSessionFromCallParams(int32_t& callParamsBlock) {
    return s_.member(Member::StartSessionFromCallParams, [&] {
        const bool ours = s_.call.spec && callParamsBlock == s_.call.block;
        if (!ours || !s_.call.spec->session) return Variant(int32_t{0});
        return Variant(++s_.sessionsOpened);
    });
}

Variant SimAppli::EndSession(int32_t&) {
    return s_.member(Member::EndSession, [] { return Variant(true); });
}

Variant SimAppli::GetLanguage(int32_t&) {
    return s_.member(Member::GetLanguage, [&] { return Variant(s_.world.application.language); });
}

Variant SimAppli::GetCallParamsInfo(int32_t&, int32_t code) {
    return s_.member(Member::GetCallParamsInfo, [&] {
        constexpr int32_t kAttributeDialog = 9;
        return Variant(code == kAttributeDialog ? s_.attributeDialogHandle() : int32_t{0});
    });
}

Variant SimAppli::InsertMenuItem(int32_t& sessionId, String& command, int16_t a, int16_t b,
                                 const String& text, int16_t c, int16_t d, const String& dll,
                                 const String& className, const String& method) {
    return s_.member(Member::InsertMenuItem, [&] {
        s_.recorder.menuItem(
            Json::array({sessionId, toJsonText(command), a, b, toJsonText(text), c, d,
                         toJsonText(dll), toJsonText(className), toJsonText(method)}));
        return Variant(true);
    });
}

}  // namespace sim
