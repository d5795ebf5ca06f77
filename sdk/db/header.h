// The header values of a drawing in file order, with those that were set since it was read.
#pragma once

#include "sdk/dxf/tag_list.h"

#include <string>
#include <vector>

class OdDbHeader {
public:
    struct Variable {
        std::string name; // with its "$"
        DxfTagList tags;  // the name tag first, then the value
    };

    // `bytes` are the tags between the section's name and its end. Throws DxfFault.
    void parse(std::string_view bytes, std::shared_ptr<const std::string> source, bool carriageReturns);
    bool isChanged() const { return changed; }
    std::string bytes() const; // everything, as it is to be written

    const std::vector<Variable>& all() const { return variables; }
    const Variable* find(std::string_view name) const; // null when there is none
    std::string_view value(std::string_view name, std::string_view otherwise = {}) const;
    int code(std::string_view name) const; // group code of the value; 0 when there is none
    double real(std::string_view name, double otherwise = 0) const;
    std::int64_t integer(std::string_view name, std::int64_t otherwise = 0) const;
    OdGePoint3d point(std::string_view name, const OdGePoint3d& otherwise) const;

    // Keeps the group code of a value that is there.
    void set(std::string_view name, int code, std::string_view value);
    void setReal(std::string_view name, double value) { set(name, 40, dxfText(value)); }
    void setPoint(std::string_view name, const OdGePoint3d& value);
    // `tags` as they are, the name first.
    void put(std::string_view name, DxfTagList tags);

    // Gives the variables that `isMeant` picks the state and the places that they have in `former`, a state
    // of this header; all others keep what they have now.
    using Variables = std::vector<Variable>;
    void restore(const Variables& former, bool (*isMeant)(std::string_view name));

    // Custom properties: pairs of variables that may repeat, as encoded texts in file order.
    std::vector<std::pair<std::string, std::string>> customProperties() const;
    void setCustomProperties(const std::vector<std::pair<std::string, std::string>>& properties);

private:
    Variable& add(std::string_view name);
    std::vector<Variable>::iterator locate(std::string_view name);
    std::string preamble; // tags before the first variable: comments
    std::vector<Variable> variables;
    bool withCarriageReturns = false;
    bool changed = false;
};
