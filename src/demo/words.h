#pragma once

#include <array>
#include <string_view>

/// The names that people, firms, streets and documents of a demo company are made of.
namespace tallymere::demo::words {

using Text = std::string_view;

inline constexpr auto first_names = std::to_array<Text>(
    {"Anna",   "Benjamin",  "Carla",    "Daniel", "Elena",  "Frank",  "Grace", "Héctor",  "Irene",  "James",
     "Karen",  "Luis",      "Margaret", "Nathan", "Olivia", "Peter",  "Quinn", "Rosa",    "Samuel", "Teresa",
     "Ulrich", "Victoria",  "Walter",   "Ximena", "Yusuf",  "Zoë",    "André", "Beatriz", "Conor",  "Denise",
     "Edward", "Françoise", "George",   "Helen",  "Ivan",   "Judith", "Kevin", "Laura",   "Miguel", "Nora"});

inline constexpr auto last_names = std::to_array<Text>(
    {"Abbott",   "Becker",   "Castillo",  "Dvořák",   "Ellis",    "Fischer", "Gallagher", "Hoffman",  "Ibáñez",
     "Jensen",   "Kowalski", "Lindqvist", "Muñoz",    "Nakamura", "O'Brien", "Petersen",  "Quigley",  "Ramírez",
     "Schmidt",  "Thornton", "Ueda",      "Vance",    "Whitaker", "Xiong",   "Yates",     "Zimmer",   "Åkesson",
     "D'Angelo", "Léger",    "Brennan",   "Crawford", "Duncan",   "Eriksen", "Fontaine",  "Greene",   "Holloway",
     "Iverson",  "Juárez",   "Kemp",      "Larkin",   "Mercer",   "Novak",   "O'Malley",  "Prescott", "Reyes",
     "Sandoval", "Tillman",  "Underhill", "Vasquez",  "Wexler"});

inline constexpr auto business_kinds = std::to_array<Text>({"Dental Group",
                                                            "Properties",
                                                            "Family Restaurant",
                                                            "Bakery",
                                                            "Law Offices",
                                                            "Montessori School",
                                                            "Auto Repair",
                                                            "Veterinary Clinic",
                                                            "Apartments",
                                                            "Community Church",
                                                            "Golf Club",
                                                            "Medical Center",
                                                            "Office Park",
                                                            "Senior Living",
                                                            "Café",
                                                            "Farms",
                                                            "Engineering",
                                                            "Storage",
                                                            "Homeowners' Association",
                                                            "Brewing Company",
                                                            "Books",
                                                            "Day Care",
                                                            "Funeral Home",
                                                            "Florist",
                                                            "Hotel",
                                                            "Insurance Agency"});

inline constexpr auto job_names = std::to_array<Text>(
    {"North Lot", "Front Entrance", "Courtyard", "Parking Lot", "Rear Garden", "Irrigation", "East Wing", "Patio"});

inline constexpr auto streets =
    std::to_array<Text>({"Main Street", "Oak Avenue", "Prairie Road", "River Drive", "Church Street", "Lincoln Highway",
                         "Elm Street", "State Street", "Mill Road", "Harrison Avenue", "Spring Creek Road",
                         "Jefferson Street", "Rural Route 2", "Charles Street", "Orchard Lane", "Sunset Boulevard"});

struct Place {
  Text city, zip;
};
inline constexpr auto places = std::to_array<Place>({{"Rockford", "61101"},
                                                     {"Belvidere", "61008"},
                                                     {"Freeport", "61032"},
                                                     {"DeKalb", "60115"},
                                                     {"Elgin", "60120"},
                                                     {"Sycamore", "60178"},
                                                     {"Byron", "61010"},
                                                     {"Loves Park", "61111"},
                                                     {"Dixon", "61021"},
                                                     {"Rochelle", "61068"}});

inline constexpr auto supplier_kinds =
    std::to_array<Text>({"Nursery", "Stone & Gravel", "Irrigation Supply", "Turf Farm", "Garden Wholesale", "Lumber",
                         "Lighting Supply", "Equipment", "Tool Company", "Packaging", "Hardware", "Seed Company"});

inline constexpr auto subcontractor_kinds =
    std::to_array<Text>({"Excavating", "Concrete", "Electric", "Tree Service", "Masonry", "Fencing"});

inline constexpr auto check_memos = std::to_array<Text>(
    {"Supplies for the yard", "Job site", "Weekly run", "Counter purchase", "Replacement", "For the office"});

inline constexpr auto messages = std::to_array<Text>(
    {"Thank you for your business.", "We appreciate your prompt payment.", "It's been a pleasure working with you!",
     "Please remit to the address above.", "Ask us about spring clean-up."});

inline constexpr auto payment_methods = std::to_array<Text>({"Check", "Cash", "Credit Card", "Bank Transfer"});
inline constexpr auto shipping_methods =
    std::to_array<Text>({"Our Truck", "Customer Pick-up", "Freight Line", "Parcel Service"});
inline constexpr auto classes = std::to_array<Text>({"Design/Build", "Maintenance", "Retail", "Office"});
inline constexpr auto reps = std::to_array<Text>({"AB", "CR", "MÓ"});
inline constexpr Text owner = "José Núñez (owner)";
inline constexpr auto other_names = std::to_array<Text>({"Cash", "Petty Cash Custodian", "County Clerk", owner});

struct Term {
  Text name;
  int days;
};
inline constexpr auto terms =
    std::to_array<Term>({{"Due on Receipt", 0}, {"Net 10", 10}, {"Net 15", 15}, {"Net 30", 30}, {"Net 45", 45}});

}  // namespace tallymere::demo::words
