#pragma once
// The platform of the native shell: the simulated machine's files, the host's attribute dialog
// of the current call, message boxes and beeps recorded in the transcript (boxes are answered
// OK), the module folder and decimal separator of the scenario, and libxml2 documents.
//
// Dir lists a folder's entries in the order they came into being: the scenario's files in the
// order written, then the catalogue files, then what the plug-in created; "." and ".." come
// first in a folder that is not a drive root.
#include "platform/Platform.h"
#include "sim/Player.h"

namespace native {

class SimPlatform : public platform::Platform {
  public:
    explicit SimPlatform(sim::Simulation& simulation) : sim_(simulation) {}

    uint32_t GetPrivateProfileString(const vb::String& section, const vb::String& key,
                                     const vb::String& defaultValue, vb::String& buffer,
                                     uint32_t bufferSize, const vb::String& fileName) override;
    vb::String GetDlgItemText(int32_t dialogHandle, int32_t controlId, int32_t bufferSize) override;
    std::vector<platform::DirEntry> dir(const vb::String& pattern, bool includeFolders) override;
    int64_t fileLength(const vb::String& path) override;
    bool folderExists(const vb::String& path) override;
    void createFolder(const vb::String& path) override;
    std::vector<vb::String> readTextLines(const vb::String& path) override;
    void messageBox(const vb::String& text, const vb::String& caption,
                    platform::MsgIcon icon) override;
    void beep() override;
    vb::String moduleFolder() override;
    char16_t decimalSeparator() override;
    std::unique_ptr<platform::XmlDocument> createXmlDocument() override;

  private:
    sim::Simulation& sim_;
};

// The lines of a text as Line Input reads them (CR LF, LF or CR end a line).
std::vector<vb::String> splitLines(const vb::String& text);

}  // namespace native
