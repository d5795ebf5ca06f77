// A drawing of six lines with groups, an open document over it, and the console and selection of a test.
#pragma once

#include "groups/group_cmd.h"
#include "sdk/db/application_variables.h"
#include "sdk/db/block_table.h"
#include "sdk/db/curves.h"
#include "sdk/db/database.h"
#include "sdk/db/dictionary.h"
#include "sdk/db/group.h"
#include "tests/groups/hooked_io.h"
#include "tests/support/fixture_host.h"

#include <QWidget>
#include <gtest/gtest.h>

// The application's system variables as the drawing reads them: those that the fixture host has.
class HostVariablesOfDrawings : public OdDbApplicationVariables {
public:
    explicit HostVariablesOfDrawings(FixtureVars& fixtureVars) : vars(fixtureVars) {}
    OdResBufPtr getVariable(const OdString& name) override {
        if (failing)
            throw OdError(eKeyNotFound);
        return vars.value(name.toLocal8Bit());
    }
    bool setVariable(const OdString&, const OdResBuf*) override { return false; }
    bool failing = false;

private:
    FixtureVars& vars;
};

class GroupTest : public testing::Test {
protected:
    GroupTest();
    ~GroupTest() override;

    OdDbObjectId addLine();
    OdDbObjectId addGroup(const wchar_t* name, const OdDbObjectIdArray& members,
                          const wchar_t* description = L"");
    OdDbObjectId addUnnamed(const OdDbObjectIdArray& members);
    OdDbObjectId addForeignObject(const wchar_t* key); // an entry that is no group
    OdDbDictionaryPtr dictionary(OdDb::OpenMode mode = OdDb::kForRead) const;
    OdDbGroupPtr group(const wchar_t* name, OdDb::OpenMode mode = OdDb::kForRead) const; // null: none
    bool hasGroup(const wchar_t* name) const { return !group(name).isNull(); }
    std::vector<int> members(const wchar_t* name) const; // as indexes into `lines`
    OdDbObjectIdArray pick(const std::vector<int>& indexes) const;
    std::vector<int> highlightedLines() const;
    int pickStyle() const;
    void setPickStyle(int value) { host.vars.set("PICKSTYLE", value); }
    // The drawing as a file, but for the seed of handles: one that was given out is never given out again.
    std::string drawingText() const;
    // All that is to be seen of the groups, the highlight, PICKSTYLE, the selection and the transactions.
    std::wstring summary() const;

    template <class Command> Ref<Command> make() { return Ref<Command>::share(new Command); }
    template <class Command> int run(IParam* params = nullptr) {
        const auto command = make<Command>();
        const int result = command->Run(params);
        status = command->getStatus();
        return result;
    }
    void answer(std::initializer_list<ScriptedAnswer> next) {
        for (const ScriptedAnswer& one : next)
            io.answer(one);
    }
    Ref<IParam> groupNameParams(const wchar_t* name) const;

    FixtureHost host;
    QWidget window; // the parent of the dialogs
    HookedIO io;
    ScriptedSelection selection{io};
    OdDbDatabasePtr database = OdDbDatabase::createEmpty();
    OdDbObjectIdArray lines;
    int status = -100; // of the last run
    HostVariablesOfDrawings drawingVariables{host.vars};

private:
    OdDbApplicationVariables* formerVariables;
};

template <class Call> OdResult codeOf(Call call) {
    try {
        call();
    } catch (const OdError& error) {
        return error.code();
    }
    return eOk;
}
