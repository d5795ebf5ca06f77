// The one list behind transactions and undo; see the header for what a place in it means.
#include "sdk/db/change_log.h"

#include "sdk/rx/od_error.h"

#include <algorithm>

void OdDbChangeLog::record(std::unique_ptr<OdDbChange> change) {
    undone.clear();
    change->serial = ++lastSerial;
    change->stepName = currentName;
    changes.push_back(std::move(change));
}

void OdDbChangeLog::nameSteps(const std::wstring& name) {
    const auto known = std::find(names.begin(), names.end(), name);
    currentName = static_cast<std::uint32_t>(known - names.begin());
    if (known == names.end())
        names.push_back(name);
}

std::wstring OdDbChangeLog::undoName() const {
    return changes.empty() ? std::wstring() : names[changes[lastStep()]->stepName];
}

std::wstring OdDbChangeLog::redoName() const {
    return undone.empty() ? std::wstring() : names[undone.back().back()->stepName];
}

void OdDbChangeLog::startTransaction() {
    transactions.push_back(changes.size());
    ++currentEpoch;
}

void OdDbChangeLog::commitTransaction() {
    if (transactions.empty())
        throw OdError(eNoActiveTransactions);
    transactions.pop_back();
}

void OdDbChangeLog::abortTransaction() {
    if (transactions.empty())
        throw OdError(eNoActiveTransactions);
    const std::size_t position = transactions.back();
    transactions.pop_back();
    takeBack(std::min(position, changes.size()));
    forgetPlacesBehind(changes.size());
}

void OdDbChangeLog::place(Kind kind) {
    places.push_back({kind, changes.size()});
    ++currentEpoch;
}

void OdDbChangeLog::openBlock() {
    ++openBlocks;
    place(Kind::BlockBegin);
}

void OdDbChangeLog::closeBlock() {
    if (openBlocks == 0)
        return;
    --openBlocks;
    place(Kind::BlockEnd);
}

// Puts the changes behind `position` back, last one first, and hands them out in that order.
OdDbChangeLog::Changes OdDbChangeLog::takeBack(std::size_t position) {
    Changes taken;
    while (changes.size() > position) {
        changes.back()->swap();
        taken.push_back(std::move(changes.back()));
        changes.pop_back();
    }
    ++currentEpoch;
    return taken;
}

void OdDbChangeLog::forgetPlacesBehind(std::size_t position) {
    while (!places.empty() && places.back().position > position)
        places.pop_back();
    for (std::size_t& start : transactions)
        start = std::min(start, position);
}

void OdDbChangeLog::undoTo(std::size_t position) {
    Changes step = takeBack(position);
    forgetPlacesBehind(position);
    if (!step.empty())
        undone.push_back(std::move(step));
}

void OdDbChangeLog::undoToMark() {
    std::size_t position = 0;
    for (std::size_t i = places.size(); i-- > 0;) {
        if (places[i].kind != Kind::Mark)
            continue;
        position = places[i].position;
        places.erase(places.begin() + static_cast<std::ptrdiff_t>(i));
        break;
    }
    undoTo(position);
}

std::size_t OdDbChangeLog::lastStep() const {
    int depth = 0;
    for (std::size_t i = places.size(); i-- > 0;) {
        const Place& p = places[i];
        if (p.kind == Kind::BlockEnd)
            ++depth;
        if (p.kind == Kind::BlockBegin)
            depth = std::max(0, depth - 1);
        if (depth == 0 && p.kind != Kind::Mark && p.position < changes.size())
            return p.position;
    }
    return 0;
}

bool OdDbChangeLog::undoStep() {
    if (changes.empty() || !transactions.empty())
        return false;
    undoTo(lastStep());
    return true;
}

bool OdDbChangeLog::redoStep() {
    if (undone.empty() || !transactions.empty())
        return false;
    Changes step = std::move(undone.back());
    undone.pop_back();
    place(Kind::Record);
    for (auto change = step.rbegin(); change != step.rend(); ++change) {
        (*change)->swap();
        changes.push_back(std::move(*change));
    }
    ++currentEpoch;
    return true;
}
