#include "platform/MsxmlDocument.h"

#include <msxml2.h>
#include <windows.h>

#include "platform/Bstr.h"
#include "vb/Errors.h"

namespace quorbel {
namespace {

// Not in the import library: the second-edition document interface, for setProperty.
const IID kIidDocument2 = {
    0x2933BF95, 0x7B36, 0x11d2, {0xB2, 0x0E, 0x00, 0xC0, 0x4F, 0x98, 0x3E, 0x60}};

class MsxmlNode : public platform::XmlNode {
  public:
    explicit MsxmlNode(IXMLDOMNode* n) : node_(n) {}  // adopts the reference
    ~MsxmlNode() override { node_->Release(); }
    vb::String nodeName() const override {
        BSTR b = nullptr;
        node_->get_nodeName(&b);
        return takeBstr(b);
    }
    vb::String text() const override {
        BSTR b = nullptr;
        node_->get_text(&b);
        return takeBstr(b);
    }
    bool hasChildNodes() const override {
        VARIANT_BOOL has = VARIANT_FALSE;
        node_->hasChildNodes(&has);
        return has != VARIANT_FALSE;
    }
    std::vector<std::shared_ptr<platform::XmlNode>> childNodes() const override;

  private:
    IXMLDOMNode* node_;
};

std::vector<std::shared_ptr<platform::XmlNode>> fromList(IXMLDOMNodeList* list) {
    std::vector<std::shared_ptr<platform::XmlNode>> out;
    if (!list) return out;
    long n = 0;
    list->get_length(&n);
    for (long i = 0; i < n; ++i) {
        IXMLDOMNode* item = nullptr;
        if (SUCCEEDED(list->get_item(i, &item)) && item)
            out.push_back(std::make_shared<MsxmlNode>(item));
    }
    list->Release();
    return out;
}

std::vector<std::shared_ptr<platform::XmlNode>> MsxmlNode::childNodes() const {
    IXMLDOMNodeList* list = nullptr;
    node_->get_childNodes(&list);
    return fromList(list);
}

void setProperty(IXMLDOMDocument* doc, const wchar_t* name, bool value) {
    IXMLDOMDocument2* doc2 = nullptr;
    if (FAILED(doc->QueryInterface(kIidDocument2, reinterpret_cast<void**>(&doc2)))) return;
    VARIANT v;
    VariantInit(&v);
    V_VT(&v) = VT_BOOL;
    V_BOOL(&v) = value ? VARIANT_TRUE : VARIANT_FALSE;
    BSTR b = SysAllocString(name);
    doc2->setProperty(b, v);
    SysFreeString(b);
    doc2->Release();
}

class MsxmlDocument : public platform::XmlDocument {
  public:
    MsxmlDocument() {
        CLSID clsid;
        if (FAILED(CLSIDFromProgID(L"Msxml2.DOMDocument.6.0", &clsid)) ||
            FAILED(CoCreateInstance(clsid, nullptr, CLSCTX_INPROC_SERVER, IID_IXMLDOMDocument,
                                    reinterpret_cast<void**>(&doc_))))
            throw vb::RuntimeError(vb::err::kCantCreateObject);
        doc_->put_async(VARIANT_FALSE);
        doc_->put_preserveWhiteSpace(VARIANT_FALSE);
        doc_->put_resolveExternals(VARIANT_FALSE);
        doc_->put_validateOnParse(VARIANT_FALSE);
        setProperty(doc_, L"ProhibitDTD", true);
    }
    ~MsxmlDocument() override { doc_->Release(); }

    bool loadXML(const vb::String& text) override {
        if (hasDoctype(text)) {
            loadEmpty();
            return false;
        }
        BSTR b = newBstr(text);
        VARIANT_BOOL ok = VARIANT_FALSE;
        HRESULT hr = doc_->loadXML(b, &ok);
        SysFreeString(b);
        return SUCCEEDED(hr) && ok != VARIANT_FALSE;
    }
    std::vector<std::shared_ptr<platform::XmlNode>> getElementsByTagName(
        const vb::String& name) const override {
        BSTR b = newBstr(name);
        IXMLDOMNodeList* list = nullptr;
        doc_->getElementsByTagName(b, &list);
        SysFreeString(b);
        return fromList(list);
    }
    std::shared_ptr<platform::XmlNode> documentElement() const override {
        IXMLDOMElement* e = nullptr;
        if (FAILED(doc_->get_documentElement(&e)) || !e) return nullptr;
        IXMLDOMNode* n = nullptr;
        e->QueryInterface(IID_IXMLDOMNode, reinterpret_cast<void**>(&n));
        e->Release();
        return n ? std::make_shared<MsxmlNode>(n) : nullptr;
    }

  private:
    // A refused text leaves the document empty, as a failed parse does.
    void loadEmpty() {
        BSTR b = SysAllocString(L"");
        VARIANT_BOOL ok;
        doc_->loadXML(b, &ok);
        SysFreeString(b);
    }
    IXMLDOMDocument* doc_ = nullptr;
};

}  // namespace

std::unique_ptr<platform::XmlDocument> createMsxmlDocument() {
    return std::make_unique<MsxmlDocument>();
}

}  // namespace quorbel
