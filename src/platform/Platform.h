#pragma once
// What the plug-in asks of the operating system. The Windows shell implements it over Win32;
// the native shell over the simulated host's virtual Windows file system.
#include <cstdint>
#include <memory>
#include <vector>

#include "platform/XmlDocument.h"
#include "vb/Variant.h"

namespace platform {

using vb::String;

enum class MsgIcon { None, Information, Critical };

struct DirEntry {
    String name;
    bool isFolder = false;
};

// The component's title: the caption of message boxes shown with the default caption.
inline const String kTituloComponente = u"Quorbel";

class Platform {
  public:
    virtual ~Platform() = default;

    // GetPrivateProfileStringA: sections and keys match without regard to case; at most
    // bufferSize - 1 characters of the value (or the default) go into `buffer`; returns their
    // number.
    virtual uint32_t GetPrivateProfileString(const String& section, const String& key,
                                             const String& defaultValue, String& buffer,
                                             uint32_t bufferSize, const String& fileName) = 0;

    // GetDlgItemTextA with a buffer of bufferSize characters (at most bufferSize - 1 returned).
    virtual String GetDlgItemText(int32_t dialogHandle, int32_t controlId, int32_t bufferSize) = 0;

    // VB's Dir: `pattern` is a folder ending in "\" (all its entries, "." and ".." included
    // for a folder that is not a drive root) or a file path (that file, when it exists).
    // Folders are listed only when includeFolders. Raises vb::RuntimeError for a bad path.
    virtual std::vector<DirEntry> dir(const String& pattern, bool includeFolders) = 0;

    // VB's FileLen: raises vb::RuntimeError 53 when the file cannot be measured.
    virtual int64_t fileLength(const String& path) = 0;

    virtual bool folderExists(const String& path) = 0;
    // VB's MkDir: one level; raises vb::RuntimeError (75 or 76) on failure.
    virtual void createFolder(const String& path) = 0;

    // The lines of a text file opened for input (CR LF, LF or CR end a line); raises
    // vb::RuntimeError 53 when the file cannot be opened.
    virtual std::vector<String> readTextLines(const String& path) = 0;

    // A modal message box with an OK button; returns when the user has answered.
    virtual void messageBox(const String& text, const String& caption, MsgIcon icon) = 0;
    virtual void beep() = 0;

    // The folder that holds the plug-in's DLL, without a trailing backslash (App.Path).
    virtual String moduleFolder() = 0;

    // The user's decimal separator, for converting text to numbers.
    virtual char16_t decimalSeparator() = 0;

    virtual std::unique_ptr<XmlDocument> createXmlDocument() = 0;

    // VB's Environ: the value of one of the process's environment variables, empty when it is
    // not set. A shell without a process environment of its own leaves it empty.
    virtual String environmentVariable(const String& /*name*/) { return String(); }
};

}  // namespace platform
