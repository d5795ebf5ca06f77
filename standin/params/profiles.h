// The profiles of the user, all in the one profile store: below "Profiles" each has a section with its
// description, and in "Settings" what it held when another one became current.
#pragma once

#include "host/profiles.h"
#include "standin/params/profile_file.h"

#include <QStringList>

namespace standin {

class Profiles : public CKWUnknownImpl<IProfiles> {
public:
    // `paths` of sections and values belong to all profiles alike.
    Profiles(Ref<FileProfile> store, std::vector<std::string> paths);

    std::vector<OdString> names() override;
    OdString current() override;
    OdString select(const wchar_t* name) override;
    OdString create(const wchar_t* name) override;
    OdString copyCurrent(const wchar_t* name) override;
    OdString renameCurrent(const wchar_t* name) override;
    OdString remove(const wchar_t* name) override;

private:
    Ref<MemParam> list(); // made when the store has none
    QString currentName();
    QStringList allNames();
    QString problemOf(const QString& newName);
    void keepSettings(const QString& name); // what the store holds now, as those of this profile
    void setCurrent(const QString& name);

    Ref<MemParam> settings() const;
    void replaceSettings(const Section& others);

    Ref<FileProfile> profile;
    std::vector<std::string> common;
};

} // namespace standin
