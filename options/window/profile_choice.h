// What the profile list and its button do in a host that has profiles: the list changes to another one, the
// menu of the button makes, copies, renames and deletes them.
#pragma once

#include "host/profiles.h"

#include <QObject>
#include <QString>

class Preferences;

class ProfileChoice : public QObject {
    Q_OBJECT
public:
    // Of a dialog that is built. The changes that are open are those since then, or since Apply.
    ProfileChoice(Preferences& dialog, Ref<IProfiles> profiles);

    void fill();
    void noteApplied(); // the rows are as they are kept

private:
    void buildMenu();
    void addToMenu(const char* objectName, const QString& text, void (ProfileChoice::*action)());
    void choose(int index);
    void changeTo(const QString& name);
    bool settleChanges(const QString& next); // false when the user wants to stay
    void add();
    void copy();
    void rename();
    void remove();
    QString askName(const QString& title, const QString& proposal);
    bool done(const OdString& refusal); // tells why not
    QString current() const;

    Preferences& dialog;
    Ref<IProfiles> profiles;
    QString applied;
    class QAction* removeAction = nullptr;
};
