// The tab widget of the dialog: all its tabs show in a width that leaves them little room beside their texts.
#pragma once

#include <QTabBar>
#include <QTabWidget>

class PropertyTabBar : public QTabBar {
    Q_OBJECT
public:
    explicit PropertyTabBar(QWidget* parent);

protected:
    QSize minimumTabSizeHint(int index) const override;
};

class PropertyTabs : public QTabWidget {
    Q_OBJECT
public:
    explicit PropertyTabs(QWidget* parent);
};
