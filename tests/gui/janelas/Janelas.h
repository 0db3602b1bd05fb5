#pragma once
// A host on a monitor of 1024x768, light, whose waits take no time.

#include <gmock/gmock.h>
#include <gtest/gtest.h>

#include <QtTest>
#include <QtWidgets>

#include "controles/TelaControles.h"
#include "controles/TelaExemplo.h"
#include "gui/support/HostOptions.h"
#include "platform/ui/qt/Probe.h"
#include "platform/ui/qt/QtHost.h"

namespace fenvale::qt {

class Janelas : public testing::Test {
 protected:
  QtHost host{testOptions()};
};

/// With the page of all controls open.
class Controles : public Janelas {
 protected:
  Controles() { host.show(tela); }
  ~Controles() override { tela.unload(); }

  template <typename Widget>
  Widget& widget(const Control& control) {
    return dynamic_cast<Widget&>(*widgetOf(control));
  }
  void key(int code, Qt::KeyboardModifiers modifiers = {}) {
    press(host, code, modifiers);
    host.throwKept();
  }
  void write(std::string_view text) {
    type(host, text);
    host.throwKept();
  }

  TelaControles tela{host};
};

}  // namespace fenvale::qt
