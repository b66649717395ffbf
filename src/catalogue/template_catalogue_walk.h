#pragma once

#include "catalogue/template_catalogue.h"

// Appends the directories and scripts of a tree to the catalogue's lists and sets its header fields. Nothing
// is required: what is missing stays an empty string, and what is not known is passed over.
//
//     <anything name="" type="" version="" engineReq="" date="">    any element, at any depth, fills the
//     header
//       <Directory type="" path=""/>
//       <Script id="" directory="" filename="" name="" type="" vers="" date="">
//         <class>text</class> <desc>text</desc> <need>text</need>   need and action may repeat
//         <action name="" filename="">text</action>
//       </Script>
//     </anything>
void AppendTemplates(const CXmlElement& root, CTemplateManager& catalogue);
