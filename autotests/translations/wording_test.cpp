// The words of the trade: forms that read as something else, and words that must not be swapped.
//
// The patterns are compared with folded texts: small letters, no accents, single blanks.
#include <gtest/gtest.h>

#include <map>
#include <regex>
#include <string>
#include <vector>

#include "autotests/translations/translation_rows.h"

namespace lorimet::testing_support {
namespace {

// --- Forms that a reader takes for something else.

struct ForbiddenForm {
  ForbiddenForm(const char* form, const char* reads_as, const char* but = "(?!)")
      : pattern(form), form(form), reads_as(reads_as), but(but) {}

  std::regex pattern;
  const char* form;
  const char* reads_as;
  std::regex but;  // where it is part of this, it is right
};

const std::vector<ForbiddenForm>& FormsOf(const std::string& language) {
  static const std::map<std::string, std::vector<ForbiddenForm>> forms = {
      {"fr",
       {
           {"reinitialis", "lost settings; a reset of the ECU is redemarrer"},
           {"sous-tension", "live"},
           {"redondant", "superfluous; it is par redondance"},
           {"capteurs? de distance", "the sensor of a ramp; it is capteur de course"},
           {"bouton de tension", "a button of voltage", "bouton de tension mecanique"},
           {"pressions? actuelle", "present; it is mesuree"},
           {"correction de charge", "corrects the load; it is correction de freinage"},
           {"reprend(?:re)? (?:le choix|les valeurs)", "takes them back"},
           {"\\bpurge", "draining or bleeding; bellows are mis a l'air"},
           {"givre", "frosted; it is bouche par la glace"},
           {"echappement", "the engine's exhaust", "orifice d'echappement"},
           {"solide", "sturdy"},
           {"relach", "lets go; brakes are desserres"},
           {"patinage", "spin under power; it is glissement"},
           {"roue polaire", "a second word for couronne dentee"},
           {"\\btests? (?:de |des |du )?(?:\\w+ )?echoue", "no French; it is echec du test"},
           {"contact sur arret", "no French; it is couper le contact"},
           {"avorter|avorte\\b", "not said of machines; it is interrompre"},
           {"ecu est (?:connecte|protege|regle)\\b", "masculine; ECU is feminine"},
           {"\\b(?:un|ce|cet) ecu\\b", "masculine; ECU is feminine"},
       }},
      {"es",
       {
           {"reinicializ", "lost settings; a reset of the ECU is reiniciar"},
           {"redundante", "superfluous; it is por redundancia"},
           {"sensor(?:es)? de distancia", "the sensor of a ramp; it is sensor de recorrido"},
           {"presion actual|presiones actuales", "present; it is real"},
           {"valores actuales", "of today; it is en tiempo real"},
           {"deteccion de carga", "only detects; it is regulacion segun la carga"},
           {"toma(?:r)? (?:la eleccion|los valores)", "no Spanish; it is aplicar"},
           {"mala senal", "a bad omen"},
           {"relajacion", "of people; it is destensado"},
           {"funcion de parada", "a stop function"},
           {"\\bescape", "a leak or the engine's exhaust"},
           {"\\bsuelt|\\bsoltar|\\baflojar", "loose; brakes are liberados"},
           {"\\bencendido", "spark ignition; it is contacto"},
           {"\\blineas?\\b", "a wire; a tube is conducto", "linea de mando|fin de linea"},
           {"cabezal", "another part; it is cabeza"},
           {"pellizc", "with fingers; it is aplastado"},
           {"rueda polar", "a second word for corona dentada"},
           {"tractora", "a vehicle that is left out; it is vehiculo tractor"},
           {"ordenador", "not said in Mexico; it is PC"},
           {"abortar", "not said of machines; it is interrumpir"},
           {"\\bel ecu\\b", "masculine; ECU is feminine"},
       }},
  };
  return forms.at(language);
}

void ExpectNoForbiddenForm(const std::string& language, const std::string& text,
                           const std::string& where) {
  const std::string folded = Folded(text);
  for (const ForbiddenForm& form : FormsOf(language)) {
    if (!std::regex_search(folded, form.pattern)) continue;
    EXPECT_FALSE(std::regex_search(std::regex_replace(folded, form.but, ""), form.pattern))
        << language << ", " << where << ": \"" << text << "\": " << form.form << " reads as "
        << form.reads_as;
  }
}

TEST(Wording, OfTheProgramHasNoFormThatReadsAsSomethingElse) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      ExpectNoForbiddenForm(language, row.text, row.key);
}

TEST(Wording, OfTheHelpHasNoFormThatReadsAsSomethingElse) {
  for (const char* language : kLanguages)
    for (const HelpText& piece : HelpTextsOf(language))
      ExpectNoForbiddenForm(language, piece.text, piece.page);
}

// --- The air supply and the electric one.

// "Alimentation" by itself is the air: who cuts the air of a trailer makes it brake.
bool SaysSupplyAlone(const std::string& text) {
  static const std::regex electric(
      "(?:tension|capteur de pression|pression) d'alimentation|alimentations? electriques?|"
      "alimentations? par les feux stop|fuentes? de alimentacion|"
      "(?:tension|sensor de presion|presion) de alimentacion|alimentacion(?:es)? electricas?|"
      "alimentacion(?:es)? por las luces de freno|\\[alimentation\\]|\\[alimentacion\\]");
  const std::string rest = std::regex_replace(Folded(text), electric, "");
  return rest.find("alimentation") != std::string::npos ||
         rest.find("alimentacion") != std::string::npos;
}

TEST(Wording, TheElectricSupplyIsNeverCalledSupplyAlone) {
  for (const char* language : kLanguages) {
    for (const TranslationRow& row : RowsOf(language)) {
      EXPECT_EQ(SaysSupplyAlone(row.text), row.key == "Supply") << language << ": " << row.text;
    }
    for (const HelpText& piece : HelpTextsOf(language)) {
      EXPECT_FALSE(SaysSupplyAlone(piece.text))
          << language << ", " << piece.page << ": " << piece.text;
    }
  }
}

TEST(Wording, ThePowerOfTheEnglishIsElectric) {
  static const std::regex power("power supply|power down|constant power|power and ground");
  int found = 0;
  for (const char* language : kLanguages) {
    for (const TranslationRow& row : RowsOf(language)) {
      if (!std::regex_search(Folded(row.key), power)) continue;
      ++found;
      const std::string text = Folded(row.text);
      EXPECT_TRUE(text.find("electri") != std::string::npos ||
                  text.find("fuente de alimentacion") != std::string::npos ||
                  text.find("tension") != std::string::npos)
          << language << ": " << row.text;
    }
  }
  EXPECT_GT(found, 20);
}

// A heading that says bar over values in psi makes the ECU brake an empty trailer as a full one.
TEST(Wording, PressuresThatAreShownInPsiAreHeadedPsi) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language))
      EXPECT_EQ(row.text.find("(bar)"), std::string::npos) << language << ": " << row.text;
}

// --- Words that must not be swapped.

struct Word {
  const char *en, *fr, *es;
};

// The words of one group; where one holds another, the longer stands first. The words of a group
// follow each other in a translation as they do in its English.
using Group = std::vector<Word>;

const std::vector<Group>& Groups() {
  static const std::vector<Group> groups = {
      {{"too high", "trop elevee?", "demasiado alt[oa]"},
       {"too low", "trop faible", "demasiado baj[oa]"},
       {"too small", "trop petite", "demasiado pequen[oa]"},
       {"too large", "trop grand", "demasiado grande"}},
      {{"\\bunladen\\b", "a vide", "en vacio"}, {"\\bladen\\b", "en charge", "en carga"}},
      {{"\\bopen\\b", "circuit ouvert", "circuito abierto"},
       {"\\bshort(?:ed)?\\b", "court-circuit", "cortocircuito"}},
      {{"to 12v", "au \\+12v", "a \\+12v"},
       {"(?:to|or) gr(?:ou)?nd", "a la masse", "a masa"},
       {"to battery", "au plus batterie", "con el positivo de la bateria"}},
      {{"internal", "interne", "intern[oa]"}, {"external", "externe", "extern[oa]"}},
      {{"\\bleft\\b", "gauche", "izquierd[oa]"}, {"\\bright\\b", "droite?\\b", "derech[oa]"}},
      {{"\\brear\\b", "arriere", "atras|traser[oa]"},
       {"\\bfor?ward\\b|\\bfront\\b", "vers l'avant|roue avant|pneu avant",
        "hacia delante|delanter[oa]"}},
      {{"turn[- ]off\\b|\"turn off\"", "desactivation", "desactivacion"},
       {"turn[- ]on\\b|\"turn on\"", "activation", "activacion"}},
      {{"ovg off", "ovg desactive", "ovg desactivado"},
       {"ovg on\\b", "ovg active", "ovg activado"}},
      {{"\\bdisable", "desactiver", "desactivar"}, {"\\benable", "activer", "activar"}},
      {{"\\blifting\\b", "relevage", "elevacion"}, {"\\blowering\\b", "abaissement", "descenso"}},
      {{"\\bstop\\b(?! light)", "arreter", "detener"},
       {"\\bstart\\b(?!-)", "demarrer|lancez", "iniciar|inicie"}},
      {{"less than", "inferieure?", "inferior"}, {"more than", "de plus de", "en mas de"}},
      {{"test not passed|test failed|'fail'", "non reussi|echec", "no superada"},
       {"tests? passed|'pass'", "reussi", "superada"}},
      {{"\\bsav(?:e|ed|ing)\\b", "enregistr", "guard"},
       {"\\bprint(?:er|ing)?\\b", "impri|impress", "impri|impres"}},
      {{"supply pressure", "pression d'alimentation", "presion de alimentacion"},
       {"control pressure", "pression de commande", "presion de mando"},
       {"demand pressure", "pression demandee", "presion solicitada"},
       {"target pressure", "pression de consigne", "presion de consigna"},
       {"actual pressure", "pression mesuree", "presion real"},
       {"residual pressure", "pression residuelle", "presion residual"},
       {"brak(?:e|ing) pressure", "pression de freinage", "presion de frenado"},
       {"suspension pressure", "pression (?:de )?suspension", "presion (?:de )?suspension"},
       {"lowering pressure", "pression d'abaissement", "presion de descenso"},
       {"lifting pressure(?!s)", "pression de relevage", "presion de elevacion"}},
      {{"support bellows", "soufflets porteurs", "fuelles portantes"}},
      {{"distance sensor", "capteur de course", "sensor de recorrido"},
       {"height sensor", "capt(?:eur|\\.) de hauteur", "sensor de altura"},
       {"axle load sensor", "capteur de charge d'essieu", "sensor de carga del eje"},
       {"wear sensors?", "capteurs? d'usure", "sensor(?:es)? de desgaste"},
       {"pressure sensors?", "capteurs? de pression", "sensor(?:es)? de presion"}},
      {{"\\breleas", "desserr", "libera|libere"}},
      {{"ignition off", "couper le contact", "quitar el contacto"}},
  };
  return groups;
}

using Column = const char* Word::*;

const std::regex& PatternOf(const Group& group, Column column) {
  static std::map<std::string, std::regex> patterns;
  std::string pattern;
  for (const Word& word : group)
    pattern.append(pattern.empty() ? "(" : "|(").append(word.*column).append(")");
  auto found = patterns.find(pattern);
  if (found == patterns.end()) found = patterns.emplace(pattern, std::regex(pattern)).first;
  return found->second;
}

// The places of a group's words in a text, in the order of the text.
std::vector<std::size_t> WordsIn(const std::string& text, const Group& group, Column column) {
  const std::regex& words = PatternOf(group, column);
  std::vector<std::size_t> found;
  for (std::sregex_iterator at(text.begin(), text.end(), words), end; at != end; ++at)
    for (std::size_t i = 1; i < at->size(); ++i)
      if ((*at)[i].matched) found.push_back(i - 1);
  return found;
}

void ExpectTheSameWords(const TranslationRow& row, const std::string& language) {
  const Column column = language == "fr" ? &Word::fr : &Word::es;
  const std::string key = Folded(row.key);
  for (const Group& group : Groups()) {
    const std::vector<std::size_t> expected = WordsIn(key, group, &Word::en);
    if (expected.empty()) continue;
    EXPECT_EQ(WordsIn(Folded(row.text), group, column), expected)
        << language << ": \"" << row.text << "\" for \"" << row.key << "\"";
  }
}

TEST(Wording, SwapsNoWordsOfOppositeSense) {
  for (const char* language : kLanguages)
    for (const TranslationRow& row : RowsOf(language)) ExpectTheSameWords(row, language);
}

TEST(Wording, FindsWordsThatAreSwapped) {
  const Group laden = {{"\\bunladen\\b", "a vide", "en vacio"},
                       {"\\bladen\\b", "en charge", "en carga"}};
  EXPECT_EQ(WordsIn("laden and unladen", laden, &Word::en), (std::vector<std::size_t>{1, 0}));
  EXPECT_EQ(WordsIn(Folded("À VIDE et en charge"), laden, &Word::fr),
            (std::vector<std::size_t>{0, 1}));
}

// --- The buttons of message boxes.

TEST(Wording, OfTheButtonsOfBoxesIsTheToolkits) {
  const std::map<std::string, std::vector<std::string>> words = {
      {"OK", {"OK", "Aceptar"}},       {"Cancel", {"Annuler", "Cancelar"}},
      {"Yes", {"Oui", "Sí"}},          {"No", {"Non", "No"}},
      {"&Yes", {"&Oui", "&Sí"}},       {"&No", {"&Non", "&No"}},
      {"Close", {"Fermer", "Cerrar"}},
  };
  for (std::size_t i = 0; i < kLanguages.size(); ++i) {
    std::map<std::string, std::string> rows;
    for (const TranslationRow& row : RowsOf(kLanguages[i])) rows[row.key] = row.text;
    for (const auto& [key, texts] : words) EXPECT_EQ(rows[key], texts[i]);
  }
}

}  // namespace
}  // namespace lorimet::testing_support
