// The dash patterns of the line types of a drawing.
#pragma once

#include "sdk/db/database.h"

#include <QLineF>
#include <QVector>
#include <memory>
#include <unordered_map>
#include <vector>

namespace standin {

// Lengths in drawing units: a dash, a gap (negative) or a dot (0), one after the other. Null is a plain line.
using Dashes = std::shared_ptr<const std::vector<double>>;

class Linetypes {
public:
    // `scale` lengthens all of them.
    Linetypes(const OdDbDatabase& drawing, double scale);
    Dashes of(const OdString& name) const; // null, too, for a line type that is missing
    // The pattern `times` as long.
    static Dashes scaled(const Dashes& dashes, double times);

private:
    std::unordered_map<std::wstring, Dashes> patterns; // by name in small letters
};

// How far along a pattern a path of lines has come, in pixels. A pattern too fine to be seen is a plain line.
class Dasher {
public:
    Dasher(const std::vector<double>& pattern, double pixelsPerUnit);
    bool isPlain() const { return plain; }
    // Adds the dashes of the part of a line that begins `hidden` pixels behind its start; `length` is that of
    // the whole line.
    void add(const QLineF& shown, double hidden, double length, QVector<QLineF>& lines);

private:
    std::vector<double> steps; // in pixels; odd ones are gaps
    double total = 0;
    double walked = 0;
    bool plain = true;
};

} // namespace standin
