#pragma once
// The transaction of one save: begun, then confirmed or taken back, whoever notices that it has to be.

#include "platform/sql/Store.h"

namespace fenvale {

class Transacao {
 public:
  void vIniciar(Connection& conexao) {
    iNivel_ = conexao.beginTrans();
    conexao_ = &conexao;
  }
  void vConfirmar() {
    conexao_->commitTrans();
    conexao_ = nullptr;
  }
  /// False when there is nothing to take back. Levels that were left open within it go as well.
  bool bDesfazer() {
    if (conexao_ == nullptr) return false;
    Connection& conexao = *conexao_;
    conexao_ = nullptr;
    while (conexao.transactionLevel() >= iNivel_) conexao.rollbackTrans();
    return true;
  }

 private:
  Connection* conexao_ = nullptr;
  int iNivel_ = 0;
};

}  // namespace fenvale
