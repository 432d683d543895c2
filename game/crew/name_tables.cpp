#include "game/crew/name_tables.h"

// clang-format off
const char povolnianGiven[41][11] = {
    "Mesobaena", "Squamata", "Sauria", "Gonatodes", "Enyalioide", "Anolis", "Polychrus", "Bachia",
    "Cercosaura", "Iphisa", "Leposoma", "Ameiva", "Dracaena", "Kentropyx", "Tupinambis", "Mabuya",
    "Typhlops", "Anilius", "Corallus", "Epicrates", "Eunectes", "Atractus", "Chironius", "Clelia",
    "Drymobius", "Drymoluber", "Hydrops", "Imantodes", "Leptophis", "Oxybelis", "Oxyrhopus",
    "Philodryas", "Pseudoeryx", "Pseustes", "Umbrivaga", "Lachesis", "Caiman", "Geochelone",
    "Platemys", "Phrynops", "Podocnemis",
};

const char povolnianSuffix[5][4] = {
    "II", "III", "IV", "Jr.", "Sr.",
};

const char povolnianFamily[30][16] = {
    "Amphisbaena", "Gekkonidae", "Hemidactylus", "Lepidoblepharis", "Pseudogonatodes",
    "Thecadactylus", "Hoplocercidae", "Iguanidae", "Polychrotidae", "Stenocercus", "Tropiduridae",
    "Tropidurus", "Uranoscodon", "Gymnophthamidae", "Alopoglossus", "Arthrosaura", "Neusticurus",
    "Prionodactylus", "Ptychoglossus", "Crocodilurus", "Liotyphlops", "Leptotyphlops",
    "Apostolepis", "Drepanoides", "Mastigodryas", "Siphlophis", "Tantilla", "Tripanurgos",
    "Xenopholis", "Xenoxybelis",
};

const char grekkpStem[65][7] = {
    "Ab", "Abant", "Abe", "Ac", "Ace", "Ach", "Act", "Ad", "Ae", "Ag", "Aid", "Al", "Am", "An",
    "Ap", "Arm", "Au", "Ba", "Ben", "Ber", "Cal", "Car", "Cel", "Chand", "Christ", "Clau", "Corn",
    "De", "Domi", "Don", "Ed", "El", "Fab", "Fer", "Flav", "For", "Fran", "Gar", "Gen", "Gra",
    "Ha", "Ig", "In", "Jeo", "Jul", "Laur", "Lor", "Lou", "Man", "Marc", "Mart", "Max", "Mon",
    "Na", "Oct", "Oli", "Pal", "Ped", "Rom", "Sal", "Ser", "Sil", "So", "Valen", "Vik",
};

const char grekkpMale[63][9] = {
    "bonus", "bonnisus", "undius", "undus", "ademicus", "astus", "cius", "heronus", "hillesus",
    "torus", "torisus", "iranus", "olphus", "rienus", "reinus", "milius", "gidius", "olus",
    "ostonus", "nanus", "ustinus", "reonus", "reynus", "fious", "fredus", "adious", "adeus",
    "iasus", "atoleus", "desus", "dreus", "ollous", "andous", "elus", "binus", "stanus",
    "lendinus", "lineus", "sileus", "silious", "dikus", "cius", "enus", "ignous", "toldius",
    "aisus", "chasus", "istous", "vertus", "vinus", "vinous", "vinus", "losus", "melous",
    "mineus", "istineus", "lorus", "lerus", "ianus", "ofus", "oferus", "ianus", "ious",
};

const char grekkpFemale[47][8] = {
    "bona", "bonnisa", "undia", "unda", "ademica", "asta", "ciusa", "herona", "hillesa", "tora",
    "torisa", "irana", "olpha", "riena", "reina", "milia", "gidia", "ola", "ostona", "nana",
    "ustina", "reona", "reyna", "freda", "desa", "drea", "ela", "bina", "stana", "lendina",
    "linea", "silea", "dika", "cia", "ena", "toldia", "aisa", "chasa", "verta", "vina", "losa",
    "lora", "lera", "iana", "ofa", "ofera", "iana",
};

const char makoHead[76][5] = {
    "Ab", "Ach", "Ad", "Af", "Aga", "Ba", "Be", "Bo", "Ca", "Ce", "Cha", "Chi", "Chik", "Chu",
    "Da", "De", "Do", "En", "Ev", "Fe", "Ga", "Gun", "H", "Ho", "Ig", "I", "Jar", "Ka", "Kha",
    "Khe", "Kh", "Kho", "Ki", "La", "Le", "Lo", "Ma", "Me", "Mi", "My", "Na", "Ne", "On", "Or",
    "O", "Pa", "Pe", "Plo", "Pre", "Que", "Ra", "Rev", "Roz", "Sa", "Se", "Sha", "She", "Sig",
    "Slu", "Spi", "Sva", "Ta", "Tek", "To", "Tu", "U", "Ur", "Vakh", "Val", "Ver", "Vis", "Vlod",
    "Wa", "Vla", "Za", "Ze",
};

const char makoTail[76][9] = {
    "akum", "la", "lon", "lez", "ekmat", "aukt", "rik", "frik", "fonik", "bash", "atyr", "bakha",
    "bosh", "khmat", "vchel", "nedikt", "lovod", "zmir", "drikh", "danov", "gosav", "danche",
    "brovnik", "iko", "ris", "brech", "dobor", "hach", "valek", "besh", "bizha", "emien", "mekh",
    "brovit", "mavoi", "makh", "ragoslav", "isavef", "vod", "tifei", "shak", "ostikt", "gara",
    "rovnik", "vril", "rilok", "dor", "lech", "lek", "jewek", "nash", "osaf", "oslav", "dak",
    "grik", "valimir", "verza", "pekh", "gislav", "gvin", "dnik", "khon", "nata", "putka",
    "manov", "stochek", "linin", "mislav", "chavei", "mund", "domil", "homil", "bislav", "hovod",
    "simir", "movit",
};

const char uberfleckHead[74][7] = {
    "Ach", "Adel", "Al", "Ali", "Arn", "Ben", "Ber", "Bert", "Bjorn", "Burk", "Christ", "Cornel",
    "Det", "Diet", "Dirk", "Eber", "Eck", "Ed", "El", "Engel", "Fried", "Fritz", "Ger", "Gott",
    "Greg", "Gunn", "Gunt", "Gus", "Hans", "Hart", "Hein", "Hel", "Hen", "Joch", "Lud", "Klaus",
    "Kon", "Leo", "Leon", "Man", "Mar", "Mat", "Max", "Mein", "Mor", "Ot", "Phil", "Rein", "Rolf",
    "Rud", "Sieg", "Sig", "Theo", "Thor", "Ul", "Volk", "Wil", "Wolf", "Anne", "Bar", "Baer",
    "Cath", "Cor", "Dag", "Franz", "Hed", "Hul", "Inge", "Isa", "Kat", "Ker", "Kat", "Rol", "Nat",
};

const char uberfleckTail[66][9] = {
    "im", "bert", "dolf", "brecht", "fred", "dikt", "hard", "hold", "ian", "oph", "oper", "ens",
    "elius", "lev", "mar", "rich", "gar", "uard", "win", "ix", "fried", "gor", "nar", "ter",
    "ther", "tav", "nes", "-Joachim", "-Peter", "-Georg", "mut", "drik", "ning", "ques", "chim",
    "ann", "ius", "gen", "rad", "wig", "thias", "imilian", "laus", "rick", "mund", "and", "iger",
    "dor", "sten", "kmar", "ker", "zek", "helm", "gang", "andra", "liese", "bel", "lotte",
    "ziska", "trud", "dolin", "stanze", "asha", "munde", "linde", "helmine",
};

const char mududuHead[63][6] = {
    "Aa", "Ab", "Ak", "Am", "As", "Ay", "Az", "Ba", "Bo", "Cha", "Da", "Fad", "Fer", "Fu", "Gha",
    "Gheil", "Ha", "Hi", "Hus", "Im", "Is", "Ja", "Ju", "Ki", "Kin", "Kit", "Kris", "Ku", "Lu",
    "Ku", "Ma", "Mask", "M", "Nia", "Po", "Pu", "Ro", "Sham", "Ta", "Wa", "Ya", "Yu", "Za", "Zu",
    "An", "Ash", "Dh", "Kha", "Mwam", "Mwan", "Mtum", "Nad", "Naf", "Nee", "Naw", "Naj", "Rash",
    "Ruq", "Sab", "Un", "Win", "Zul", "Sal",
};

const char mududuTail[88][10] = {
    "ron", "asi", "dolla", "du", "dul", "ubakar", "bar", "aad", "ini", "ad", "ani", "unu", "ubu",
    "izi", "ba", "ha", "aka", "ma", "ga", "da", "mama", "dada", "gaga", "udi", "uzi", "hili",
    "mo", "lani", "bib", "ki", "midi", "run", "tari", "lali", "sani", "amu", "ismo", "imo", "ali",
    "ina", "basila", "jani", "jikitile", "tunzi", "umba", "mumba", "chungwa", "kungu", "skini",
    "ulidi", "faki", "kufunzi", "tangulizi", "tumwa", "walimu", "zale", "po", "pa", "fiki",
    "watu", "bo", "bobo", "baba", "huru", "ziri", "suf", "hati", "shira", "titi", "kubwa",
    "bizao", "anati", "ribuu", "fura", "eisha", "dhi", "fudha", "rashi", "nahawa", "nakweli",
    "watabu", "aam", "hida", "rifa", "herda", "wazuri", "nabahi", "laykha",
};

const char oblivionHead[52][6] = {
    "Ab", "Ach", "Ad", "Al", "Am", "An", "Ar", "Au", "Ben", "Ber", "Chris", "Claud", "Con", "Dom",
    "Er", "Fab", "Fran", "Fred", "Ger", "Gun", "Gus", "Gott", "Han", "Hans", "Hart", "Hu", "In",
    "Joch", "Kar", "Leon", "Mat", "Nik", "Os", "Pas", "Pat", "Rain", "Ric", "Ro", "Se", "Sil",
    "Thad", "Ul", "Vic", "Vik", "Volk", "Wal", "Wil", "Win", "Wolf", "Ya", "Yu", "Sieg",
};

const char oblivionTail[59][9] = {
    "raham", "im", "albert", "am", "em", "olf", "rian", "rianno", "fred", "fons", "win", "alrich",
    "bros", "atol", "man", "gust", "rel", "er", "hard", "mar", "edikt", "enico", "hart", "rico",
    "vin", "rit", "fried", "tram", "tuv", "ther", "ter", "-Dieter", "-Georg", "-Joachim", "-Jorg",
    "-Jurgen", "-Peter", "jorg", "rich", "nard", "thias", "tias", "olaus", "wald", "hart", "hold",
    "mund", "van", "vano", "vester", "vio", "daus", "deus", "gang", "sin", "suf", "silo", "sten",
    "stan",
};

const char deorianHead[145][6] = {
    "Aki", "Am", "An", "Ar", "Ash", "At", "Bai", "Ba", "Ben", "Bok", "Bun", "Bus", "Chi", "Cho",
    "Chu", "Dai", "Dan", "Den", "Doi", "Ei", "Ek", "En", "Et", "Fuji", "Fuku", "Fumi", "Gaho",
    "Gek", "Gem", "Gen", "Ges", "Gi", "Goe", "Gom", "Gon", "Goro", "Gyo", "Ha", "Hach", "Haji",
    "Haku", "Hara", "Haru", "Hei", "Hide", "Hiko", "Hiro", "Hisa", "Hito", "Hoki", "Hoku", "Hori",
    "Hos", "Hyo", "Ich", "Iem", "Ien", "Ies", "Iet", "Iey", "Ik", "In", "Ip", "Is", "Iw", "Iz",
    "Jak", "Jin", "Jiro", "Jo", "Jou", "Ju", "Jun", "Ka", "Kaii", "Kan", "Kat", "Kaw", "Kaz",
    "Kei", "Ken", "Ki", "Kimi", "Ko", "Koji", "Kon", "Kore", "Kos", "Kuma", "Kuni", "Kyo", "Kyu",
    "Mab", "Mag", "Mako", "Mano", "Ma", "Masa", "Masu", "Mat", "Michi", "Mit", "Mi", "Mori",
    "Moro", "Moto", "Mune", "Mono", "Naga", "Naka", "Nam", "Nao", "Nari", "Nat", "Nobu", "Nori",
    "Oda", "Oki", "Oni", "Ro", "Sada", "San", "Sei", "Shi", "Sho", "Shu", "So", "Su", "Tada",
    "Taka", "Take", "Taki", "Tatsu", "Tetsu", "Toku", "Tomo", "Toshi", "Toyo", "Tsune", "Uta",
    "Yaka", "Yasu", "Yo", "Yoshi", "Yuki",
};

const char deorianTail[104][9] = {
    "hito", "hiro", "hisa", "kazu", "nari", "nori", "tomo", "hei", "suke", "hushi", "michi",
    "sumichi", "mori", "sumori", "sutane", "mamaro", "jiro", "kai", "kei", "cho", "chu",
    "rakuken", "zo", "sho", "kafusa", "mei", "kao", "setsu", "suke", "be", "chi", "chiro",
    "kichi", "saku", "saburu", "maro", "pachi", "nai", "paku", "shin", "dayu", "mon", "bei",
    "kuro", "shiro", "kusho", "kudo", "igoro", "seki", "hei", "shiro", "chigoro", "nobu", "jime",
    "tada", "tora", "toshi", "tsugu", "yori", "hikuni", "saburo", "zaemon", "bumi", "fumi",
    "hara", "hisa", "kichi", "kumi", "shi", "shige", "taka", "tsugu", "yasu", "yuki", "sahsi",
    "samitsu", "sanobu", "sashi", "sato", "moto", "zaburo", "suhiko", "suhito", "sumi", "sumoto",
    "sunan", "sunosuki", "suyoshi", "suyuki", "zumi", "zuhiko", "zihiro", "uki", "uro", "uma",
    "unari", "ushi", "uyuki", "utoshi", "uyoshi", "zaburo", "zan", "tada", "suke",
};

const char hampsterName[106][16] = {
    "Rocky ", "Amber ", "Jasper ", "Cinnamon ", "Duke ", "Max ", "Case ", "Dickens ", "Sierra ",
    "Ace ", "Oliver ", "Hudson ", "Daisy ", "Princess ", "Storm ", "Zoe ", "Buster ",
    "Sebastian ", "Ginger ", "Mickey ", "Duchess ", "Mackenzie ", "Willie ", "Jasmine ",
    "Muffin ", "Jack ", "Sammy ", "Bucky ", "Kiki ", "Madison ", "Sydney ", "Bo ", "Ziggy ",
    "Salem ", "Sage ", "Fred ", "Rex ", "Elvis ", "Duchess ", "Duke ", "Fido ", "Fifi ", "Honey ",
    "King ", "Lassie ", "Muffin ", "Precious ", "Prince ", "Rover ", "Skipper ", "Spike ",
    "Spot ", "Kelso ", "Sandy Claws ", "Fang ", "Fluffy ", "Hairball ", "Pouncer ", "Quidditch ",
    "Flitwick ", "Snickerdoodle ", "Ricochet ", "Meowser ", "Ruskie ", "Jinxy ", "Cleopawtra ",
    "Pussamaccattus ", "Jagger ", "Zippo ", "Solo ", "Meowbert ", "Ziggles ", "Romper ",
    "Jabberwocky ", "Muzby ", "Cinders ", "Spookie ", "Shakes ", "Neon ", "Puckers ", "Jaws ",
    "Nads ", "Moonshine ", "Sizzles ", "Pogo ", "Pickles ", "Pinky ", "Pooh ", "Porker ",
    "Hawkeye ", "Rin-Tin-Tin ", "Ruffles ", "Runt ", "Killer ", "Kinko ", "Koko ", "Kujo ",
    "Krispy ", "Nibbles ", "Daphne ", "Droopy ", "Tiger ", "Sadie ", "Sassy ", "Sport ",
    "Stoney ",
};

const char ivinianTreeHead[41][8] = {
    "Fir", "Aca", "Map", "Ald", "Ce", "Hick", "Ma", "Dog", "Cy", "Ash", "Flannel", "Wal", "Jun",
    "Red", "Lar", "Mag", "Pop", "Cotton", "As", "Mes", "Cliff", "Oak", "Su", "Elder", "Se", "Yew",
    "Sassa", "Cas", "Bass", "Elm", "Palm", "Hem", "Salt", "Plum", "Apri", "Spru", "Sour", "Sweet",
    "Lar", "Tama", "Butter",
};

const char ivinianFlowerTail[32][7] = {
    "flower", "let", "py", "rose", "el", "ony", "olia", "root", "thorn", "toe", "ation", "ris",
    "ver", "rod", "gold", "mine", "ivy", "vy", "chid", "mum", "dil", "pedia", "lia", "ger", "sy",
    "issus", "dragon", "lip", "ip", "ica", "um", "som",
};

const char ivinianFlowerHead[38][7] = {
    "Sun", "Vio", "Pop", "Ro", "Laur", "Peo", "Mag", "Magno", "May", "Bitter", "Haw", "Misle",
    "Carna", "Ir", "Clo", "Blos", "Golden", "Li", "Mari", "Jas", "Ivy", "Orch", "Mum", "Corn",
    "Cras", "Daffo", "Dah", "Dai", "Gin", "Gip", "God", "Lil", "Nar", "Narci", "Snap", "Se", "Tu",
    "Vero",
};

const char ivinianTreeTail[38][7] = {
    "fir", "cia", "le", "er", "ory", "hogany", "low", "wood", "press", "bush", "ive", "bush",
    "ash", "olia", "cedar", "uce", "iper", "per", "quite", "pen", "rose", "oak", "ak", "ac",
    "berry", "yew", "lar", "quoia", "afras", "safras", "cara", "elm", "alm", "cot", "bay", "gum",
    "ack", "nut",
};

const char humanMale[274][13] = {
    "Aaron", "Abe", "Abel", "Adrian", "Alan-Michael", "Albert", "Alex", "Alexander", "Alfred",
    "Allan", "Allen", "Alvin", "Andrew", "Andy", "Anthony", "Arnold", "Arthur", "Ashley",
    "Austin", "Barry", "Ben", "Benjamin", "Bernard", "Bert", "Bill", "Billy", "Blake", "Bob",
    "Bobby", "Brad", "Bradley", "Brandon", "Brett", "Brian", "Bruce", "Bryan", "Byron", "Calvin",
    "Cameron", "Carl", "Carter", "Casey", "Chad", "Charles", "Charlie", "Chester", "Chris",
    "Christian", "Christopher", "Clark", "Claude", "Cliff", "Clint", "Cody", "Colin", "Cory",
    "Craig", "Curtis", "Dale", "Dallas", "Dan", "Daniel", "Danny", "Darren", "Dave", "David",
    "Dean", "Dennis", "Derek", "Dominic", "Don", "Donald", "Doug", "Douglas", "Duncan", "Dwight",
    "Dylan", "Earl", "Eddie", "Edgar", "Edmund", "Edward", "Edwin", "Elliot", "Eric", "Ernest",
    "Ernie", "Ethan", "Eugene", "Evan", "Felix", "Floyd", "Francis", "Frank", "Franklin", "Fred",
    "Frederick", "Gabriel", "Gary", "Gene", "Geoffrey", "George", "Gerald", "Gilbert", "Glen",
    "Gordon", "Graham", "Grant", "Greg", "Gregory", "Guy", "Harold", "Harris", "Harry", "Harvey",
    "Hector", "Henry", "Herbert", "Howard", "Hugh", "Hugo", "Ian", "Isaac", "Ivan", "Jack",
    "Jacob", "Jake", "James", "Jamie", "Jason", "Jasper", "Jay", "Jeff", "Jeffrey", "Jeremy",
    "Jerry", "Jesse", "Jim", "Jimmy", "Joe", "Joel", "John", "Johnny", "Jon", "Jonathan",
    "Jordan", "Joseph", "Josh", "Joshua", "Julian", "Justin", "Karl", "Keith", "Ken", "Kenneth",
    "Kevin", "Kirk", "Kyle", "Lance", "Larry", "Laurence", "Lawrence", "Lee", "Leo", "Leon",
    "Leonard", "Leroy", "Leslie", "Lewis", "Lloyd", "Logan", "Louis", "Lucas", "Luke", "Malcolm",
    "Marcus", "Mark", "Martin", "Marvin", "Matt", "Matthew", "Maurice", "Max", "Michael", "Mike",
    "Miles", "Mitchell", "Morgan", "Morris", "Murray", "Nathan", "Neal", "Ned", "Neil", "Nelson",
    "Nicholas", "Nick", "Noah", "Norman", "Oliver", "Oscar", "Owen", "Patrick", "Paul", "Perry",
    "Pete", "Peter", "Phil", "Philip", "Quentin", "Ralph", "Randall", "Randy", "Ray", "Raymond",
    "Rex", "Richard", "Rick", "Ricky", "Robert", "Robin", "Rodney", "Roger", "Roland", "Ron",
    "Ronald", "Ross", "Roy", "Russell", "Ryan", "Sam", "Samuel", "Scott", "Sean", "Seth", "Shane",
    "Sidney", "Simon", "Spencer", "Stanley", "Stephen", "Steve", "Steven", "Stuart", "Ted",
    "Terry", "Theodore", "Thomas", "Tim", "Timothy", "Toby", "Todd", "Tom", "Tommy", "Tony",
    "Travis", "Trevor", "Troy", "Tyler", "Victor", "Vince", "Vincent", "Wade", "Wallace",
    "Walter", "Warren", "Wayne", "Wesley", "Will", "William", "Willie", "Wilson", "Zachary",
    "Zack",
};

const char humanFemale[303][11] = {
    "Ada", "Adrian", "Adrienne", "Alana", "Alberta", "Alexandra", "Alice", "Alicia", "Alison",
    "Allie", "Alma", "Amanda", "Amber", "Amelia", "Amy", "Andrea", "Angela", "Angie", "Anita",
    "Ann", "Anna", "Anne", "Annette", "Annie", "April", "Audrey", "Ava", "Barbara", "Beatrice",
    "Becky", "Belinda", "Bella", "Bernice", "Beth", "Betty", "Beverly", "Bonnie", "Brenda",
    "Bridget", "Brittany", "Brooke", "Camille", "Candice", "Carla", "Carmen", "Carol", "Caroline",
    "Carrie", "Cassandra", "Catherine", "Cecilia", "Celia", "Charlene", "Charlotte", "Chelsea",
    "Cheryl", "Chloe", "Christina", "Christine", "Cindy", "Claire", "Clara", "Claudia", "Colleen",
    "Connie", "Constance", "Cora", "Courtney", "Crystal", "Cynthia", "Daisy", "Dana", "Daphne",
    "Darlene", "Dawn", "Debbie", "Deborah", "Denise", "Diana", "Diane", "Dolly", "Donna", "Doris",
    "Dorothy", "Edith", "Edna", "Eileen", "Elaine", "Eleanor", "Elena", "Eliza", "Elizabeth",
    "Ella", "Ellen", "Elsie", "Emily", "Emma", "Erica", "Erin", "Esther", "Ethel", "Eva", "Eve",
    "Evelyn", "Faith", "Fay", "Felicity", "Fiona", "Flora", "Florence", "Frances", "Gail",
    "Gemma", "Georgia", "Geraldine", "Gertrude", "Gillian", "Gina", "Gladys", "Gloria", "Grace",
    "Gwen", "Hailey", "Hannah", "Harriet", "Hazel", "Heather", "Heidi", "Helen", "Hilda", "Holly",
    "Hope", "Ida", "Irene", "Iris", "Isabel", "Ivy", "Jackie", "Jacqueline", "Jade", "Jane",
    "Janet", "Janice", "Jasmine", "Jean", "Jenny", "Jessica", "Jill", "Joan", "Joanna",
    "Josephine", "Joy", "Joyce", "Judith", "Judy", "Julia", "Julie", "June", "Karen", "Kate",
    "Katherine", "Kathleen", "Kathy", "Katie", "Kay", "Kelly", "Kim", "Kimberly", "Kristen",
    "Laura", "Lauren", "Leah", "Leslie", "Lillian", "Lily", "Linda", "Lindsay", "Lisa", "Lois",
    "Lorna", "Lorraine", "Louise", "Lucille", "Lucy", "Lydia", "Lynn", "Mabel", "Madeline",
    "Maggie", "Mandy", "Marcia", "Margaret", "Maria", "Marian", "Marie", "Marilyn", "Marion",
    "Marjorie", "Marlene", "Martha", "Mary", "Matilda", "Maureen", "Maxine", "May", "Megan",
    "Melanie", "Melissa", "Meredith", "Michelle", "Mildred", "Miranda", "Miriam", "Molly",
    "Monica", "Muriel", "Nancy", "Naomi", "Natalie", "Nell", "Nicole", "Nina", "Nora", "Norma",
    "Olive", "Olivia", "Paige", "Pamela", "Patricia", "Patsy", "Paula", "Pauline", "Pearl",
    "Peggy", "Penelope", "Penny", "Phoebe", "Phyllis", "Polly", "Priscilla", "Rachel", "Rebecca",
    "Regina", "Renee", "Rhonda", "Rita", "Roberta", "Robin", "Rose", "Rosemary", "Ruby", "Ruth",
    "Sabrina", "Sadie", "Sally", "Samantha", "Sandra", "Sandy", "Sarah", "Shannon", "Sharon",
    "Sheila", "Shelley", "Shirley", "Sonia", "Sophia", "Sophie", "Stacy", "Stella", "Stephanie",
    "Sue", "Susan", "Suzanne", "Sylvia", "Tabitha", "Tamara", "Tammy", "Tanya", "Teresa",
    "Theresa", "Tiffany", "Tina", "Tracy", "Ursula", "Valerie", "Vanessa", "Vera", "Veronica",
    "Vicky", "Victoria", "Viola", "Violet", "Virginia", "Vivian", "Wanda", "Wendy", "Whitney",
    "Wilma", "Winifred", "Yolanda", "Yvonne", "Zoe", "Zoey",
};

const char jokeName[9][18] = {
    "Al Coholic", "Jock Strap", "I.P. Freely", "Seymour Butts", "Mike Rotch", "Amanda Hugginkiss",
    "Hugh Jass", "Ivana Tinkle", "Ben Dover",
};
// clang-format on
