// What a double click on the label of an editor row does.
#include "tests/options/options_fixture.h"

#include <QAbstractItemView>
#include <QCheckBox>
#include <QComboBox>
#include <QLineEdit>
#include <QSpinBox>
#include <QToolButton>

namespace {

class ModifyEditor : public OptionsFixture {
protected:
    void doubleClick(const char* name) {
        dialog->tree->setCurrentItem(item(name));
        QTest::mouseDClick(row(name)->label(), Qt::LeftButton);
    }
};

TEST_F(ModifyEditor, ASwatchOpensItsColorDialog) {
    int shown = 0;
    standin::registry().colorDialog = [&shown](OdCmColor&, auto&&...) { return ++shown, 0; };
    node("Color").type(L"Color");
    node("AcColor").type(L"AcColor");
    show();
    doubleClick("Color");
    EXPECT_EQ(shown, 1);
    doubleClick("AcColor");
    EXPECT_EQ(shown, 2);
}

TEST_F(ModifyEditor, NumbersAndTextsGetTheFocus) {
    const std::pair<const char*, const wchar_t*> kinds[] = {
        {"Int", L"EditInt"},   {"Real", L"EditReal"},       {"Edit", L"Edit"},
        {"File", L"EditFile"}, {"Files", L"EditMultiFile"}, {"Dir", L"EditDir"}};
    for (const auto& [name, type] : kinds)
        node(name).type(type);
    show();
    for (const auto& kind : kinds) {
        doubleClick(kind.first);
        EXPECT_TRUE(waitUntil([&] { return editor<QWidget>(kind.first)->hasFocus(); })) << kind.first;
    }
}

// Keeps the reason of the last focus that a widget has got.
class FocusReason : public QObject {
public:
    explicit FocusReason(QWidget* watched) { watched->installEventFilter(this); }
    Qt::FocusReason reason = Qt::NoFocusReason;

protected:
    bool eventFilter(QObject*, QEvent* event) override {
        if (event->type() == QEvent::FocusIn)
            reason = static_cast<QFocusEvent*>(event)->reason();
        return false;
    }
};

TEST_F(ModifyEditor, TheFocusIsGivenForAReasonOfItsOwn) {
    node("Int").type(L"EditInt");
    show();
    const FocusReason seen(editor<QSpinBox>("Int"));
    doubleClick("Int");
    EXPECT_EQ(seen.reason, Qt::OtherFocusReason);
}

TEST_F(ModifyEditor, ADisabledEditorIsEnabledFirst) {
    node("Edit").type(L"Edit");
    show();
    editor<QLineEdit>("Edit")->setEnabled(false);
    doubleClick("Edit");
    EXPECT_TRUE(editor<QLineEdit>("Edit")->isEnabled());
    EXPECT_TRUE(editor<QLineEdit>("Edit")->hasFocus());
}

TEST_F(ModifyEditor, AComboOpensItsList) {
    const OptionTreeWriter combo = node("Combo");
    combo.type(L"Combo");
    combo.node("Choices").set("Hidden", 1).node("one").set("Name", L"One");
    show();
    doubleClick("Combo");
    auto* box = editor<QComboBox>("Combo");
    EXPECT_TRUE(waitUntil([box] { return box->view()->isVisible(); }));
    box->hidePopup();
}

TEST_F(ModifyEditor, ACheckIsPassedOver) {
    node("Check").type(L"Check");
    show();
    doubleClick("Check");
    EXPECT_FALSE(editor<QCheckBox>("Check")->isChecked());
    EXPECT_FALSE(editor<QCheckBox>("Check")->hasFocus());
}

} // namespace
