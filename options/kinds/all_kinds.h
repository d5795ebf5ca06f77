// The kinds of rows, one line each. They have no state: there is one object of each.
#pragma once

class RowKind;

// Of rows that the option data names.
const RowKind& checkKind();
const RowKind& radioKind();
const RowKind& radioCursorKind();
const RowKind& colorKind();
const RowKind& acColorKind();
const RowKind& editIntKind();
const RowKind& editRealKind();
const RowKind& editFileKind(); // of several files too: the two are the same in every respect
const RowKind& editKind();
const RowKind& editDirKind();
const RowKind& comboKind();
const RowKind& sectionKind();
// Of rows that the pages make.
const RowKind& paperKind();
const RowKind& paperRootKind();
const RowKind& rasterFormatKind();
const RowKind& pathKind();
const RowKind& dirSectionKind();
