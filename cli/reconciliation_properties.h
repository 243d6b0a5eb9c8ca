#pragma once

#include <string_view>

/// Properties of the bank reconciliations.
namespace varnel::cli::reconciliation {

inline constexpr std::string_view kAccount = "ExConcilAcctId";
inline constexpr std::string_view kAccountNumber = "ConcilAcctId";
inline constexpr std::string_view kStatementDate = "ConcDate";
inline constexpr std::string_view kHistory = "ExBankConcilHistoryId";
inline constexpr std::string_view kRows = "ConcilDataSet";
inline constexpr std::string_view kEndingBalance = "EndBalAmnt";
inline constexpr std::string_view kDeposits = "DepAmntCirc";
inline constexpr std::string_view kWithdrawals = "ChqAmntCirc";
inline constexpr std::string_view kLedgerBalance = "GLBalAmnt";
inline constexpr std::string_view kDifference = "DifAmnt";

inline constexpr std::string_view kRefresh = "RefreshTotalsWithBankConcilHistory";

}  // namespace varnel::cli::reconciliation
