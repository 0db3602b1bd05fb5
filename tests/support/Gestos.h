#pragma once
// What a clerk does at any screen, and what the screen must answer.

#include <gtest/gtest.h>

#include "platform/ui/Control.h"
#include "platform/ui/Screen.h"
#include "platform/ui/test/TestHost.h"

namespace fenvale {

/// F3, stopped by that box and no other, or by what it was answered, with the focus on that control.
inline void salvarRecusado(TestHost& host, Screen& tela, const MessageBox& caixa, const Control& foco,
                           BoxAnswer resposta = BoxAnswer::ok) {
  host.expectBox(caixa, resposta);
  tela.userKey(Key::f3);
  host.verify();
  EXPECT_TRUE(foco.hasFocus()) << caixa.text;
}

}  // namespace fenvale
