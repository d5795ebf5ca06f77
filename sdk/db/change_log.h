// Every change of a database in the order in which it happened. Transactions and undo records are places in
// this one list: aborting and undoing take changes back from its end.
#pragma once

#include <cstdint>
#include <memory>
#include <string>
#include <vector>

// One change. swap() goes to the state before it, and from there to the state after it.
class OdDbChange {
public:
    virtual ~OdDbChange() = default;
    virtual void swap() = 0;
    std::uint64_t serial = 0;
    std::uint32_t stepName = 0; // of the step that it belongs to, as a number in the log
};

class OdDbChangeLog {
public:
    void record(std::unique_ptr<OdDbChange> change);
    // Grows with every new place in the list: an object whose image was taken in this epoch needs no other.
    std::uint32_t epoch() const { return currentEpoch; }
    // Names the present state: equal values mean the same state.
    std::uint64_t state() const { return changes.empty() ? 0 : changes.back()->serial; }

    void startTransaction();
    void commitTransaction();
    void abortTransaction();
    int transactionCount() const { return static_cast<int>(transactions.size()); }

    void startRecord() { place(Kind::Record); }
    // What is recorded from now on belongs to steps of this name.
    void nameSteps(const std::wstring& name);
    // Of the step that undoStep() or redoStep() would take; empty where there is none, or none with a name.
    std::wstring undoName() const;
    std::wstring redoName() const;
    void setMark() { place(Kind::Mark); }
    void undoToMark();
    void openBlock();
    void closeBlock();
    bool isBlockOpen() const { return openBlocks > 0; }
    bool undoStep();
    bool redoStep();
    bool hasUndo() const { return !changes.empty(); }
    bool hasRedo() const { return !undone.empty(); }

private:
    enum class Kind { Record, Mark, BlockBegin, BlockEnd };
    struct Place {
        Kind kind;
        std::size_t position;
    };
    using Changes = std::vector<std::unique_ptr<OdDbChange>>;

    void place(Kind kind);
    Changes takeBack(std::size_t position);
    void undoTo(std::size_t position);
    std::size_t lastStep() const;
    void forgetPlacesBehind(std::size_t position);

    Changes changes;
    std::vector<Changes> undone; // one entry for each step that redo goes forward
    std::vector<std::size_t> transactions;
    std::vector<Place> places;
    std::vector<std::wstring> names{std::wstring()};
    std::uint32_t currentName = 0;
    int openBlocks = 0;
    std::uint32_t currentEpoch = 1;
    std::uint64_t lastSerial = 0;
};
