#pragma once
// What every window must satisfy, whatever screen it shows. Each check answers the faults it found, in words.

#include <string>
#include <vector>

class QWidget;

namespace fenvale {
class Screen;
}

namespace fenvale::qt {

class QtHost;

/// Captions of labels, buttons, tabs and frames that do not fit their place.
std::vector<std::string> cutTexts(const QWidget& window);
/// Shown widgets that lie over one another or reach out of their window.
std::vector<std::string> overlaps(const QWidget& window);
/// Controls of the layout that have no widget, no name to be read aloud, or that Tab does not reach.
std::vector<std::string> unreachable(QtHost& host, Screen& screen);
/// Scroll bars that nothing needs: of a body for which the monitor has room, of a list whose rows are all in sight.
std::vector<std::string> needlessScrollBars(const QWidget& window);
/// Shown captions that answer to the same Alt key.
std::vector<std::string> sharedAccessKeys(const QWidget& window);
/// Rows of the layout whose fields ask for more columns of the grid than their place has.
std::vector<std::string> overfullRows(const Screen& screen);
/// All of the above, on every page of the screen's tabs. The screen must be shown.
std::vector<std::string> faultsOf(QtHost& host, Screen& screen);

}  // namespace fenvale::qt
