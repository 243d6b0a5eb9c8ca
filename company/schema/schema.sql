-- One schema text for SQLite 3.40 and PostgreSQL 15 (plain CREATE TABLE / VIEW only).
-- Type names chosen so that both engines do the right thing:
--   truth values  SMALLINT 0/1 (never boolean: the reports compare with "= 0" and "<> 0")
--   amounts       RealAmount / RealRate: in PostgreSQL domains over numeric (declared beforehand); SQLite reads any type
--                 name with REAL in it as REAL affinity (no integer division, amounts kept as 8-byte doubles)
--   dates         DATE: PostgreSQL date; in SQLite ISO text 'YYYY-MM-DD' (NUMERIC affinity keeps text with dashes)
--   text          BookText (not CHAR(n): padding; VARCHAR(n) is equally good; a name of a type that
--                 holds "INT" anywhere makes SQLite store numbers)
-- Column placement matters: the reports use these names unqualified, so they must exist in ONE of the joined
-- tables only: Inactive, GIFIAcctId, AcctType, InGLAcctId, GLAcctId, ChqAcct (GLAcct only), DetAmnt,
-- ForeignAmnt, DetDate, SeqNo, ExProjId (GLDet only).  WorldCurrency must never get Inactive or GIFIAcctId.
CREATE TABLE WorldCurrency (
  InCurrencyId   INTEGER NOT NULL PRIMARY KEY,
  CurrencyCode   BookText NOT NULL,
  Descr          BookText,
  Symbol         BookText,
  Decimals       SMALLINT NOT NULL DEFAULT 2,
  ARGLAccountId  INTEGER,
  APGLAccountId  INTEGER
);
CREATE TABLE GLAcct (
  InGLAcctId     INTEGER NOT NULL PRIMARY KEY,
  GLAcctId       BookText NOT NULL,
  Descr          BookText,
  AcctType       INTEGER NOT NULL,
  GroupType      INTEGER NOT NULL,
  Inactive       SMALLINT,
  ChqAcct        SMALLINT,
  Note           BookText,
  GIFIAcctId     BookText,
  ExCurrencyId   INTEGER
);
CREATE TABLE ProjInfo (
  InProjId       INTEGER NOT NULL PRIMARY KEY,
  ProjId         BookText NOT NULL,
  Descr          BookText
);
CREATE TABLE GJTrxHdr (
  InTrxId        INTEGER NOT NULL PRIMARY KEY,
  TrxDate        DATE,
  TrxDesc        BookText,
  TrxRef         BookText
);
CREATE TABLE Segment (
  InSegmentId    INTEGER NOT NULL PRIMARY KEY,
  SegmentCode    BookText NOT NULL,
  Descr          BookText
);
CREATE TABLE GLDet (
  InGLDetId            INTEGER NOT NULL PRIMARY KEY,
  ExAcctId             INTEGER NOT NULL,
  ExCurrencyId         INTEGER,
  SeqNo                INTEGER NOT NULL,
  DetDate              DATE NOT NULL,
  DetAmnt              RealAmount,
  ForeignAmnt          RealAmount,
  ExChangeRate         RealRate,
  DetDesc              BookText,
  DetRef               BookText NOT NULL DEFAULT '',  -- sort keys are never null: PostgreSQL sorts nulls last, the others first
  Source               BookText,
  ExSrcKeyVal          INTEGER,     -- INTEGER, not text: joined to GJTrxHdr.InTrxId and listed unquoted in IN (...)
  Remarks              BookText,
  ExProjId             INTEGER,
  ExSegmentId          INTEGER,
  Conciliated          SMALLINT,
  ExBankConcilHistoryId INTEGER
);
CREATE TABLE FiscalYear (
  InFiscalYearId INTEGER NOT NULL PRIMARY KEY,
  Descr          BookText,
  BegDate        DATE NOT NULL,
  EndDate        DATE NOT NULL
);
CREATE TABLE FiscalYearDet (
  InFiscalYearDetId INTEGER NOT NULL PRIMARY KEY,
  ExFiscalYearId INTEGER NOT NULL,
  PeriodNo       INTEGER NOT NULL,
  BegDate        DATE NOT NULL,
  EndDate        DATE NOT NULL
);
CREATE TABLE BankConcilHistory (
  "ID"             INTEGER NOT NULL PRIMARY KEY,
  "BankConcilDate" DATE NOT NULL,
  ExAcctId         INTEGER NOT NULL,
  EndBalAmnt       RealAmount
);
-- What the bank's statement said when an account was reconciled, in the account's own currency.
-- ExBankConcilHistoryId 0 is the reconciliation in progress; its outstanding sums are those of the
-- lines not ticked yet, so that they need not explain the whole difference.
CREATE TABLE BankStatement (
  ExAcctId       INTEGER NOT NULL,
  StatementDate  DATE NOT NULL,
  ExBankConcilHistoryId INTEGER NOT NULL,
  EndBalAmnt     RealAmount NOT NULL,
  DepAmntCirc    RealAmount NOT NULL,
  ChqAmntCirc    RealAmount NOT NULL,
  GLBalAmnt      RealAmount NOT NULL,
  PRIMARY KEY (ExAcctId, StatementDate)
);
CREATE TABLE AcctBudget (
  InAcctBudgetId INTEGER NOT NULL PRIMARY KEY,
  ExAcctId       INTEGER NOT NULL,
  BegDate        DATE NOT NULL,
  EndDate        DATE NOT NULL,
  BudgetAmnt     RealAmount NOT NULL
);
CREATE TABLE ExchangeRate (
  ExCurrencyId   INTEGER NOT NULL,
  RateDate       DATE NOT NULL,
  Rate           RealRate NOT NULL,
  PRIMARY KEY (ExCurrencyId, RateDate)
);
CREATE TABLE AcctTypeInfo (          -- account-type captions and class (2 = income-statement account)
  AcctType       INTEGER NOT NULL PRIMARY KEY,
  TypeClass      INTEGER NOT NULL,
  Descr          BookText NOT NULL,
  AdditionalIncome SMALLINT NOT NULL DEFAULT 0
);
CREATE TABLE CompanySetting (
  SettingName    BookText NOT NULL PRIMARY KEY,
  SettingValue   BookText
);
CREATE TABLE GLAccountParam (         -- GetGLAccountParam("GLRtainEarn") etc., section "Cie"
  Section        BookText NOT NULL,
  ParamName      BookText NOT NULL,
  ExAcctId       INTEGER NOT NULL,
  PRIMARY KEY (Section, ParamName)
);
CREATE TABLE Invoice (
  InInvoiId      INTEGER NOT NULL PRIMARY KEY,
  InvoiId        BookText NOT NULL,
  Source         BookText NOT NULL,
  Name           BookText,
  ExCurrencyId   INTEGER NOT NULL,
  ExchangeRate   RealRate,
  ExSegmentId    INTEGER
);
CREATE TABLE Pmt (
  InPmtId        INTEGER NOT NULL PRIMARY KEY,
  CurrPmtType    INTEGER NOT NULL,
  PmtDate        DATE NOT NULL,
  ChqNo          BookText NOT NULL DEFAULT '',
  PmtRate        RealRate,
  ExGLAcctId     INTEGER
);
CREATE TABLE PmtDet (
  InPmtDetId     INTEGER NOT NULL PRIMARY KEY,
  ExPmtId        INTEGER NOT NULL,
  ExInvoiId      INTEGER NOT NULL,
  PmtAmnt        RealAmount,
  PmtDisc        RealAmount
);
CREATE VIEW CurrPmtDet_View AS
  SELECT PmtDet.PmtAmnt AS PmtAmnt, PmtDet.PmtDisc AS PmtDisc, Invoice.ExchangeRate AS ExchangeRate,
         Pmt.PmtRate AS PmtRate, Pmt.CurrPmtType AS CurrPmtType, Invoice.Source AS Source,
         Invoice.InInvoiId AS InInvoiId, Pmt.InPmtId AS InPmtId, Invoice.ExCurrencyId AS ExCurrencyId,
         Pmt.ExGLAcctId AS ExGLAcctId, Pmt.PmtDate AS PmtDate, Invoice.Name AS Name,
         Invoice.InvoiId AS InvoiId, Pmt.ChqNo AS ChqNo, Invoice.ExSegmentId AS ExSegmentId
    FROM PmtDet INNER JOIN Pmt ON PmtDet.ExPmtId = Pmt.InPmtId
                INNER JOIN Invoice ON PmtDet.ExInvoiId = Invoice.InInvoiId;
