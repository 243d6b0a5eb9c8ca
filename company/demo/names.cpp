#include "company/demo/names.h"

namespace varnel::company::demo {
namespace {

using enum TaxZone;

constexpr Customer kCustomers[] = {
    {"Bistro Chez Léontine", kCad, kQuebec, 34, 4},
    {"Auberge du Héron Gris", kCad, kQuebec, 47, 4},
    {"Boulangerie Trois Fournées", kCad, kQuebec, 31, 2},
    {"Quincaillerie Bélanger-Roy & Filles", kCad, kQuebec, 58, 2},
    {"Cuisine et Compagnie de la Rivière", kCad, kQuebec, 43, 2},
    {"École hôtelière des Laurentides Nord", kCad, kQuebec, 66, 4},
    {"Madame Ouellet – listes de mariage", kCad, kQuebec, 21, 1},
    {"Comptoir des Saisons", kCad, kQuebec, 36, 1},
    {"Table d'hôte Saint-Elzéar", kCad, kQuebec, 40, 4},
    {"Boutique counter sales, rue des Érables", kCad, kQuebec, 8, 1},
    {"Web orders – Québec", kCad, kQuebec, 5, 3},
    {"Web orders – Ontario", kCad, kOntario, 5, 3},
    {"Copper Kettle Inn", kCad, kOntario, 39, 4},
    {"Wren & Daughters Housewares", kCad, kOntario, 45, 2},
    {"Lakeshore Culinary Institute", kCad, kOntario, 61, 4},
    {"The Flour Barrel", kCad, kOntario, 30, 2},
    {"Old Mill Kitchens", kCad, kOntario, 52, 2},
    {"Peregrine Lodge & Dining Room", kCad, kOntario, 44, 4},
    {"Northern Larder Provisions and Kitchen Outfitters Cooperative", kCad, kOntario, 70, 2},
    {"Marchbank Wedding Registry", kCad, kOntario, 24, 1},
    {"Harbour Lane Cookery", kUsd, kNone, 41, 5},
    {"Gristmill & Thyme", kUsd, kNone, 37, 5},
    {"Blue Heron Table Company", kUsd, kNone, 55, 2},
    {"Prairie Oven Supply", kUsd, kNone, 46, 2},
    {"Juniper Street Kitchens", kUsd, kNone, 33, 5},
    {"Saltmarsh Hospitality Group", kUsd, kNone, 62, 4},
    {"Web orders – United States", kUsd, kNone, 5, 3},
    {"Kupferkessel Handelsgesellschaft", kEur, kNone, 49, 5},
    {"La Maison des Petits Plats", kEur, kNone, 42, 5},
    {"Ferme-auberge du Vieux Têtard", kEur, kNone, 57, 5},
    {"Botteghino della Nonna", kEur, kNone, 64, 5},
};

constexpr Maker kMakers[] = {
    {"Fonderie Saint-Anselme-des-Pins", kCad, 32},
    {"Clayhouse Stoneware", kCad, 30},
    {"Tissages de la Beauce-Nord", kCad, 35},
    {"Ébénisterie Lavoie-Quirion", kCad, 28},
    {"Maplewood Boards & Handles", kCad, 33},
    {"Cascade Forge Works", kUsd, 38},
    {"Three Rivers Small Appliances Manufacturing", kUsd, 45},
    {"Alder Creek Cutlery", kUsd, 31},
    {"Great Basin Bakeware", kUsd, 42},
    {"Coltellerie Fratelli Bressan", kEur, 44},
    {"Cerâmica do Vale do Sobreiro", kEur, 40},
    {"Établissements Poirier-Haudrecourt, chaudronnerie d'art", kEur, 48},
};

constexpr ServiceSupplier kServiceSuppliers[] = {
    {"Immeubles Rue-des-Érables", "5210", 2150, 9},
    {"Entrepôts du Canal Sud", "5220", 1750, 8},
    {"Coopérative d'électricité du Saint-Maurice", "5230", 410, 6},
    {"Bâtiments Drolet, entretien", "5240", 310, 4},
    {"Net et Clair, nettoyage", "5250", 215, 6},
    {"Assurances Fortin-Wexford", "1210", 1150, 4},
    {"Imprimerie de la Petite Presse", "5310", 740, 6},
    {"Salon des Métiers de la Table", "1230", 1500, 3},
    {"Caribou Couriers", "5330", 290, 14},
    {"Postes et Messageries Bélisle", "5330", 180, 8},
    {"Cartonnages Maheux", "1130", 340, 6},
    {"Papeterie Le Trait d'union", "5410", 95, 7},
    {"Télécom Boréale", "5420", 185, 6},
    {"Lantern Hosting & Software", "5430", 190, 6},
    {"Étude Grandbois Sauvageau, notaires", "5440", 900, 2},
    {"Ashdown Pike, chartered accountants", "5450", 1350, 3},
    {"Voyages Grand-Héron", "5470", 430, 4},
    {"Formation Tournemain", "5485", 310, 2},
    {"Portside Customs Brokers & Forwarding", "5090", 460, 13},
    {"Mobilier Commercial Thériault", "1510", 1600, 1},
    {"Informatique Pointe-Claire-Nord", "1520", 1350, 1},
};

constexpr Product kProducts[] = {
    {"Copper saucepan 18 cm", 14900, 1},
    {"Cast-iron cocotte 5 L", 18950, 1},
    {"Copper sauté pan 24 cm", 23900, 1},
    {"Chef's knife 21 cm", 11450, 2},
    {"Paring knife", 3975, 2},
    {"Maple cutting board", 6895, 2},
    {"Tart ring 20 cm", 1425, 3},
    {"Madeleine mould", 2650, 3},
    {"Proofing basket", 2995, 3},
    {"Stoneware dinner plate", 2175, 4},
    {"Soup bowl, celadon", 1850, 4},
    {"Serving platter", 5490, 4},
    {"Linen tablecloth 150 × 250", 12900, 5},
    {"Cotton apron", 3850, 5},
    {"Tea towels, set of four", 3125, 5},
    {"Stand mixer", 42900, 6},
    {"Espresso grinder", 27950, 6},
    {"Hand blender", 9825, 6},
};

constexpr CodeAndName kSegments[] = {
    {"RET", "Boutique, rue des Érables"},
    {"WHO", "Wholesale"},
    {"WEB", "Online store"},
    {"HOT", "Hotels & restaurants"},
    {"EXP", "Export – United States and Europe"},
};

constexpr CodeAndName kProjects[] = {
    {"P24-01", "Warehouse move"},
    {"P24-02", "Printed catalogue 2025"},
    {"P25-01", "Café corner in the boutique"},
    {"P25-02", "New online store"},
    {"P25-03", "Foire de Lyon – trade show"},
    {"P26-01", "Own-brand knife range, design & launch"},
};

constexpr const char* kRemarkTexts[] = {
    "Approved by the controller on review of the month-end file.",
    "Supporting invoices are kept with the warehouse copy; see also the e-mail of the supplier.",
    "Recurring entry. Stop when the lease ends.",
    "Réparti entre la boutique et le site selon les ventes du mois.",
    "Correction of an entry that was coded to the wrong account.",
    "Amount estimated; the final invoice had not arrived when the period was closed.",
    "Discussed with the auditors; two segments share this cost, and the long explanation is filed.",
};

}  // namespace

std::span<const Customer> Customers() { return kCustomers; }
std::span<const Maker> Makers() { return kMakers; }
std::span<const ServiceSupplier> ServiceSuppliers() { return kServiceSuppliers; }
std::span<const Product> Products() { return kProducts; }
std::span<const CodeAndName> Segments() { return kSegments; }
std::span<const CodeAndName> Projects() { return kProjects; }
std::span<const char* const> RemarkTexts() { return kRemarkTexts; }

}  // namespace varnel::company::demo
