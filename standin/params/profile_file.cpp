// The profiles that are open, by root directory.
#include "standin/params/profile_file.h"

#include "host/text.h"

#include <QDir>
#include <QFileInfo>
#include <map>

namespace standin {

namespace {

ProfileDefaults& profileDefaults() {
    static ProfileDefaults defaults;
    return defaults;
}

class SharedProfile;

std::map<QString, SharedProfile*>& openProfiles() {
    // Never destroyed: a profile that is let go at the very end still signs off here.
    static auto& profiles = *new std::map<QString, SharedProfile*>;
    return profiles;
}

StoreFiles filesBelow(const QString& root) {
    const int everyValueByItself = 1000000;
    return {profileDefaults().shipped, root + QStringLiteral("/profile.yaml"), everyValueByItself,
            profileDefaults().remembered};
}

TreeRulesPtr profileRules() {
    auto rules = std::make_shared<TreeRules>();
    rules->ranges = profileDefaults().ranges;
    return rules;
}

class SharedProfile : public FileProfile {
public:
    explicit SharedProfile(const QString& rootDir)
        : FileProfile(filesBelow(rootDir), profileDefaults().io, profileRules()), root(rootDir) {
        openProfiles()[root] = this;
        for (const QString& line : valuesOutOfRange(section(), profileDefaults().ranges))
            profileDefaults().io.report(QDir::toNativeSeparators(filesBelow(root).user) +
                                        QStringLiteral(": ") + line);
    }
    ~SharedProfile() override { openProfiles().erase(root); }

private:
    QString root;
};

} // namespace

void setProfileDefaults(ProfileDefaults defaults) { profileDefaults() = std::move(defaults); }

Ref<FileProfile> openProfile(const QString& rootDir) {
    const QString root = QDir::cleanPath(QDir(rootDir).absolutePath());
    const QFileInfo folder(root);
    if (rootDir.isEmpty() || (folder.exists() && !folder.isDir()))
        return nullptr;
    const auto found = openProfiles().find(root);
    return Ref<FileProfile>::share(found == openProfiles().end() ? new SharedProfile(root) : found->second);
}

} // namespace standin

IProfile* new_IProfileByRootDir(const CXStringW& rootDir) {
    return Ref<IProfile>(standin::openProfile(hostqt::qString(rootDir))).detach();
}
