#include "host/CachedHost.h"

namespace host {

Variant CachedAppli::StartSessionFromCallParams(int32_t& callParamsBlock) {
    cache_->clear();
    return inner_->StartSessionFromCallParams(callParamsBlock);
}

Variant CachedAppli::EndSession(int32_t& sessionId) {
    cache_->clear();
    return inner_->EndSession(sessionId);
}

Variant CachedAppli::GetLanguage(int32_t& sessionId) {
    // Kept with the scene's answers, and forgotten with them when the plug-in writes.
    return cache_->read(&cache_->scene(), NumKey{Member::GetLanguage},
                        [&] { return inner_->GetLanguage(sessionId); });
}

Variant CachedAppli::GetCallParamsInfo(int32_t& sessionId, int32_t code) {
    return inner_->GetCallParamsInfo(sessionId, code);
}

Variant CachedAppli::InsertMenuItem(int32_t& sessionId, String& command, int16_t a, int16_t b,
                                    const String& text, int16_t c, int16_t d, const String& dll,
                                    const String& className, const String& method) {
    return inner_->InsertMenuItem(sessionId, command, a, b, text, c, d, dll, className, method);
}

}  // namespace host
