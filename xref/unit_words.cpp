#include "xref/unit_words.h"

#include "host/text.h"
#include "xref/attach_host.h"

#include <iterator>

QString unitWord(OdDb::UnitsValue unit) {
    static const wchar_t* const words[] = {L"Unitless",
                                           L"Inches",
                                           L"Feet",
                                           L"Miles",
                                           L"Millimetres",
                                           L"Centimetres",
                                           L"Metres",
                                           L"Kilometres",
                                           L"Microinches",
                                           L"Mils",
                                           L"Yards",
                                           L"Angstroms",
                                           L"Nanometres",
                                           L"Microns",
                                           L"Decimetres",
                                           L"Dekametres",
                                           L"Hectometres",
                                           L"Gigametres",
                                           L"Astronomical units",
                                           L"Light years",
                                           L"Parsecs",
                                           L"US survey feet",
                                           L"US survey inches",
                                           L"US survey yards",
                                           L"US survey miles"};
    const bool known = unit >= 0 && static_cast<std::size_t>(unit) < std::size(words);
    return hostqt::qString(attach::word(words[known ? unit : 0]));
}
