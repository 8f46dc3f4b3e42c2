#pragma once
// The support trace of the DLL: when QUORBEL_TRACE names a file, each entry-point call appends a
// header line and the decisions the rules took during it, one per line (UTF-8). The file is opened
// for each call and never makes a call fail: what cannot be written is left out.
#include <windows.h>

#include <source_location>
#include <string>
#include <vector>

#include "common/Explicacion.h"

namespace quorbel {

// The trace file QUORBEL_TRACE named when the DLL was loaded; empty: no trace.
const std::wstring& traceFilePath();

// Listens to one call's decisions while it lives, when a trace file is set.
class CallTrace : public common::Explicacion {
  public:
    CallTrace(const char* className, const std::source_location& where) noexcept;
    ~CallTrace() override;
    CallTrace(const CallTrace&) = delete;
    CallTrace& operator=(const CallTrace&) = delete;

    void decision(const vb::String& texto) override;
    // Appends the call to the file, with how it ended.
    void finish(HRESULT result) noexcept;

  private:
    std::string header_;
    std::vector<vb::String> lines_;
    common::ExplicacionActiva listening_;
};

// "Plugin.OnObjectPlaceAfter" from a COM method's source location.
std::string entryName(const char* className, const char* functionName);

}  // namespace quorbel
