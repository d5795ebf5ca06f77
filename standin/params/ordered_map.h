// A map that keeps the order in which its entries came, and finds each by name in constant time.
#pragma once

#include <list>
#include <string>
#include <string_view>
#include <unordered_map>

namespace standin {

template <class T> class OrderedMap {
public:
    struct Entry {
        std::string name;
        T value;
    };
    using Entries = std::list<Entry>;

    OrderedMap() = default;
    OrderedMap(const OrderedMap&) = delete; // the index points into the entries
    OrderedMap& operator=(const OrderedMap&) = delete;

    T* find(std::string_view name) {
        const auto found = index.find(name);
        return found == index.end() ? nullptr : &found->second->value;
    }
    const T* find(std::string_view name) const { return const_cast<OrderedMap*>(this)->find(name); }
    // The entry of that name, made at the end when there is none.
    T& operator[](std::string_view name) {
        if (T* found = find(name))
            return *found;
        entries.push_back({std::string(name), T()});
        index.emplace(entries.back().name, std::prev(entries.end()));
        return entries.back().value;
    }
    bool remove(std::string_view name) {
        const auto found = index.find(name);
        if (found == index.end())
            return false;
        const auto entry = found->second;
        index.erase(found);
        entries.erase(entry);
        return true;
    }
    void clear() {
        index.clear();
        entries.clear();
    }
    std::size_t size() const { return entries.size(); }
    bool empty() const { return entries.empty(); }
    typename Entries::const_iterator begin() const { return entries.begin(); }
    typename Entries::const_iterator end() const { return entries.end(); }

private:
    Entries entries;
    std::unordered_map<std::string_view, typename Entries::iterator> index;
};

} // namespace standin
