// The single services that the fixture host is put together from, each recording what it is asked.
#pragma once

#include "host/app.h"
#include "host/documents.h"
#include "host/help.h"
#include "host/std_papers.h"
#include "host/style.h"
#include "standin/params/dir_entry.h"
#include "standin/params/mem_param.h"

#include <QString>
#include <QStringList>
#include <functional>
#include <map>
#include <string>
#include <vector>

class FixtureInterior : public CKWUnknownImpl<IAppInterior> {
public:
    const wchar_t* rootDirectory() override { return root.c_str(); }
    int applicationMode() override { return mode; }
    CXStringW root;
    int mode = 0;
};

// System variables by name, in any letter case. Assign what is to be there; look into `reads` and `writes`.
class FixtureVars : public HostVarService {
public:
    struct Call {
        std::string name;
        OdResBufPtr value; // a copy of what was read or written
        bool withContext;
    };
    int getVar(const OdString& name, OdResBufPtr* out, OdRxObject* context, int) override;
    int setVar(const OdString& name, OdResBuf* value, OdRxObject* context, int) override;
    void openOptionTree(IParam*) override { ++treesOpened; }
    void closeOptionTree(IParam*) override { ++treesClosed; }

    void set(const std::string& name, bool value);
    void set(const std::string& name, int value, int restype = OdResBuf::kRtInt16);
    void set(const std::string& name, double value);
    void set(const std::string& name, const wchar_t* value);
    OdResBufPtr value(const std::string& name) const; // null when there is none
    OdResBufPtr& operator[](const std::string& name);

    std::vector<Call> reads, writes;
    int treesOpened = 0, treesClosed = 0;
    std::function<void(const std::string& name)> beforeRead; // may throw

private:
    std::map<std::string, OdResBufPtr> values; // by upper-case name
};

class FixtureHelp : public CKWUnknownImpl<IHelpService> {
public:
    void showTopic(const char* topicId) override { topics << QString::fromLocal8Bit(topicId); }
    QStringList topics;
};

class FixtureEvents : public CKWUnknownImpl<IEvents> {
public:
    int notify(int kind, const wchar_t* text, int, int buttons) override;
    struct Notice {
        int kind;
        QString text;
        int buttons;
    };
    std::vector<Notice> notices;
    int answer = 1;
};

class FixtureStyles : public HostQtStyleManager {
public:
    hostui::qt::style::hostQtThemeChangeWatcher* themeWatcher() override { return &watcher; }
    int themeNumber() override { return number; }
    int number = 0;

private:
    hostui::qt::style::hostQtThemeChangeWatcher watcher;
};

// The paper store; what its two dialogs would do is told by the test.
class FixturePapers : public standin::ParamOf<IStdPapersParam> {
public:
    using ParamOf::ParamOf;
    bool AddPaper(QWidget* parent) override { return onAdd && onAdd(parent); }
    bool ModifyPaper(const wchar_t* rowText, QWidget* parent) override {
        return onModify && onModify(QString::fromWCharArray(rowText), parent);
    }
    std::function<bool(QWidget* parent)> onAdd;
    std::function<bool(const QString& rowText, QWidget* parent)> onModify;
};

// Lists of standard directories by section; GetDirList hands out copies.
class FixtureStdDirs : public CKWUnknownImpl<IStdDirs> {
public:
    bool GetDir(const char* key, tagKWVARIANT* out, int) override;
    bool GetDirList(const char* key, CKWVariant* out) override;
    bool SetDirList(const char* key, const CKWVariant& value) override;

    // Replaces a section's list by editable entries with the key ".Local".
    void set(const std::string& key, const std::vector<std::wstring>& paths);
    void setNoList(const std::string& key) { lists[key] = nullptr; } // success, but a null object
    std::vector<std::wstring> paths(const std::string& key) const;

    std::map<std::string, Ref<StdDirList>> lists;
    std::map<std::string, std::wstring> dirs;             // what GetDir finds
    std::vector<std::string> stored;                      // the keys that SetDirList has taken
    std::function<bool(const std::string& key)> mayStore; // empty: yes
};

class FixtureDocuments : public HostDocumentManager {
public:
    HostDocument* currentDocument() override { return current; }
    HostCommandIO* fallbackIO() override { return io; }
    HostVarService* varService() override { return vars; }
    HostDocument* current = nullptr;
    HostCommandIO* io = nullptr;
    HostVarService* vars = nullptr;
};
