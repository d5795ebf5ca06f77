// The application object of the workbench: the stores of the user and the shipped data behind the host's
// interfaces.
#pragma once

#include "host/app.h"
#include "standin/params/in_file.h"
#include "standin/params/profile_file.h"
#include "standin/params/service_hub.h"
#include "standin/params/std_papers.h"

namespace standin {

struct ApplicationSetup {
    QString dataDir; // preftree, formats, papers, stddirs and profile_defaults, all .yaml; never written
    QString rootDir; // where the user's files go
    StoreIo io;
    int mode = 0;                               // applicationMode()
    std::vector<std::string> remembered = {};   // in the profile: see StoreFiles
    std::vector<Ref<IKWUnknown>> services = {}; // answered besides those of the stand-in
};

// Puts itself into theOnlyIApp and takes itself out again. The user's files are flushed at the end of each
// turn of the event loop that changed them, by flush(), and by the destructor.
class Application {
public:
    explicit Application(const ApplicationSetup& setup);
    ~Application();
    Application(const Application&) = delete;
    Application& operator=(const Application&) = delete;
    bool flush(); // false when something could not be written
    // One more service of the application object.
    void add(Ref<IKWUnknown> service) { hub->add(std::move(service)); }

private:
    Ref<ServiceHub> hub;
    Ref<ParamOf<IConfigParam>> config;
    Ref<FileProfile> profile;
    Ref<InFile<ParamOf<IIOParams>>> ioParams;
    Ref<InFile<StdPapers>> papers;
    Ref<InFile<MemParam>> dirs;
    IKWUnknown* before;
};

} // namespace standin
