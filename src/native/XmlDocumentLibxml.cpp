#include "native/XmlDocumentLibxml.h"

#include <libxml/parser.h>
#include <libxml/tree.h>

#include <string>

#include "vb/Strings.h"

namespace native {

namespace {

using DocPtr = std::shared_ptr<xmlDoc>;

vb::String fromXml(const xmlChar* text) {
    return text ? vb::fromUtf8(reinterpret_cast<const char*>(text)) : vb::String();
}

bool isXmlBlank(char16_t c) {
    return c == u' ' || c == u'\t' || c == u'\r' || c == u'\n';
}

vb::String trimmed(const vb::String& text) {
    size_t first = 0;
    size_t last = text.size();
    while (first < last && isXmlBlank(text[first])) ++first;
    while (last > first && isXmlBlank(text[last - 1])) --last;
    return text.substr(first, last - first);
}

vb::String contentOf(xmlNode* node) {
    xmlChar* content = xmlNodeGetContent(node);
    vb::String text = fromXml(content);
    xmlFree(content);
    return text;
}

// The DOM `text` of MSXML without preserved white space: the texts of the children, those of
// adjacent child elements separated by one blank, trimmed at both ends.
vb::String domText(xmlNode* node) {
    switch (node->type) {
        case XML_TEXT_NODE:
            return trimmed(contentOf(node));
        case XML_CDATA_SECTION_NODE:
        case XML_COMMENT_NODE:
        case XML_PI_NODE:
            return contentOf(node);
        default:
            break;
    }
    vb::String text;
    bool lastWasElement = false;
    for (xmlNode* child = node->children; child; child = child->next) {
        const bool element = child->type == XML_ELEMENT_NODE;
        const bool textual = child->type == XML_TEXT_NODE || child->type == XML_CDATA_SECTION_NODE;
        if (!element && !textual) continue;
        const vb::String piece = element ? domText(child) : contentOf(child);
        if (piece.empty()) continue;
        if (element && lastWasElement) text.push_back(u' ');
        text += piece;
        lastWasElement = element;
    }
    return trimmed(text);
}

vb::String nameOf(xmlNode* node) {
    switch (node->type) {
        case XML_TEXT_NODE:
            return u"#text";
        case XML_CDATA_SECTION_NODE:
            return u"#cdata-section";
        case XML_COMMENT_NODE:
            return u"#comment";
        case XML_DOCUMENT_NODE:
            return u"#document";
        default:
            break;
    }
    vb::String name = fromXml(node->name);
    if (node->type == XML_ELEMENT_NODE && node->ns && node->ns->prefix)
        return fromXml(node->ns->prefix) + u":" + name;
    return name;
}

class LibxmlNode : public platform::XmlNode {
  public:
    LibxmlNode(DocPtr doc, xmlNode* node) : doc_(std::move(doc)), node_(node) {}

    vb::String nodeName() const override { return nameOf(node_); }
    vb::String text() const override { return domText(node_); }
    bool hasChildNodes() const override { return node_->children != nullptr; }
    std::vector<std::shared_ptr<platform::XmlNode>> childNodes() const override {
        std::vector<std::shared_ptr<platform::XmlNode>> children;
        for (xmlNode* child = node_->children; child; child = child->next)
            children.push_back(std::make_shared<LibxmlNode>(doc_, child));
        return children;
    }

  private:
    DocPtr doc_;
    xmlNode* node_;
};

bool isBlankText(xmlNode* node) {
    if (node->type != XML_TEXT_NODE) return false;
    for (const xmlChar* p = node->content; p && *p; ++p)
        if (*p != ' ' && *p != '\t' && *p != '\r' && *p != '\n') return false;
    return true;
}

// Drops white-space-only text nodes, except under xml:space="preserve" (CDATA always stays).
void dropBlankText(xmlNode* parent) {
    xmlNode* child = parent->children;
    while (child) {
        xmlNode* next = child->next;
        if (isBlankText(child) && xmlNodeGetSpacePreserve(parent) != 1) {
            xmlUnlinkNode(child);
            xmlFreeNode(child);
        } else if (child->type == XML_ELEMENT_NODE) {
            dropBlankText(child);
        }
        child = next;
    }
}

void collectByName(xmlNode* node, const vb::String& name, std::vector<xmlNode*>& found) {
    for (xmlNode* child = node->children; child; child = child->next) {
        if (child->type != XML_ELEMENT_NODE) continue;
        if (name == u"*" || nameOf(child) == name) found.push_back(child);
        collectByName(child, name, found);
    }
}

// A DOCTYPE stops the parse before any of it is read: its entities are never declared.
void refuseDoctype(void* context, const xmlChar*, const xmlChar*, const xmlChar*) {
    auto* parser = static_cast<xmlParserCtxt*>(context);
    parser->_private = parser;  // marks the refusal
    xmlStopParser(parser);
}

xmlDoc* parse(const std::string& utf8) {
    xmlParserCtxt* parser = xmlNewParserCtxt();
    if (!parser) return nullptr;
    parser->sax->internalSubset = refuseDoctype;
    const int options =
        XML_PARSE_NONET | XML_PARSE_NOERROR | XML_PARSE_NOWARNING | XML_PARSE_IGNORE_ENC;
    xmlDoc* doc = xmlCtxtReadMemory(parser, utf8.data(), static_cast<int>(utf8.size()), nullptr,
                                    "UTF-8", options);
    const bool refused = parser->_private != nullptr || !parser->wellFormed;
    xmlFreeParserCtxt(parser);
    if (doc && (refused || doc->intSubset || doc->extSubset || !xmlDocGetRootElement(doc))) {
        xmlFreeDoc(doc);
        return nullptr;
    }
    return doc;
}

}  // namespace

LibxmlDocument::LibxmlDocument() {
    xmlInitParser();
}

bool LibxmlDocument::loadXML(const vb::String& text) {
    doc_.reset();
    xmlDoc* doc = parse(vb::toUtf8(text));
    if (!doc) return false;
    dropBlankText(xmlDocGetRootElement(doc));
    doc_ = DocPtr(doc, xmlFreeDoc);
    return true;
}

std::vector<std::shared_ptr<platform::XmlNode>> LibxmlDocument::getElementsByTagName(
    const vb::String& name) const {
    std::vector<std::shared_ptr<platform::XmlNode>> nodes;
    if (!doc_) return nodes;
    std::vector<xmlNode*> found;
    collectByName(reinterpret_cast<xmlNode*>(doc_.get()), name, found);
    for (xmlNode* node : found) nodes.push_back(std::make_shared<LibxmlNode>(doc_, node));
    return nodes;
}

std::shared_ptr<platform::XmlNode> LibxmlDocument::documentElement() const {
    if (!doc_) return nullptr;
    xmlNode* root = xmlDocGetRootElement(doc_.get());
    return root ? std::make_shared<LibxmlNode>(doc_, root) : nullptr;
}

}  // namespace native
