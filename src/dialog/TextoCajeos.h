#pragma once
// Reading the cut-out document (object information 53) back. Its writer copies titles and
// labels into it as they are, so a title or label with "&" or "<" in it would make the text
// not well-formed XML; every reading goes through cajeosParaXml first, so that both XML
// readers (libxml2, MSXML) get the same, well-formed text.
#include <memory>

#include "platform/Platform.h"
#include "vb/Variant.h"

namespace dialog {

using vb::String;

// The stored text as the XML reader must get it. Copied as it is, except:
// - a "&" that starts no reference the document can resolve becomes "&amp;". References are
//   the five predefined entities (&amp; &lt; &gt; &quot; &apos;, exact case) and character
//   references (&#digits; or &#xhex;) naming a character XML allows; any other "&name;" would
//   need a DTD, which the document never has, so it is text too;
// - a "<" that starts none of the format's own tags becomes "&lt;". The tags are CAJEOS,
//   CAJEO, TITULO, PARAM, ETIQ, VALOR, VALORMAX and INDICE, opening or closing, in any case
//   (the readers compare child names without case), written as the writer writes them:
//   "<NAME>" or "</NAME>", nothing inside the brackets but the name;
// - a ">" that closes none of those tags becomes "&gt;" (so "]]>" in a text cannot end the
//   document early).
// A title or label that itself holds one of the format's tags (say "<VALOR>") is read as that
// tag: the writer does not escape, so the reader cannot tell it from the document's own. Such a
// text, like any otherwise broken one, still loads as an empty document.
String cajeosParaXml(const String& texto);

// A new document loaded from the stored text through cajeosParaXml (empty when it does not
// load).
std::unique_ptr<platform::XmlDocument> cargaCajeos(platform::Platform& plataforma,
                                                   const String& texto);

}  // namespace dialog
