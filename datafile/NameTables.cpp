#include "datafile/NameTables.h"

#include <array>

namespace datafile {

namespace {

constexpr std::array surnameTable{
    Surname{"Adams", 31},     Surname{"Allen", 34},      Surname{"Anderson", 56},   Surname{"Alvarez", 18},
    Surname{"Abbott", 6},     Surname{"Archer", 5},      Surname{"Baker", 30},      Surname{"Bailey", 20},
    Surname{"Barnes", 16},    Surname{"Bell", 19},       Surname{"Bennett", 17},    Surname{"Brooks", 17},
    Surname{"Brown", 98},     Surname{"Butler", 15},     Surname{"Byrne", 4},       Surname{"Campbell", 28},
    Surname{"Carter", 27},    Surname{"Clark", 40},      Surname{"Collins", 22},    Surname{"Cook", 21},
    Surname{"Cooper", 20},    Surname{"Cox", 19},        Surname{"Cruz", 18},       Surname{"Davis", 80},
    Surname{"Diaz", 18},      Surname{"Dixon", 8},       Surname{"Duncan", 7},      Surname{"Damico", 2},
    Surname{"Edwards", 23},   Surname{"Evans", 25},      Surname{"Ellis", 13},      Surname{"Erickson", 6},
    Surname{"Fisher", 13},    Surname{"Flores", 22},     Surname{"Ford", 13},       Surname{"Foster", 14},
    Surname{"Freeman", 11},   Surname{"Garcia", 61},     Surname{"Gonzalez", 42},   Surname{"Graham", 13},
    Surname{"Gray", 18},      Surname{"Green", 30},      Surname{"Griffin", 12},    Surname{"Hall", 34},
    Surname{"Hamilton", 12},  Surname{"Harris", 44},     Surname{"Hayes", 12},      Surname{"Henderson", 13},
    Surname{"Hernandez", 50}, Surname{"Hill", 30},       Surname{"Howard", 18},     Surname{"Hughes", 17},
    Surname{"Ingram", 6},     Surname{"Irwin", 3},       Surname{"Jackson", 47},    Surname{"James", 17},
    Surname{"Jenkins", 14},   Surname{"Johnson", 136},   Surname{"Jones", 98},      Surname{"Jordan", 13},
    Surname{"Kelly", 18},     Surname{"Kennedy", 10},    Surname{"Kim", 15},        Surname{"King", 32},
    Surname{"Knight", 9},     Surname{"Kowalski", 3},    Surname{"Lee", 49},        Surname{"Lewis", 37},
    Surname{"Long", 16},      Surname{"Lopez", 45},      Surname{"Lindqvist", 2},   Surname{"Łukasiewicz", 1},
    Surname{"Martin", 47},    Surname{"Martinez", 55},   Surname{"Mason", 10},      Surname{"Miller", 80},
    Surname{"Mitchell", 27},  Surname{"Moore", 53},      Surname{"Morgan", 19},     Surname{"Morris", 21},
    Surname{"Murphy", 20},    Surname{"Murray", 11},     Surname{"McDonald", 11},   Surname{"Nelson", 29},
    Surname{"Nguyen", 21},    Surname{"Newman", 6},      Surname{"Núñez", 4},       Surname{"Oakley", 8},
    Surname{"Odom", 6},       Surname{"Olson", 11},      Surname{"Ortiz", 17},      Surname{"Owens", 11},
    Surname{"Öberg", 1},      Surname{"Parker", 23},     Surname{"Patel", 12},      Surname{"Perez", 33},
    Surname{"Perry", 14},     Surname{"Peterson", 19},   Surname{"Phillips", 26},   Surname{"Powell", 14},
    Surname{"Price", 15},     Surname{"Quinn", 5},       Surname{"Quigley", 1},     Surname{"Ramirez", 33},
    Surname{"Reed", 18},      Surname{"Reyes", 16},      Surname{"Richardson", 18}, Surname{"Rivera", 25},
    Surname{"Roberts", 27},   Surname{"Robinson", 36},   Surname{"Rodriguez", 55},  Surname{"Rogers", 20},
    Surname{"Ross", 15},      Surname{"Russell", 14},    Surname{"Sanchez", 36},    Surname{"Sanders", 15},
    Surname{"Schmidt", 8},    Surname{"Scott", 31},      Surname{"Simmons", 12},    Surname{"Smith", 165},
    Surname{"Stewart", 20},   Surname{"Sullivan", 14},   Surname{"Swanson", 4},     Surname{"Taylor", 51},
    Surname{"Thomas", 50},    Surname{"Thompson", 45},   Surname{"Torres", 24},     Surname{"Turner", 24},
    Surname{"Tran", 9},       Surname{"Underwood", 4},   Surname{"Ueda", 1},        Surname{"Vargas", 8},
    Surname{"Vasquez", 10},   Surname{"Vaughn", 5},      Surname{"van Dyke", 2},    Surname{"Walker", 36},
    Surname{"Ward", 18},      Surname{"Washington", 14}, Surname{"Watson", 17},     Surname{"White", 45},
    Surname{"Williams", 115}, Surname{"Wilson", 55},     Surname{"Wood", 17},       Surname{"Wright", 31},
    Surname{"Xiong", 2},      Surname{"Xu", 2},          Surname{"Yates", 4},       Surname{"Yang", 8},
    Surname{"Young", 33},     Surname{"Zamora", 4},      Surname{"Zhang", 6},       Surname{"Zimmerman", 6},
};

constexpr std::array firstNameTable{
    "Aaron",   "Abigail",  "Adam",     "Agnes",  "Alice",  "Amir",     "Ana",      "André",    "Angela",  "Anthony",
    "Barbara", "Benjamin", "Betty",    "Brian",  "Carlos", "Carol",    "Chloë",    "Charles",  "Claire",  "Daniel",
    "David",   "Deborah",  "Diego",    "Donna",  "Edward", "Elena",    "Elise",    "Émile",    "Emma",    "Eric",
    "Fatima",  "Frank",    "Gary",     "George", "Grace",  "Hannah",   "Harold",   "Helen",    "Henry",   "Ingrid",
    "Irene",   "Isaac",    "Jacob",    "James",  "Janet",  "Jason",    "Jennifer", "Jin",      "Joan",    "John",
    "José",    "Joseph",   "Joyce",    "Karen",  "Keith",  "Kevin",    "Laura",    "Lawrence", "Leila",   "Linda",
    "Lucía",   "Malik",    "Margaret", "María",  "Mark",   "Martha",   "Mary",     "Mei",      "Michael", "Nancy",
    "Nathan",  "Nicole",   "Olga",     "Oscar",  "Pamela", "Patricia", "Paul",     "Peter",    "Priya",   "Rachel",
    "Raymond", "Rebecca",  "Richard",  "Robert", "Rosa",   "Ruth",     "Ryan",     "Samuel",   "Sandra",  "Sarah",
    "Scott",   "Sharon",   "Stephen",  "Steven", "Susan",  "Teresa",   "Thomas",   "Timothy",  "Victor",  "Virginia",
    "Walter",  "William",  "Yusuf",    "Zoë",
};

constexpr std::array streetTable{
    "Main Street", "Oak Avenue",    "Maple Street",  "Cedar Lane",     "Park Road",   "Lake Drive",    "Hill Street",
    "River Road",  "Church Street", "School Street", "Elm Street",     "Mill Lane",   "Spring Street", "Sunset Drive",
    "Broadway",    "Orchard Court", "Kings Way",     "Prospect Place", "Harbor View", "Station Road",
};

constexpr std::array townTable{
    Town{"Portland", "Maine", "041"},        Town{"Boston", "Massachusetts", "021"},
    Town{"Hartford", "Connecticut", "061"},  Town{"Albany", "New York", "122"},
    Town{"Newark", "New Jersey", "071"},     Town{"Lancaster", "Pennsylvania", "176"},
    Town{"Richmond", "Virginia ", "232"},    Town{"Raleigh", "North Carolina", "276"},
    Town{"Savannah", "Georgia", "314"},      Town{"Miami", "Florida", "331"},
    Town{"Columbus", "Ohio", "430"},         Town{"Madison", "Wisconsin", "537"},
    Town{"Chicago", "Illinois", "606"},      Town{"St. Louis", "Missouri", "631"},
    Town{"New Orleans", "Louisiana", "701"}, Town{"Austin", "Texas", "787"},
    Town{"Denver", "Colorado ", "802"},      Town{"Tucson", "Arizona ", "857"},
    Town{"San Diego", "California ", "921"}, Town{"Salem", "Oregon", "973"},
    Town{"Seattle", "Washington", "981"},    Town{"Honolulu", "Hawaii", "968"},
};

constexpr std::array employerTable{
    "",
    "Charter Oak Bank",
    "City Hospital",
    "Public Library",
    "Keystone Insurance",
    "Lakeside Brewing",
    "Prairie Seed",
    "Front Surveyors",
    "Harbor Shipping",
    "Old Dominion Press",
    "Triangle Software",
    "Middle School",
    "Fire Department",
    "Railroad Museum",
    "Norris & Daughters",
    "Pacific Aquarium",
    "North Shore Clinic",
    "County Court",
    "Riverside Nursery",
    "retired",
};

constexpr std::array interestTable{
    "Astronomy",      "Baking",   "Bird watching", "Book keeping", "Chess",        "Choir",
    "Cooking",        "Debating", "First aid",     "Gardening",    "Hiking",       "Local history",
    "Model railways", "Painting", "Photography",   "Pottery",      "Quilting",     "Reading circle",
    "Sailing",        "Skiing",   "Theatre",       "Translation",  "Volunteering", "Writing",
};

constexpr std::array eventNameTable{
    "Annual Dinner",    "Bird Walk",       "Book Sale",  "Chess Tournament", "Choir Evening", "Debate",
    "First Aid Course", "Garden Day",      "Hike",       "Indoor Games",     "Jazz Night",    "Knitting Hour",
    "Lecture",          "Members Evening", "Open House", "Picnic",           "Quiz",          "Regatta",
    "Summer School",    "Trail Survey",    "Workshop",
};

constexpr std::array fileStemTable{
    "Membership form", "Letter", "Consent", "Photo list", "Minutes", "Receipt", "Report", "Schedule", "Newsletter",
};

constexpr std::array wordTable{
    "about",   "after",   "annual",  "board",  "budget",  "calls",   "chairs",  "club",    "dinner", "dues",
    "evening", "every",   "family",  "first",  "friend",  "garden",  "general", "group",   "harbor", "letter",
    "library", "meeting", "member",  "money",  "month",   "morning", "music",   "note",    "office", "paper",
    "people",  "phone",   "picture", "plan",   "program", "project", "report",  "school",  "second", "spring",
    "street",  "summer",  "table",   "thanks", "the",     "town",    "trail",   "weekend", "with",   "year",
};

} // namespace

std::span<const Surname> surnames()
{
    return surnameTable;
}

std::span<const char *const> firstNames()
{
    return firstNameTable;
}

std::span<const char *const> streets()
{
    return streetTable;
}

std::span<const Town> towns()
{
    return townTable;
}

std::span<const char *const> employers()
{
    return employerTable;
}

std::span<const char *const> interests()
{
    return interestTable;
}

std::span<const char *const> eventNames()
{
    return eventNameTable;
}

std::span<const char *const> fileStems()
{
    return fileStemTable;
}

std::span<const char *const> words()
{
    return wordTable;
}

} // namespace datafile
