// Attaches one drawing to another as the attach command does, and tells the extents of what the saved drawing
// shows, for checks by another reader: attach_tool SITE PART OVERLAY X Y SCALE ROTATION PATH_TYPE
#include "sdk/db/xref_man.h"
#include "standin/display/display_list.h"
#include "standin/references/attach_services.h"
#include "tests/support/fixture_host.h"
#include "tests/support/test_application.h"
#include "xref/attach_reference.h"

#include <cstdio>
#include <cstdlib>

namespace {

bool tellExtents(const OdString& path) {
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(path);
    if (!OdDbXRefMan::loadAll(drawing.get()).empty())
        return false;
    standin::DisplayList shown(drawing);
    shown.refresh();
    const standin::Box box = shown.extents();
    std::printf("%.6f %.6f %.6f %.6f\n", box.left, box.bottom, box.right, box.top);
    return true;
}

int attach(char** arguments) {
    const OdString site(arguments[1]), part(arguments[2]);
    FixtureHost host;
    static_cast<standin::ServiceHub*>(host.application())
        ->add(Ref<standin::AttachServices>::share(new standin::AttachServices));
    const OdDbDatabasePtr drawing = OdDbDatabase::readFile(site);
    host.openDocument(drawing).path = site;
    const bool attached =
        attachReference(part, {std::atof(arguments[4]), std::atof(arguments[5]), 0},
                        OdGeScale3d(std::atof(arguments[6])), std::atoi(arguments[3]) != 0, false, false,
                        false, false, std::atoi(arguments[8]), false, std::atof(arguments[7]));
    for (const FixtureEvents::Notice& notice : host.notices())
        std::fprintf(stderr, "%s\n", notice.text.toLocal8Bit().constData());
    if (!attached)
        return 1;
    drawing->writeFile(site);
    return tellExtents(site) ? 0 : 4;
}

} // namespace

int main(int argc, char** argv) {
    TestApplication application(argc, argv);
    if (argc != 9)
        return 2;
    try {
        return attach(argv);
    } catch (const OdError& error) {
        std::fprintf(stderr, "%s\n", error.description().toLocal8Bit().c_str());
        return 3;
    }
}
