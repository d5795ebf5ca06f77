// The Options dialog with the page of papers.
#pragma once

#include "host/text.h"
#include "options/pages/papers/paper_format.h"
#include "tests/options/pages/page_fixture.h"

class PaperFixture : public PageFixture {
protected:
    PaperFixture() : PageFixture(kIdPapers) {}

    Ref<IParam> section(const char* name) { return sectionOf(host.papers(), name); }
    Ref<IParam> addPaper(const char* key, const wchar_t* name, double width, double height) {
        const Ref<IParam> paper = section(key);
        setValue(paper, "Name", name);
        setValue(paper, "Size", tagRSIZE{width, height});
        return paper;
    }
    // The papers' names in the order of the dialog's records.
    QStringList names() const {
        QStringList texts;
        for (const PaperFormat* paper : preferences->paperFormats)
            texts << hostqt::qString(paper->name);
        return texts;
    }
    QStringList storedNames() {
        QStringList texts;
        for (const QString& key : childrenOf(host.papers()))
            texts << textOf(valueOf(host.papers(), key.toLatin1(), "Name"));
        return texts;
    }
    void apply() { click(preferences->applyButton); }
};
