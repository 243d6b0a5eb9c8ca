#include "company/texts/captions.h"

#include <array>

#include "host/object.h"

namespace varnel::company {

namespace {

struct Caption {
    std::string_view key, english, french;
    std::string_view In(Language language) const {
        return language == Language::kFrench ? french : english;
    }
};

constexpr std::array kColumns{
    Caption{"CurrPmtDet_View.ExchangeRate", "Invoice rate", "Taux de la facture"},
    Caption{"ProjInfo.Descr", "Project description", "Description du projet"},
    Caption{"Segment.Descr", "Segment description", "Description du segment"},
    Caption{"WorldCurrency.Descr", "Currency description", "Description de la devise"},
    Caption{"AcctType", "Account type", "Type de compte"},
    Caption{"ChqAcct", "Bank account", "Compte bancaire"},
    Caption{"ChqNo", "Cheque no.", "No chèque"},
    Caption{"Conciliated", "Reconciled", "Concilié"},
    Caption{"CurrencyCode", "Currency", "Devise"},
    Caption{"CurrPmtType", "Payment type", "Type de paiement"},
    Caption{"Descr", "Description", "Description"},
    Caption{"DetAmnt", "Amount", "Montant"},
    Caption{"DetDate", "Date", "Date"},
    Caption{"DetDesc", "Description", "Description"},
    Caption{"DetRef", "Reference", "Référence"},
    Caption{"ExAcctId", "Account", "Compte"},
    Caption{"ExChangeRate", "Exchange rate", "Taux de change"},
    Caption{"ExchangeRate", "Exchange rate", "Taux de change"},
    Caption{"ExCurrencyId", "Currency", "Devise"},
    Caption{"ExGLAcctId", "Account", "Compte"},
    Caption{"ExProjId", "Project", "Projet"},
    Caption{"ExSegmentId", "Segment", "Segment"},
    Caption{"ForeignAmnt", "Foreign amount", "Montant en devise"},
    Caption{"GIFIAcctId", "GIFI code", "Code IGRF"},
    Caption{"GLAcctId", "Account", "Compte"},
    Caption{"Inactive", "Inactive", "Inactif"},
    Caption{"InGLAcctId", "Account", "Compte"},
    Caption{"InInvoiId", "Invoice", "Facture"},
    Caption{"InPmtId", "Payment", "Paiement"},
    Caption{"InvoiId", "Invoice", "Facture"},
    Caption{"Name", "Name", "Nom"},
    Caption{"Note", "Note", "Note"},
    Caption{"PmtAmnt", "Amount paid", "Montant payé"},
    Caption{"PmtDate", "Payment date", "Date du paiement"},
    Caption{"PmtDisc", "Discount", "Escompte"},
    Caption{"PmtRate", "Payment rate", "Taux du paiement"},
    Caption{"ProjId", "Project", "Projet"},
    Caption{"Remarks", "Comments", "Commentaires"},
    Caption{"SegmentCode", "Segment", "Segment"},
    Caption{"SeqNo", "Entry", "Écriture"},
    Caption{"Source", "Source", "Source"},
    Caption{"TrxDate", "Date", "Date"},
    Caption{"TrxDesc", "Description", "Description"},
    Caption{"TrxRef", "Reference", "Référence"},
};

}  // namespace

std::string_view StatementCaption(std::int32_t section, Language language) {
    switch (section) {
        case 4:
            return Caption{"", "Revenue", "Produits"}.In(language);
        case 5:
            return Caption{"", "Expenses", "Charges"}.In(language);
        case 9:
            return Caption{"", "Other items", "Autres éléments"}.In(language);
        default:
            return {};
    }
}

std::string_view ColumnCaption(std::string_view column, Language language) {
    for (const auto& caption : kColumns)
        if (SameName(caption.key, column)) return caption.In(language);
    const auto dot = column.rfind('.');
    if (dot == std::string_view::npos) return {};
    return ColumnCaption(column.substr(dot + 1), language);
}

std::string_view DescendingWord(Language language) {
    return Caption{"", "descending", "décroissant"}.In(language);
}

}  // namespace varnel::company
