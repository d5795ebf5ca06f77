// System variables of a drawing: values of its header, those of the application, and a few that last only as
// long as the drawing is open.
#include "sdk/db/application_variables.h"
#include "sdk/db/database_impl.h"

namespace {

OdDbApplicationVariables* applicationVariables = nullptr;

std::string headerName(const OdString& name) { return "$" + name.makeUpper().toUtf8(); }

OdResBufPtr valueOf(const OdDbHeader& header, const DxfCodec& codec, const std::string& name) {
    OdResBufPtr value = OdResBuf::newRb(header.code(name));
    switch (OdDxfCode::_getType(value->restype())) {
    case OdDxfCode::Double:
        value->setDouble(header.real(name));
        break;
    case OdDxfCode::Name:
    case OdDxfCode::String:
        value->setString(codec.decode(header.value(name)));
        break;
    default:
        value->setInt32(static_cast<std::int32_t>(header.integer(name)));
    }
    return value;
}

std::string textOf(const OdResBuf& value, int code, const DxfCodec& codec) {
    switch (OdDxfCode::_getType(code)) {
    case OdDxfCode::Double:
        return dxfText(value.getDouble());
    case OdDxfCode::Name:
    case OdDxfCode::String:
        return codec.encode(value.getString());
    default:
        return dxfText(std::int64_t{value.getInt32()});
    }
}

} // namespace

void odDbSetApplicationVariables(OdDbApplicationVariables* variables) { applicationVariables = variables; }
OdDbApplicationVariables* odDbApplicationVariables() { return applicationVariables; }

OdResBufPtr OdDbDatabase::getSysVar(const OdString& name) const {
    OdResBufPtr value = applicationVariables ? applicationVariables->getVariable(name) : OdResBufPtr();
    if (!value.isNull())
        return value;
    const std::string inHeader = headerName(name);
    if (parts->header.code(inHeader) != 0)
        return valueOf(parts->header, parts->codec, inHeader);
    const auto found = parts->sessionVariables.find(name.makeUpper().wide());
    if (found != parts->sessionVariables.end())
        return found->second->clone();
    value = applicationVariables ? applicationVariables->drawingDefault(name) : OdResBufPtr();
    if (value.isNull())
        throw OdError(eKeyNotFound, name);
    return value;
}

void OdDbDatabase::setSysVar(const OdString& name, const OdResBuf* value) {
    if (applicationVariables && applicationVariables->setVariable(name, value))
        return;
    const std::string inHeader = headerName(name);
    const int code = parts->header.code(inHeader);
    if (code == 0) {
        parts->sessionVariables[name.makeUpper().wide()] = value->clone();
        return;
    }
    const OdResBufPtr present = valueOf(parts->header, parts->codec, inHeader);
    const std::string text = textOf(*value, code, parts->codec);
    if (text == textOf(*present, code, parts->codec))
        return; // no change: the drawing isn't modified by it
    parts->header.set(inHeader, code, text);
    parts->headerModified = true;
    parts->notify([](OdDbDatabaseReactor& reactor) { reactor.headerChanged(); });
}

OdDb::UnitsValue OdDbDatabase::getINSUNITS() const {
    return static_cast<OdDb::UnitsValue>(parts->header.integer("$INSUNITS"));
}

void OdDbDatabase::setINSUNITS(OdDb::UnitsValue units) {
    parts->header.set("$INSUNITS", 70, dxfText(std::int64_t{units}));
    parts->headerModified = true;
}

OdDbDate OdDbDatabase::getTDCREATE() const {
    return OdTimeStamp::fromJulianFraction(parts->header.real("$TDCREATE"));
}

OdDbDate OdDbDatabase::getTDUPDATE() const {
    return OdTimeStamp::fromJulianFraction(parts->header.real("$TDUPDATE"));
}

double OdDbDatabaseImpl::editingDays(Clock::time_point until) const {
    using Days = std::chrono::duration<double, std::ratio<86400>>;
    constexpr double mostDays = 1e6;
    const Days session = until - openedAt;
    const double former = header.real("$TDINDWG");
    return (former > 0 && former < mostDays ? former : 0) + session.count();
}

OdDbDate OdDbDatabase::getTDINDWG() const { return OdTimeStamp::fromJulianFraction(parts->editingDays()); }

OdGePoint3d get_UCSORG(const OdDbDatabase* database) {
    return database->impl().header.point("$UCSORG", OdGePoint3d::kOrigin);
}

OdGeVector3d get_UCSXDIR(const OdDbDatabase* database) {
    return database->impl().header.point("$UCSXDIR", {1, 0, 0}).asVector();
}

OdGeVector3d get_UCSYDIR(const OdDbDatabase* database) {
    return database->impl().header.point("$UCSYDIR", {0, 1, 0}).asVector();
}

void getCurrentUCS(const OdDbDatabase* database, OdGeMatrix3d& matrix) {
    const OdGeVector3d x = get_UCSXDIR(database), y = get_UCSYDIR(database);
    matrix.setCoordSystem(get_UCSORG(database), x, y, x.crossProduct(y));
}

void setCurrentUCS(OdDbDatabase* database, const OdGePoint3d& origin, const OdGeVector3d& xAxis,
                   const OdGeVector3d& yAxis) {
    OdDbDatabaseImpl& impl = database->impl();
    impl.header.setPoint("$UCSORG", origin);
    impl.header.setPoint("$UCSXDIR", OdGePoint3d() + xAxis);
    impl.header.setPoint("$UCSYDIR", OdGePoint3d() + yAxis);
    impl.headerModified = true;
    impl.notify([](OdDbDatabaseReactor& reactor) { reactor.headerChanged(); });
}
