// The Summary tab: what it shows at first and how the keys move in it.
#include "tests/dwgprops/dialog_driver.h"

#include <QGridLayout>
#include <QTextEdit>

namespace {
class SummaryPage : public DrawingProperties {
protected:
    void describe() {
        const OdDbDatabaseSummaryInfoPtr info = summary();
        info->setTitle(L"A house");
        info->setSubject(L"Plans");
        info->setAuthor(L"Anna");
        info->setKeywords(L"brick");
        info->setComments(L"<i>one</i>\ntwo");
        info->setHyperlinkBase(L"http://a.b/");
        oddbPutSummaryInfo(info.get());
    }
    // Follows the Tab key from the title on, back to it or to the first button.
    static QStringList tabOrder(const OpenProperties& dialog) {
        QStringList order;
        const QWidget* w = dialog.control<QWidget>("titleEdit");
        for (; w->objectName() != "okButton"; w = w->nextInFocusChain())
            if (w->objectName().endsWith("Edit"))
                order << w->objectName();
        return order;
    }
};
} // namespace

TEST_F(SummaryPage, ShowsTheSixTextsOfTheRecord) {
    describe();
    const OpenProperties dialog(kSummary);
    EXPECT_EQ(dialog.text("titleEdit"), QStringLiteral("A house"));
    EXPECT_EQ(dialog.text("subjectEdit"), QStringLiteral("Plans"));
    EXPECT_EQ(dialog.text("authorEdit"), QStringLiteral("Anna"));
    EXPECT_EQ(dialog.text("keywordsEdit"), QStringLiteral("brick"));
    EXPECT_EQ(dialog.control<QTextEdit>("commentsEdit")->toPlainText(), QStringLiteral("<i>one</i>\ntwo"));
    EXPECT_EQ(dialog.text("hyperlinkEdit"), QStringLiteral("http://a.b/"));
}

TEST_F(SummaryPage, LabelsStandInColumnOneAndTextsInColumnTwo) {
    const OpenProperties dialog(kSummary);
    auto* const grid = qobject_cast<QGridLayout*>(dialog.control<QWidget>("summaryTab")->layout());
    QStringList labels, edits;
    for (int row = 1; row <= 6; ++row) {
        labels << qobject_cast<QLabel*>(grid->itemAtPosition(row, 1)->widget())->text();
        edits << grid->itemAtPosition(row, 2)->widget()->objectName();
    }
    EXPECT_EQ(labels,
              QStringList({"Title:", "Subject:", "Author:", "Keywords:", "Comments:", "Hyperlink base:"}));
    EXPECT_EQ(edits, QStringList({"titleEdit", "subjectEdit", "authorEdit", "keywordsEdit", "commentsEdit",
                                  "hyperlinkEdit"}));
    ASSERT_NE(grid->itemAtPosition(7, 1)->spacerItem(), nullptr);
    EXPECT_EQ(grid->itemAtPosition(7, 1)->spacerItem()->sizeHint(), QSize(20, 40));
    EXPECT_EQ(grid->columnStretch(2), 0);
}

TEST_F(SummaryPage, TabInTheCommentBoxMovesToTheHyperlinkBox) {
    OpenProperties dialog(kSummary);
    auto* const comments = dialog.control<QTextEdit>("commentsEdit");
    comments->setFocus();
    QTest::keyClicks(comments, "ab");
    QTest::keyClick(comments, Qt::Key_Tab);
    EXPECT_TRUE(dialog.control<QWidget>("hyperlinkEdit")->hasFocus());
    EXPECT_EQ(comments->toPlainText(), QStringLiteral("ab"));
}

TEST_F(SummaryPage, CommentBoxAlwaysShowsItsVerticalScrollBar) {
    const OpenProperties dialog(kSummary);
    EXPECT_EQ(dialog.control<QTextEdit>("commentsEdit")->verticalScrollBarPolicy(), Qt::ScrollBarAlwaysOn);
}

TEST_F(SummaryPage, LineEditsShowTheirStartAtFirstAndWhenTheyAreLeft) {
    describe();
    OpenProperties dialog(kSummary);
    for (const char* name : {"titleEdit", "subjectEdit", "authorEdit", "keywordsEdit"}) {
        auto* const edit = dialog.control<QLineEdit>(name);
        EXPECT_EQ(edit->cursorPosition(), 0) << name;
        edit->setFocus();
        edit->end(false);
        dialog.control<QWidget>("okButton")->setFocus();
        EXPECT_EQ(edit->cursorPosition(), 0) << name;
    }
}

TEST_F(SummaryPage, TabOrderGoesFromTopToBottom) {
    const OpenProperties dialog(kSummary);
    EXPECT_EQ(tabOrder(dialog), QStringList({"titleEdit", "subjectEdit", "authorEdit", "keywordsEdit",
                                             "commentsEdit", "hyperlinkEdit"}));
}
