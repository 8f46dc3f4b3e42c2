#include "native/SimPlatform.h"

#include "native/DirListing.h"
#include "native/IniProfile.h"
#include "native/XmlDocumentLibxml.h"
#include "vb/Errors.h"

namespace native {

using vb::String;

uint32_t SimPlatform::GetPrivateProfileString(const String& section, const String& key,
                                              const String& defaultValue, String& buffer,
                                              uint32_t bufferSize, const String& fileName) {
    const String* content = sim_.world().files.fileContent(fileName);
    const auto value = content ? iniValue(*content, section, key) : std::nullopt;
    buffer = profileAnswer(value, defaultValue, bufferSize);
    return static_cast<uint32_t>(buffer.size());
}

String SimPlatform::GetDlgItemText(int32_t dialogHandle, int32_t controlId, int32_t bufferSize) {
    const String* text = sim_.state().attributeDialogText(dialogHandle, controlId);
    if (!text || bufferSize <= 0) return String();
    return text->substr(0, static_cast<size_t>(bufferSize - 1));
}

std::vector<platform::DirEntry> SimPlatform::dir(const String& pattern, bool includeFolders) {
    return dirEntries(sim_.world().files, pattern, includeFolders);
}

int64_t SimPlatform::fileLength(const String& path) {
    const auto size = sim_.world().files.fileSize(path);
    if (!size) throw vb::RuntimeError(vb::err::kFileNotFound);
    return *size;
}

bool SimPlatform::folderExists(const String& path) {
    return sim_.world().files.folderExists(path);
}

void SimPlatform::createFolder(const String& path) {
    using R = sim::VirtualFs::MkDirResult;
    switch (sim_.world().files.createFolder(path)) {
        case R::Created:
            return;
        case R::Exists:
            throw vb::RuntimeError(vb::err::kPathFileAccess);
        case R::NoParent:
        case R::BadPath:
            break;
    }
    throw vb::RuntimeError(vb::err::kPathNotFound);
}

std::vector<String> splitLines(const String& text) {
    std::vector<String> lines;
    String line;
    for (size_t i = 0; i < text.size(); ++i) {
        const char16_t c = text[i];
        if (c != u'\r' && c != u'\n') {
            line += c;
            continue;
        }
        if (c == u'\r' && i + 1 < text.size() && text[i + 1] == u'\n') ++i;
        lines.push_back(std::move(line));
        line.clear();
    }
    if (!line.empty()) lines.push_back(std::move(line));
    return lines;
}

std::vector<String> SimPlatform::readTextLines(const String& path) {
    const String* content = sim_.world().files.fileContent(path);
    if (!content) throw vb::RuntimeError(vb::err::kFileNotFound);
    return splitLines(*content);
}

void SimPlatform::messageBox(const String& text, const String& caption, platform::MsgIcon icon) {
    sim::BoxIcon boxIcon = sim::BoxIcon::None;
    if (icon == platform::MsgIcon::Information) boxIcon = sim::BoxIcon::Information;
    if (icon == platform::MsgIcon::Critical) boxIcon = sim::BoxIcon::Critical;
    sim_.recorder().messageBox(text, caption, boxIcon);
}

void SimPlatform::beep() {
    sim_.recorder().beep();
}

String SimPlatform::moduleFolder() {
    String folder = sim_.world().application.moduleDir;
    while (folder.size() > 3 && (folder.back() == u'\\' || folder.back() == u'/'))
        folder.pop_back();
    return folder;
}

char16_t SimPlatform::decimalSeparator() {
    return sim_.world().application.decimalSeparator;
}

std::unique_ptr<platform::XmlDocument> SimPlatform::createXmlDocument() {
    return std::make_unique<LibxmlDocument>();
}

}  // namespace native
