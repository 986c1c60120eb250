// Common English words with their frequencies, for the cost model of the prefilters.
//
// Words of business letters weigh more, since a text full of them meets the most literals.
// Only the speed of a search depends on this table, never its result.
// Tests: none for the figures; the benchmarks `screen/…` show their effect.

#include "core/screening/compile/CommonWords.h"

#include <algorithm>
#include <utility>
#include <vector>

namespace quillseal::screening {
namespace {

// clang-format off
// By places of the word for each place of the text, rounded, after counts in English mail (Enron,
// SpamAssassin and Phishing Pot corpora). Those of .001 and less are up to five times those of the
// average mail, since the letters that rules are made for are denser in such words.
constexpr std::pair<double, std::u32string_view> wordsByFrequency[] = {
    {.012, U"the"},
    {.007, U"to"},
    {.006, U"and of"},
    {.005, U"you in"},
    {.003, U"is for it that on be"},
    {.002, U"your are this with have we as or at"},
    {.001,
     U"about account address all also an any back because been below best business but by can "
     U"click company could data don email free from get good group had has help her here his "
     U"how https if important information into its just know let like link list mail make may "
     U"message money more my name need new not now offer one only order other our out over "
     U"people please receive security see send should some than thanks their them then there "
     U"these they think time unsubscribe use wallet want was well were what when which who will "
     U"work would"},
    {.0005,
     U"access addresses after again attached available bank before being both call card center "
     U"change check claim contact credit customer date day days deal dear details did does down "
     U"each end energy even every few file find first following form full future give going "
     U"great home hours internet last life line lists long look made mailing many market "
     U"marketing meeting might million most much news next number off offers online opportunity "
     U"payment per phone point power price problem product products program questions read "
     U"really received receiving remove removed reply review right said same say secure sent "
     U"service services set since software something special start still subject support sure "
     U"system take team text those through today too two under update used users using version "
     U"very view way web week where while why wish within without world year years don't it's i'm"},
    {.0003,
     U"able above act action add additional against airdrop already always amount another "
     U"anyone anything area around asked assets assistance attention based better between big "
     U"bit bonus book border box browser buy called capacity care case cash changes city come "
     U"comments community companies complete computer conference confirm contains content "
     U"contract control copy cost country course current currently customers daily device "
     U"different digital discuss display doing dollars done download draft drive due earn easy "
     U"else ensure enter ever exclusive experience family far fast fax feel files fill "
     U"financial follow forward found friday fund funds further getting given got government "
     U"grants hard health hello high hope immediately income info instructions insurance "
     U"interest interested investment issue issues job keep key language large law least left "
     U"legal less letter limited little live loan local longer looking lot low mailings making "
     U"master matter membership messages microsoft minutes month months morning mortgage must "
     U"needs network never non note notice office old once open others own page part party pay "
     U"paypal person personal place plan points policy possible private problems process "
     U"professional project provide public purchase put question quick rather ready real "
     U"regards release report request required reserved response reward risk sales save says "
     U"schedule second seems several share short show sign simple simply site small social "
     U"someone soon source started states step stop story subscription sum systems talk tax "
     U"tell term terms thing though three times title tokens tomorrow top total trade trading "
     U"transaction transfer trust try trying type until user value verification verify via "
     U"video visit wanted website whether won working works yes yet yourself cannot can't didn't "
     U"doesn't i'll i've isn't that's there's we're you're"},
    {.0001,
     U"accept accounts activity age allow although america american application apply ask avoid "
     U"away become bill bitcoin board bring build chance changed claims close communication "
     U"continue create database debt decided delivery design desk desktop directly document "
     U"early easily employees enjoy error event everyone everything fact features folder "
     U"foreign friends general gift google guarantee guaranteed guys happy hardware immediate "
     U"increase inform install instead international jobs join kind late later level links load "
     U"looks lose lost love man manage means meet member members method millions move needed "
     U"nice night nothing notification numbers opt package paid partner past performance "
     U"physical platform play position post premium prospects protect provided quite rate rates "
     U"reach red registered removal return rewards root safe search section seen selected sell "
     U"sending shipping signed space specific standard statement status stock street test third "
     U"thousands together told transactions updates waiting weeks welcome win word write writes "
     U"writing wrong yahoo yours aren't can’t couldn't don’t haven't here's i’m it’s let's they're "
     U"wasn't we'll we've won't wouldn't you'll you've"},
};
// clang-format on

std::vector<CommonWord> splitWords() {
  std::vector<CommonWord> words;
  for (const auto& [frequency, list] : wordsByFrequency) {
    for (std::size_t start = 0; start < list.size();) {
      const std::size_t end = std::min(list.find(U' ', start), list.size());
      words.push_back({.word = list.substr(start, end - start), .frequency = frequency});
      start = end + 1;
    }
  }
  return words;
}

}  // namespace

std::span<const CommonWord> commonWords() {
  static const std::vector<CommonWord> words = splitWords();
  return words;
}

}  // namespace quillseal::screening
