#pragma once

// The properties of ClsRandom in their interface order: X(name, type, access, trace), where
// type is Integer, Flag, String, Global (a string kept in the store under its global's name,
// gstr<name>) or Variant (a value passed as a variant: converted, or an array),
// access is LetGet or Let, and trace is Traced or Untraced (no trace line for Let and Get).
// Special rules (DLLPath, Prov_areacode, the variant conversions, the labels of the country-list
// selectors, PlayByPlayEnabled's untraced Let) live in property_table.cpp.
#define NVRANDOM_CLSRANDOM_PROPERTIES(X)                \
  X(FormStyle, Integer, LetGet, Traced)                 \
  X(PlayByPlayEnabled, Flag, LetGet, Traced)            \
  X(Add, Flag, Let, Traced)                             \
  X(PayeeName, String, LetGet, Traced)                  \
  X(PayeeBillAccount, String, LetGet, Traced)           \
  X(PayeeStreet, String, LetGet, Traced)                \
  X(PayeeCity, String, LetGet, Traced)                  \
  X(PayeeProv, String, LetGet, Traced)                  \
  X(PayeeCountry, String, LetGet, Traced)               \
  X(PayeePostal, String, LetGet, Traced)                \
  X(PayeePhoneArea, String, LetGet, Traced)             \
  X(PayeePhoneNumber, String, LetGet, Traced)           \
  X(PayeeFXPhoneNumber, String, LetGet, Traced)         \
  X(PayeeFaxArea, String, LetGet, Traced)               \
  X(PayeeFaxNumber, String, LetGet, Traced)             \
  X(PayeeFXFaxNumber, String, LetGet, Traced)           \
  X(PayeeEmail, String, LetGet, Traced)                 \
  X(PayeeWeb, String, LetGet, Traced)                   \
  X(PayeeContactName, String, LetGet, Traced)           \
  X(PayeeBankId, String, LetGet, Traced)                \
  X(PayeeBankTransit, String, LetGet, Traced)           \
  X(PayeeBankAccount, String, LetGet, Traced)           \
  X(UserBankAcctPermission, Flag, Let, Traced)          \
  X(Provpostalstr, String, Let, Traced)                 \
  X(Prov_areacode, Variant, Let, Traced)                \
  X(PayeeIndBusnTag, String, LetGet, Traced)            \
  X(PayeeIndBussFlg, String, LetGet, Traced)            \
  X(PayeeBusinessNum, String, LetGet, Traced)           \
  X(DLLPath, String, Let, Traced)                       \
  X(PayeeDiscountsApply, String, LetGet, Traced)        \
  X(NVMemberType, Variant, Let, Traced)                 \
  X(PayeeCurrency, String, LetGet, Traced)              \
  X(InternationalPayment, Flag, Let, Traced)            \
  X(IPCurrencyList, Variant, Let, Traced)               \
  X(BillerPaid, Flag, Let, Traced)                      \
  X(IPBillerNameAcctExist, Variant, Let, Traced)        \
  X(PayeePhoneCountryCode, String, LetGet, Traced)      \
  X(PayeeFaxCountryCode, String, LetGet, Traced)        \
  X(PayeeFXBankName, String, LetGet, Traced)            \
  X(PayeeFXBankAddress, String, LetGet, Traced)         \
  X(PayeeFXBankCity, String, LetGet, Traced)            \
  X(PayeeFXBankProv, String, LetGet, Traced)            \
  X(PayeeFXBankCountry, String, LetGet, Traced)         \
  X(PayeeFXBankAccount, String, LetGet, Traced)         \
  X(PayeeFXBankSwift, String, LetGet, Traced)           \
  X(IPBillerCurrencies, Variant, Let, Traced)           \
  X(WhatKindOfBiller, String, LetGet, Untraced)         \
  X(BusinessPIN, String, Let, Traced)                   \
  X(CurrencyCodeFromMain, String, LetGet, Untraced)     \
  X(DescCurrencyCodeFromMain, String, LetGet, Untraced) \
  X(FormTitleFromMain, String, LetGet, Untraced)        \
  X(BillerSearchNorvikID, String, Let, Traced)          \
  X(AccessNumber, String, Let, Traced)                  \
  X(NorvikProgramVersion, String, Let, Traced)          \
  X(BillerSearchURL, String, Let, Traced)               \
  X(SessionNumber, String, Let, Traced)                 \
  X(RequestSourceCode, String, Let, Traced)             \
  X(CountryListAll, Global, Let, Traced)                \
  X(CountryListPartial, Global, Let, Traced)            \
  X(USBillPaymentURL, String, LetGet, Traced)           \
  X(UseAcctvfy, Flag, Let, Traced)
