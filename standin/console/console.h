// The command console without any widget: the panel, the script player and the tests put lines, points and
// Escape in, and commands take them out through HostCommandIO.
#pragma once

#include "host/command_io.h"
#include "sdk/ge/point3d.h"

#include <QList>
#include <QObject>
#include <QStringList>
#include <optional>

class QEventLoop;

namespace standin {

class Keywords;

struct ConsoleInput {
    enum Kind { Line, Point, Escape };
    Kind kind = Escape;
    QString text;
    OdGePoint3d point;
};

// What a prompt wants, for whoever shows it.
struct OpenPrompt {
    enum Kind { Text, Point, Angle, Distance };
    Kind kind = Text; // of the value; all but a text may be given by a point
    QString text;
    bool wantsPoint() const { return kind != Text; }
    std::optional<OdGePoint3d> base;
    bool rubberBand = false;   // a line from the base to the cursor
    bool rectangle = false;    // a box between them instead
    bool picksObjects = false; // the point is to lie on an object
    HostEdPointTracker* tracker = nullptr;
};

// Bits of the flags of the input operations. An empty answer is always given back as kInputNone, so that the
// bit 4 with which callers announce that they take one needs no handling.
enum PromptFlags {
    kTextWithBlanks = 1, // the answer is free text; blanks around it are kept
    kAnyText = 2,        // text that is no keyword, point or number is an answer too
    kEmptyIsAnswer = 4,
    kRubberBand = 8, // from the base point to the cursor
    // High, so that no flag of a caller stands for one of them.
    kRectangle = 1 << 28,
    kPicksObjects = 1 << 29
};

class Console : public QObject, public HostCommandIO {
    Q_OBJECT
public:
    explicit Console(QObject* parent = nullptr);
    ~Console() override;

    // Input, by whatever source. What comes while no prompt is open waits for the next one.
    void enterLine(const QString& line);
    void pickPoint(const OdGePoint3d& point);
    void moveCursor(const OdGePoint3d& point) { cursor = point; } // where the user points at, in the drawing
    void escape(); // drops what is waiting and cancels the open prompt
    bool hasInput() const { return !pending.isEmpty(); }
    ConsoleInput takeInput(); // the oldest that waits
    const OpenPrompt* openPrompt() const { return prompts.isEmpty() ? nullptr : prompts.last(); }
    bool isWaiting() const { return waitingLoop != nullptr; } // a prompt is open and has nothing to read

    const QStringList& transcript() const { return lines; }
    void echo(const QString& prompt, const QString& answer); // a line as the user sees it after answering
    void print(const QString& text);                         // a message line

    int getInput(const wchar_t* prompt, const wchar_t* keywords, int flags, OdString* result, int) override;
    int getInputText(int, int, int, OdString* result, int) override;
    void printFormatted(const wchar_t* text, ...) override;
    void printLine(const wchar_t* text) override;
    int getPoint(const OdGePoint3d* base, OdGePoint3d* point, const wchar_t* prompt, const wchar_t* keywords,
                 int flags, OdString* text, HostEdPointTracker* tracker) override;
    int getAngle(const OdGePoint3d& base, double* angle, const wchar_t* prompt, const wchar_t* keywords,
                 int flags, OdString* text, HostEdPointTracker* tracker) override;
    int getDistance(const OdGePoint3d& base, double* distance, const wchar_t* prompt, const wchar_t* keywords,
                    int flags, OdString* text, HostEdPointTracker* tracker) override;
    int getReal(double* value, const wchar_t* prompt, const wchar_t* keywords, int flags, int, int) override;
    OdGePoint3d inputPoint() const override { return cursor; }

signals:
    void linesWritten(const QStringList& lines);
    void promptChanged(); // a prompt was opened or closed
    void inputArrived();

private:
    struct Answer {
        int code = 0; // kInputPicked for a point, kInputTyped for text
        ConsoleInput input;
    };
    class PromptScope;
    ConsoleInput waitForInput(const OpenPrompt& prompt);
    Answer ask(const OpenPrompt& prompt, const Keywords& keywords, int flags);
    Answer answerOf(const ConsoleInput& input, const Keywords& keywords, int flags);
    template <class Read>
    int askValue(const OpenPrompt& prompt, const wchar_t* keywords, int flags, OdString* text, Read read,
                 const QString& refusal);
    void put(ConsoleInput input);
    void write(const QString& text);
    void finishLine();

    QList<ConsoleInput> pending;
    QList<const OpenPrompt*> prompts; // the innermost last
    QEventLoop* waitingLoop = nullptr;
    QStringList lines;
    QString partialLine; // printed without a line feed as yet
    void holdPoint(const OdGePoint3d& point) { lastPoint = cursor = point; }

    OdGePoint3d lastPoint; // of an answer
    OdGePoint3d cursor;
};

} // namespace standin
