// The unit of the angle in the attach dialog: radians, or, for hosts with the habit, what the prompts of the
// drawing take a plain number for.
#pragma once

#include <QString>

struct AngleUnit {
    static AngleUnit wanted();

    double radians(const QString& number) const;
    QString number(double radians) const;
    QString name() const; // in the user's language; empty for plain radians

    double atZero = 0; // the angle of a typed 0, in radians
    double ofOne = 1;  // what each further one turns, in radians
};
