// The command as a whole: what becomes of its transaction, however the dialog is left.
#include "dwgprops/dwg_props_command.h"
#include "sdk/db/xref_man.h"
#include "tests/dwgprops/dialog_driver.h"

namespace {

class PropertiesCommand : public DrawingProperties {
protected:
    static void leaveWith(const char* button) {
        onNextDialog<dwgProps>([button](dwgProps& dialog) {
            QTest::mouseClick(OpenProperties::in<QAbstractButton>(&dialog, button), Qt::LeftButton);
        });
    }
};

// Notes the depth at the moment when the dialog destroys it.
class DepthAtEnd : public QWidget {
public:
    DepthAtEnd(OdDbDatabasePtr watched, int& seen) : database(std::move(watched)), depth(seen) {}
    ~DepthAtEnd() override { depth = database->numActiveTransactions(); }

private:
    OdDbDatabasePtr database;
    int& depth;
};

} // namespace

TEST_F(PropertiesCommand, OpensOneTransactionWhileTheDialogIsOpen) {
    int depth = -1;
    onNextDialog<dwgProps>([&](dwgProps& dialog) {
        depth = drawing->numActiveTransactions();
        dialog.onCancel();
    });
    runDwgProps();
    EXPECT_EQ(depth, 1);
}

TEST_F(PropertiesCommand, OkLeavesTheTransactionDepthWhereItWasBeforeTheCommand) {
    drawing->startTransaction();
    leaveWith("okButton");
    runDwgProps();
    EXPECT_EQ(drawing->numActiveTransactions(), 1);
}

TEST_F(PropertiesCommand, CancelLeavesTheTransactionDepthWhereItWasBeforeTheCommand) {
    drawing->startTransaction();
    leaveWith("cancelButton");
    runDwgProps();
    EXPECT_EQ(drawing->numActiveTransactions(), 1);
}

TEST_F(PropertiesCommand, TransactionsThatTheDialogLeftOpenAreClosedToo) {
    for (const bool accept : {true, false}) {
        onNextDialog<dwgProps>([&](dwgProps& dialog) {
            drawing->startTransaction();
            drawing->startTransaction();
            accept ? dialog.onOK() : dialog.onCancel();
        });
        runDwgProps();
        EXPECT_EQ(drawing->numActiveTransactions(), 0);
    }
}

TEST_F(PropertiesCommand, TransactionIsClosedWhileTheDialogStillLives) {
    for (const bool accept : {true, false}) {
        int depth = -1;
        onNextDialog<dwgProps>([&](dwgProps& dialog) {
            dialog.insertTab(0, new DepthAtEnd(drawing, depth), QStringLiteral("More"));
            accept ? dialog.onOK() : dialog.onCancel();
        });
        runDwgProps();
        EXPECT_EQ(depth, 0);
    }
}

TEST_F(PropertiesCommand, ExceptionFromTheDialogDestroysItAndAbortsTheTransaction) {
    QPointer<dwgProps> open;
    onNextDialog<dwgProps>([&](dwgProps& dialog) {
        open = &dialog;
        throw OdError(eInvalidInput);
    });
    EXPECT_THROW(runDwgProps(), OdError);
    EXPECT_TRUE(open.isNull());
    EXPECT_EQ(drawing->numActiveTransactions(), 0);
}

TEST_F(PropertiesCommand, EditsReachTheDrawingOnOkAndNotOnCancel) {
    for (const bool accept : {false, true}) {
        onNextDialog<dwgProps>([&](dwgProps& dialog) {
            OpenProperties::in<QLineEdit>(&dialog, "titleEdit")->setText(QStringLiteral("A house"));
            accept ? dialog.onOK() : dialog.onCancel();
        });
        runDwgProps();
        EXPECT_EQ(summary()->getTitle(), accept ? OdString(L"A house") : OdString());
    }
}

TEST_F(PropertiesCommand, WhatOthersDidInTheDrawingMeanwhileIsKeptOnOkAndAbortedOnCancel) {
    for (const bool accept : {false, true}) {
        onNextDialog<dwgProps>([&](dwgProps& dialog) {
            OdDbXRefManExt::addNewXRefDefBlock(drawing.get(), L"/x/part.dxf", L"part", false);
            accept ? dialog.onOK() : dialog.onCancel();
        });
        runDwgProps();
        const auto blocks = odrxCast<OdDbBlockTable>(drawing->getBlockTableId().safeOpenObject());
        EXPECT_EQ(blocks->has(L"part"), accept);
    }
}

TEST_F(PropertiesCommand, ClosingTheWindowCountsAsCancel) {
    onNextDialog<dwgProps>([&](dwgProps& dialog) {
        OpenProperties::in<QLineEdit>(&dialog, "titleEdit")->setText(QStringLiteral("A house"));
        dialog.close();
    });
    runDwgProps();
    EXPECT_EQ(summary()->getTitle(), OdString());
    EXPECT_EQ(drawing->numActiveTransactions(), 0);
}

TEST_F(PropertiesCommand, WithoutADocumentThrowsAndShowsNothing) {
    host.closeDocument();
    EXPECT_THROW(runDwgProps(), OdError);
    EXPECT_TRUE(host.messages.empty());
    EXPECT_EQ(QApplication::activeModalWidget(), nullptr);
}
