#pragma once

#include <array>
#include <cstdint>
#include <string>
#include <vector>

#include "component/variant.h"

namespace nvrandom {

// The one biller record and its context, shared by every ClsRandom of a thread, by module Random
// and by the forms. Member names are the properties' names; Flag and Integer properties keep the
// 16-bit value the host set.
struct ComponentStore {
  static constexpr int kProvAreaCodeRows = 21;

  int16_t FormStyle = 0;
  int16_t PlayByPlayEnabled = 0;
  int16_t Add = 0;
  std::string PayeeName;
  std::string PayeeBillAccount;
  std::string PayeeStreet;
  std::string PayeeCity;
  std::string PayeeProv;
  std::string PayeeCountry;
  std::string PayeePostal;
  std::string PayeePhoneArea;
  std::string PayeePhoneNumber;
  std::string PayeeFXPhoneNumber;
  std::string PayeeFaxArea;
  std::string PayeeFaxNumber;
  std::string PayeeFXFaxNumber;
  std::string PayeeEmail;
  std::string PayeeWeb;
  std::string PayeeContactName;
  std::string PayeeBankId;
  std::string PayeeBankTransit;
  std::string PayeeBankAccount;
  int16_t UserBankAcctPermission = 0;
  std::string Provpostalstr;
  std::array<std::array<std::string, 2>, kProvAreaCodeRows> Prov_areacode{};
  std::string PayeeIndBusnTag;
  std::string PayeeIndBussFlg;
  std::string PayeeBusinessNum;
  std::string DLLPath;
  std::string PayeeDiscountsApply;
  std::string NVMemberType;
  std::string PayeeCurrency;
  int16_t InternationalPayment = 0;
  StringArray IPCurrencyList = StringArray::TwoDimensional(0, 0, 0, 0);
  int16_t BillerPaid = 0;
  int16_t IPBillerNameAcctExist = 0;
  std::string PayeePhoneCountryCode;
  std::string PayeeFaxCountryCode;
  std::string PayeeFXBankName;
  std::string PayeeFXBankAddress;
  std::string PayeeFXBankCity;
  std::string PayeeFXBankProv;
  std::string PayeeFXBankCountry;
  std::string PayeeFXBankAccount;
  std::string PayeeFXBankSwift;
  StringArray IPBillerCurrencies;
  std::string WhatKindOfBiller = " ";
  std::string BusinessPIN;
  std::string CurrencyCodeFromMain = "CAD";
  std::string DescCurrencyCodeFromMain;
  std::string FormTitleFromMain;
  std::string BillerSearchNorvikID;
  std::string AccessNumber;
  std::string NorvikProgramVersion;
  std::string BillerSearchURL;
  std::string SessionNumber;
  std::string RequestSourceCode;
  std::string gstrCountryListAll = "Y";
  std::string gstrCountryListPartial;
  std::string USBillPaymentURL;
  int16_t UseAcctvfy = 0;

  // Not properties.
  int32_t closeResult = 0;
  int16_t importFlag = 0;
  int16_t verifyBusinessNumberFlag = 0;
  std::vector<std::string> poBoxWords;
  std::string gstrInstallRoot;
  // The Windows directory as the biller dialog's set-up found it (ending in a separator): where
  // the fonts folder is.
  std::string gstrWindowsDir;
};

// The post-office-box words that class initialisation splits into the store, in their order.
inline constexpr const char* kPoBoxWordList =
    "PO BOX|P.O. BOX|P.O.BOX|P.O BOX|POST OFFICE BOX|POSTAL BOX|POST-OFFICE BOX|CP|C.P.|"
    "C.P.POSTALE|BOITE|BOITE POSTALE|CASE POSTALE|BP|B.P.";

// The installation root of a DLLPath: the text up to and including the separator of the first
// "<separator>NORVIK" (case-sensitive); empty when there is none.
std::string InstallRootOf(const std::string& dll_path);

// The host's data path handed to the account verifier: DLLPath cut just before "<sep>NORVIK";
// all of it when there is none.
std::string DataPathOf(const std::string& dll_path);

}  // namespace nvrandom
