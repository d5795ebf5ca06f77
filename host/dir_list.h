// The host's list classes: a list of counted elements that travels inside a variant. Lists of standard
// directories are of this kind, made by the host and by its modules alike.
#pragma once

#include "host/app.h"
#include "host/std_dirs.h"

#include <cstdint>
#include <type_traits>
#include <vector>

// Root of the list classes.
class COList {
public:
    virtual ~COList() = default;
};

// Storage policy: one heap node for each element.
template <class T> class _CTListPlex {
public:
    using Value = T;
    struct Node {
        Node* next;
        Node* prev;
        T value;
    };
    static Node* newNode(const T& value) { return new Node{nullptr, nullptr, value}; }
    static void freeNode(Node* node) { delete node; }
};

// A circular chain: head->prev is tail and tail->next is head, so that a walk ends at the node `tail`. A
// closed list counts as empty: it takes nothing more, and no walk starts.
template <class Plex> class CTList : public COList {
public:
    using Value = typename Plex::Value;
    using Node = typename Plex::Node;

    CTList() : heap(Mem_DefaultHeap(0)) {}
    CTList(const CTList&) = delete;
    CTList& operator=(const CTList&) = delete;
    ~CTList() override { close(); }

    int size() const { return closed ? 0 : count; }
    bool isClosed() const { return closed != 0; }
    Node* headNode() const { return closed ? nullptr : head; } // null when empty or closed
    Node* tailNode() const { return closed ? nullptr : tail; }
    void append(const Value& value);
    void unlink(Node* node); // and frees it; the node must be one of this list
    void close();            // frees all nodes, for good
    Node* find(const Value& value) const;

private:
    int count = 0;
    Node* head = nullptr;
    Node* tail = nullptr;
    HeapHandle heap;
    std::int32_t closed = 0;
};

// A list of pointers to counted objects: it holds a reference on each.
template <class T> class CTPList : public CTList<_CTListPlex<T>> {
    using Base = CTList<_CTListPlex<T>>;
    using Counted = Ref<std::remove_pointer_t<T>>;

public:
    using Node = typename Base::Node;
    ~CTPList() override { close(); }
    void append(T element) {
        if (!this->isClosed())
            Base::append(Counted::share(element).detach());
    }
    void unlink(Node* node) {
        const auto dropped = Counted::take(node->value);
        Base::unlink(node);
    }
    void close() {
        while (Node* node = this->headNode())
            unlink(node);
        Base::close();
    }
};

// Enumerator over a list.
template <class T> class CTEnum : public IKWUnknown {
public:
    // Hands out up to `count` elements, each with a reference for the caller, and their number in `fetched`,
    // which may be null. True if there was at least one.
    virtual bool Next(int count, T* out, int* fetched) = 0;
    virtual void Skip(int count) = 0;
    virtual void Reset() = 0;
};

// The list as a counted object of its own, with a count that starts at 0. From the IKWUnknown in a variant it
// is reached by static_cast, since the list is not the object's first base.
template <class T, class A> class CTListEnum : public CTPList<T>, public CKWUnknownImpl<IKWUnknown> {
public:
    CTEnum<A>* newEnum(); // one reference for the caller
};

// Holds a reference on the list. The list must not lose the element at which the enumerator stands.
template <class T, class A> class _CListEnum : public CKWUnknownImpl<CTEnum<A>> {
    using List = CTListEnum<T, A>;

public:
    explicit _CListEnum(List* walked) : list(Ref<List>::share(walked)) {}
    bool Next(int count, A* out, int* fetched) override;
    void Skip(int count) override;
    void Reset() override;

private:
    void advance() { current = current == list->tailNode() ? nullptr : current->next; }

    typename List::Node* current = nullptr;
    Ref<List> list;
    bool started = false;
};

// Names a list type as the value type of a parameter item.
template <class L> struct _TWrapper { using Value = L; };

using StdDirList = CTListEnum<IStdDirInfo*, IStdDirInfo*>;

// The list that a variant carries; null when it carries none.
inline Ref<StdDirList> stdDirListOf(const CKWVariant& value) {
    return Ref<StdDirList>::share(static_cast<StdDirList*>(static_cast<IKWUnknown*>(value)));
}

// The elements of a list, in order; none for a null or a closed list.
std::vector<Ref<IStdDirInfo>> elementsOf(const Ref<StdDirList>& list);

#include "host/dir_list_impl.h"
