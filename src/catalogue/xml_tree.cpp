#include "catalogue/xml_tree.h"

#include "catalogue/xml_tree_builder.h"

void CXmlElement::Free(CXmlElement* root) {
    delete static_cast<XmlTree*>(root);
}
