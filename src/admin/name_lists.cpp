#include "admin/name_lists.h"

#include <array>

namespace kvl {

namespace {

using namespace std::string_view_literals;

constexpr std::array kEnglishFirst{
    "Aaron"sv,  "Adam"sv,   "Alex"sv,   "Andrew"sv, "Ben"sv,    "Blake"sv, "Brady"sv,  "Brendan"sv, "Brett"sv,
    "Cam"sv,    "Carter"sv, "Chad"sv,   "Cody"sv,   "Cole"sv,   "Colin"sv, "Connor"sv, "Curtis"sv,  "Dale"sv,
    "Dallas"sv, "Darren"sv, "Derek"sv,  "Dustin"sv, "Dylan"sv,  "Eric"sv,  "Evan"sv,   "Garrett"sv, "Grant"sv,
    "Greg"sv,   "Hayden"sv, "Hunter"sv, "Ian"sv,    "Jake"sv,   "Jared"sv, "Jason"sv,  "Jesse"sv,   "Jordan"sv,
    "Josh"sv,   "Justin"sv, "Kevin"sv,  "Kyle"sv,   "Landon"sv, "Liam"sv,  "Logan"sv,  "Luke"sv,    "Mark"sv,
    "Matt"sv,   "Mitch"sv,  "Nate"sv,   "Neil"sv,   "Nolan"sv,  "Owen"sv,  "Parker"sv, "Quinn"sv,   "Reid"sv,
    "Riley"sv,  "Ross"sv,   "Ryan"sv,   "Scott"sv,  "Sean"sv,   "Seth"sv,  "Shane"sv,  "Spencer"sv, "Trevor"sv,
    "Tyler"sv,  "Wade"sv,   "Wes"sv,    "Zach"sv,   "Travis"sv, "Brock"sv, "Keegan"sv, "Mason"sv,   "Declan"sv};

constexpr std::array kEnglishLast{
    "Abernathy"sv,  "Ackland"sv,    "Ainsley"sv,    "Barlow"sv,     "Beckett"sv,   "Bellamy"sv,   "Birchall"sv,
    "Blackwood"sv,  "Bramwell"sv,   "Brennan"sv,    "Bristow"sv,    "Calloway"sv,  "Carmody"sv,   "Cartwright"sv,
    "Chalmers"sv,   "Colquhoun"sv,  "Corbett"sv,    "Crandall"sv,   "Cresswell"sv, "Dalgleish"sv, "Darrow"sv,
    "Densmore"sv,   "Donnelly"sv,   "Drummond"sv,   "Eastwood"sv,   "Eckford"sv,   "Ellery"sv,    "Fairbairn"sv,
    "Falconer"sv,   "Farnsworth"sv, "Fenwick"sv,    "Fitzgerald"sv, "Garland"sv,   "Gilchrist"sv, "Goodwin"sv,
    "Greaves"sv,    "Hadley"sv,     "Halloran"sv,   "Harkness"sv,   "Haywood"sv,   "Hollister"sv, "Hutchings"sv,
    "Ingram"sv,     "Jardine"sv,    "Kavanagh"sv,   "Keating"sv,    "Kendrick"sv,  "Kilbride"sv,  "Lachlan"sv,
    "Langford"sv,   "Leishman"sv,   "Lockhart"sv,   "Lyall"sv,      "MacAskill"sv, "MacRae"sv,    "Maddox"sv,
    "Marchbank"sv,  "McCrimmon"sv,  "McFadyen"sv,   "McKellar"sv,   "Merriman"sv,  "Middleton"sv, "Mulgrew"sv,
    "Munroe"sv,     "Nesbitt"sv,    "Norcross"sv,   "Oakes"sv,      "Ogilvie"sv,   "Pemberton"sv, "Penrose"sv,
    "Prentice"sv,   "Quigley"sv,    "Radcliffe"sv,  "Rainford"sv,   "Redmond"sv,   "Rowntree"sv,  "Rutledge"sv,
    "Sandford"sv,   "Selkirk"sv,    "Shackleton"sv, "Sheridan"sv,   "Sinclair"sv,  "Slattery"sv,  "Stanhope"sv,
    "Strickland"sv, "Sutherby"sv,   "Tennant"sv,    "Thackeray"sv,  "Thornbury"sv, "Tilley"sv,    "Treadwell"sv,
    "Tremblett"sv,  "Underhill"sv,  "Vickery"sv,    "Waddell"sv,    "Wakefield"sv, "Walbridge"sv, "Warburton"sv,
    "Whitcombe"sv,  "Wilkerson"sv,  "Winslow"sv,    "Woodall"sv,    "Yardley"sv,   "Yeoman"sv,    "Ashdown"sv,
    "Brigham"sv,    "Cowling"sv,    "Dunleavy"sv,   "Erskine"sv,    "Galloway"sv,  "Holloway"sv,  "Kinsella"sv,
    "Lattimer"sv,   "Mowbray"sv,    "Pettigrew"sv,  "Renshaw"sv,    "Stoddart"sv,  "Tolliver"sv};

constexpr std::array kFrenchFirst{"Alexandre"sv, "Antoine"sv, "Benoit"sv,    "Dominic"sv,  "Etienne"sv, "Felix"sv,
                                  "Francis"sv,   "Gabriel"sv, "Guillaume"sv, "Hugo"sv,     "Jacques"sv, "Jerome"sv,
                                  "Julien"sv,    "Laurent"sv, "Louis"sv,     "Marc"sv,     "Mathieu"sv, "Maxime"sv,
                                  "Nicolas"sv,   "Olivier"sv, "Pascal"sv,    "Philippe"sv, "Raphael"sv, "Remi"sv,
                                  "Samuel"sv,    "Simon"sv,   "Sylvain"sv,   "Thierry"sv,  "Vincent"sv, "Yannick"sv};

constexpr std::array kFrenchLast{
    "Archambault"sv, "Aubertin"sv, "Beaudoin"sv,  "Belisle"sv,   "Boisvert"sv,     "Cadieux"sv,   "Chartrand"sv,
    "Desrosiers"sv,  "Doucet"sv,   "Dufresne"sv,  "Fontaine"sv,  "Gauthier"sv,     "Girardin"sv,  "Groulx"sv,
    "Huard"sv,       "Laberge"sv,  "Lachance"sv,  "Lafleche"sv,  "Lamontagne"sv,   "Langevin"sv,  "Larochelle"sv,
    "Leclair"sv,     "Lemay"sv,    "Marcotte"sv,  "Ouellette"sv, "Paquin"sv,       "Pelletier"sv, "Poirier"sv,
    "Rivard"sv,      "Rochon"sv,   "Thibodeau"sv, "Tessier"sv,   "Vaillancourt"sv, "Villeneuve"sv};

constexpr std::array kSwedishFirst{"Anders"sv,    "Axel"sv,    "Bjorn"sv,   "Calle"sv,  "Daniel"sv, "Emil"sv,
                                   "Erik"sv,      "Filip"sv,   "Fredrik"sv, "Gustav"sv, "Henrik"sv, "Isak"sv,
                                   "Jesper"sv,    "Johan"sv,   "Jonas"sv,   "Kalle"sv,  "Lars"sv,   "Linus"sv,
                                   "Magnus"sv,    "Mattias"sv, "Nils"sv,    "Oscar"sv,  "Patrik"sv, "Rasmus"sv,
                                   "Sebastian"sv, "Simon"sv,   "Tobias"sv,  "Viktor"sv, "Ludvig"sv, "Hampus"sv};

constexpr std::array kSwedishLast{
    "Almqvist"sv,   "Bergdahl"sv, "Blomgren"sv,  "Dahlberg"sv,  "Engqvist"sv,  "Fjellstrom"sv,
    "Forsmark"sv,   "Grahn"sv,    "Hallberg"sv,  "Hedlund"sv,   "Isaksson"sv,  "Jernberg"sv,
    "Karlgren"sv,   "Lindahl"sv,  "Lindqvist"sv, "Ljungberg"sv, "Lofgren"sv,   "Lundmark"sv,
    "Malmsten"sv,   "Nordahl"sv,  "Palmgren"sv,  "Rosendahl"sv, "Sandqvist"sv, "Sjoberg"sv,
    "Skoglund"sv,   "Stenberg"sv, "Strandell"sv, "Sundqvist"sv, "Tornqvist"sv, "Wahlberg"sv,
    "Westerlund"sv, "Wickman"sv,  "Ahlgren"sv,   "Hagstrom"sv,  "Ekdahl"sv,    "Norrby"sv};

constexpr std::array kFinnishFirst{"Aleksi"sv, "Antti"sv,  "Eetu"sv,     "Eero"sv, "Henri"sv, "Ilari"sv,   "Jaakko"sv,
                                   "Janne"sv,  "Jarkko"sv, "Joni"sv,     "Juho"sv, "Jussi"sv, "Kalle"sv,   "Lauri"sv,
                                   "Markus"sv, "Mikko"sv,  "Niko"sv,     "Olli"sv, "Otto"sv,  "Petteri"sv, "Sami"sv,
                                   "Teemu"sv,  "Tuomas"sv, "Valtteri"sv, "Ville"sv};

constexpr std::array kFinnishLast{
    "Aaltonen"sv,    "Heikkila"sv,   "Hirvonen"sv, "Huttunen"sv, "Jaaskelainen"sv, "Kallio"sv,
    "Karjalainen"sv, "Kemppainen"sv, "Kettunen"sv, "Kivela"sv,   "Korhonen"sv,     "Laaksonen"sv,
    "Lahtinen"sv,    "Lehtonen"sv,   "Leinonen"sv, "Manninen"sv, "Mattila"sv,      "Miettinen"sv,
    "Nurmi"sv,       "Ojala"sv,      "Pesonen"sv,  "Rautio"sv,   "Saarinen"sv,     "Salminen"sv,
    "Savolainen"sv,  "Seppala"sv,    "Suominen"sv, "Tikkanen"sv, "Toivonen"sv,     "Tuominen"sv,
    "Turunen"sv,     "Vainio"sv,     "Valimaki"sv, "Virtanen"sv, "Vuorinen"sv,     "Ylonen"sv};

constexpr std::array kRussianFirst{"Aleksei"sv,   "Anatoli"sv, "Andrei"sv,     "Artyom"sv, "Boris"sv,   "Danil"sv,
                                   "Denis"sv,     "Dmitri"sv,  "Egor"sv,       "Gleb"sv,   "Igor"sv,    "Ilya"sv,
                                   "Ivan"sv,      "Kirill"sv,  "Konstantin"sv, "Maksim"sv, "Mikhail"sv, "Nikita"sv,
                                   "Oleg"sv,      "Pavel"sv,   "Roman"sv,      "Sergei"sv, "Timur"sv,   "Vadim"sv,
                                   "Vladislav"sv, "Yuri"sv};

constexpr std::array kRussianLast{
    "Abramov"sv,  "Belousov"sv,  "Bogdanov"sv, "Chernyshev"sv, "Danilin"sv,   "Fedoseev"sv,   "Gavrilin"sv,
    "Glukhov"sv,  "Gorshkov"sv,  "Isaev"sv,    "Karpukhin"sv,  "Kiselyov"sv,  "Kolesnikov"sv, "Kuzmin"sv,
    "Lapshin"sv,  "Lobanov"sv,   "Makeev"sv,   "Medvedkin"sv,  "Panteleev"sv, "Rodionov"sv,   "Rybakov"sv,
    "Savelyev"sv, "Shcherbin"sv, "Sokolov"sv,  "Stepanov"sv,   "Tikhonov"sv,  "Ustinov"sv,    "Vasiliev"sv,
    "Volkov"sv,   "Yakushev"sv,  "Zhukov"sv,   "Zubarev"sv};

constexpr std::array kCzechFirst{"Ales"sv,     "Daniel"sv,  "David"sv,  "Dominik"sv, "Filip"sv, "Jakub"sv, "Jan"sv,
                                 "Jaroslav"sv, "Jiri"sv,    "Josef"sv,  "Karel"sv,   "Lukas"sv, "Marek"sv, "Martin"sv,
                                 "Michal"sv,   "Milan"sv,   "Ondrej"sv, "Pavel"sv,   "Petr"sv,  "Radek"sv, "Roman"sv,
                                 "Tomas"sv,    "Vojtech"sv, "Zdenek"sv, "Matej"sv,   "Peter"sv};

constexpr std::array kCzechLast{
    "Benes"sv,  "Blaha"sv, "Cermak"sv, "Dolezal"sv, "Fiala"sv,  "Hajek"sv,      "Havel"sv, "Holub"sv,  "Horak"sv,
    "Hruby"sv,  "Janda"sv, "Kadlec"sv, "Kolar"sv,   "Kovac"sv,  "Kratochvil"sv, "Kubat"sv, "Lukas"sv,  "Machala"sv,
    "Marek"sv,  "Mares"sv, "Novak"sv,  "Pokorny"sv, "Rehak"sv,  "Sedlak"sv,     "Simek"sv, "Skala"sv,  "Slavik"sv,
    "Soukup"sv, "Tomek"sv, "Urban"sv,  "Vacek"sv,   "Vesely"sv, "Vlcek"sv,      "Zeman"sv, "Bartak"sv, "Zelenka"sv};

constexpr std::array kGermanFirst{"Andreas"sv, "Christian"sv, "Dominik"sv, "Fabian"sv,  "Florian"sv,
                                  "Jonas"sv,   "Kai"sv,       "Leon"sv,    "Lukas"sv,   "Marco"sv,
                                  "Moritz"sv,  "Niklas"sv,    "Patrick"sv, "Philipp"sv, "Reto"sv,
                                  "Simon"sv,   "Stefan"sv,    "Thomas"sv,  "Tim"sv,     "Yannick"sv};

constexpr std::array kGermanLast{
    "Baumgartner"sv, "Brunner"sv,  "Eberle"sv,  "Fankhauser"sv, "Gerber"sv,    "Hafner"sv,       "Hofmann"sv,
    "Huber"sv,       "Kessler"sv,  "Kohler"sv,  "Lehmann"sv,    "Lindner"sv,   "Maurer"sv,       "Moser"sv,
    "Oberholzer"sv,  "Pfeiffer"sv, "Reichel"sv, "Riedl"sv,      "Schafer"sv,   "Schellenberg"sv, "Steiner"sv,
    "Vogel"sv,       "Wagner"sv,   "Weber"sv,   "Wenger"sv,     "Zimmermann"sv};

constexpr std::array kLatvianFirst{"Arturs"sv, "Edgars"sv, "Janis"sv,   "Karlis"sv,  "Kristaps"sv, "Martins"sv,
                                   "Oskars"sv, "Raivis"sv, "Rihards"sv, "Roberts"sv, "Toms"sv,     "Uldis"sv};

constexpr std::array kLatvianLast{"Abols"sv,     "Balodis"sv, "Berzins"sv, "Dzenis"sv,  "Freimanis"sv,
                                  "Jansons"sv,   "Kalnins"sv, "Krumins"sv, "Liepins"sv, "Ozols"sv,
                                  "Petersons"sv, "Rozitis"sv, "Silins"sv,  "Vitols"sv,  "Zarins"sv};

constexpr NameRegion kEnglish{kEnglishFirst, kEnglishLast};
constexpr NameRegion kFrench{kFrenchFirst, kFrenchLast};
constexpr NameRegion kSwedish{kSwedishFirst, kSwedishLast};
constexpr NameRegion kFinnish{kFinnishFirst, kFinnishLast};
constexpr NameRegion kRussian{kRussianFirst, kRussianLast};
constexpr NameRegion kCzech{kCzechFirst, kCzechLast};
constexpr NameRegion kGerman{kGermanFirst, kGermanLast};
constexpr NameRegion kLatvian{kLatvianFirst, kLatvianLast};

// Quebec gets its own code so that French names come with it.
constexpr std::array kBirthplaces{
    Birthplace{"CAN", 32, &kEnglish}, Birthplace{"QUE", 10, &kFrench}, Birthplace{"USA", 22, &kEnglish},
    Birthplace{"SWE", 8, &kSwedish},  Birthplace{"NOR", 1, &kSwedish}, Birthplace{"DEN", 1, &kSwedish},
    Birthplace{"FIN", 7, &kFinnish},  Birthplace{"RUS", 6, &kRussian}, Birthplace{"BLR", 1, &kRussian},
    Birthplace{"CZE", 5, &kCzech},    Birthplace{"SVK", 3, &kCzech},   Birthplace{"GER", 2, &kGerman},
    Birthplace{"SUI", 2, &kGerman},   Birthplace{"AUT", 1, &kGerman},  Birthplace{"LAT", 1, &kLatvian},
};

}  // namespace

std::span<const Birthplace> Birthplaces() { return kBirthplaces; }

const Birthplace& DrawBirthplace(Draws& d) {
  return d.weighted(Birthplaces(), [](const Birthplace& b) { return b.weight; });
}

std::string DrawName(Draws& d, const NameRegion& region, std::set<std::string>& used) {
  for (;;) {
    std::string name = std::string(d.pick(region.first)) + " " + std::string(d.pick(region.last));
    if (name.size() <= 22 && used.insert(name).second) return name;
  }
}

}  // namespace kvl
