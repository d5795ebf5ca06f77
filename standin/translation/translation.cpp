// Loads the catalogues, and keeps every translated text for as long as the host runs.
#include "standin/translation/translation.h"

#include "host/text.h"
#include "standin/registry.h"

#include <QCoreApplication>
#include <QDir>
#include <unordered_set>

namespace standin {

namespace {

const wchar_t* interned(std::wstring text) {
    static std::unordered_set<std::wstring> texts;
    return texts.insert(std::move(text)).first->c_str();
}

} // namespace

const wchar_t* translateHostData(const wchar_t* text) {
    if (!text || !*text)
        return text;
    const QByteArray source = hostqt::qString(text).toUtf8();
    return interned(hostqt::stdWString(QCoreApplication::translate("HostData", source)));
}

Catalogues::Catalogues() { registry().translate = translateHostData; }

Catalogues::~Catalogues() {
    for (const auto& translator : translators)
        QCoreApplication::removeTranslator(translator.get());
    registry().translate = nullptr;
}

int Catalogues::load(const QString& folder, const QString& language) {
    int loaded = install(folder, QStringLiteral("en"));
    const QString shortName = language.section(QLatin1Char('_'), 0, 0);
    if (shortName != QLatin1String("en"))
        loaded += install(folder, shortName);
    if (language.contains(QLatin1Char('_')))
        loaded += install(folder, language);
    return loaded;
}

bool Catalogues::install(const QString& folder, const QString& language) {
    bool any = false;
    const QStringList patterns = {language + QStringLiteral(".qm"),
                                  QStringLiteral("*_") + language + QStringLiteral(".qm")};
    for (const QFileInfo& file : QDir(folder).entryInfoList(patterns, QDir::Files, QDir::Name)) {
        auto translator = std::make_unique<QTranslator>();
        if (!translator->load(file.absoluteFilePath()))
            continue;
        QCoreApplication::installTranslator(translator.get());
        translators.push_back(std::move(translator));
        any = true;
    }
    return any;
}

} // namespace standin
