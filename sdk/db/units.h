// Drawing units and what one of them is in metres.
#pragma once

#include "sdk/rx/od_error.h"

namespace OdDb {
enum UnitsValue : int {
    kUnitsUndefined = 0,
    kUnitsInches = 1,
    kUnitsFeet = 2,
    kUnitsMiles = 3,
    kUnitsMillimeters = 4,
    kUnitsCentimeters = 5,
    kUnitsMeters = 6,
    kUnitsKilometers = 7,
    kUnitsMicroinches = 8,
    kUnitsMils = 9,
    kUnitsYards = 10,
    kUnitsAngstroms = 11,
    kUnitsNanometers = 12,
    kUnitsMicrons = 13,
    kUnitsDecimeters = 14,
    kUnitsDekameters = 15,
    kUnitsHectometers = 16,
    kUnitsGigameters = 17,
    kUnitsAstronomical = 18,
    kUnitsLightYears = 19,
    kUnitsParsecs = 20,
    kUnitsUSSurveyFeet = 21,
    kUnitsUSSurveyInch = 22,
    kUnitsUSSurveyYard = 23,
    kUnitsUSSurveyMile = 24
};
}

// One unit in metres. Fails, leaving `metres` alone, for no unit and for an unknown one.
OdResult GetUnitFactor(OdDb::UnitsValue unit, double& metres);
// How many `to` make one `from`; 1.0 when one of them is no known unit, never 0.
double GetUnitFactor(OdDb::UnitsValue from, OdDb::UnitsValue to);
