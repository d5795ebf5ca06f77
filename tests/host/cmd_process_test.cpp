// What every command object of the host has in common: its count, its held object and the interfaces that it
// answers.
#include "host/cmd_process.h"

#include <functional>
#include <gtest/gtest.h>

namespace {

class Command : public CKWUnknownImpl<ICmdProcess> {
public:
    explicit Command(bool* goneFlag = nullptr) : gone(goneFlag) {}
    ~Command() override {
        if (gone)
            *gone = true;
    }
    int Run(IParam*) override { return 0; }

private:
    bool* gone;
};

class Held : public CKWUnknownImpl<IKWUnknown> {
public:
    explicit Held(bool& goneFlag) : gone(goneFlag) {}
    ~Held() override { gone = true; }

private:
    bool& gone;
};

// Asks the command for its held object while it is counted itself.
class AskingWhenCounted : public Held {
public:
    AskingWhenCounted(bool& goneFlag, ICmdProcess& askedCommand) : Held(goneFlag), command(askedCommand) {}
    bool isHeldNow = false;
    std::function<void()> whenCounted;

protected:
    std::int64_t internalAddRef() override {
        if (whenCounted) {
            std::exchange(whenCounted, nullptr)();
            IKWUnknown* given = nullptr;
            isHeldNow = command.getHeld(&given) != 0 && given == this;
            Ref<IKWUnknown>::take(given);
        }
        return Held::internalAddRef();
    }

private:
    ICmdProcess& command;
};

// Replaces the internal operations alone.
class RecordingCommand : public Command {
public:
    std::string calls;

protected:
    std::int64_t internalAddRef() override {
        calls += "add ";
        return Command::internalAddRef();
    }
    std::int64_t internalRelease() override {
        calls += "release ";
        return Command::internalRelease();
    }
    int internalQueryInterface(const std::type_info& type, void** out) override {
        calls += "query ";
        return Command::internalQueryInterface(type, out);
    }
};

class CommandObject : public testing::Test {
protected:
    int answers(const std::type_info& type) {
        void* found = &found;
        const int known = command->QueryInterface(type, &found);
        EXPECT_EQ(found, known ? static_cast<ICmdProcess*>(command.get()) : nullptr);
        Ref<ICmdProcess>::take(static_cast<ICmdProcess*>(found));
        return known;
    }
    std::int64_t references() {
        command->AddRef();
        return command->Release();
    }
    Ref<ICmdProcess> command = Ref<ICmdProcess>::share(new Command);
    bool gone = false;
};

} // namespace

TEST_F(CommandObject, StartsWithACountOfZeroNothingHeldAndStatusZero) {
    bool commandGone = false;
    auto* const fresh = new Command(&commandGone);
    int something = 0;
    auto* untouched = reinterpret_cast<IKWUnknown*>(&something);
    EXPECT_EQ(fresh->getHeld(&untouched), 0);
    EXPECT_EQ(static_cast<void*>(untouched), &something) << "without a held object `out` is left alone";
    EXPECT_EQ(fresh->getStatus(), 0);
    EXPECT_EQ(fresh->AddRef(), 1);
    EXPECT_EQ(fresh->Release(), 0);
    EXPECT_TRUE(commandGone);
}

TEST_F(CommandObject, AnswersZeroAndOneToItsTwoFixedQuestions) {
    EXPECT_EQ(command->constantZero(), 0);
    EXPECT_EQ(command->enableQuery(), 1);
}

TEST_F(CommandObject, AnswersTheRootAndItsOwnInterfaceButNotTheOneBetween) {
    EXPECT_EQ(answers(typeid(IKWUnknown)), 1);
    EXPECT_EQ(answers(typeid(ICmdProcess)), 1);
    EXPECT_EQ(answers(typeid(ICmdRun)), 0);
    EXPECT_EQ(answers(typeid(IParam)), 0);
    EXPECT_EQ(references(), 1) << "each reference was given back";
}

TEST_F(CommandObject, AnswersWithoutAReferenceWhenThereIsNoPlaceForIt) {
    EXPECT_EQ(command->QueryInterface(typeid(ICmdProcess), nullptr), 1);
    EXPECT_EQ(command->QueryInterface(typeid(ICmdRun), nullptr), 0);
    EXPECT_EQ(references(), 1);
}

TEST_F(CommandObject, HoldsAnObjectAndHandsItOutWithAReference) {
    auto* const object = new Held(gone);
    EXPECT_EQ(command->setHeld(object), 1);
    IKWUnknown* out = nullptr;
    EXPECT_EQ(command->getHeld(&out), 1);
    EXPECT_EQ(out, object);
    EXPECT_EQ(out->Release(), 1) << "one reference is left, the command's own";
    EXPECT_EQ(command->setHeld(object), 1);
    EXPECT_EQ(object->AddRef(), 2) << "the same object again adds none";
    EXPECT_EQ(object->Release(), 1);
}

TEST_F(CommandObject, LetsTheOldObjectGoWhenItTakesANewOneOrNone) {
    bool nextGone = false;
    command->setHeld(new Held(gone));
    command->setHeld(new Held(nextGone));
    EXPECT_TRUE(gone);
    EXPECT_FALSE(nextGone);
    EXPECT_EQ(command->setHeld(nullptr), 1);
    EXPECT_TRUE(nextGone);
    IKWUnknown* out = nullptr;
    EXPECT_EQ(command->getHeld(&out), 0);
}

TEST_F(CommandObject, StoresANewObjectBeforeItIsCountedAndLetsTheOldOneGoAfterThat) {
    bool nextGone = false, goneTooEarly = true;
    command->setHeld(new Held(gone));
    const auto next = Ref<AskingWhenCounted>::share(new AskingWhenCounted(nextGone, *command));
    next->whenCounted = [&] { goneTooEarly = gone; };
    command->setHeld(next.get());
    EXPECT_TRUE(next->isHeldNow);
    EXPECT_FALSE(goneTooEarly);
    EXPECT_TRUE(gone);
    EXPECT_EQ(next->AddRef(), 3) << "the command's reference and the test's own two";
    next->Release();
}

TEST_F(CommandObject, LetsItsObjectGoWhenItGoesItself) {
    command->setHeld(new Held(gone));
    command = nullptr;
    EXPECT_TRUE(gone);
}

TEST_F(CommandObject, CountsAndAnswersThroughItsInternalOperations) {
    auto* const recording = new RecordingCommand;
    recording->AddRef();
    void* found = nullptr;
    recording->QueryInterface(typeid(ICmdProcess), &found);
    recording->Release();
    EXPECT_EQ(recording->calls, "add query add release ");
    recording->Release();
}
