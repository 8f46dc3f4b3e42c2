#pragma once
// The XML document of the native shell, over libxml2, behaving as MSXML's DOMDocument does
// with its defaults: white space between elements dropped, DOCTYPEs refused, no entity
// expanded, nothing read from outside the text.
#include <memory>

#include "platform/XmlDocument.h"

struct _xmlDoc;

namespace native {

class LibxmlDocument : public platform::XmlDocument {
  public:
    LibxmlDocument();

    bool loadXML(const vb::String& text) override;
    std::vector<std::shared_ptr<platform::XmlNode>> getElementsByTagName(
        const vb::String& name) const override;
    std::shared_ptr<platform::XmlNode> documentElement() const override;

  private:
    // Shared with every node handed out, so that nodes outlive a reload of the document.
    std::shared_ptr<_xmlDoc> doc_;
};

}  // namespace native
