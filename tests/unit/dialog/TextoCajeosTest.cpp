// The cut-out document's reader gets the stored text with the "&", "<" and ">" of its titles
// and labels turned into text, and the format's own tags and real references left alone.
#include <gtest/gtest.h>

#include "dialog/TextoCajeos.h"
#include "native/XmlDocumentLibxml.h"

namespace {

using vb::String;

TEST(CajeosParaXml, EscapesWhatNoReaderCouldParse) {
    struct {
        String stored, xml;
    } const cases[] = {
        // The format's tags, opening and closing, in any case.
        {u"<CAJEOS>\r\n\t<CAJEO></CAJEO></CAJEOS>", u"<CAJEOS>\r\n\t<CAJEO></CAJEO></CAJEOS>"},
        {u"<titulo>x</Titulo><VALORMAX>1</VALORMAX><indice>",
         u"<titulo>x</Titulo><VALORMAX>1</VALORMAX><indice>"},
        {u"<PARAM><ETIQ></ETIQ><VALOR></VALOR></PARAM>",
         u"<PARAM><ETIQ></ETIQ><VALOR></VALOR></PARAM>"},
        // Anything else after "<" is text: other names, blanks, attributes, markup.
        {u"A<B", u"A&lt;B"},
        {u"<x>", u"&lt;x&gt;"},
        {u"< ETIQ>", u"&lt; ETIQ&gt;"},
        {u"<ETIQ >", u"&lt;ETIQ &gt;"},
        {u"<VALORES>", u"&lt;VALORES&gt;"},
        {u"<!-- x -->", u"&lt;!-- x --&gt;"},
        {u"<![CDATA[a]]>", u"&lt;![CDATA[a]]&gt;"},
        {u"<?xml version=\"1.0\"?>", u"&lt;?xml version=\"1.0\"?&gt;"},
        {u"<", u"&lt;"},
        {u"a>b", u"a&gt;b"},
        // References the document can resolve stay; any other "&" is text.
        {u"Prof. & alto", u"Prof. &amp; alto"},
        {u"&amp;&lt;&gt;&quot;&apos;", u"&amp;&lt;&gt;&quot;&apos;"},
        {u"&AMP;", u"&amp;AMP;"},
        {u"&nbsp;", u"&amp;nbsp;"},
        {u"&#65;&#x41;&#X41;", u"&#65;&#x41;&amp;#X41;"},
        {u"&#0;&#xD800;&#x110000;&#99999999999;",
         u"&amp;#0;&amp;#xD800;&amp;#x110000;&amp;#99999999999;"},
        {u"&#;&#x;&#1a;", u"&amp;#;&amp;#x;&amp;#1a;"},
        {u"R&D", u"R&amp;D"},
        {u"&", u"&amp;"},
        {u"", u""},
    };
    for (const auto& c : cases) EXPECT_EQ(dialog::cajeosParaXml(c.stored), c.xml);
}

// A text holding one of the format's tags is read as that tag; the document is then broken
// and loads as an empty one, as any other broken document does.
TEST(CajeosParaXml, ATagInsideATextBreaksTheDocument) {
    const String stored =
        u"<CAJEOS><CAJEO><TITULO>x</TITULO><PARAM><ETIQ>a<VALOR>b</ETIQ>"
        u"<VALOR>1</VALOR></PARAM></CAJEO></CAJEOS>";
    native::LibxmlDocument doc;
    EXPECT_FALSE(doc.loadXML(dialog::cajeosParaXml(stored)));
    EXPECT_TRUE(doc.getElementsByTagName(u"PARAM").empty());
}

}  // namespace
