# Headers of libraries that most files include, compiled once for each kind of target. No header of the house is among
# them, so that the arrows between the folders stay what each file says.

set(HOUSE_STD_HEADERS <algorithm> <cmath> <cstdint> <functional> <map> <memory> <optional> <string> <string_view>
    <unordered_map> <utility> <vector>)
set(HOUSE_CORE_HEADERS ${HOUSE_STD_HEADERS} <QByteArray> <QDateTime> <QDir> <QFile> <QFileInfo> <QString> <QStringList>)
set(HOUSE_WINDOW_HEADERS ${HOUSE_CORE_HEADERS} <QAction> <QApplication> <QButtonGroup> <QCheckBox> <QComboBox> <QDialog>
    <QFileDialog> <QGridLayout> <QGroupBox> <QHeaderView> <QIcon> <QKeyEvent> <QLabel> <QLineEdit> <QLocale> <QMenu>
    <QMessageBox> <QPainter> <QPainterPath> <QPixmap> <QPointer> <QPushButton> <QRadioButton> <QRegularExpression>
    <QTableWidget> <QTextEdit> <QTimer> <QToolButton> <QTreeWidget> <QVBoxLayout>)

# house_precompiled_holder(<name> HEADERS <headers...> USES <targets...>): an empty target that owns the compiled headers.
function(house_precompiled_holder name)
    cmake_parse_arguments(A "" "" "HEADERS;USES" ${ARGN})
    set(source "${CMAKE_BINARY_DIR}/${name}.cpp")
    if(NOT EXISTS "${source}")
        file(WRITE "${source}" "")
    endif()
    add_library(${name} OBJECT "${source}")
    set_target_properties(${name} PROPERTIES AUTOMOC OFF)
    target_link_libraries(${name} PRIVATE ${A_USES} house_warnings)
    target_precompile_headers(${name} PRIVATE ${A_HEADERS})
endfunction()

house_precompiled_holder(precompiled_core HEADERS ${HOUSE_CORE_HEADERS} USES Qt5::Core)
house_precompiled_holder(precompiled_windows HEADERS ${HOUSE_WINDOW_HEADERS} USES Qt5::Widgets)
if(HOUSE_TESTS)
    house_precompiled_holder(precompiled_tests HEADERS ${HOUSE_WINDOW_HEADERS} <QTest> <gmock/gmock.h> <gtest/gtest.h>
                             USES Qt5::Widgets Qt5::Test GTest::gtest GTest::gmock)
endif()
