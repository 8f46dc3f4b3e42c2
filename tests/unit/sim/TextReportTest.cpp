// The person's view of a transcript: boxes, writes, errors and snapshots.
#include <gtest/gtest.h>

#include "sim/Recorder.h"
#include "sim/TextReport.h"

namespace {

TEST(TextReport, DrawsEachCallForAPerson) {
    sim::Recorder recorder;
    recorder.beginCall("Plugin", "OnObjectPlaceAfter");
    recorder.messageBox(u"Línea uno\r\nDos", u"¡¡Atención!!", sim::BoxIcon::Critical);
    recorder.setInfo(100, 12, u"600");
    dialog::Snapshot snap{u"Especiales", {}};
    dialog::ControlElement list;
    list.entries = std::vector<dialog::ListEntry>{{u"Costado", true}};
    list.listIndex = 0;
    snap.controls.push_back({u"listComponentes", {list}});
    recorder.snapshot(snap);
    recorder.hostCall("ObjectSetInfo");
    recorder.endCall(true, nullptr);
    recorder.beginCall("Wizard", "casoXey");
    recorder.endCall(nullptr, {{"number", 13}, {"description", "Type mismatch"}});
    const std::string text =
        sim::textReport(recorder.transcript(sim::Json::object(), sim::Json::array()));
    EXPECT_EQ(text,
              "Plugin.OnObjectPlaceAfter -> true\n"
              "  +-- ¡¡Atención!! --+\n"
              "  | (X) Línea uno    |\n"
              "  |     Dos          |\n"
              "  +------------------+\n"
              "  object 100: info 12 <- \"600\"\n"
              "  snapshot of \"Especiales\":\n"
              "      listComponentes(0): listIndex 0\n"
              "        [x] Costado\n"
              "  host calls: ObjectSetInfo 1\n"
              "\n"
              "Wizard.casoXey -> error 13: Type mismatch\n"
              "\n"
              "Objects after the last call:\n"
              "Files created: none\n");
}

}  // namespace
