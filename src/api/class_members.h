#pragma once

// The members of ClsRandom: the one list from which the C++ class, the access by name and the
// type library's interfaces are generated. Self-contained (no includes): it is part of the
// public header set.
//
// NVRANDOM_CLSRANDOM_MEMBERS(PROPERTY, METHOD) lists the default interface in its order:
//   PROPERTY(dispid, name, type, access, trace)
//     type: Integer (16-bit), Flag (16-bit truth value), String, Global (a string kept in the
//           store as gstr<name>) or Variant (converted, or an array);
//     access: LetGet or Let (the host may only set it); trace: Traced or Untraced (no trace line
//           for its Let and Get);
//   METHOD(dispid, name, result): result Long (32-bit) or Void; no arguments.
// A Variant property needs its own Let rule in property_table.cpp (the build fails without one);
// every other property needs a store member of its name (gstr<name> for Global).
//
// NVRANDOM_CLSRANDOM_EVENTS(EVENT) lists the outgoing interface in its order:
//   EVENT(dispid, name, parameters, arguments), parameters and arguments in parentheses.
//
// Dispatch ids are fixed once published: a new member takes the next free number.
#define NVRANDOM_CLSRANDOM_MEMBERS(PROPERTY, METHOD)               \
  PROPERTY(1, FormStyle, Integer, LetGet, Traced)                  \
  PROPERTY(2, PlayByPlayEnabled, Flag, LetGet, Traced)             \
  METHOD(3, ShowForm, Long)                                        \
  METHOD(4, ShowForm_Remote, Long)                                 \
  METHOD(5, ShowForm_Import, Long)                                 \
  PROPERTY(6, Add, Flag, Let, Traced)                              \
  PROPERTY(7, PayeeName, String, LetGet, Traced)                   \
  PROPERTY(8, PayeeBillAccount, String, LetGet, Traced)            \
  PROPERTY(9, PayeeStreet, String, LetGet, Traced)                 \
  PROPERTY(10, PayeeCity, String, LetGet, Traced)                  \
  PROPERTY(11, PayeeProv, String, LetGet, Traced)                  \
  PROPERTY(12, PayeeCountry, String, LetGet, Traced)               \
  PROPERTY(13, PayeePostal, String, LetGet, Traced)                \
  PROPERTY(14, PayeePhoneArea, String, LetGet, Traced)             \
  PROPERTY(15, PayeePhoneNumber, String, LetGet, Traced)           \
  PROPERTY(16, PayeeFXPhoneNumber, String, LetGet, Traced)         \
  PROPERTY(17, PayeeFaxArea, String, LetGet, Traced)               \
  PROPERTY(18, PayeeFaxNumber, String, LetGet, Traced)             \
  PROPERTY(19, PayeeFXFaxNumber, String, LetGet, Traced)           \
  PROPERTY(20, PayeeEmail, String, LetGet, Traced)                 \
  PROPERTY(21, PayeeWeb, String, LetGet, Traced)                   \
  PROPERTY(22, PayeeContactName, String, LetGet, Traced)           \
  PROPERTY(23, PayeeBankId, String, LetGet, Traced)                \
  PROPERTY(24, PayeeBankTransit, String, LetGet, Traced)           \
  PROPERTY(25, PayeeBankAccount, String, LetGet, Traced)           \
  PROPERTY(26, UserBankAcctPermission, Flag, Let, Traced)          \
  PROPERTY(27, Provpostalstr, String, Let, Traced)                 \
  PROPERTY(28, Prov_areacode, Variant, Let, Traced)                \
  PROPERTY(29, PayeeIndBusnTag, String, LetGet, Traced)            \
  PROPERTY(30, PayeeIndBussFlg, String, LetGet, Traced)            \
  PROPERTY(31, PayeeBusinessNum, String, LetGet, Traced)           \
  METHOD(32, Get_hWnd, Long)                                       \
  METHOD(33, Get_Height, Long)                                     \
  METHOD(34, Get_Width, Long)                                      \
  METHOD(35, Unload_From_Remote, Void)                             \
  PROPERTY(36, DLLPath, String, Let, Traced)                       \
  PROPERTY(37, PayeeDiscountsApply, String, LetGet, Traced)        \
  PROPERTY(38, NVMemberType, Variant, Let, Traced)                 \
  PROPERTY(39, PayeeCurrency, String, LetGet, Traced)              \
  PROPERTY(40, InternationalPayment, Flag, Let, Traced)            \
  PROPERTY(41, IPCurrencyList, Variant, Let, Traced)               \
  PROPERTY(42, BillerPaid, Flag, Let, Traced)                      \
  PROPERTY(43, IPBillerNameAcctExist, Variant, Let, Traced)        \
  PROPERTY(44, PayeePhoneCountryCode, String, LetGet, Traced)      \
  PROPERTY(45, PayeeFaxCountryCode, String, LetGet, Traced)        \
  PROPERTY(46, PayeeFXBankName, String, LetGet, Traced)            \
  PROPERTY(47, PayeeFXBankAddress, String, LetGet, Traced)         \
  PROPERTY(48, PayeeFXBankCity, String, LetGet, Traced)            \
  PROPERTY(49, PayeeFXBankProv, String, LetGet, Traced)            \
  PROPERTY(50, PayeeFXBankCountry, String, LetGet, Traced)         \
  PROPERTY(51, PayeeFXBankAccount, String, LetGet, Traced)         \
  PROPERTY(52, PayeeFXBankSwift, String, LetGet, Traced)           \
  PROPERTY(53, IPBillerCurrencies, Variant, Let, Traced)           \
  PROPERTY(54, WhatKindOfBiller, String, LetGet, Untraced)         \
  PROPERTY(55, BusinessPIN, String, Let, Traced)                   \
  PROPERTY(56, CurrencyCodeFromMain, String, LetGet, Untraced)     \
  PROPERTY(57, DescCurrencyCodeFromMain, String, LetGet, Untraced) \
  PROPERTY(58, FormTitleFromMain, String, LetGet, Untraced)        \
  PROPERTY(59, BillerSearchNorvikID, String, Let, Traced)          \
  PROPERTY(60, AccessNumber, String, Let, Traced)                  \
  PROPERTY(61, NorvikProgramVersion, String, Let, Traced)          \
  PROPERTY(62, BillerSearchURL, String, Let, Traced)               \
  PROPERTY(63, SessionNumber, String, Let, Traced)                 \
  PROPERTY(64, RequestSourceCode, String, Let, Traced)             \
  PROPERTY(65, CountryListAll, Global, Let, Traced)                \
  PROPERTY(66, CountryListPartial, Global, Let, Traced)            \
  PROPERTY(67, USBillPaymentURL, String, LetGet, Traced)           \
  PROPERTY(68, UseAcctvfy, Flag, Let, Traced)

#define NVRANDOM_CLSRANDOM_EVENTS(EVENT)          \
  EVENT(1, CSBOK, (), ())                         \
  EVENT(2, CurrentFieldTop, (int16_t Top), (Top)) \
  EVENT(3, Cancel, (), ())                        \
  EVENT(4, ViewSampleCheque, (), ())
