#include "console/demo_clubs.h"

#include <array>

namespace kvl {

namespace {

constexpr std::array kClubs{
    DemoClub{"Alderford", "ALD", "Alder Owls", "Millrace Gardens", 17200, 58},
    DemoClub{"Ashcombe", "ASH", "Ash Foxes", "Ashcombe Memorial Arena", 15400, 44},
    DemoClub{"Blackmere", "BLM", "Mere Herons", "Blackmere Coliseum", 18100, 62},
    DemoClub{"Brackwater", "BRK", "Brack Otters", "Tidewater Centre", 16800, 52},
    DemoClub{"Briarton", "BRI", "Briar Hawks", "Thornfield Arena", 14900, 41},
    DemoClub{"Calder", "CAL", "Calder Lynx", "Northwind Centre", 19200, 71},
    DemoClub{"Coldbrook", "CLB", "Brook Trout", "Coldbrook Ice Palace", 15800, 47},
    DemoClub{"Cedarvale", "CED", "Vale Badgers", "Cedar Bowl", 16300, 49},
    DemoClub{"Dunmore", "DUN", "Dun Ravens", "Harbourlight Arena", 18700, 66},
    DemoClub{"Easthaven", "EHV", "Haven Gulls", "Eastgate Forum", 17600, 60},
    DemoClub{"Elmsworth", "ELM", "Elm Stags", "Greenway Arena", 15100, 43},
    DemoClub{"Fenwick", "FEN", "Fen Harriers", "Marshland Centre", 14600, 39},
    DemoClub{"Foxbury", "FOX", "Bury Hounds", "Foxbury Civic Arena", 16100, 48},
    DemoClub{"Glenhaven", "GLH", "Glen Elks", "Highland Gardens", 17900, 57},
    DemoClub{"Greystone", "GRY", "Grey Wolves", "Quarry Point Arena", 19800, 74},
    DemoClub{"Hallowell", "HAL", "Hallow Bats", "Lantern Hall", 15600, 45},
    DemoClub{"Hartwood", "HRT", "Hart Bucks", "Oakleaf Coliseum", 16900, 53},
    DemoClub{"Highcliff", "HGC", "Cliff Eagles", "Summit Centre", 18400, 64},
    DemoClub{"Ironvale", "IRV", "Iron Rams", "Foundry Arena", 20100, 78},
    DemoClub{"Juniper", "JUN", "Juniper Jays", "Evergreen Forum", 14800, 40},
    DemoClub{"Kestrel", "KES", "Kestrel Kites", "Skyline Arena", 17300, 59},
    DemoClub{"Kingsmere", "KGM", "Mere Monarchs", "Crown Gardens", 19500, 76},
    DemoClub{"Lakeport", "LKP", "Port Pike", "Lakeshore Centre", 18000, 63},
    DemoClub{"Larchmont", "LAR", "Larch Martens", "Timberhall Arena", 15300, 46},
    DemoClub{"Lochmere", "LCH", "Loch Selkies", "Waterside Coliseum", 16600, 51},
    DemoClub{"Maplecrest", "MPC", "Crest Beavers", "Sugarbush Arena", 17700, 56},
    DemoClub{"Millbrook", "MIL", "Mill Wheels", "Grindstone Centre", 15000, 42},
    DemoClub{"Norwood", "NOR", "Wood Owls", "Northgate Arena", 16400, 50},
    DemoClub{"Oakhurst", "OAK", "Hurst Boars", "Acorn Gardens", 17100, 55},
    DemoClub{"Pinecrest", "PIN", "Pine Martens", "Ridgeline Arena", 16200, 48},
    DemoClub{"Portsmere", "PTS", "Mere Mariners", "Anchor Centre", 18900, 68},
    DemoClub{"Quarrytown", "QRY", "Quarry Cats", "Bedrock Arena", 15700, 45},
    DemoClub{"Ravensford", "RAV", "Ford Ravens", "Blackwing Coliseum", 18300, 65},
    DemoClub{"Redcliffe", "RED", "Cliff Foxes", "Sandstone Gardens", 17400, 58},
    DemoClub{"Riverton", "RIV", "River Rats", "Confluence Centre", 16700, 52},
    DemoClub{"Rockport", "ROK", "Rock Crabs", "Breakwater Arena", 15900, 47},
    DemoClub{"Saltmarsh", "SLT", "Marsh Hawks", "Saltworks Arena", 14700, 38},
    DemoClub{"Silverton", "SIL", "Silver Bears", "Minehead Centre", 18600, 67},
    DemoClub{"Stonehaven", "STH", "Haven Rocks", "Flagstone Forum", 17000, 54},
    DemoClub{"Summerfell", "SUM", "Fell Runners", "Midsummer Arena", 16000, 49},
    DemoClub{"Thornbury", "THB", "Thorn Vipers", "Bramble Gardens", 15500, 44},
    DemoClub{"Timberline", "TIM", "Timber Jacks", "Sawmill Coliseum", 17800, 61},
    DemoClub{"Valeport", "VAL", "Vale Pilots", "Lighthouse Arena", 16500, 50},
    DemoClub{"Westbrook", "WBK", "Brook Minks", "Westfield Centre", 18200, 63},
    DemoClub{"Whitewater", "WHW", "White Caps", "Rapids Arena", 19000, 70},
    DemoClub{"Willowdale", "WIL", "Willow Wrens", "Riverbend Gardens", 15200, 43},
    DemoClub{"Windmere", "WND", "Wind Sails", "Gale Force Centre", 16900, 53},
    DemoClub{"Wolfcreek", "WLF", "Creek Howlers", "Den Arena", 17500, 57},
    DemoClub{"Yarrow", "YAR", "Yarrow Yaks", "Meadowfield Forum", 14500, 37},
    DemoClub{"Bellhaven", "BEL", "Bell Ringers", "Carillon Arena", 16200, 50},
    DemoClub{"Copperton", "CPT", "Copper Kings", "Smelter Centre", 18800, 69},
    DemoClub{"Driftwood", "DRF", "Drift Seals", "Beachcomber Arena", 15600, 46},
    DemoClub{"Emberton", "EMB", "Ember Drakes", "Hearthstone Coliseum", 17300, 59},
    DemoClub{"Frostburg", "FRB", "Frost Giants", "Icefield Gardens", 20500, 82},
    DemoClub{"Glacierton", "GLA", "Glacier Bears", "Moraine Arena", 19300, 73},
    DemoClub{"Harrowby", "HRW", "Harrow Hares", "Furrow Field Arena", 14900, 40},
};

}  // namespace

std::span<const DemoClub> DemoClubs() { return kClubs; }

}  // namespace kvl
