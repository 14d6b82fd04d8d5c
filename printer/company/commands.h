// The command language of the fiscal printer: every command once, what it does and its bytes.
#pragma once

#include "vocabulary/paper.h"

#include <QLatin1StringView>

namespace korvel::commands {

using namespace Qt::Literals::StringLiterals;

// Characters in a line of the paper.
inline constexpr int lineWidth = vocabulary::lineWidth;

// A printed line: opener, text, closer. The printer centres nothing itself: the spaces of a
// centred line stand between the opener and the text.
inline constexpr auto lineOpener = "=\"/("_L1;
inline constexpr auto lineCloser = " )\n"_L1;

// How the printer's reserved word goes out: with a zero.
inline constexpr auto reservedWordInPrint = "T0TALE"_L1;

// Sections: what opens a document on the printer and what closes it. A fiscal document is opened by
// two commands.
inline constexpr auto openFiscal = "=K\n=C1\n"_L1;
inline constexpr auto closeFiscal = "=T1\n"_L1;
inline constexpr auto openReceipt = "=o/*1\n"_L1;
inline constexpr auto openDocument = "=o\n"_L1;
inline constexpr auto closeDocument = "=o\n"_L1;

// A sale row: department, amount in hundredths, quantity and description, each behind its mark.
inline constexpr auto saleDepartment = "=R"_L1;
inline constexpr auto saleAmount = "/$"_L1;
inline constexpr auto saleQuantity = "/*"_L1;
inline constexpr auto saleDescription = "/("_L1;
inline constexpr auto saleEnd = ")\n"_L1;

// A deduction: the command that announces it, then its amount in hundredths. These two lines, alone
// in the language, end in carriage return and line feed.
inline constexpr auto announceDeduction = "=S\r\n"_L1;
inline constexpr auto deductionAmount = "=V/$"_L1;
inline constexpr auto deductionEnd = "\r\n"_L1;

} // namespace korvel::commands
