#pragma once
// One function per kind of control: makes its widget and ties the two together. The widget has no parent yet.

class QWidget;

namespace fenvale {
class Button;
class CheckBox;
class CodeBox;
class ComboBox;
class Control;
class DatePicker;
class DriveList;
class FileList;
class FolderTree;
class Image;
class Label;
class ListView;
class LookupBox;
class MaskBox;
class MoneyBox;
class NumberBox;
class OptionButton;
class PageScroll;
class ProgressBar;
class TextBox;
class TreeView;
}  // namespace fenvale

namespace fenvale::qt {

class Binding;
class QtHost;

Binding& render(TextBox& control, QtHost& host);
Binding& render(CodeBox& control, QtHost& host);
Binding& render(NumberBox& control, QtHost& host);
Binding& render(MaskBox& control, QtHost& host);
Binding& render(LookupBox& control, QtHost& host);
Binding& render(MoneyBox& control, QtHost& host);
Binding& render(DatePicker& control, QtHost& host);
Binding& render(ComboBox& control, QtHost& host);
Binding& render(CheckBox& control, QtHost& host);
Binding& render(OptionButton& control, QtHost& host);
Binding& render(Button& control, QtHost& host);
/// As a small square in the end of a field: its icon only, its caption as tooltip and accessible name.
Binding& renderSmall(Button& control, QtHost& host, const char* fallbackIcon);
Binding& render(Label& control, QtHost& host);
Binding& render(Image& control, QtHost& host);
Binding& render(ListView& control, QtHost& host);
Binding& render(TreeView& control, QtHost& host);
Binding& render(DriveList& control, QtHost& host);
Binding& render(FolderTree& control, QtHost& host);
Binding& render(FileList& control, QtHost& host);
Binding& render(ProgressBar& control, QtHost& host);
Binding& render(PageScroll& control, QtHost& host);
/// The thin line under a list, there only while something runs.
Binding& renderLine(ProgressBar& control, QtHost& host);

/// By the control's kind. Nothing for kinds that the window itself shows (menus, toolbar, status bar, timers).
Binding* renderAny(Control& control, QtHost& host);

}  // namespace fenvale::qt
