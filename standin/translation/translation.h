// Translations: the catalogues of the program, and Supp_Translate on top of them.
#pragma once

#include <QString>
#include <QTranslator>
#include <memory>
#include <vector>

namespace standin {

// The text of the option data in the user's language: Qt's translation in the context "HostData". The result
// stays valid for the whole run. Null and the empty text come back as they are.
const wchar_t* translateHostData(const wchar_t* text);

// Installs catalogues for its lifetime and serves Supp_Translate.
class Catalogues {
public:
    Catalogues();
    ~Catalogues();
    // The English wording, and over it that of `language` (a locale name such as "de_DE"), from the .qm files
    // of `folder`. Catalogues are named <anything>_<language>.qm or <language>.qm. Returns the number loaded.
    int load(const QString& folder, const QString& language);

private:
    bool install(const QString& folder, const QString& language);
    std::vector<std::unique_ptr<QTranslator>> translators;
};

} // namespace standin
