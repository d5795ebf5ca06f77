// A host that wants the habits that a test names, in front of the fixture host for as long as this lives.
#pragma once

#include "host/dialog_habits.h"
#include "standin/params/service_hub.h"

#include <set>

class TestHabits {
public:
    explicit TestHabits(std::set<DialogHabit> wanted) : before(theOnlyIApp) {
        hub->add(Ref<Service>::share(new Service(std::move(wanted))));
        if (before)
            hub->add(Ref<IKWUnknown>::share(before));
        theOnlyIApp = hub.get();
    }
    ~TestHabits() { theOnlyIApp = before; }
    TestHabits(const TestHabits&) = delete;
    TestHabits& operator=(const TestHabits&) = delete;
    // A further service beside the habits.
    void add(Ref<IKWUnknown> service) { hub->add(std::move(service)); }

private:
    class Service : public CKWUnknownImpl<IDialogHabits> {
    public:
        explicit Service(std::set<DialogHabit> wanted) : habits(std::move(wanted)) {}
        bool has(DialogHabit habit) override { return habits.count(habit) != 0; }

    private:
        std::set<DialogHabit> habits;
    };
    IKWUnknown* before;
    Ref<standin::ServiceHub> hub = Ref<standin::ServiceHub>::share(new standin::ServiceHub);
};
