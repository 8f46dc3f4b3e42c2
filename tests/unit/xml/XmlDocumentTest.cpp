#include <gtest/gtest.h>

#include "native/XmlDocumentLibxml.h"
#include "vb/Strings.h"

using platform::XmlNode;
using vb::String;

namespace {

std::vector<String> namesOf(const std::vector<std::shared_ptr<XmlNode>>& nodes) {
    std::vector<String> names;
    for (const auto& n : nodes) names.push_back(n->nodeName());
    return names;
}

const String kCajeos =
    u"<CAJEOS>\r\n\t<CAJEO>\r\n\t\t<TITULO>Encastre Ñ</TITULO>\r\n\t\t<PARAM>\r\n"
    u"\t\t\t<ETIQ>Ancho</ETIQ>\r\n\t\t\t<VALOR>10</VALOR>\r\n\t\t\t<VALORMAX>50</VALORMAX>\r\n"
    u"\t\t\t<INDICE>2</INDICE>\r\n\t\t</PARAM>\r\n\t\t<PARAM>\r\n\t\t\t<ETIQ>Fondo</ETIQ>\r\n"
    u"\t\t\t<VALOR></VALOR>\r\n\t\t\t<VALORMAX>30</VALORMAX>\r\n\t\t\t<INDICE>5</INDICE>\r\n"
    u"\t\t</PARAM>\r\n\t</CAJEO>\r\n</CAJEOS>";

TEST(XmlDocument, DropsWhiteSpaceBetweenElements) {
    native::LibxmlDocument doc;
    ASSERT_TRUE(doc.loadXML(kCajeos));
    const auto root = doc.documentElement();
    ASSERT_TRUE(root);
    EXPECT_EQ(root->nodeName(), u"CAJEOS");
    const auto cajeo = root->childNodes();
    ASSERT_EQ(cajeo.size(), 1u);
    EXPECT_EQ(namesOf(cajeo[0]->childNodes()),
              (std::vector<String>{u"TITULO", u"PARAM", u"PARAM"}));
    const auto params = doc.getElementsByTagName(u"PARAM");
    ASSERT_EQ(params.size(), 2u);
    EXPECT_EQ(namesOf(params[1]->childNodes()),
              (std::vector<String>{u"ETIQ", u"VALOR", u"VALORMAX", u"INDICE"}));
    const auto valor = params[1]->childNodes()[1];
    EXPECT_FALSE(valor->hasChildNodes());
    EXPECT_EQ(valor->text(), u"");
}

TEST(XmlDocument, FindsElementsByExactNameInDocumentOrder) {
    native::LibxmlDocument doc;
    ASSERT_TRUE(doc.loadXML(u"<a><b>1</b><c><b>2</b></c><B>x</B><b>3</b></a>"));
    std::vector<String> texts;
    for (const auto& b : doc.getElementsByTagName(u"b")) texts.push_back(b->text());
    EXPECT_EQ(texts, (std::vector<String>{u"1", u"2", u"3"}));
    EXPECT_EQ(doc.getElementsByTagName(u"a").size(), 1u);
    EXPECT_TRUE(doc.getElementsByTagName(u"d").empty());
    EXPECT_EQ(doc.getElementsByTagName(u"*").size(), 6u);
}

TEST(XmlDocument, TextConcatenatesDescendants) {
    native::LibxmlDocument doc;
    ASSERT_TRUE(
        doc.loadXML(u"<r><t>  Ángulo &amp; 5 </t><m>a<i>b</i>c</m><p><x>1</x><x>2</x></p>"
                    u"<d><![CDATA[<y> ]]></d><k>a<!--no-->b</k></r>"));
    const auto children = doc.documentElement()->childNodes();
    ASSERT_EQ(children.size(), 5u);
    const std::vector<String> expected = {u"Ángulo & 5", u"abc", u"1 2", u"<y>", u"ab"};
    for (size_t i = 0; i < expected.size(); ++i) EXPECT_EQ(children[i]->text(), expected[i]) << i;
    const auto pieces = children[1]->childNodes();
    EXPECT_EQ(namesOf(pieces), (std::vector<String>{u"#text", u"i", u"#text"}));
    EXPECT_EQ(namesOf(children[4]->childNodes()),
              (std::vector<String>{u"#text", u"#comment", u"#text"}));
}

TEST(XmlDocument, RefusesWhatDoesNotLoad) {
    const String refused[] = {
        u"",
        u"   ",
        u"<a>",
        u"<a></b>",
        u"<a>x & y</a>",
        u"<a><ETIQ>a < b</ETIQ></a>",
        u"<a/><b/>",
        u"texto",
        u"<a>&foo;</a>",
        u"<!DOCTYPE a><a/>",
        u"<!DOCTYPE a [<!ENTITY e \"boom\">]><a>&e;</a>",
        u"<!DOCTYPE a SYSTEM \"file:///etc/passwd\"><a/>",
        u"<!DOCTYPE a [<!ENTITY e SYSTEM \"http://example.invalid/x\">]><a>&e;</a>",
    };
    for (const auto& text : refused) {
        native::LibxmlDocument doc;
        ASSERT_TRUE(doc.loadXML(u"<ok><PARAM/></ok>"));
        EXPECT_FALSE(doc.loadXML(text)) << vb::toUtf8(text);
        EXPECT_EQ(doc.documentElement(), nullptr) << vb::toUtf8(text);
        EXPECT_TRUE(doc.getElementsByTagName(u"PARAM").empty()) << vb::toUtf8(text);
    }
}

TEST(XmlDocument, NodesOutliveAReload) {
    native::LibxmlDocument doc;
    ASSERT_TRUE(doc.loadXML(u"<a><b>uno</b></a>"));
    const auto b = doc.getElementsByTagName(u"b").at(0);
    ASSERT_TRUE(doc.loadXML(u"<c/>"));
    EXPECT_EQ(b->text(), u"uno");
    EXPECT_EQ(doc.documentElement()->nodeName(), u"c");
    EXPECT_FALSE(doc.documentElement()->hasChildNodes());
}

TEST(XmlDocument, KeepsNamesAsWritten) {
    native::LibxmlDocument doc;
    ASSERT_TRUE(doc.loadXML(u"<p:a xmlns:p=\"urn:x\"><p:b/><?pi data?></p:a>"));
    EXPECT_EQ(doc.documentElement()->nodeName(), u"p:a");
    EXPECT_EQ(namesOf(doc.documentElement()->childNodes()), (std::vector<String>{u"p:b", u"pi"}));
    EXPECT_EQ(doc.getElementsByTagName(u"p:b").size(), 1u);
}

}  // namespace
