#include "platform/qt/window/file_form.h"

#include "platform/qt/window/button_row.h"
#include "platform/qt/window/child.h"
#include "platform/qt/window/file_picture.h"

#include <QGridLayout>
#include <QLabel>
#include <QVBoxLayout>

namespace mirtane {
namespace {

constexpr int driveRows = 4;

// What went wrong stands beside the word over the name.
QWidget& nameBlock(const ControlMaker& maker, QWidget& form)
{
    QWidget& block = childOf<QWidget>(form);
    QGridLayout& grid = childOf<QGridLayout>(block);
    grid.setContentsMargins(0, 0, 0, 0);
    grid.setVerticalSpacing(3);
    grid.setColumnStretch(1, 1);
    QWidget& name = maker.make(ids::fileName, block);
    QWidget& label = maker.makeLabel(ids::fileNameLabel, name, block);
    label.setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
    QWidget& fault = maker.make(ids::fileFault, block);
    fault.setStyleSheet(QStringLiteral("color: #ffcf5c; font-size: 13px"));
    grid.addWidget(&label, 0, 0);
    grid.addWidget(&fault, 0, 1);
    grid.addWidget(&name, 1, 0, 1, 2);
    return block;
}

} // namespace

void layFileForm(const ControlMaker& maker, QWidget& form)
{
    form.resize(560, 440);
    QGridLayout& grid = childOf<QGridLayout>(form);
    grid.setContentsMargins(14, 12, 14, 14);
    grid.setSpacing(10);
    grid.setColumnStretch(0, 1);
    grid.setColumnStretch(1, 1);
    grid.setRowStretch(1, 1);
    grid.addWidget(&nameBlock(maker, form), 0, 0, 1, 2);
    FilePicture& picture = childOf<FilePicture>(form, maker.gate());
    maker.views().add(ids::filePicture, picture);
    QVBoxLayout& files = childOf<QVBoxLayout>(childOf<QWidget>(form));
    files.setContentsMargins(0, 0, 0, 0);
    files.addWidget(&maker.make(ids::fileList, *files.parentWidget()), 1);
    files.addWidget(&picture);
    grid.addWidget(files.parentWidget(), 1, 0, 2, 1);
    grid.addWidget(&maker.makeLabelled(ids::folderLabel, ids::folderList, form), 1, 1);
    QWidget& drives = maker.make(ids::driveList, form);
    drives.setFixedHeight(driveRows * drives.fontMetrics().height() + 2 * drives.fontMetrics().height());
    grid.addWidget(&drives, 2, 1);
    grid.addWidget(&maker.makeLabelled(ids::fileTypeLabel, ids::fileType, form), 3, 0, 1, 2);
    auto& remark = static_cast<QLabel&>(maker.make(ids::fileRemark, form)); // labels are made as such
    remark.setWordWrap(true);
    remark.setSizePolicy(QSizePolicy::Ignored, QSizePolicy::Preferred);
    grid.addWidget(&remark, 4, 0, 1, 2);
    grid.addWidget(&buttonRow(maker, form, ids::fileConfirm, ids::fileDismiss), 5, 0, 1, 2);
}

} // namespace mirtane
