// Sections of the store are emptied and filled again, never replaced: others hold on to them.
#include "standin/params/profiles.h"

#include "host/text.h"
#include "host/typed_reads.h"

#include <QCoreApplication>

namespace standin {

namespace {

const char kList[] = "Profiles", kCurrent[] = "Current", kSettings[] = "Settings";
const int kLongestName = 64;

QString words(const char* text) { return QCoreApplication::translate("Profiles", text); }

OdString refusal(const char* text, const QString& name) { return hostqt::odString(words(text).arg(name)); }

QByteArray keyOf(const QString& name) { return name.toLocal8Bit(); }

bool same(const QString& left, const QString& right) { return left.compare(right, Qt::CaseInsensitive) == 0; }

void removeAt(Section& root, const std::string& path) {
    root.removeEntry(path.c_str());
    const std::size_t slash = path.rfind('/');
    if (slash == std::string::npos)
        return;
    if (const Ref<MemParam> parent = root.find(path.substr(0, slash)))
        parent->section().removeValue(path.c_str() + slash + 1);
}

// The section at a path, or the value.
void copyAt(const Section& from, Section& to, const std::string& path) {
    if (const Ref<MemParam> section = from.find(path))
        to.openSection(path.c_str(), true)->section().copyFrom(section->section());
    const std::size_t slash = path.rfind('/');
    const Ref<MemParam> parent = slash == std::string::npos ? nullptr : from.find(path.substr(0, slash));
    CKWVariant value;
    if (parent && parent->section().getValue(path.c_str() + slash + 1, &value))
        to.openSection(path.substr(0, slash).c_str(), true)
            ->section()
            .setValue(path.c_str() + slash + 1, &value);
}

void emptyValues(Section& section) {
    std::vector<std::string> names;
    for (const auto& entry : section.values())
        names.push_back(entry.name);
    for (const std::string& name : names)
        section.removeValue(name.c_str());
    for (const auto& child : section.children())
        emptyValues(child.value->section());
}

} // namespace

Profiles::Profiles(Ref<FileProfile> store, std::vector<std::string> paths)
    : profile(std::move(store)), common(std::move(paths)) {
    common.emplace_back(kList);
}

Ref<MemParam> Profiles::list() { return profile->section().openSection(kList, true); }

QString Profiles::currentName() {
    CXStringW name;
    readValue(list().get(), kCurrent, &name);
    const QString kept = hostqt::qString(name);
    return kept.isEmpty() ? QStringLiteral("default") : kept;
}

QStringList Profiles::allNames() {
    QStringList names;
    for (const std::string& child : childNames(list().get()))
        names << QString::fromLocal8Bit(child.c_str());
    if (!names.contains(currentName(), Qt::CaseInsensitive))
        names.prepend(currentName());
    return names;
}

QString Profiles::problemOf(const QString& newName) {
    if (newName.isEmpty() || newName.size() > kLongestName)
        return words("The name of a profile has 1 to %1 characters.").arg(kLongestName);
    if (newName.contains(QLatin1Char('/')) || newName.contains(QLatin1Char('\\')))
        return words("The name of a profile holds neither / nor \\.");
    if (QString::fromLocal8Bit(keyOf(newName)) != newName)
        return words("The name \"%1\" has characters that can't be kept.").arg(newName);
    for (const QString& name : allNames())
        if (same(name, newName))
            return words("There is a profile \"%1\" already.").arg(name);
    return {};
}

// What belongs to all profiles stays out.
Ref<MemParam> Profiles::settings() const {
    const Ref<MemParam> copy = newTree<IParam>();
    copy->section().copyFrom(profile->section());
    for (const std::string& path : common)
        removeAt(copy->section(), path);
    return copy;
}

void Profiles::replaceSettings(const Section& others) {
    const Ref<MemParam> before = newTree<IParam>();
    before->section().copyFrom(profile->section());
    emptyValues(profile->section());
    for (const std::string& path : common)
        copyAt(before->section(), profile->section(), path);
    profile->section().copyFrom(others);
}

void Profiles::keepSettings(const QString& name) {
    const Ref<MemParam> entry = list()->section().openSection(keyOf(name).constData(), true);
    entry->section().removeEntry(kSettings);
    entry->section().openSection(kSettings, true)->section().copyFrom(settings()->section());
}

void Profiles::setCurrent(const QString& name) {
    writeValue(list().get(), kCurrent, hostqt::cxStringW(name));
}

std::vector<OdString> Profiles::names() {
    std::vector<OdString> names;
    for (const QString& name : allNames())
        names.push_back(hostqt::odString(name));
    return names;
}

OdString Profiles::current() { return hostqt::odString(currentName()); }

OdString Profiles::select(const wchar_t* name) {
    const QString wanted = hostqt::qString(name);
    if (!allNames().contains(wanted))
        return refusal("There is no profile \"%1\".", wanted);
    if (wanted == currentName())
        return {};
    keepSettings(currentName());
    const Ref<MemParam> entry = list()->section().openSection(keyOf(wanted).constData(), true);
    const Ref<MemParam> chosen = newTree<IParam>();
    chosen->section().copyFrom(entry->section().openSection(kSettings, true)->section());
    entry->section().removeEntry(kSettings); // the store holds them from now on
    replaceSettings(chosen->section());
    setCurrent(wanted);
    return {};
}

OdString Profiles::create(const wchar_t* name) {
    const QString made = hostqt::qString(name).trimmed();
    const QString reason = problemOf(made);
    if (reason.isEmpty())
        list()->section().openSection(keyOf(made).constData(), true);
    return hostqt::odString(reason);
}

OdString Profiles::copyCurrent(const wchar_t* name) {
    const OdString reason = create(name);
    if (reason.isEmpty())
        keepSettings(hostqt::qString(name).trimmed());
    return reason;
}

OdString Profiles::renameCurrent(const wchar_t* name) {
    const QString before = currentName(), after = hostqt::qString(name).trimmed();
    const QString reason = problemOf(after);
    if (!reason.isEmpty())
        return hostqt::odString(reason);
    const Ref<MemParam> old = list()->section().openSection(keyOf(before).constData(), true);
    const Ref<MemParam> renamed = list()->section().openSection(keyOf(after).constData(), true);
    renamed->section().copyFrom(old->section());
    list()->section().removeEntry(keyOf(before).constData());
    setCurrent(after);
    return {};
}

OdString Profiles::remove(const wchar_t* name) {
    const QString removed = hostqt::qString(name);
    if (same(removed, currentName()))
        return refusal("\"%1\" is the current profile: choose another one first.", removed);
    if (!allNames().contains(removed))
        return refusal("There is no profile \"%1\".", removed);
    list()->section().removeEntry(keyOf(removed).constData());
    return {};
}

} // namespace standin
