// The list of profiles beside the tree, in a host whose profiles can only be shown.
#include "options/window/preferences.h"

#include "host/app.h"
#include "host/param.h"
#include "host/typed_reads.h"

#include <QComboBox>

namespace {

Ref<IParam> openProfiles() {
    const Ref<IAppInterior> interior = appService<IAppInterior>();
    if (!interior)
        return {};
    const auto profile = Ref<IProfile>::take(new_IProfileByRootDir(CXStringW(interior->rootDirectory())));
    return openChild(profile.get(), "Profiles");
}

} // namespace

void Preferences::fillProfiles() {
    profileCombo->clear();
    const Ref<IParam> profiles = openProfiles();
    currentProfile = QStringLiteral("default");
    profileCombo->addItem(currentProfile);
    for (const std::string& child : childNames(profiles.get())) {
        const QString name = QString::fromLocal8Bit(child.c_str());
        if (name.compare(currentProfile, Qt::CaseInsensitive) != 0)
            profileCombo->addItem(name);
    }
}
