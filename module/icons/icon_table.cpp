// Built when the library is loaded; the numbers are known to the option data and must not change.
#include "module/icons/icon_table.h"

namespace {

const QString darkPrefix = QStringLiteral(":/res/dark/");
const QString lightPrefix = QStringLiteral(":/res/light/");
const QString suffix = QStringLiteral(".ico");

// Number 19 is free.
const QMap<int, QString> table{
    {1, "paper"},    {2, "folders"}, {3, "grip"},         {4, "profile"},       {5, "color"},
    {6, "zip"},      {7, "snapset"}, {8, "cursor"},       {9, "windows"},       {10, "visual_ui_style"},
    {11, "undo"},    {12, "text"},   {13, "template"},    {14, "standard"},     {15, "format_pic"},
    {16, "raster"},  {17, "mouse"},  {18, "mail"},        {20, "imp_exp"},      {21, "graphic"},
    {22, "save"},    {23, "geo"},    {24, "dyn"},         {25, "command_pref"}, {26, "api"},
    {27, "choose"},  {28, "edit"},   {29, "delete"},      {30, "down"},         {31, "up"},
    {32, "add"},     {33, "pref"},   {34, "help_format"}, {35, "quick_opt"},    {36, "show_msg"},
    {37, "logpref"}, {38, "underl"},
};

} // namespace

const QMap<int, QString>& iconTable() { return table; }

QString toolIconPath(int number, int theme) {
    return (theme == 0 ? darkPrefix : lightPrefix) + table.value(number) + suffix;
}
