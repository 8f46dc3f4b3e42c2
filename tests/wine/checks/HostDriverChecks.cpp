// Checks of the Windows test host's own parts, run under Wine: the argument shapes the
// simulated host objects accept, binding by name, counting and recording through the sim's
// recorder, the scenario arguments as VARIANTs, and failed calls as VB errors. Prints one line per
// failed check and a summary; exits 1 when any failed.
#include <cstdio>
#include <string>
#include <vector>

#include "ComArguments.h"
#include "HostObjects.h"
#include "Machine.h"
#include "SimDispatch.h"
#include "host/AutomationError.h"
#include "sim/Player.h"
#include "vb/Errors.h"

namespace {

int failed = 0;
int passed = 0;

void expect(bool ok, const std::string& what) {
    ok ? ++passed : ++failed;
    if (!ok) std::printf("FAIL %s\n", what.c_str());
}

VARIANT variant(VARTYPE vt) {
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = vt;
    return v;
}

void shapesAreChecked() {
    using hostdriver::Shape;
    static LONG session = 1;
    static BSTR text = nullptr;
    VARIANT byRefLong = variant(VT_I4 | VT_BYREF);
    V_I4REF(&byRefLong) = &session;
    VARIANT byRefText = variant(VT_BSTR | VT_BYREF);
    V_BSTRREF(&byRefText) = &text;
    VARIANT trueBool = variant(VT_BOOL);
    V_BOOL(&trueBool) = VARIANT_TRUE;
    VARIANT oneBool = variant(VT_BOOL);
    V_BOOL(&oneBool) = 1;
    struct Case {
        const char* name;
        Shape shape;
        VARIANT value;
        bool fits;
    };
    const Case cases[] = {
        {"session by reference", Shape::SessionRef, byRefLong, true},
        {"session by value", Shape::SessionRef, variant(VT_I4), false},
        {"session as a variant reference", Shape::SessionRef, variant(VT_VARIANT | VT_BYREF),
         false},
        {"long", Shape::Long, variant(VT_I4), true},
        {"long given as 16-bit", Shape::Long, variant(VT_I2), false},
        {"16-bit integer", Shape::Int, variant(VT_I2), true},
        {"16-bit integer given as long", Shape::Int, variant(VT_I4), false},
        {"OLE true", Shape::Bool, trueBool, true},
        {"OLE false", Shape::Bool, variant(VT_BOOL), true},
        {"boolean 1 is no OLE boolean", Shape::Bool, oneBool, false},
        {"boolean given as long", Shape::Bool, variant(VT_I4), false},
        {"string", Shape::Str, variant(VT_BSTR), true},
        {"string by reference where by value", Shape::Str, byRefText, false},
        {"string by reference", Shape::StrRef, byRefText, true},
        {"string by value where by reference", Shape::StrRef, variant(VT_BSTR), false},
    };
    for (const Case& c : cases) {
        VARIANT args[2] = {c.value, variant(VT_I4)};  // last first: the checked one is the last
        DISPPARAMS params{args, nullptr, 2, 0};
        const int bad = hostdriver::mismatchedArgument(params, {Shape::Long, c.shape});
        expect((bad == -1) == c.fits, std::string("shape: ") + c.name);
        if (!c.fits) expect(bad == 0, std::string("mismatch index: ") + c.name);
    }
}

sim::World smallWorld() {
    sim::World world;
    world.scene.add(100).info[12] = u"650";
    return world;
}

HRESULT invoke(IDispatch* object, const wchar_t* member, std::vector<VARIANT> lastFirst,
               VARIANT* result, UINT* argErr = nullptr) {
    DISPID id = DISPID_UNKNOWN;
    LPOLESTR name = const_cast<LPOLESTR>(member);
    const HRESULT found = object->GetIDsOfNames(IID_NULL, &name, 1, 0, &id);
    if (FAILED(found)) return found;
    DISPPARAMS params{lastFirst.data(), nullptr, static_cast<UINT>(lastFirst.size()), 0};
    EXCEPINFO excep{};
    UINT err = 0;
    return object->Invoke(id, IID_NULL, 0, DISPATCH_METHOD, &params, result, &excep,
                          argErr ? argErr : &err);
}

void hostObjectsBindAndRecord() {
    sim::Simulation simulation(smallWorld());
    auto& recorder = simulation.recorder();
    IDispatch* scene = hostdriver::createHostObject(L"pelmora.scene", simulation.state());
    expect(scene != nullptr, "ProgIDs match without regard to case");
    expect(hostdriver::progIdOf(scene) == L"Pelmora.Scene", "the object's ProgID is known");
    expect(!hostdriver::createHostObject(L"Pelmora.Other", simulation.state()), "unknown ProgID");
    if (!scene) return;
    recorder.beginCall("Plugin", "Test");
    LONG session = 1;
    VARIANT s = variant(VT_I4 | VT_BYREF);
    V_I4REF(&s) = &session;
    VARIANT id = variant(VT_I4), code = variant(VT_I4);
    V_I4(&id) = 100;
    V_I4(&code) = 12;
    VARIANT result;
    VariantInit(&result);
    expect(invoke(scene, L"OBJECTGETINFO", {code, id, s}, &result) == S_OK,
           "member names ignore case");
    expect(V_VT(&result) == VT_BSTR && std::wstring(V_BSTR(&result)) == L"650",
           "ObjectGetInfo answers the object's information");
    VariantClear(&result);
    UINT argErr = 99;
    expect(invoke(scene, L"ObjectGetInfo", {code, id, variant(VT_I4)}, &result, &argErr) ==
                   DISP_E_TYPEMISMATCH &&
               argErr == 2,
           "a session id by value is refused, pointing at the first argument");
    expect(invoke(scene, L"ObjectGetInfo", {code, id}, &result) == DISP_E_BADPARAMCOUNT,
           "a missing argument is refused");
    expect(invoke(scene, L"ObjectGetColour", {s}, &result) == DISP_E_UNKNOWNNAME,
           "an unknown member is refused");
    recorder.endCall(nullptr, nullptr);
    const auto& counts = recorder.calls()[0]["hostCalls"];
    expect(counts.size() == 1 && counts["ObjectGetInfo"] == 1,
           "only the calls that reached the host are counted");
    scene->Release();
}

void menuItemKeepsItsCommand() {
    sim::Simulation simulation(smallWorld());
    IDispatch* appli = hostdriver::createHostObject(L"Pelmora.Appli", simulation.state());
    simulation.recorder().beginCall("Plugin", "OnAppStartAfter");
    LONG session = 3;
    BSTR command = SysAllocString(L"ViewRefresh");
    std::vector<VARIANT> args;  // last first
    const wchar_t* texts[] = {L"SceneCheck", L"Plugin", L"Quorbel.dll"};
    for (const wchar_t* t : texts) {
        VARIANT v = variant(VT_BSTR);
        V_BSTR(&v) = SysAllocString(t);
        args.push_back(v);
    }
    for (short n : {10, 8}) {
        VARIANT v = variant(VT_I2);
        V_I2(&v) = n;
        args.push_back(v);
    }
    VARIANT empty = variant(VT_BSTR);
    V_BSTR(&empty) = SysAllocString(L"");
    args.push_back(empty);
    args.push_back(variant(VT_I2));
    args.push_back(variant(VT_I2));
    VARIANT ref = variant(VT_BSTR | VT_BYREF);
    V_BSTRREF(&ref) = &command;
    args.push_back(ref);
    VARIANT s = variant(VT_I4 | VT_BYREF);
    V_I4REF(&s) = &session;
    args.push_back(s);
    VARIANT result;
    VariantInit(&result);
    expect(invoke(appli, L"InsertMenuItem", args, &result) == S_OK, "InsertMenuItem is accepted");
    expect(std::wstring(command) == L"ViewRefresh", "the command by reference comes back");
    simulation.recorder().endCall(nullptr, nullptr);
    const auto& event = simulation.recorder().calls()[0]["events"][0];
    expect(event["type"] == "menuItem" && event["args"][0] == 3 && event["args"][5] == 8 &&
               event["args"][9] == "SceneCheck",
           "the menu item is recorded with its arguments in order");
    SysFreeString(command);
    appli->Release();
}

void scenarioArgumentsConvert() {
    using hostdriver::ParamType;
    const std::vector<ParamType> types = {{VT_BSTR, true}, {VT_I2, true}, {VT_BOOL, true}};
    hostdriver::ComArguments args(sim::Json::array({12, "7", "True"}), types);
    DISPPARAMS params = args.params();
    expect(params.cArgs == 3 && V_VT(&params.rgvarg[2]) == (VT_BSTR | VT_BYREF) &&
               V_VT(&params.rgvarg[0]) == (VT_BOOL | VT_BYREF),
           "arguments go by reference with their parameter's type, last first");
    expect(args.readBack() == sim::Json::array({"12", 7, true}),
           "by-reference values read back as the native runner writes them");
    int number = 0;
    try {
        hostdriver::ComArguments overflow(sim::Json::array({"x", 70000, false}), types);
    } catch (const vb::RuntimeError& e) {
        number = e.number();
    }
    expect(number == vb::err::kOverflow, "a 16-bit argument out of range overflows");
}

// The plug-in reads the separator with GetLocaleInfoW: it must see what the scenario set.
void decimalSeparatorReachesTheLocale() {
    for (const char16_t separator : {u',', u'.'}) {
        hostdriver::setUserDecimalSeparator(separator);
        wchar_t read[8] = {0};
        GetLocaleInfoW(LOCALE_USER_DEFAULT, LOCALE_SDECIMAL, read, 8);
        expect(read[0] == static_cast<wchar_t>(separator) && read[1] == 0,
               std::string("decimal separator ") + static_cast<char>(separator));
    }
}

// Failed late-bound calls map to VB's errors the same way in the DLL and in the test host.
void automationFailuresMapToVbErrors() {
    struct Case {
        const char* name;
        HRESULT hr;
        HRESULT scode;
        WORD wCode;
        const wchar_t* description;
        int number;
        const char16_t* expected;
    };
    const HRESULT vbOverflow = MAKE_HRESULT(1, FACILITY_CONTROL, 6);
    const Case cases[] = {
        {"a VB component's error", DISP_E_EXCEPTION, vbOverflow, 0, L"Too big", 6, u"Too big"},
        {"its standard text when it gives none", DISP_E_EXCEPTION, vbOverflow, 0, nullptr, 6,
         u"Overflow"},
        {"wCode wins", DISP_E_EXCEPTION, 0, 1001, L"Mine", 1001, u"Mine"},
        {"a standard code in scode", DISP_E_EXCEPTION, DISP_E_TYPEMISMATCH, 0, nullptr, 13,
         u"Type mismatch"},
        {"any other scode", DISP_E_EXCEPTION, E_FAIL, 0, L"Failed", 440, u"Failed"},
        {"no code at all", DISP_E_EXCEPTION, 0, 0, nullptr, 440, u"Automation error"},
        {"type mismatch", DISP_E_TYPEMISMATCH, 0, 0, nullptr, 13, u"Type mismatch"},
        {"overflow", DISP_E_OVERFLOW, 0, 0, nullptr, 6, u"Overflow"},
        {"argument count", DISP_E_BADPARAMCOUNT, 0, 0, nullptr, 450,
         u"Wrong number of arguments or invalid property assignment"},
        {"argument missing", DISP_E_PARAMNOTOPTIONAL, 0, 0, nullptr, 449, u"Argument not optional"},
        {"no such member", DISP_E_MEMBERNOTFOUND, 0, 0, nullptr, 438,
         u"Object doesn't support this property or method"},
        {"out of memory", E_OUTOFMEMORY, 0, 0, nullptr, 7, u"Out of memory"},
        {"other failures", E_FAIL, 0, 0, nullptr, 440, u"Automation error"},
    };
    for (const Case& c : cases) {
        EXCEPINFO excep{};
        excep.scode = c.scode;
        excep.wCode = c.wCode;
        excep.bstrDescription = c.description ? SysAllocString(c.description) : nullptr;
        const vb::RuntimeError e = quorbel::automationError(c.hr, excep);
        expect(e.number() == c.number && e.description() == c.expected,
               std::string("automation error: ") + c.name);
        expect(!excep.bstrDescription, std::string("description freed: ") + c.name);
    }
}

}  // namespace

int main() {
    CoInitializeEx(nullptr, COINIT_APARTMENTTHREADED);
    shapesAreChecked();
    hostObjectsBindAndRecord();
    menuItemKeepsItsCommand();
    scenarioArgumentsConvert();
    decimalSeparatorReachesTheLocale();
    automationFailuresMapToVbErrors();
    CoUninitialize();
    std::printf("%d passed, %d failed\n", passed, failed);
    return failed == 0 ? 0 : 1;
}
