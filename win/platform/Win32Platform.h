#pragma once
// platform::Platform over the Win32 API.
#include <windows.h>

#include "platform/Platform.h"

namespace quorbel {

class Win32Platform : public platform::Platform {
  public:
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
    vb::String environmentVariable(const vb::String& name) override;

    // While the dialog is open its message boxes are owned by it; null: the active window.
    void setMessageBoxOwner(HWND owner) { messageBoxOwner_ = owner; }

  private:
    HWND messageBoxOwner_ = nullptr;
};

}  // namespace quorbel
