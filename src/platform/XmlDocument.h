#pragma once
// The part of the XML DOM the plug-in uses (MSXML's DOMDocument on Windows). Documents load
// without preserving white space; a text that is not well-formed, or that has a DOCTYPE,
// leaves an empty document. No entity is expanded and nothing outside the text is read.
#include <memory>
#include <vector>

#include "vb/Variant.h"

namespace platform {

class XmlNode {
  public:
    virtual ~XmlNode() = default;
    virtual vb::String nodeName() const = 0;
    // The concatenated text of the node and its descendants, as DOM's `text`.
    virtual vb::String text() const = 0;
    virtual bool hasChildNodes() const = 0;
    virtual std::vector<std::shared_ptr<XmlNode>> childNodes() const = 0;
};

class XmlDocument {
  public:
    virtual ~XmlDocument() = default;
    // Returns false (and leaves the document empty) when the text does not load.
    virtual bool loadXML(const vb::String& text) = 0;
    // Elements with exactly this name anywhere in the document, in document order.
    virtual std::vector<std::shared_ptr<XmlNode>> getElementsByTagName(
        const vb::String& name) const = 0;
    virtual std::shared_ptr<XmlNode> documentElement() const = 0;  // null when empty
};

}  // namespace platform
