#pragma once
// platform::XmlDocument over MSXML 6 (white space dropped, no DTD, no external resources).
#include <memory>

#include "platform/XmlDocument.h"

namespace quorbel {

std::unique_ptr<platform::XmlDocument> createMsxmlDocument();

// True when the document's prolog declares a DOCTYPE (such documents are refused).
bool hasDoctype(const vb::String& text);

}  // namespace quorbel
