// The longer bodies of the list classes.
#pragma once

#include "host/dir_list.h"

template <class Plex> void CTList<Plex>::append(const Value& value) {
    if (closed)
        return;
    Node* node = Plex::newNode(value);
    if (!head)
        head = tail = node;
    node->next = head;
    node->prev = tail;
    head->prev = node;
    tail->next = node;
    tail = node;
    ++count;
}

template <class Plex> void CTList<Plex>::unlink(Node* node) {
    if (closed)
        return;
    node->prev->next = node->next;
    node->next->prev = node->prev;
    const bool single = head == tail;
    if (node == head)
        head = single ? nullptr : node->next;
    if (node == tail)
        tail = single ? nullptr : node->prev;
    --count;
    Plex::freeNode(node);
}

template <class Plex> void CTList<Plex>::close() {
    while (Node* node = headNode())
        unlink(node);
    closed = 1;
}

template <class Plex> auto CTList<Plex>::find(const Value& value) const -> Node* {
    for (Node* node = headNode(); node; node = node == tail ? nullptr : node->next)
        if (node->value == value)
            return node;
    return nullptr;
}

template <class T, class A> CTEnum<A>* CTListEnum<T, A>::newEnum() {
    return Ref<CTEnum<A>>::share(new _CListEnum<T, A>(this)).detach();
}

template <class T, class A> bool _CListEnum<T, A>::Next(int count, A* out, int* fetched) {
    if (!started)
        Reset();
    int given = 0;
    for (; given < count && current; advance())
        out[given++] = Ref<std::remove_pointer_t<A>>::share(current->value).detach();
    if (fetched)
        *fetched = given;
    return given > 0;
}

template <class T, class A> void _CListEnum<T, A>::Skip(int count) {
    if (!started)
        Reset();
    for (int skipped = 0; skipped < count && current; ++skipped)
        advance();
}

template <class T, class A> void _CListEnum<T, A>::Reset() {
    current = list->headNode();
    started = true;
}

inline std::vector<Ref<IStdDirInfo>> elementsOf(const Ref<StdDirList>& list) {
    std::vector<Ref<IStdDirInfo>> elements;
    if (!list)
        return elements;
    const auto walk = Ref<CTEnum<IStdDirInfo*>>::take(list->newEnum());
    IStdDirInfo* info = nullptr;
    while (walk->Next(1, &info, nullptr))
        elements.push_back(Ref<IStdDirInfo>::take(info));
    return elements;
}
