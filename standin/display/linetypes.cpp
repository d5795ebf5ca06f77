#include "standin/display/linetypes.h"

#include "sdk/db/symbol_table.h"
#include "standin/display/folded_name.h"

#include <cmath>

namespace standin {

namespace {

const double finest = 3; // pixels of a whole pattern

Dashes patternOf(const OdDbSymbolTableRecord& linetype, double scale) {
    std::vector<double> lengths;
    for (const DxfTag& tag : linetype.tags())
        if (tag.code == 49)
            lengths.push_back(dxfReal(tag.value()) * scale);
    return lengths.empty() ? nullptr : std::make_shared<const std::vector<double>>(std::move(lengths));
}

} // namespace

Linetypes::Linetypes(const OdDbDatabase& drawing, double scale) {
    const auto table = odrxQuery<OdDbSymbolTable>(drawing.getLinetypeTableId().openObject().get());
    if (table.isNull())
        return;
    for (auto it = table->newIterator(); !it.done(); it.step()) {
        const OdDbSymbolTableRecordPtr record = it.getRecord();
        if (!record.isNull())
            patterns.emplace(foldedName(record->getName()), patternOf(*record, scale));
    }
}

Dashes Linetypes::of(const OdString& name) const {
    const auto found = patterns.find(foldedName(name));
    return found == patterns.end() ? nullptr : found->second;
}

Dashes Linetypes::scaled(const Dashes& dashes, double times) {
    if (!dashes || times == 1 || !(times > 0))
        return dashes;
    std::vector<double> lengths = *dashes;
    for (double& length : lengths)
        length *= times;
    return std::make_shared<const std::vector<double>>(std::move(lengths));
}

// Dots are a pixel long; dashes and gaps that follow each other are one.
Dasher::Dasher(const std::vector<double>& pattern, double pixelsPerUnit) {
    for (const double length : pattern) {
        const bool gap = length < 0;
        const double pixels = length == 0 ? 1 : std::fabs(length) * pixelsPerUnit;
        if (gap && steps.empty())
            steps.push_back(0);
        if ((steps.size() % 2 == 1) == gap || steps.empty())
            steps.push_back(pixels);
        else
            steps.back() += pixels;
        total += pixels;
    }
    plain = !(total >= finest) || steps.size() < 2;
}

void Dasher::add(const QLineF& shown, double hidden, double length, QVector<QLineF>& lines) {
    const double end = shown.length();
    const QPointF along = end > 0 ? (shown.p2() - shown.p1()) / end : QPointF();
    double behind = std::fmod(walked + hidden, total);
    walked += length;
    std::size_t step = 0;
    while (step + 1 < steps.size() && behind >= steps[step])
        behind -= steps[step++];
    for (double at = 0; at < end; step = (step + 1) % steps.size(), behind = 0) {
        const double next = std::min(end, at + steps[step] - behind);
        if (step % 2 == 0 && next > at)
            lines.append(QLineF(shown.p1() + along * at, shown.p1() + along * next));
        at = next;
    }
}

} // namespace standin
