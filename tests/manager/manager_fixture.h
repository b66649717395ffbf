#pragma once

#include <string>

#include "catalogue/template_catalogue.h"
#include "project/project_fixture.h"

// A project with a catalogue of four scripts: a needs b, c tells the same need twice, d_ is numbered.
class ManagerTest : public ProjectTest {
protected:
    ManagerTest() {
        catalogue.LoadText(
            R"(<c name="Set" type="T" version="6" engineReq="5" date="7">
               <Script filename="a.brl" name="A"><need>b.brl</need><need>B.BRL</need></Script>
               <Script filename="b.brl" name="B"/>
               <Script filename="c.brl" name="C"><need>b.brl</need><need>b.brl</need></Script>
               <Script filename="d_.brl" name="D"/>)",
            nullptr);
    }

    void Include(const std::string& names) {
        std::string text;
        for (const char name : names)
            text += std::string("include <") + name + ".brl>;\n";
        WriteMain(text + "\nvar x;\n");
    }
    void WriteCopy(const std::string& name, const std::string& text) {
        folder.Write("project/" + name, text);
    }
    std::string ReadCopy(const std::string& name) const { return folder.Read("project/" + name); }

    CTemplateManager catalogue;
};
