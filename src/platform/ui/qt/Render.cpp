#include "platform/ui/qt/Render.h"

#include "platform/ui/Boxes.h"
#include "platform/ui/Choices.h"
#include "platform/ui/ListView.h"
#include "platform/ui/Places.h"
#include "platform/ui/TreeView.h"

namespace fenvale::qt {
namespace {

template <typename Kind>
Binding* as(Control& control, QtHost& host) {
  return &render(static_cast<Kind&>(control), host);
}

}  // namespace

Binding* renderAny(Control& control, QtHost& host) {
  switch (control.kind()) {
    case ControlKind::textBox:
      return as<TextBox>(control, host);
    case ControlKind::codeBox:
      return as<CodeBox>(control, host);
    case ControlKind::maskBox:
      return as<MaskBox>(control, host);
    case ControlKind::moneyBox:
      return as<MoneyBox>(control, host);
    case ControlKind::numberBox:
      return as<NumberBox>(control, host);
    case ControlKind::datePicker:
      return as<DatePicker>(control, host);
    case ControlKind::comboBox:
      return as<ComboBox>(control, host);
    case ControlKind::lookupBox:
      return as<LookupBox>(control, host);
    case ControlKind::checkBox:
      return as<CheckBox>(control, host);
    case ControlKind::optionButton:
      return as<OptionButton>(control, host);
    case ControlKind::button:
      return as<Button>(control, host);
    case ControlKind::listView:
      return as<ListView>(control, host);
    case ControlKind::treeView:
      return as<TreeView>(control, host);
    case ControlKind::pageScroll:
      return as<PageScroll>(control, host);
    case ControlKind::progressBar:
      return as<ProgressBar>(control, host);
    case ControlKind::label:
      return as<Label>(control, host);
    case ControlKind::image:
      return as<Image>(control, host);
    case ControlKind::driveList:
      return as<DriveList>(control, host);
    case ControlKind::folderTree:
      return as<FolderTree>(control, host);
    case ControlKind::fileList:
      return as<FileList>(control, host);
    case ControlKind::frame:
    case ControlKind::tabStrip:
    case ControlKind::popupMenu:
    case ControlKind::menuBar:
    case ControlKind::toolBar:
    case ControlKind::statusBar:
    case ControlKind::timer:
      break;
  }
  return nullptr;
}

}  // namespace fenvale::qt
