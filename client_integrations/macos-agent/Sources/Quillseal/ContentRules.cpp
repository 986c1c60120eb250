#include "Quillseal/ContentRules.h"

#include <algorithm>
#include <array>
#include <string>

namespace quillseal::ContentRules {
namespace {

// How the patterns are written:
//  - A rule names an idea, and its lines are the usual wordings of that idea: English first, then a
//    line for each other language (German, Dutch, French, Italian, Spanish, Portuguese, Russian,
//    Chinese in both scripts, Japanese, Korean). Each alternative joins an intent with its object,
//    because a noun alone hits honest mail, and speaks to the reader, as news about fraud does not.
//  - Half of all Russian mail has the 45 points of obf-many-confusable, and one more hit makes a
//    warning. So the Russian wordings are the narrowest.
//  - Chinese and Japanese have no spaces and few full stops, so their gaps are short.
//  - `<40>` is a gap that stays within one sentence, see `gap`. It may cross a line break, because
//    mail is wrapped anywhere; for the same reason `\s+` joins words.
//  - Every repetition is bounded, or its body cannot begin where the one before it could go on, so
//    that no text makes a matcher try the same ground again and again.
//  - Most rules have fewer points than the warning threshold: an invoice or a password mail shares
//    one wording with the scam that copies it, but seldom three.
//    Some wordings are only a slot of a scam ("I cannot be called", "or you pay a fine"). A slot
//    stands in a rule of few points, so that it takes another one to make a warning.
//  - `[^.!?]{0,40}` ends at any point. It stands in patterns that other programs hold, too, and in
//    those for bulk mail, which would otherwise reach over the addresses at its end.

/// One character of a gap. A point does not end the sentence when the next character shows that it
/// goes on ("12,499.00", "example.com", "Co., Ltd.", "No. 7"), or when it stands behind one letter
/// or an abbreviation without vowels ("a.m.", "J. Webb", "Mr.").
constexpr std::string_view gap =
    R"((?:[^.!?。！？｡]|[.](?=[\w,;:)]|\s\d)|(?<=\b[b-df-hj-np-tv-z]{1,4})[.]|(?<=\b[aeiou])[.]))";

/// What patterns write in short, and what that stands for. From `<lender>` on they are shapes that
/// one or several rules search for: lines for single languages, in the order above, join classes of
/// words. The Russian line of a shape is often in one rule only, since with obf-many-confusable two
/// hits would refuse the text.
struct Shorthand {
  std::string_view name;
  std::string_view meaning;
};

// clang-format off
constexpr std::array<Shorthand, 39> shorthands{{
    {"<amount>",
     R"((?:(?:[$€£¥￥₩]|\b(?:usd|eur|gbp|aud|cad|chf|us[$]|r[$]|euros?)\b)\s?\d[\d.,]{0,12}(?:\s?k\b)?|\b\d[\d., ]{0,12}\s?(?:[$€£¥￥₩元円원]|(?:usd|eur|gbp|aud|cad|chf|euros?|dollars?|pounds?|k)\b)))"},
    // Nothing that follows says that the reader asked for it.
    {"<unasked>",
     R"((?![^.!?。！？]{0,60}(?:\b(?:(?:at|on|upon|as|per)\s+(?:your|you)\s+(?:own\s+)?(?:request\w*|wish\w*|asked|instruct\w+|reported|wanted)|as\s+requested|auf\s+(?:Ihren|deinen|eigenen)\s+(?:eigenen\s+)?Wunsch|wie\s+(?:von\s+Ihnen\s+)?gewünscht|à\s+votre\s+demande|(?:a|por)\s+(?:su\s+)?(?:petici[óo]n|solicitud)|a\s+seu\s+pedido|conforme\s+(?:solicitado|pedido)|su\s+(?:sua\s+)?richiesta|come\s+(?:da\s+lei\s+)?richiesto|op\s+uw\s+(?:eigen\s+)?verzoek|по\s+ваше(?:й|му)\s+\w+)|요청|신청|申请|申請|依頼|ご申告)))"},
    // Nothing that follows says that the number is new because the contract is.
    {"<newnumber>",
     R"((?![\s\S]{0,140}(?:\b(?:stays?\s+the\s+same|bleibt\s+gleich|provider|carrier|network|contract|plan|anbieter|vertrag|tarif\w*|opérateur|forfait|operatore|compañ[íi]a|operadora?|plano|overgestapt|abonnement|оператор\w*|тариф\w*)\b|套餐|警方|骗子|騙子|运营商|運營商|電信|电信|会社を変え|機種変更|乗り換え|통신사|요금제|번호는?\s?그대로|号码[没不]变|號碼[沒不]變|番号は(?:同じ|変わ))))"},
    // Nothing that follows asks for a form that is handed over in person.
    {"<byhand>",
     R"((?![\s\S]{0,120}(?:\b(?:in\s+person|bring\s+(?:the|a|your)\s+(?:\w+\s+){0,2}form|persönlich|en\s+mains?\s+propres?|di\s+persona|en\s+mano|en\s+persona|pessoalmente|presencialmente|persoonlijk|лично|in\s+segreteria|in\s+bacheca|aushang|(?:bekannten?|üblichen)\s+(?:telefon)?nummer|number\s+you\s+(?:already\s+)?(?:know|have)|usual\s+number|déposé\s+le\s+formulaire|en\s+papel|en\s+su\s+oficina|no\s+hace\s+falta|rien\s+ne\s+presse|avenant|esposto|segreteria|secretaria|na\s+agência|carta\s+assinada|notice\s+board|op\s+kantoor|schaukasten)\b|亲自|親自|窓口|직접)))"},
    // Nothing that follows names a prize of the school or the library.
    {"<local>",
     R"((?![\s\S]{0,60}(?:\b(?:school|library|church|parish|fair|hamper|pfarr\w+|kirch\w+|\w*basar|tombola|bücherei|bibliothe[kc]|schule|verein\w*|lesewettbewerb|école|médiathèque|bibliothèque|scuola|biblioteca|escuela|colegio|escola|junta|school\w*|bibliotheek|библиотек\w+|школ\w+)\b|图书|圖書|学校|學校|図書|도서관|학교)))"},
    // Nothing that follows speaks of a surprise or a birthday.
    {"<party>",
     R"((?![\s\S]{0,80}(?:\b(?:dessert|bouteille|gâteau|cake|kuchen|torte|surprises?|birthday|anniversa\w+|überrasch\w*|geburtstag\w*|sorpresa|compleanno|cumplea[ñn]os|festa|fiesta|verrassing\w*|verjaardag\w*|сюрприз\w*)\b|케이크|생일|파티|サプライズ|惊喜|驚喜)))"},
    // Nothing that follows warns of the scam, in English.
    {"<warning>",
     R"((?![\s\S]{0,200}\b(?:scams?|scammers?|fraudsters|phishing|never|hang\s+up|beware|no\s+fees)\b))"},
    // Nothing that follows tells the reader to keep the code.
    {"<keptcode>",
     R"((?![\s\S]{0,120}\b(?:never|nobody|anyone|no\s+one|not\s+share|['’]t\s+share)\b))"},
    // Nothing that follows tells the reader to keep the code, in Spanish and Portuguese.
    {"<guardado>",
     R"((?![\s\S]{0,150}\b(?:nunca|nadie|ningu[ée]m|jam[áa]i?s|no\s+(?:lo\s+)?(?:compart|facilit|dig)\w*|n[ãa]o\s+(?:o\s+)?(?:part|comp|div|forn|dig)\w*)\b))"},
    // Nothing that follows warns of the scam, in Spanish and Portuguese.
    {"<estafa>",
     R"((?![\s\S]{0,200}\b(?:estafas?|estafador\w*|timos?|burl(?:a|as|ão|ões)|golpes?|golpistas?|delincuentes|criminosos|v[ií]c?timas\s+de|se\s+(?:hac[ií]an?|hacen|fazem|faziam|passavam?)\s+pasa?r?|nunca|jam[áa]i?s|alerta\s+(?:de|para)|advierte|adverte|qui?em?n?\s+(?:entra|clica|pulsa)|no\s+(?:tiene\s+que\s+hacer|es\s+necesari\w+|hay\s+que\s+pagar)|n[ãa]o\s+(?:precisa\s+(?:de\s+)?fazer|[ée]\s+necess\w+))\b))"},
    // Nothing that follows asks for a signed form or a visit, in Spanish and Portuguese.
    {"<enmano>",
     R"((?![\s\S]{0,200}\b(?:en\s+persona|em\s+pessoa|pessoalmente|presencial\w*|formul[áa]rio|firmad[oa]|assinad[oa]|por\s+carta|oficina|balc[ãa]o)\b))"},
    // Money is lent, and it does not matter who borrows.
    {"<lender>",
     R"(\b(?:loan|credit|cash|fund\s+you|release|lend|borrow|financing|your\s+application|cash\s+advance)\b<warning>(?=[\s\S]{0,150}\b(?:(?:pre-?)?approved|guaranteed|is\s+ready|accepted|everybody|everyone|no\s+(?:credit\s+)?checks?|no\s+credit\s+check|granted|bad\s+credit|percent|release|same\s+day|whatever\s+your|waiting|today)\b)[\s\S]{0,150}\b(?:(?:pay|send|transfer|deposit|settle|message|whatsapp|text)\b[\s\S]{0,45}\b(?:fee|insurance|charge|up\s+?front|first|advance|whatsapp|your\s+id|bank\s+card|passport|bank\s+details)|to\s+pay\s+first|beforehand|first\s+instal?ment|in\s+advance|(?:registration|processing|insurance)\s+(?:fee|cost))\b|)"
     R"(\b(?:(?:we|i)\s+(?:can\s+|will\s+|also\s+)?(?:lend|grant|offer|give|provide)\b<20>\b(?:loans?|credit|cash|money|\d[\d,.]{3,})|(?:need|want|short\s+of)\s+(?:an?\s+)?(?:(?:fast|quick|urgent|small|personal|business|some|extra)\s+)?(?:loan|cash|money)|(?:personal|private|business|quick|instant|cash)\s+loans?|loans?\b<15>\b\d[\d,.]*|borrow\s+up\s+to|private\s+lenders?|loans?\s+(?:at|from|approved|without|even)|we\s+(?:finance|fund)\s+you)\b[\s\S]{0,60}\b(?:(?:bad|poor|low)\s+credit|no\s+(?:\w+\s+){0,2}(?:papers?|paperwork|collateral|guarantors?|proof|questions?|documents?|payslips?|security)|blacklisted|(?:cash|money)\s+is\s+(?:with\s+you|in\s+your\s+(?:hands?|account))|anyone\s+who|without\s+(?:\w+\s+)?(?:collateral|guarantor|checks?)|\d+\s+minutes|even\s+(?:if|with)\b<30>\b(?:bad|debts?|refused|banks?|no)|nobody\b<15>\bvouch|no\s+(?:\w+\s+)?(?:matter|problem)\b<15>\bcredit|(?:bad|poor)\s+(?:\w+\s+)?(?:history|record)|serious\s+people|reply\s+with\s+the\s+amount)\b|\b(?:(?:bad|poor|low)\s+credit|no\s+(?:\w+\s+){0,2}(?:papers?|paperwork|collateral|guarantors?|proof|questions?|documents?|payslips?|security)|blacklisted|(?:cash|money)\s+is\s+(?:with\s+you|in\s+your\s+(?:hands?|account))|anyone\s+who|without\s+(?:\w+\s+)?(?:collateral|guarantor|checks?)|\d+\s+minutes|even\s+(?:if|with)\b<30>\b(?:bad|debts?|refused|banks?|no)|nobody\b<15>\bvouch|no\s+(?:\w+\s+)?(?:matter|problem)\b<15>\bcredit|(?:bad|poor)\s+(?:\w+\s+)?(?:history|record)|serious\s+people|reply\s+with\s+the\s+amount)\b[\s\S]{0,60}\b(?:(?:we|i)\s+(?:can\s+|will\s+|also\s+)?(?:lend|grant|offer|give|provide)\b<20>\b(?:loans?|credit|cash|money|\d[\d,.]{3,})|(?:need|want|short\s+of)\s+(?:an?\s+)?(?:(?:fast|quick|urgent|small|personal|business|some|extra)\s+)?(?:loan|cash|money)|(?:personal|private|business|quick|instant|cash)\s+loans?|loans?\b<15>\b\d[\d,.]*|borrow\s+up\s+to|private\s+lenders?|loans?\s+(?:at|from|approved|without|even)|we\s+(?:finance|fund)\s+you)\b|)"
     R"(\b(?:(?:ich|wir|privatperson)\b<15>\b(?:verleihe?n?|vergeben?|biete[nt]?|gewähren?|leihen?)\b<30>\b(?:kredite?n?|darlehen|geld|privatkredite?)|(?:brauchen|benötigen|suchen|brauchst)\s+(?:sie|du)\b<15>\b(?:geld|kredit|darlehen|bargeld)|geld\s+gebraucht|geldsorgen|kredit\s+gesucht|kredite?\b|darlehen|privatkredite?|private[rn]?\s+geldgeber|(?:wir|ich)\s+(?:finanzieren?|zahlen?\s+(?:\w+\s+)?aus)|umschulden|flüssig\s+werden)\b[\s\S]{0,60}\b(?:ohne\s+(?:\w+\s+)?(?:schufa\w*|bonität\w*|nachweise?|sicherheiten|bürgen|papierkram|vorkosten|bank)|trotz\s+(?:schufa|negativ\w*|schulden)|schlechte[rn]?\s+bonität|auch\s+(?:bei|mit)\s+(?:schufa|schulden|negativ\w*|schlechter)|schufafrei\w*|in\s+\d+\s+(?:minuten|stunden)|negative[rn]?\s+schufa|ehrliche\s+(?:menschen|personen)|seriöse\s+(?:menschen|personen)|trotz\s+(?:\w+\s+)?bonität|keine\s+(?:unterlagen|sicherheiten|bürgen|schufa\w*)|ganz\s+ohne|ohne\s+bankbesuch|eintrag\b<25>\b(?:stört|egal|kein))\b|\b(?:ohne\s+(?:\w+\s+)?(?:schufa\w*|bonität\w*|nachweise?|sicherheiten|bürgen|papierkram|vorkosten|bank)|trotz\s+(?:schufa|negativ\w*|schulden)|schlechte[rn]?\s+bonität|auch\s+(?:bei|mit)\s+(?:schufa|schulden|negativ\w*|schlechter)|schufafrei\w*|in\s+\d+\s+(?:minuten|stunden)|negative[rn]?\s+schufa|ehrliche\s+(?:menschen|personen)|seriöse\s+(?:menschen|personen)|trotz\s+(?:\w+\s+)?bonität|keine\s+(?:unterlagen|sicherheiten|bürgen|schufa\w*)|ganz\s+ohne|ohne\s+bankbesuch|eintrag\b<25>\b(?:stört|egal|kein))\b[\s\S]{0,60}\b(?:(?:ich|wir|privatperson)\b<15>\b(?:verleihe?n?|vergeben?|biete[nt]?|gewähren?|leihen?)\b<30>\b(?:kredite?n?|darlehen|geld|privatkredite?)|(?:brauchen|benötigen|suchen|brauchst)\s+(?:sie|du)\b<15>\b(?:geld|kredit|darlehen|bargeld)|geld\s+gebraucht|geldsorgen|kredit\s+gesucht|kredite?\b|darlehen|privatkredite?|private[rn]?\s+geldgeber|(?:wir|ich)\s+(?:finanzieren?|zahlen?\s+(?:\w+\s+)?aus)|umschulden|flüssig\s+werden)\b|)"
     R"(\b(?:j['’](?:accorde|octroie|offre)|je\s+(?:vous\s+)?(?:propose|prête|fais|accorde)\b<20>\b(?:prêts?|crédits?|argent|euros)|(?:offre|octroi)\s+de\s+(?:prêts?|crédits?)|besoin\s+(?:d['’]argent|d['’]un\s+(?:prêt|crédit|financement))|(?:prêts?|crédits?)\s+entre\s+particuliers?|(?:prêts?|crédits?)\s+(?:rapides?|personnels?|en\s+ligne|privés?|immédiats?)|particulier\b<15>\b(?:accorde|prête)|nous\s+(?:finançons|prêtons))\b[\s\S]{0,60}\b(?:sans\s+(?:\w+\s+)?(?:justificatifs?|garant\w*|enquête|caution|banque|paperasse|fiche)|interdits?\s+bancaires?|fichée?s?|toute\s+personne|capable\s+de\s+rembourser|personnes?\s+sérieuses?|taux\s+(?:de|fixe)|\d+\s*(?:h|heures|minutes)|même\s+(?:\w+\s+){0,2}(?:fich\w+|interdit\w*|dettes?|refus\w*)|malgré\s+(?:vos|tes|les)\s+dettes|aucune?\s+(?:garant\w*|justificatif|enquête|caution)|à\s+rembourser|gens\s+honnêtes|\bficp)\b|\b(?:sans\s+(?:\w+\s+)?(?:justificatifs?|garant\w*|enquête|caution|banque|paperasse|fiche)|interdits?\s+bancaires?|fichée?s?|toute\s+personne|capable\s+de\s+rembourser|personnes?\s+sérieuses?|taux\s+(?:de|fixe)|\d+\s*(?:h|heures|minutes)|même\s+(?:\w+\s+){0,2}(?:fich\w+|interdit\w*|dettes?|refus\w*)|malgré\s+(?:vos|tes|les)\s+dettes|aucune?\s+(?:garant\w*|justificatif|enquête|caution)|à\s+rembourser|gens\s+honnêtes|\bficp)\b[\s\S]{0,60}\b(?:j['’](?:accorde|octroie|offre)|je\s+(?:vous\s+)?(?:propose|prête|fais|accorde)\b<20>\b(?:prêts?|crédits?|argent|euros)|(?:offre|octroi)\s+de\s+(?:prêts?|crédits?)|besoin\s+(?:d['’]argent|d['’]un\s+(?:prêt|crédit|financement))|(?:prêts?|crédits?)\s+entre\s+particuliers?|(?:prêts?|crédits?)\s+(?:rapides?|personnels?|en\s+ligne|privés?|immédiats?)|particulier\b<15>\b(?:accorde|prête)|nous\s+(?:finançons|prêtons))\b|)"
     R"(\b(?:(?:concedo|offro|presto|eroghiamo|concediamo|offriamo|prestiamo)\b<25>\b(?:prestit[oi]|denaro|soldi|finanziament[oi]|euro)|(?:bisogno|necessità)\s+di\b<12>\b(?:soldi|denaro|liquidità|prestito|contanti)|prestit[oi]\s+(?:tra|fra)\s+privati|prestit[oi]\s+(?:veloc[ei]|personal[ei]|online|privat[oi]|immediat[oi]|rapid[oi])|finanziamo|privato\b<15>\b(?:presta|concede))\b[\s\S]{0,60}\b(?:senza\s+(?:\w+\s+)?(?:busta|garanzi\w+|garante|banca|banche|controll\w+|document\w+|carte)|cattiv[oi]\s+pagator[ei]|protestat[oi]|segnalat[oi]|\d+\s+(?:ore|minuti)|in\s+giornata|chiunque|tasso|anche\s+(?:se|a|con|per)|nessun\w*\s+(?:garan\w+|document\w+|controll\w+)|nonostante\s+i\s+debiti|\bcrif|scartoffie|persone\s+(?:serie|oneste))\b|\b(?:senza\s+(?:\w+\s+)?(?:busta|garanzi\w+|garante|banca|banche|controll\w+|document\w+|carte)|cattiv[oi]\s+pagator[ei]|protestat[oi]|segnalat[oi]|\d+\s+(?:ore|minuti)|in\s+giornata|chiunque|tasso|anche\s+(?:se|a|con|per)|nessun\w*\s+(?:garan\w+|document\w+|controll\w+)|nonostante\s+i\s+debiti|\bcrif|scartoffie|persone\s+(?:serie|oneste))\b[\s\S]{0,60}\b(?:(?:concedo|offro|presto|eroghiamo|concediamo|offriamo|prestiamo)\b<25>\b(?:prestit[oi]|denaro|soldi|finanziament[oi]|euro)|(?:bisogno|necessità)\s+di\b<12>\b(?:soldi|denaro|liquidità|prestito|contanti)|prestit[oi]\s+(?:tra|fra)\s+privati|prestit[oi]\s+(?:veloc[ei]|personal[ei]|online|privat[oi]|immediat[oi]|rapid[oi])|finanziamo|privato\b<15>\b(?:presta|concede))\b|)"
     R"(\b(?:(?:ik|wij|we)\b<10>\b(?:leen|lenen|verstrek\w*|bieden?)\b<25>\b(?:leningen|lening|geld|krediet|euro)|(?:geld|lening|krediet)\s+nodig|geld\s+tekort|leningen?|geld\s+lenen|(?:particuliere?|privé)\s+(?:geld\w+|lener)|(?:wij|we)\s+financieren)\b[\s\S]{0,60}\b(?:zonder\s+(?:\w+\s+)?(?:bkr\w*|toetsing|onderpand|papier\w*|loonstrook|bank)|bkr|ook\s+(?:met|als|bij)\b<15>\b(?:schulden|bkr|bijstand|kredietverleden)|binnen\s+\w+\s+(?:uur|minuten)|slecht\w*\s+krediet\w*|zonder\s+onderpand|geen\s+(?:onderpand|borg|toetsing|papieren)|ondanks\s+schulden|serieuze\s+mensen|eerlijke\s+mensen|betalingsachterstand)\b|\b(?:zonder\s+(?:\w+\s+)?(?:bkr\w*|toetsing|onderpand|papier\w*|loonstrook|bank)|bkr|ook\s+(?:met|als|bij)\b<15>\b(?:schulden|bkr|bijstand|kredietverleden)|binnen\s+\w+\s+(?:uur|minuten)|slecht\w*\s+krediet\w*|zonder\s+onderpand|geen\s+(?:onderpand|borg|toetsing|papieren)|ondanks\s+schulden|serieuze\s+mensen|eerlijke\s+mensen|betalingsachterstand)\b[\s\S]{0,60}\b(?:(?:ik|wij|we)\b<10>\b(?:leen|lenen|verstrek\w*|bieden?)\b<25>\b(?:leningen|lening|geld|krediet|euro)|(?:geld|lening|krediet)\s+nodig|geld\s+tekort|leningen?|geld\s+lenen|(?:particuliere?|privé)\s+(?:geld\w+|lener)|(?:wij|we)\s+financieren)\b|)"
     R"(\b(?:pr[ée]stam|empr[ée]st|cr[ée]dito|financia|conced|liquidez|grana\b|te\s+dejo\s+hasta|libero\b|liberamos|empresto|prest(?:o|a|amos)\b|asnef|nome\s+sujo|deudas\b|d[íi]vidas\b|dinero\s+(?:r[áa]p|urg)|dinheiro\?|de\s+dinheiro|morosos|hipotec|consigue\s+hasta|consiga\s+at[ée]|efectivo)<estafa>(?![\s\S]{0,200}\b(?:oficina|balc[ãa]o|sucursal)\b)(?=[\s\S]{0,170}\b(?:aprob|aprov|r[áa]pid|sin\s+(?:aval|bur[óo]|n[óo]mina|garant|consult|papel)|sem\s+(?:aval|consult|garant|fiador|an[áa]li)|asnef|negativad|spc\b|serasa|inter[ée]s\b|juros|particular|seri[ao]s?\b|s[ée]ri[ao]s?\b|en\s+el\s+acto|papeleo|sin\s+preguntas|burocracia|m[ei]smo\s+d[ií]a|na\s+hora|24\s+h|instante|necesidad|deudas|d[íi]vidas|sem\s+doc|todos\s+los\s+bancos|banco\s+te|honest|moros|nome\s+sujo|aunque|mesmo\s+com|cualquier|qualquer|garantiz|garantid|baj[oa]\b|baix[oa]\b|inmed|imed))(?=[\s\S]{0,170}\b(?:whats|correo|e-?mail|escr[ií]b|respond|chama\b|cont[áa]ct\w*me|contacte-me|deposit|seguro|anticip|adelant|adiant|antecip|antes\b|primero|libera|privado|cobr[ao]\b|hoy\s+mismo|hoje\b|m[ei]smo\s+d[ií]a|\d+\s+(?:horas|minutos)|notari|gesti[óo]n|info\b|informa[çc]|taxa\b|tasa\b|comisi|fiador|rellen|preench))[\s\S]{0,170}\b(?:\d{3,}|\d[.,]\d{3}|mil\b|euros|pesos|reais|\d\s?%)|)"
     R"(\b(?:(?:дам|даю|да[её]м|выда[её]м|выдам|одолжу|займу|предоставлю)\b<20>\b(?:деньги|за[её]м|займ\w*|кредит\w*|в\s+долг)|нужны\s+деньги|деньги\s+(?:в\s+долг|под\s+расписку)|кредит\w*\s+(?:без|даже|с\s+любой|онлайн|до)|займ\w*\s+(?:онлайн|без|до|на)|частный\s+(?:инвестор|кредитор|займ\w*)|получить\s+кредит|даст\s+в\s+долг|оформим)\b[\s\S]{0,60}\b(?:без\s+(?:\w+\s+)?(?:справок|поручител\w+|залога|отказ\w*|проверок)|плохой\s+кредитной|с\s+просрочк\w+|за\s+\d+\s+минут\w*|под\s+расписку|с\s+любой\s+кредитной|даже\s+с\s+(?:долгами|просрочк\w+)|без\s+(?:лишних|документов|звонков|предоплаты)|плохая\s+кредитная|с\s+плохой)\b|\b(?:без\s+(?:\w+\s+)?(?:справок|поручител\w+|залога|отказ\w*|проверок)|плохой\s+кредитной|с\s+просрочк\w+|за\s+\d+\s+минут\w*|под\s+расписку|с\s+любой\s+кредитной|даже\s+с\s+(?:долгами|просрочк\w+)|без\s+(?:лишних|документов|звонков|предоплаты)|плохая\s+кредитная|с\s+плохой)\b[\s\S]{0,60}\b(?:(?:дам|даю|да[её]м|выда[её]м|выдам|одолжу|займу|предоставлю)\b<20>\b(?:деньги|за[её]м|займ\w*|кредит\w*|в\s+долг)|нужны\s+деньги|деньги\s+(?:в\s+долг|под\s+расписку)|кредит\w*\s+(?:без|даже|с\s+любой|онлайн|до)|займ\w*\s+(?:онлайн|без|до|на)|частный\s+(?:инвестор|кредитор|займ\w*)|получить\s+кредит|даст\s+в\s+долг|оформим)\b|)"
     R"((?:贷款|貸款|借款|借[钱錢]|放款|缺[钱錢]|用[钱錢]|周[转轉]|週轉|[资資]金|[额額]度|小[额額]貸|小额贷)[\s\S]{0,24}(?:(?:[无無]需|不用|不看|不查|免|[无無])(?:抵押|[担擔]保|征信|徵信|工作[证證]明|[财財]力|保人|[证證]件)|身[份分][证證](?:就|即|可|[办辦])|(?:[当當][天日]|秒|立[即刻]|[马馬]上|分[钟鐘]|即[刻日])(?:就)?(?:到[账帳賬]|放款|[拨撥]款|下款|拿[钱錢])|黑[户戶]|(?:征信|徵信|信用|[负負][债債])(?:也|有|花|不好|差|不良|瑕疵))|(?:(?:[无無]需|不用|不看|不查|免|[无無])(?:抵押|[担擔]保|征信|徵信|工作[证證]明|[财財]力|保人|[证證]件)|身[份分][证證](?:就|即|可|[办辦])|(?:[当當][天日]|秒|立[即刻]|[马馬]上|分[钟鐘]|即[刻日])(?:就)?(?:到[账帳賬]|放款|[拨撥]款|下款|拿[钱錢])|黑[户戶]|(?:征信|徵信|信用|[负負][债債])(?:也|有|花|不好|差|不良|瑕疵))[\s\S]{0,24}(?:贷款|貸款|借款|借[钱錢]|放款|缺[钱錢]|用[钱錢]|周[转轉]|週轉|[资資]金|[额額]度|小[额額]貸|小额贷)|)"
     R"((?:お金に(?:お)?困|融資し|個人間|お?貸し(?:します|ます|出し)|金欠|ソフト闇金|急な出費)[\s\S]{0,50}(?:DM|LINE|免許証|身分証|保険証|キャッシュカード|即日|\d+分で|ひととき|審査(?:なし|不要|無し)|誰でも|無職|ブラック)|(?:融資|お貸し|貸し出し|キャッシング|お金[をに]?(?:お?貸|借り|お?困り)|資金|借入)[\s\S]{0,24}(?:審査(?:なし|不要|無し|が?甘|ゼロ)|ブラック(?:でも|OK|可|の方)|無職(?:でも|OK|の方)|保証人(?:不要|なし|は?いりません)|担保(?:不要|なし)|即日(?:振込|入金|融資|で)|在籍確認(?:なし|不要)|他社で断られ|(?:誰|どなた)でも)|(?:審査(?:なし|不要|無し|が?甘|ゼロ)|ブラック(?:でも|OK|可|の方)|無職(?:でも|OK|の方)|保証人(?:不要|なし|は?いりません)|担保(?:不要|なし)|即日(?:振込|入金|融資|で)|在籍確認(?:なし|不要)|他社で断られ|(?:誰|どなた)でも)[\s\S]{0,24}(?:融資|お貸し|貸し出し|キャッシング|お金[をに]?(?:お?貸|借り|お?困り)|資金|借入)|)"
     R"((?:무담보|무보증|무직자|신용 ?불량|저신용|연체자?|주부|누구나|당일 ?(?:승인|지급|입금)|소액|급전)[\s\S]{0,40}(?:대출|승인|한도|송금|자금)[\s\S]{0,40}(?:먼저|선입금|보증료|수수료|공탁|예치|보험료|상담|카톡|톡|연락|만 ?원)|(?:대출|급전|빌려 ?드|목돈|자금|생활비)[\s\S]{0,24}(?:무직자?|신용 ?불량|신불자?|저신용|연체자?|무담보|무보증|무서류|당일 ?(?:입금|지급|승인|송금|\d|바로)|신용(?:등급)? ?(?:상관 ?없|무관|조회 ?없)|서류 ?없이|담보 ?없이|보증인? ?없이)|(?:무직자?|신용 ?불량|신불자?|저신용|연체자?|무담보|무보증|무서류|당일 ?(?:입금|지급|승인|송금|\d|바로)|신용(?:등급)? ?(?:상관 ?없|무관|조회 ?없)|서류 ?없이|담보 ?없이|보증인? ?없이)[\s\S]{0,24}(?:대출|급전|빌려 ?드|목돈|자금|생활비))"},
    // Small tasks on a phone or with parcels, and what they bring.
    {"<taskjob>",
     R"(\b(?:(?:rate|rating|review|reviewing|like|liking|click|clicking|watch|watching|test|testing|evaluat\w+|boost\w*|receive|receiving|forward|forwarding|repack\w*|follow|following)\s+(?:\w+\s+){0,2}(?:hotels?|restaurants?|videos?|apps?|products?|parcels?|packages?|ads?|posts?|songs?|movies?|shops?))\b[\s\S]{0,60}\b(?:get\s+paid|paid\s+(?:daily|per|the\s+same|every|each|out)|earn(?:ing)?\s+(?:\w+\s+){0,2}\d+|commission|(?:a|per)\s+(?:task|parcel|package|video|review|click|like)|(?:same|every)\s+(?:day|evening)|(?:hour|minutes)\s+a\s+day)\b|\b(?:get\s+paid|paid\s+(?:daily|per|the\s+same|every|each|out)|earn(?:ing)?\s+(?:\w+\s+){0,2}\d+|commission|(?:a|per)\s+(?:task|parcel|package|video|review|click|like)|(?:same|every)\s+(?:day|evening)|(?:hour|minutes)\s+a\s+day)\b[\s\S]{0,60}\b(?:(?:rate|rating|review|reviewing|like|liking|click|clicking|watch|watching|test|testing|evaluat\w+|boost\w*|receive|receiving|forward|forwarding|repack\w*|follow|following)\s+(?:\w+\s+){0,2}(?:hotels?|restaurants?|videos?|apps?|products?|parcels?|packages?|ads?|posts?|songs?|movies?|shops?))\b|\b(?:hr|recruit\w*|agency|jobs?|hiring|wanted|looking\s+for\s+(?:people|someone|staff|helpers?)|your\s+(?:profile|cv|resume|number)|earn|work)\b[\s\S]{0,60}\b(?:(?:on|from|with|using)\s+(?:your|the|a)\s+(?:\w+\s+)?phone|(?:from|at)\s+home|(?:simple|easy|small)\s+(?:\w+\s+)?(?:tasks?|jobs?|work)|(?:hours?|minutes|half\s+an\s+hour)\s+a\s+day|spare\s+time|remote\w*)\b[\s\S]{0,60}\b(?:\d+\s+(?:\w+\s+)?(?:a|per|each|every)\s+(?:day|evening|week|task)|up\s+to\s+[$€£]?\d+|(?:paid|pay|payout|money)\s+(?:\w+\s+)?(?:daily|every\s+(?:day|evening)|the\s+same|same\s+(?:day|evening)|on\s+the\s+day))\b|)"
     R"(\b(?:(?:pakete?n?|produkte?n?|hotels?|videos?|apps?|restaurants?)\b<12>\b(?:bewerten|testen|liken|anschauen|annehmen|weiterleiten|weiterschicken|weitersenden|verschicken)|(?:bewerten|testen|liken)\s+von\s+(?:hotels?|produkten|videos?|apps?|restaurants?)|produkt(?:test|bewertung)\w*|paketannahme)\b[\s\S]{0,60}\b(?:(?:\d+|pro|je|die)\s*(?:€|euro)|verdien\w*|provision|vergütung|(?:pro|je|die)\s+(?:tag|stunde|paket|video|bewertung|auftrag))\b|\b(?:(?:\d+|pro|je|die)\s*(?:€|euro)|verdien\w*|provision|vergütung|(?:pro|je|die)\s+(?:tag|stunde|paket|video|bewertung|auftrag))\b[\s\S]{0,60}\b(?:(?:pakete?n?|produkte?n?|hotels?|videos?|apps?|restaurants?)\b<12>\b(?:bewerten|testen|liken|anschauen|annehmen|weiterleiten|weiterschicken|weitersenden|verschicken)|(?:bewerten|testen|liken)\s+von\s+(?:hotels?|produkten|videos?|apps?|restaurants?)|produkt(?:test|bewertung)\w*|paketannahme)\b|\b(?:personalabteilung|agentur|nebenjob|minijob|job|mitarbeiter\w*|verstärkung|suchen|aufgaben|(?:ihr|dein)\s+(?:profil|lebenslauf))\b[\s\S]{0,60}\b(?:handy|smartphone|(?:von\s+)?zu\s+hause|zuhause|homeoffice|home-office|heimarbeit|einfache\s+aufgaben|(?:minuten|stunden?)\s+(?:am|pro)\s+tag|nebenbei)\b[\s\S]{0,60}\b(?:\d+\s*(?:€|euro)\s+(?:\w+\s+)?(?:am|pro|die|je|täglich)|täglich(?:e\s+auszahlung)?|(?:noch\s+)?am\s+(?:selben|gleichen)\s+(?:tag|abend)|bis\s+zu\s+\d+)\b|)"
     R"(\b(?:(?:not(?:er|ant)|évalu(?:er|ant)|aim(?:er|ant)|lik(?:er|ant)|regard(?:er|ant)|test(?:er|ant)|recevoir|réexpédier|réceptionner)\b<12>\b(?:hôtels?|vidéos?|produits?|applications?|restaurants?|colis|pages?))\b[\s\S]{0,60}\b(?:gagne[rz]?|payée?s?|rémunér\w+|commission|\d+\s+euros?|(?:par|chaque)\s+(?:jour|heure|colis|vidéo|avis|tâche))\b|\b(?:gagne[rz]?|payée?s?|rémunér\w+|commission|\d+\s+euros?|(?:par|chaque)\s+(?:jour|heure|colis|vidéo|avis|tâche))\b[\s\S]{0,60}\b(?:(?:not(?:er|ant)|évalu(?:er|ant)|aim(?:er|ant)|lik(?:er|ant)|regard(?:er|ant)|test(?:er|ant)|recevoir|réexpédier|réceptionner)\b<12>\b(?:hôtels?|vidéos?|produits?|applications?|restaurants?|colis|pages?))\b|\b(?:ressources\s+humaines|agence|recrut\w+|cherch\w+|emploi|mission|job|votre\s+(?:profil|cv))\b[\s\S]{0,60}\b(?:téléphone|smartphone|(?:à|de)\s+(?:la\s+)?(?:domicile|maison)|depuis\s+chez|télétravail|tâches?\s+simples?|missions?\s+simples?|(?:minutes|heures?)\s+par\s+jour|temps\s+libre)\b[\s\S]{0,60}\b(?:\d+\s*(?:€|euros?)\s+(?:\w+\s+)?(?:par|la|le|quotidien\w*)|jusqu['’]à\s+\d+|(?:payée?s?|versée?s?)\s+(?:\w+\s+)?(?:soir|jour)|le\s+soir\s+même|chaque\s+(?:jour|soir))\b|)"
     R"(\b(?:(?:valut(?:are|ando)|recens(?:ire|endo)|mett(?:ere|endo)|guard(?:are|ando)|test(?:are|ando)|ricevere|rispedire|inoltrare)\b<12>\b(?:hotel|ristoranti|video|prodotti|app|like|mi\s+piace|pacchi))\b[\s\S]{0,60}\b(?:guadagn\w+|compenso|commission\w+|\d+\s+euro|al\s+giorno|all['’]ora|(?:a|per\s+ogni)\s+(?:pacco|video|recensione))\b|\b(?:guadagn\w+|compenso|commission\w+|\d+\s+euro|al\s+giorno|all['’]ora|(?:a|per\s+ogni)\s+(?:pacco|video|recensione))\b[\s\S]{0,60}\b(?:(?:valut(?:are|ando)|recens(?:ire|endo)|mett(?:ere|endo)|guard(?:are|ando)|test(?:are|ando)|ricevere|rispedire|inoltrare)\b<12>\b(?:hotel|ristoranti|video|prodotti|app|like|mi\s+piace|pacchi))\b|\b(?:risorse\s+umane|agenzia|cerchiamo|lavoro|assumiamo|collaboratori|attività|(?:suo|tuo)\s+(?:profilo|curriculum))\b[\s\S]{0,60}\b(?:cellulare|telefono|smartphone|da\s+casa|attività\s+semplici|semplici\s+attività|(?:minuti|ore|ora)\s+al\s+giorno|tempo\s+libero)\b[\s\S]{0,60}\b(?:\d+\s*(?:€|euro)\s+(?:\w+\s+)?(?:al|all|a|ogni)|fino\s+a\s+\d+|(?:pagat\w+|accredit\w+)\s+(?:\w+\s+)?(?:sera|giorno|giornata)|la\s+sera\s+stessa|ogni\s+(?:giorno|sera))\b|)"
     R"(\b(?:(?:liken|beoordelen|bekijken|testen)\s+van\s+(?:\w+\s+)?(?:hotels?|restaurants?|video['’]?s|producten|apps?)|(?:hotels?|restaurants?|video['’]?s|producten|apps?|pakketten|pakketjes)\s+(?:\w+\s+){0,2}(?:beoordelen|bekijken|liken|testen|ontvangen|doorsturen|aannemen))\b[\s\S]{0,60}\b(?:verdien\w*|commissie|vergoeding|uitbetaald|betaald\s+per|\d+\s+euro|per\s+(?:dag|uur|pakket|video|taak|beoordeling))\b|\b(?:verdien\w*|commissie|vergoeding|uitbetaald|betaald\s+per|\d+\s+euro|per\s+(?:dag|uur|pakket|video|taak|beoordeling))\b[\s\S]{0,60}\b(?:(?:liken|beoordelen|bekijken|testen)\s+van\s+(?:\w+\s+)?(?:hotels?|restaurants?|video['’]?s|producten|apps?)|(?:hotels?|restaurants?|video['’]?s|producten|apps?|pakketten|pakketjes)\s+(?:\w+\s+){0,2}(?:beoordelen|bekijken|liken|testen|ontvangen|doorsturen|aannemen))\b|\b(?:hr|uitzendbureau|zoeken|gezocht|werk|thuiswerk\w*|baan|bijbaan|taken|(?:je|uw)\s+(?:profiel|cv))\b[\s\S]{0,60}\b(?:telefoon|mobiel|smartphone|thuis|vanuit\s+huis|eenvoudige\s+taken|makkelijk\s+werk|(?:minuten|uur|uurtje)\s+per\s+dag|vrije\s+tijd)\b[\s\S]{0,60}\b(?:\d+\s*(?:€|euro)\s+(?:\w+\s+)?per|tot\s+(?:€\s*)?\d+|(?:uit)?betaald\s+(?:\w+\s+){0,2}(?:avond|dag)|dezelfde\s+(?:avond|dag)|(?:elke|iedere)\s+(?:dag|avond)|per\s+dag\s+(?:uit)?betaald)\b|)"
     R"(\b(?:(?:лайк\w*|оценивать|отзывы|смотреть|подписк\w+|тестировать|принимать|пересылать|упаковывать)\b<15>\b(?:видео|отел\w+|товар\w*|приложени\w+|магазин\w*|ресторан\w*|посылк\w*|канал\w*))\b[\s\S]{0,60}\b(?:заработ\w+|зарабатыва\w+|платим|выплат\w+|комисси\w+|за\s+кажд\w+|в\s+день|в\s+час)\b|\b(?:заработ\w+|зарабатыва\w+|платим|выплат\w+|комисси\w+|за\s+кажд\w+|в\s+день|в\s+час)\b[\s\S]{0,60}\b(?:(?:лайк\w*|оценивать|отзывы|смотреть|подписк\w+|тестировать|принимать|пересылать|упаковывать)\b<15>\b(?:видео|отел\w+|товар\w*|приложени\w+|магазин\w*|ресторан\w*|посылк\w*|канал\w*))\b|\b(?:отдела?\s+кадров|сотрудник\w*|подработк\w+|удал[её]нк\w+|вакансия|требуются|ищем|нужны\s+люди|ваш\s+профиль|работа)\b[\s\S]{0,60}\b(?:с\s+телефона|телефон\w*|на\s+дому|из\s+дома|удал[её]нн\w+|прост\w+\s+задани\w+|(?:минут|часа?|часов)\s+в\s+день)\b[\s\S]{0,60}\b(?:\d+\s*(?:рублей|руб|тыс\w*)?\s*в\s+(?:день|сутки|час)|до\s+\d+\s*(?:рублей|руб|в\s+)|выплат\w+\s+(?:\w+\s+){0,2}(?:сразу|вечером|ежедневн\w+|день)|оплата\s+(?:вечером|сразу|ежедневн\w+|каждый))\b|)"
     R"((?:招|兼[职職]|副[业業]|手[机機]|在家|微信|[轻輕][松鬆]|名[额額]|空[闲閒])[\s\S]{0,24}(?:[点點][赞讚]|[关關]注|刷[单單]|[评評][价價]|好[评評]|[试試]玩|[抢搶][单單]|打字|代收|做任[务務]|接[单單])[\s\S]{0,16}(?:佣金|返利|日[结結]|[一二两三四五六七八九十百千\d]+[元塊块]|[赚賺]|[结結]算|提[现現]|[报報]酬)|)"
     R"((?:スマホ|在宅|副業|募集|空き時間|LINE|自宅|簡単|お仕事)[\s\S]{0,24}(?:いいね|口コミ|レビュー|動画を?見|評価|タップ|荷物の?受け?取|転送|アプリを?試|モニター)[\s\S]{0,16}(?:報酬|日給|稼[げぎ]|円|収入|即日払|日払い)|)"
     R"((?:알바|부업|재택|휴대폰|핸드폰|폰으로|집에서|모집|구해요|구합니다|누구나)[\s\S]{0,24}(?:좋아요|리뷰|평점|후기|구독|시청|광고 ?클릭|상품 ?평가|택배 ?(?:수령|받)|체험단|미션|앱 ?설치)[\s\S]{0,16}(?:수익|수당|일당|건당|만 ?원|원씩|지급|정산))"},
    // A buyer has paid, and card data on a page bring the money.
    {"<payout>",
     R"(\b(?:link|e-?mail|page|form|qr(?:\s+code)?|site)\b[\s\S]{0,60}\b(?:(?:card|bank)\s+(?:details?|data|number)|your\s+(?:\w+\s+)?(?:card|bank)|card|card)\b[\s\S]{0,60}\b(?:(?:get|receive|collect|accept|claim|release)\s+(?:the\s+|your\s+)?(?:money|payment|funds|amount|payout)|(?:money|payment|funds)\s+(?:is|are|will|has|have)\b<20>\b(?:there|credited|waiting|arriv\w+|account|card|released))\b|(?:\b(?:(?:get|receive|collect|accept|claim|release)\s+(?:the\s+|your\s+)?(?:money|payment|funds|amount|payout)|(?:money|payment|funds)\s+(?:is|are|will|has|have)\b<20>\b(?:there|credited|waiting|arriv\w+|account|card|released))\b|\b(?:(?:i['’]ve|i\s+have|already|just)\s+(?:\w+\s+)?(?:paid|bought|sent\s+the\s+(?:money|payment))|confirmed\s+(?:\w+\s+)?(?:my\s+)?payment|i['’](?:m|d\s+like\s+to)\s+buy\w*|i['’]ll\s+(?:buy|take))\b)[\s\S]{0,60}\b(?:link|e-?mail|page|form|qr(?:\s+code)?|site)\b[\s\S]{0,60}\b(?:(?:card|bank)\s+(?:details?|data|number)|your\s+(?:\w+\s+)?(?:card|bank)|card|card)\b|)"
     R"(\b(?:link|mail|seite|formular|qr-code)\b[\s\S]{0,60}\b(?:(?:karten|konto|bank)(?:daten|nummer|verbindung)|kreditkarte|bankkarte|(?:ihre|deine)[nr]?\s+(?:\w+\s+)?(?:karte|konto|bank))\b[\s\S]{0,60}\b(?:(?:geld|betrag|zahlung|kaufpreis)\b<20>\b(?:erhalten|bekommen|empfangen|da|freigegeben|gutgeschrieben|gutschrift|konto|anzunehmen))\b|(?:\b(?:(?:geld|betrag|zahlung|kaufpreis)\b<20>\b(?:erhalten|bekommen|empfangen|da|freigegeben|gutgeschrieben|gutschrift|konto|anzunehmen))\b|\b(?:(?:habe|hat|ist)\b<25>\b(?:bezahlt|zahlung|überwiesen)|zahlung\s+(?:\w+\s+)?bestätigt|ich\s+(?:kaufe|nehme|möchte\b<25>\bkaufen))\b)[\s\S]{0,60}\b(?:link|mail|seite|formular|qr-code)\b[\s\S]{0,60}\b(?:(?:karten|konto|bank)(?:daten|nummer|verbindung)|kreditkarte|bankkarte|(?:ihre|deine)[nr]?\s+(?:\w+\s+)?(?:karte|konto|bank))\b|)"
     R"(\b(?:lien|e-?mail|page|formulaire)\b[\s\S]{0,60}\b(?:(?:données|coordonnées|numéro|détails)\b<15>\b(?:carte|compte|bancaires?)|(?:votre|ta)\s+(?:carte|compte)|carte\s+(?:de\s+crédit|bancaire|bleue))\b[\s\S]{0,60}\b(?:(?:recevoir|encaisser|récupérer|obtenir)\b<12>\b(?:argent|paiement|somme|montant|virement)|(?:argent|paiement|somme|montant)\b<15>\b(?:versée?|créditée?|disponible|arrive\w*|débloquée?))\b|(?:\b(?:(?:recevoir|encaisser|récupérer|obtenir)\b<12>\b(?:argent|paiement|somme|montant|virement)|(?:argent|paiement|somme|montant)\b<15>\b(?:versée?|créditée?|disponible|arrive\w*|débloquée?))\b|\b(?:(?:j['’]ai|ai\s+déjà|a)\s+(?:\w+\s+)?(?:payé|réglé|acheté|confirmé)|j['’]achète|je\s+(?:prends|souhaite\s+acheter))\b)[\s\S]{0,60}\b(?:lien|e-?mail|page|formulaire)\b[\s\S]{0,60}\b(?:(?:données|coordonnées|numéro|détails)\b<15>\b(?:carte|compte|bancaires?)|(?:votre|ta)\s+(?:carte|compte)|carte\s+(?:de\s+crédit|bancaire|bleue))\b|)"
     R"(\b(?:link|e-?mail|pagina|modulo)\b[\s\S]{0,60}\b(?:(?:dati|numero)\b<12>\b(?:carta|conto|bancari)|(?:sua|tua|la)\s+carta)\b[\s\S]{0,60}\b(?:(?:ricevere|incassare|ottenere|accettare)\b<12>\b(?:soldi|denaro|pagamento|importo|somma)|(?:soldi|denaro|pagamento|importo|somma)\b<15>\b(?:accreditat[oi]|subito|disponibil[ei]|arriv\w+))\b|(?:\b(?:(?:ricevere|incassare|ottenere|accettare)\b<12>\b(?:soldi|denaro|pagamento|importo|somma)|(?:soldi|denaro|pagamento|importo|somma)\b<15>\b(?:accreditat[oi]|subito|disponibil[ei]|arriv\w+))\b|\b(?:ho\s+(?:già\s+)?(?:pagato|acquistato|comprato)|ha\s+confermato|(?:lo|la)?\s*compro|prendo\s+(?:l['’]|il|la))\b)[\s\S]{0,60}\b(?:link|e-?mail|pagina|modulo)\b[\s\S]{0,60}\b(?:(?:dati|numero)\b<12>\b(?:carta|conto|bancari)|(?:sua|tua|la)\s+carta)\b|)"
     R"(\b(?:link|e-?mail|pagina|formulier)\b[\s\S]{0,60}\b(?:(?:kaart|bank|rekening)(?:gegevens|nummer)|(?:uw|je)\s+(?:\w+\s+)?(?:kaart|pas|rekening|creditcard)|creditcard)\b[\s\S]{0,60}\b(?:(?:geld|betaling|bedrag)\b<15>\b(?:ontvangen|krijgen|accepteren|bijgeschreven|staat|binnen|klaar))\b|(?:\b(?:(?:geld|betaling|bedrag)\b<15>\b(?:ontvangen|krijgen|accepteren|bijgeschreven|staat|binnen|klaar))\b|\b(?:(?:heb|heeft|is)\b<25>\b(?:betaald|betaling|bevestigd)|ik\s+(?:koop|neem|wil\b<25>\bkopen))\b)[\s\S]{0,60}\b(?:link|e-?mail|pagina|formulier)\b[\s\S]{0,60}\b(?:(?:kaart|bank|rekening)(?:gegevens|nummer)|(?:uw|je)\s+(?:\w+\s+)?(?:kaart|pas|rekening|creditcard)|creditcard)\b|)"
     R"(\b(?:ссылк\w+|страниц\w+|форм\w+)\b[\s\S]{0,60}\b(?:(?:данные|реквизиты|номер)\s+(?:\w+\s+)?карты|карт[уы])\b[\s\S]{0,60}\b(?:(?:получить|получения|принять)\b<12>\b(?:деньги|денег|оплат\w+|платеж\w*|перевод\w*)|(?:деньги|оплата|платеж)\b<15>\b(?:поступ\w+|придут|зачисл\w+))\b|(?:\b(?:(?:получить|получения|принять)\b<12>\b(?:деньги|денег|оплат\w+|платеж\w*|перевод\w*)|(?:деньги|оплата|платеж)\b<15>\b(?:поступ\w+|придут|зачисл\w+))\b|\b(?:оплатил\w?|подтвердил\w?|покупаю|беру|хочу\s+купить|оплачен\w*)\b)[\s\S]{0,60}\b(?:ссылк\w+|страниц\w+|форм\w+)\b[\s\S]{0,60}\b(?:(?:данные|реквизиты|номер)\s+(?:\w+\s+)?карты|карт[уы])\b|)"
     R"((?:[链鏈連][接結结]|[网網][址页頁]|[扫掃][码碼]|二[维維][码碼])[\s\S]{0,24}(?:卡[号號]|[银銀]行卡|[账帳賬][户戶号號]|[验驗][证證][码碼])[\s\S]{0,24}(?:(?:收[到取]|[领領]取|接收)[\s\S]{0,4}(?:款|[货貨]款|[钱錢])|(?:[货貨]?款|[钱錢])[\s\S]{0,4}(?:到[账帳賬]|入[账帳賬]|打[给給到]))|(?:(?:(?:收[到取]|[领領]取|接收)[\s\S]{0,4}(?:款|[货貨]款|[钱錢])|(?:[货貨]?款|[钱錢])[\s\S]{0,4}(?:到[账帳賬]|入[账帳賬]|打[给給到]))|已[经經]?(?:[确確][认認])?我?付款|已付|[买買]了|我要[买買]|拍下|付好了|下[单單])[\s\S]{0,24}(?:[链鏈連][接結结]|[网網][址页頁]|[扫掃][码碼]|二[维維][码碼])[\s\S]{0,24}(?:卡[号號]|[银銀]行卡|[账帳賬][户戶号號]|[验驗][证證][码碼])|)"
     R"((?:リンク|URL|ページ|QR)[\s\S]{0,24}(?:カード(?:番号|情報)|口座(?:番号|情報)|暗証番号)[\s\S]{0,24}(?:(?:代金|お金|売上金|入金)[\s\S]{0,6}(?:受け?取|届|反映|振り込まれ|確定))|(?:(?:(?:代金|お金|売上金|入金)[\s\S]{0,6}(?:受け?取|届|反映|振り込まれ|確定))|購入(?:し|を|希望)|お?支払い(?:が|を|は|済)|買いたい|決済)[\s\S]{0,24}(?:リンク|URL|ページ|QR)[\s\S]{0,24}(?:カード(?:番号|情報)|口座(?:番号|情報)|暗証番号)|)"
     R"((?:링크|주소|페이지|QR)[\s\S]{0,24}(?:카드 ?(?:번호|정보)|계좌 ?(?:번호|정보)|인증번호)[\s\S]{0,24}(?:(?:대금|돈|금액|판매금)[\s\S]{0,6}(?:받|입금|수령|지급))|(?:(?:(?:대금|돈|금액|판매금)[\s\S]{0,6}(?:받|입금|수령|지급))|(?:결제|입금)[\s\S]{0,4}(?:했|확인|완료)|살게요|구매|사고 ?싶)[\s\S]{0,24}(?:링크|주소|페이지|QR)[\s\S]{0,24}(?:카드 ?(?:번호|정보)|계좌 ?(?:번호|정보)|인증번호))"},
    // Fees advanced to a buyer's carrier, or a deal outside of the market place.
    {"<sidedeal>",
     R"(\b(?:couriers?|carriers?|drivers?|movers?|shippers?|transporters?|forwarders?|shipping\s+(?:company|agent)|(?:pick\s?up|removal)\s+(?:agent|company))\b[\s\S]{0,60}\b(?:insurance|fees?|charges?|deposit|costs?)\b[\s\S]{0,40}\b(?:advance|upfront|up\s+front|in\s+advance|first|refund\w*|reimburse\w*|(?:pay|send|give)\s+(?:\w+\s+){0,2}back|on\s+top|include\w*)\b|\b(?:(?:outside|off|instead\s+of|leave|skip|avoid|without|not\s+(?:on|through|via))\s+(?:\w+\s+){0,2}(?:app|site|platform|ebay|vinted|marketplace|portal|system|escrow))\b[\s\S]{0,60}\b(?:(?:transfer|pay|send|deposit)\b<30>\b(?:first|in\s+advance|directly|upfront|friends|whats\s?app|then|ship\w*))\b|)"
     R"(\b(?:(?:spediteur|spedition|kurier|fahrer|abholer|transporteur|bote|umzugsfirma)\w*)\b[\s\S]{0,60}\b(?:versicherung\w*|gebühr\w*|kosten|kaution|betrag)\b[\s\S]{0,40}\b(?:vorstreck\w+|auslegen|auslegst|erstatt\w+|zurück\w*|vorab|vorher|im\s+voraus|vorschieß\w+|übernehm\w+)\b|\b(?:(?:außerhalb|ohne|statt|nicht\s+über|an)\s+(?:\w+\s+){0,2}(?:plattform|app|kleinanzeigen|ebay|vinted|portal|system|käuferschutz))\b[\s\S]{0,60}\b(?:(?:vorab|zuerst|vorkasse|freunde|direkt|vorher|im\s+voraus)\b<25>\b(?:überweis\w+|zahl\w+|schick\w+|send\w+|bezahl\w+)|(?:überweis\w+|bezahl\w+|zahl\w+)\b<25>\b(?:freunde|direkt|vorab|zuerst))\b|)"
     R"(\b(?:transporteurs?|livreurs?|coursiers?|déménageurs?|chauffeurs?|agents?)\b[\s\S]{0,60}\b(?:assurances?|frais|caution|taxes?)\b[\s\S]{0,40}\b(?:avanc\w+|rembours\w+|rendrai|d['’]abord|préalable)\b|\b(?:(?:hors|sans\s+passer\s+par|en\s+dehors|plutôt\s+que|pas\s+(?:par|via))\b<15>\b(?:site|appli\w*|plateforme|leboncoin|vinted|ebay))\b[\s\S]{0,60}\b(?:(?:payez|payer|virement|envoye[rz]|verse[rz])\b<25>\b(?:avance|d['’]abord|proches|directement|expédie\w*|envoie))\b|)"
     R"(\b(?:corriere|trasportatore|spedizioniere|autista|traslocatore|incaricato)\b[\s\S]{0,60}\b(?:assicurazione|spese|costi|cauzione|tassa)\b[\s\S]{0,40}\b(?:anticip\w+|rimbors\w+|restitui\w+|prima|in\s+anticipo)\b|\b(?:(?:fuori|senza|invece\s+di|non\s+(?:su|tramite))\b<15>\b(?:subito|app|sito|piattaforma|vinted|ebay))\b[\s\S]{0,60}\b(?:(?:bonifico|paga\w*|ricarica|invia\w*|versa\w*)\b<25>\b(?:prima|anticip\w+|amici|direttamente|spedisco))\b|)"
     R"(\b(?:koerier|bezorger|chauffeur|vervoerder|transporteur|verhuizer)\b[\s\S]{0,60}\b(?:verzekering|kosten|borg|toeslag)\b[\s\S]{0,40}\b(?:voorschiet\w*|terugbeta\w+|krijgt\s+(?:u|je)\b<15>\bterug|vooraf|eerst|vergoed\w*|terug)\b|\b(?:(?:buiten|zonder|in\s+plaats\s+van|niet\s+(?:via|op))\b<15>\b(?:marktplaats|app|site|platform|vinted|ebay))\b[\s\S]{0,60}\b(?:(?:betaa?l\w*|overmak\w*|tikkie|stuur\w*)\b<25>\b(?:eerst|vooraf|vrienden|direct|rechtstreeks|op))\b|)"
     R"(\b(?:курьер\w*|перевозчик\w*|водител\w+|агент\w*|грузчик\w*)\b[\s\S]{0,60}\b(?:страховк\w+|комисси\w+|залог\w*|доставк\w+|пошлин\w+)\b[\s\S]{0,40}\b(?:вперёд|вперед|возмещу|верну|верн[её]тся|предоплат\w+|сначала|компенсиру\w+)\b|\b(?:(?:вне|без|мимо|не\s+через)\b<10>\b(?:авито|юла|сайта|сайт|приложени\w+|площадк\w+))\b[\s\S]{0,60}\b(?:(?:перевод\w*|переведите|оплат\w+|предоплат\w+)\b<25>\b(?:сразу|вперёд|вперед|карту|сначала|напрямую|отправлю))\b|)"
     R"((?:快[递遞]|司[机機]|[货貨]代|搬家公司|物流|代理)[\s\S]{0,24}(?:保[险險]|押金|[费費]|保[证證]金|[税稅])[\s\S]{0,16}(?:先[垫墊付交]|代[垫墊]|[还還][给給你]|退[还還回给給你]|一起[还還转轉])|(?:(?:不走|[别別]走|[绕繞][开開]|不用|[离離][开開]|私下|不[经經]|跳[过過])[\s\S]{0,6}(?:平台|[闲閒][鱼魚]|[转轉][转轉]|蝦皮|虾皮|拍[卖賣]|交易))[\s\S]{0,24}(?:先[\s\S]{0,4}(?:[转轉]|付|打款|[汇匯])|[转轉][账帳賬]|打款|[汇匯]款|加微信|加LINE)|)"
     R"((?:配送業者|運送会社|引き取り業者|運転手|業者)[\s\S]{0,24}(?:保険|手数料|料金|保証金|送料)[\s\S]{0,16}(?:立て替え|先に|後で?返|返金|上乗せ)|(?:(?:アプリ|サイト|フリマ|メルカリ|ヤフオク|運営)[\s\S]{0,14}(?:使いにく|通さ|なし|外|使わ|手数料)|直接(?:取引|やり取り)|LINEで(?:直接|取引))[\s\S]{0,24}(?:先に[\s\S]{0,6}(?:送金|振り?込|お?支払|入金)|(?:送金|振り?込|入金)[\s\S]{0,10}(?:次第|後に?|いただけれ)[\s\S]{0,8}(?:発送|送り|送付))|)"
     R"((?:택배 ?기사|용달|배송 ?업체|기사님|운송)[\s\S]{0,24}(?:보험|수수료|비용|보증금|운임)[\s\S]{0,16}(?:먼저|대신 ?내|돌려 ?드|환불|같이 ?보내)|(?:(?:앱|사이트|당근|번개|중고나라|안전 ?결제|플랫폼)[\s\S]{0,10}(?:말고|없이|대신|안 ?쓰|번거|수수료)|직접 ?거래)[\s\S]{0,24}(?:먼저 ?(?:입금|송금|보내)|선입금|(?:입금|송금)[\s\S]{0,8}(?:하시면|되면|확인)[\s\S]{0,8}(?:발송|보내)|카톡|계좌))"},
    // A love that has never met, with an illness, a journey or an investment to pay for.
    {"<suitor>",
     R"(\b(?:darling|sweetheart|my\s+(?:love|queen|king|angel|dearest|heart)|honey|soul\s?mate|(?:woman|man|one)\s+(?:god|of\s+my|i\s+(?:have\s+)?waited)|i\s+love\s+you|in\s+love\s+with\s+you|(?:fell|falling|fallen)\s+(?:\w+\s+)?in\s+love|so\s+close\s+to\s+you|your\s+(?:photo|profile|picture|smile)|my\s+(?:dear(?:est)?|soul)|marry\s+you|come\s+to\s+you|widow(?:er|ed)?)\b[\s\S]{0,60}\b(?:(?:never|not\s+yet|not\s+even|have\s+not|haven['’]t)\s+(?:\w+\s+)?(?:met|seen|touched)\b<15>\b(?:each\s+other|in\s+person|you|face|yet)|only\s+(?:been\s+)?(?:\w+\s+)?(?:two|three|four|a\s+few|some|\d+)\s+(?:days|weeks)|(?:days|weeks)\s+of\s+(?:chatting|writing|talking|messages)|(?:only|just)\s+(?:\w+\s+)?(?:talked|chatted|written|texted|know\w*)\b<15>\b(?:online|internet|here|chat|app))\b|\b(?:(?:never|not\s+yet|not\s+even|have\s+not|haven['’]t)\s+(?:\w+\s+)?(?:met|seen|touched)\b<15>\b(?:each\s+other|in\s+person|you|face|yet)|only\s+(?:been\s+)?(?:\w+\s+)?(?:two|three|four|a\s+few|some|\d+)\s+(?:days|weeks)|(?:days|weeks)\s+of\s+(?:chatting|writing|talking|messages)|(?:only|just)\s+(?:\w+\s+)?(?:talked|chatted|written|texted|know\w*)\b<15>\b(?:online|internet|here|chat|app))\b[\s\S]{0,60}\b(?:darling|sweetheart|my\s+(?:love|queen|king|angel|dearest|heart)|honey|soul\s?mate|(?:woman|man|one)\s+(?:god|of\s+my|i\s+(?:have\s+)?waited)|i\s+love\s+you|in\s+love\s+with\s+you|(?:fell|falling|fallen)\s+(?:\w+\s+)?in\s+love|so\s+close\s+to\s+you|your\s+(?:photo|profile|picture|smile)|my\s+(?:dear(?:est)?|soul)|marry\s+you|come\s+to\s+you|widow(?:er|ed)?)\b|\b(?:darling|sweetheart|my\s+(?:love|queen|king|angel|dearest|heart)|honey|soul\s?mate|(?:woman|man|one)\s+(?:god|of\s+my|i\s+(?:have\s+)?waited)|i\s+love\s+you|in\s+love\s+with\s+you|(?:fell|falling|fallen)\s+(?:\w+\s+)?in\s+love|so\s+close\s+to\s+you|your\s+(?:photo|profile|picture|smile)|my\s+(?:dear(?:est)?|soul)|marry\s+you|come\s+to\s+you|widow(?:er|ed)?)\b[\s\S]{0,60}\b(?:(?:oil\s+)?rig|ship|vessel|mission|army|base|contract|customs|visa|flight|ticket|hospital|surgery|syria|yemen|abroad|overseas|surgeon|doctor|engineer|soldier|captain|officer|airport|stranded|stuck|stolen|united\s+nations)\b[\s\S]{0,60}\b(?:lend\s+me|borrow|help\s+me|send\s+me|wire|fees?|steam|gift\s+cards?|can['’]t\s+(?:pay|access|reach)|cannot\s+(?:pay|access)|card\s+(?:does\s+not|doesn['’]t|is\s+blocked)|visa\s+money|need\s+<amount>|short\s+of|missing\s+<amount>|pay\s+you\s+back|money|<amount>)\b|\b(?:(?:never|not\s+yet|not\s+even|have\s+not|haven['’]t)\s+(?:\w+\s+)?(?:met|seen|touched)\b<15>\b(?:each\s+other|in\s+person|you|face|yet)|only\s+(?:been\s+)?(?:\w+\s+)?(?:two|three|four|a\s+few|some|\d+)\s+(?:days|weeks)|(?:days|weeks)\s+of\s+(?:chatting|writing|talking|messages)|(?:only|just)\s+(?:\w+\s+)?(?:talked|chatted|written|texted|know\w*)\b<15>\b(?:online|internet|here|chat|app))\b[\s\S]{0,60}\b(?:(?:oil\s+)?rig|ship|vessel|mission|army|base|contract|customs|visa|flight|ticket|hospital|surgery|syria|yemen|abroad|overseas|surgeon|doctor|engineer|soldier|captain|officer|airport|stranded|stuck|stolen|united\s+nations)\b[\s\S]{0,60}\b(?:lend\s+me|borrow|help\s+me|send\s+me|wire|fees?|steam|gift\s+cards?|can['’]t\s+(?:pay|access|reach)|cannot\s+(?:pay|access)|card\s+(?:does\s+not|doesn['’]t|is\s+blocked)|visa\s+money|need\s+<amount>|short\s+of|missing\s+<amount>|pay\s+you\s+back|money|<amount>)\b|\b(?:darling|sweetheart|my\s+(?:love|queen|king|angel|dearest|heart)|honey|soul\s?mate|(?:woman|man|one)\s+(?:god|of\s+my|i\s+(?:have\s+)?waited)|i\s+love\s+you|in\s+love\s+with\s+you|(?:fell|falling|fallen)\s+(?:\w+\s+)?in\s+love|so\s+close\s+to\s+you|your\s+(?:photo|profile|picture|smile)|my\s+(?:dear(?:est)?|soul)|marry\s+you|come\s+to\s+you|widow(?:er|ed)?)\b[\s\S]{0,60}\b(?:(?:i|let\s+me|can)\s+(?:will\s+|can\s+)?(?:teach|show)\s+you\b<25>\b(?:trad\w+|invest\w*|crypto|earn|profits?|money)|(?:uncle|aunt|mentor|friend)\b<40>\b(?:trad\w+|analyst|crypto|exchange|platform|invest\w*))\b|)"
     R"(\b(?:(?:mein\s+)?(?:schatz|liebling|engel|herz|süße[rn]?)|meine?\s+(?:liebe|königin|prinzessin)|ich\s+liebe\s+dich|in\s+dich\s+verliebt|liebste[rn]?|nah\b<6>\bfühl\w*|fühle?\s+mich\b<12>\bnah|(?:dein|deinem?)\s+(?:foto|profil|bild)|(?:komme|fliege)\s+(?:ich\s+)?(?:\w+\s+){0,2}zu\s+dir|dich\s+heirat\w+|witwer)\b[\s\S]{0,60}\b(?:(?:noch\s+)?(?:nie|nicht)\b<15>\b(?:getroffen|gesehen|begegnet)|erst\s+(?:seit\s+)?(?:\w+\s+)?(?:wenigen?|zwei|drei|einigen?|paar|\d+)\s+(?:tagen?|wochen)|nur\s+(?:\w+\s+)?(?:online|schreiben|chat\w*|internet))\b|\b(?:(?:noch\s+)?(?:nie|nicht)\b<15>\b(?:getroffen|gesehen|begegnet)|erst\s+(?:seit\s+)?(?:\w+\s+)?(?:wenigen?|zwei|drei|einigen?|paar|\d+)\s+(?:tagen?|wochen)|nur\s+(?:\w+\s+)?(?:online|schreiben|chat\w*|internet))\b[\s\S]{0,60}\b(?:(?:mein\s+)?(?:schatz|liebling|engel|herz|süße[rn]?)|meine?\s+(?:liebe|königin|prinzessin)|ich\s+liebe\s+dich|in\s+dich\s+verliebt|liebste[rn]?|nah\b<6>\bfühl\w*|fühle?\s+mich\b<12>\bnah|(?:dein|deinem?)\s+(?:foto|profil|bild)|(?:komme|fliege)\s+(?:ich\s+)?(?:\w+\s+){0,2}zu\s+dir|dich\s+heirat\w+|witwer)\b|\b(?:(?:mein\s+)?(?:schatz|liebling|engel|herz|süße[rn]?)|meine?\s+(?:liebe|königin|prinzessin)|ich\s+liebe\s+dich|in\s+dich\s+verliebt|liebste[rn]?|nah\b<6>\bfühl\w*|fühle?\s+mich\b<12>\bnah|(?:dein|deinem?)\s+(?:foto|profil|bild)|(?:komme|fliege)\s+(?:ich\s+)?(?:\w+\s+){0,2}zu\s+dir|dich\s+heirat\w+|witwer)\b[\s\S]{0,60}\b(?:bohrinsel|schiff|einsatz|armee|mission|vertrag|zoll|visum|flug|ticket|krankenhaus|operation|syrien|jemen|ausland|arzt|chirurg|ingenieur|soldat|offizier|kapitän|uno|flughafen|gestohlen|urlaubsantrag|bundeswehr|us-armee)\b[\s\S]{0,60}\b(?:leihen|leihst|borgen|hilf\s+mir|überweis\w+|gebühr\w*|kosten\s+übernehmen|karte\b<15>\b(?:nicht|gesperrt)|konto\b<15>\b(?:gesperrt|zugriff|nicht)|vorstrecken|geld\s+schicken|fehlen\s+mir|brauche\s+(?:ich\s+)?(?:noch\s+)?\d+|schick\s+mir|zurück|<amount>)\b|\b(?:(?:noch\s+)?(?:nie|nicht)\b<15>\b(?:getroffen|gesehen|begegnet)|erst\s+(?:seit\s+)?(?:\w+\s+)?(?:wenigen?|zwei|drei|einigen?|paar|\d+)\s+(?:tagen?|wochen)|nur\s+(?:\w+\s+)?(?:online|schreiben|chat\w*|internet))\b[\s\S]{0,60}\b(?:bohrinsel|schiff|einsatz|armee|mission|vertrag|zoll|visum|flug|ticket|krankenhaus|operation|syrien|jemen|ausland|arzt|chirurg|ingenieur|soldat|offizier|kapitän|uno|flughafen|gestohlen|urlaubsantrag|bundeswehr|us-armee)\b[\s\S]{0,60}\b(?:leihen|leihst|borgen|hilf\s+mir|überweis\w+|gebühr\w*|kosten\s+übernehmen|karte\b<15>\b(?:nicht|gesperrt)|konto\b<15>\b(?:gesperrt|zugriff|nicht)|vorstrecken|geld\s+schicken|fehlen\s+mir|brauche\s+(?:ich\s+)?(?:noch\s+)?\d+|schick\s+mir|zurück|<amount>)\b|\b(?:(?:mein\s+)?(?:schatz|liebling|engel|herz|süße[rn]?)|meine?\s+(?:liebe|königin|prinzessin)|ich\s+liebe\s+dich|in\s+dich\s+verliebt|liebste[rn]?|nah\b<6>\bfühl\w*|fühle?\s+mich\b<12>\bnah|(?:dein|deinem?)\s+(?:foto|profil|bild)|(?:komme|fliege)\s+(?:ich\s+)?(?:\w+\s+){0,2}zu\s+dir|dich\s+heirat\w+|witwer)\b[\s\S]{0,60}\b(?:(?:zeige?|bringe?)\s+(?:ich\s+)?dir\b<25>\b(?:handel\w*|trad\w+|invest\w*|krypto|geld\s+verdien\w+)|(?:onkel|mentor|tante)\b<40>\b(?:trad\w+|analyst|krypto|börse|handelsplattform))\b|)"
     R"(\b(?:mon\s+(?:amour|cœur|coeur|ange|chéri|trésor|roi)|ma\s+(?:chérie|reine|belle)|chérie?|je\s+t['’]aime|amoureu\w+\s+de\s+(?:toi|vous)|ma\s+douce|proche\s+de\s+toi|(?:ta|ton|votre)\s+(?:photo|profil|sourire)|te\s+rejoindre|t['’]épouser|veuf|mon\s+(?:âme|bébé))\b[\s\S]{0,60}\b(?:(?:jamais|pas\s+encore)\b<12>\b(?:vus?|rencontrée?s?|croisée?s?)|(?:depuis|que)\s+(?:\w+\s+)?(?:quelques|deux|trois|\d+)\s+(?:jours|semaines)|que\s+(?:par|sur)\s+(?:internet|messages?|tchat|chat))\b|\b(?:(?:jamais|pas\s+encore)\b<12>\b(?:vus?|rencontrée?s?|croisée?s?)|(?:depuis|que)\s+(?:\w+\s+)?(?:quelques|deux|trois|\d+)\s+(?:jours|semaines)|que\s+(?:par|sur)\s+(?:internet|messages?|tchat|chat))\b[\s\S]{0,60}\b(?:mon\s+(?:amour|cœur|coeur|ange|chéri|trésor|roi)|ma\s+(?:chérie|reine|belle)|chérie?|je\s+t['’]aime|amoureu\w+\s+de\s+(?:toi|vous)|ma\s+douce|proche\s+de\s+toi|(?:ta|ton|votre)\s+(?:photo|profil|sourire)|te\s+rejoindre|t['’]épouser|veuf|mon\s+(?:âme|bébé))\b|\b(?:mon\s+(?:amour|cœur|coeur|ange|chéri|trésor|roi)|ma\s+(?:chérie|reine|belle)|chérie?|je\s+t['’]aime|amoureu\w+\s+de\s+(?:toi|vous)|ma\s+douce|proche\s+de\s+toi|(?:ta|ton|votre)\s+(?:photo|profil|sourire)|te\s+rejoindre|t['’]épouser|veuf|mon\s+(?:âme|bébé))\b[\s\S]{0,60}\b(?:plateforme|bateau|navire|mission|armée|contrat|douane|visa|vol|billet|hôpital|opération|syrie|yémen|étranger|mali|abidjan|chirurgien|médecin|ingénieur|soldat|capitaine|officier|onu|aéroport|volé|congé|avion|mer)\b[\s\S]{0,60}\b(?:prête[rs]?(?:-moi)?|m['’]aider|aide-moi|envoie[rs]?(?:-moi)?|frais|mandat|coupons?|pcs|transcash|carte\b<15>\b(?:bloquée|pas)|compte\b<15>\b(?:bloqué|accès)|avancer|il\s+me\s+manque|rembours\w+|besoin\s+d['’]argent|<amount>)\b|\b(?:(?:jamais|pas\s+encore)\b<12>\b(?:vus?|rencontrée?s?|croisée?s?)|(?:depuis|que)\s+(?:\w+\s+)?(?:quelques|deux|trois|\d+)\s+(?:jours|semaines)|que\s+(?:par|sur)\s+(?:internet|messages?|tchat|chat))\b[\s\S]{0,60}\b(?:plateforme|bateau|navire|mission|armée|contrat|douane|visa|vol|billet|hôpital|opération|syrie|yémen|étranger|mali|abidjan|chirurgien|médecin|ingénieur|soldat|capitaine|officier|onu|aéroport|volé|congé|avion|mer)\b[\s\S]{0,60}\b(?:prête[rs]?(?:-moi)?|m['’]aider|aide-moi|envoie[rs]?(?:-moi)?|frais|mandat|coupons?|pcs|transcash|carte\b<15>\b(?:bloquée|pas)|compte\b<15>\b(?:bloqué|accès)|avancer|il\s+me\s+manque|rembours\w+|besoin\s+d['’]argent|<amount>)\b|\b(?:mon\s+(?:amour|cœur|coeur|ange|chéri|trésor|roi)|ma\s+(?:chérie|reine|belle)|chérie?|je\s+t['’]aime|amoureu\w+\s+de\s+(?:toi|vous)|ma\s+douce|proche\s+de\s+toi|(?:ta|ton|votre)\s+(?:photo|profil|sourire)|te\s+rejoindre|t['’]épouser|veuf|mon\s+(?:âme|bébé))\b[\s\S]{0,60}\b(?:(?:t['’]apprendre|te\s+montrer|t['’]apprends|te\s+montre)\b<25>\b(?:trad\w+|investi\w+|crypto|gagner)|(?:oncle|mentor|tante)\b<40>\b(?:trad\w+|analyste|crypto|bourse|plateforme))\b|)"
     R"(\b(?:(?:mio\s+)?(?:amore|tesoro|angelo)|mia\s+(?:regina|vita|cara)|cara|ti\s+amo|innamorat[oa]\s+di\s+te|carissima|vicin[oa]|(?:tua|tuo)\s+(?:foto|profilo)|arrivo\s+da\s+te|venire\s+da\s+te|sposar\w+|vedovo|innamorat[oa])\b[\s\S]{0,60}\b(?:(?:mai|non\s+ancora|non\s+ci\s+siamo\s+(?:ancora\s+)?(?:mai\s+)?)\s*(?:vist[ie]|incontrat[ie]|conosciut[ie])|(?:da|solo)\s+(?:\w+\s+)?(?:poch[ie]|due|tre|\d+)\s+(?:giorni|settimane)|solo\s+(?:online|in\s+chat|su\s+internet))\b|\b(?:(?:mai|non\s+ancora|non\s+ci\s+siamo\s+(?:ancora\s+)?(?:mai\s+)?)\s*(?:vist[ie]|incontrat[ie]|conosciut[ie])|(?:da|solo)\s+(?:\w+\s+)?(?:poch[ie]|due|tre|\d+)\s+(?:giorni|settimane)|solo\s+(?:online|in\s+chat|su\s+internet))\b[\s\S]{0,60}\b(?:(?:mio\s+)?(?:amore|tesoro|angelo)|mia\s+(?:regina|vita|cara)|cara|ti\s+amo|innamorat[oa]\s+di\s+te|carissima|vicin[oa]|(?:tua|tuo)\s+(?:foto|profilo)|arrivo\s+da\s+te|venire\s+da\s+te|sposar\w+|vedovo|innamorat[oa])\b|\b(?:(?:mio\s+)?(?:amore|tesoro|angelo)|mia\s+(?:regina|vita|cara)|cara|ti\s+amo|innamorat[oa]\s+di\s+te|carissima|vicin[oa]|(?:tua|tuo)\s+(?:foto|profilo)|arrivo\s+da\s+te|venire\s+da\s+te|sposar\w+|vedovo|innamorat[oa])\b[\s\S]{0,60}\b(?:piattaforma|nave|missione|esercito|contratto|dogana|visto|volo|biglietto|ospedale|operazione|siria|yemen|estero|militare|chirurgo|medico|ingegnere|soldato|capitano|ufficiale|onu|aeroporto|rubato|congedo)\b[\s\S]{0,60}\b(?:prest(?:are|armi|i|ami)|aiut(?:are|armi|ami|i)|mand(?:are|armi|ami)|sped(?:ire|irla|irti|irlo)|spese|risparmi|pagare|carta\b<15>\b(?:bloccata|non)|conto\b<15>\b(?:bloccato|non)|mi\s+fido|mi\s+mancano|mandami|restitui\w+|soldi|<amount>)\b|\b(?:(?:mai|non\s+ancora|non\s+ci\s+siamo\s+(?:ancora\s+)?(?:mai\s+)?)\s*(?:vist[ie]|incontrat[ie]|conosciut[ie])|(?:da|solo)\s+(?:\w+\s+)?(?:poch[ie]|due|tre|\d+)\s+(?:giorni|settimane)|solo\s+(?:online|in\s+chat|su\s+internet))\b[\s\S]{0,60}\b(?:piattaforma|nave|missione|esercito|contratto|dogana|visto|volo|biglietto|ospedale|operazione|siria|yemen|estero|militare|chirurgo|medico|ingegnere|soldato|capitano|ufficiale|onu|aeroporto|rubato|congedo)\b[\s\S]{0,60}\b(?:prest(?:are|armi|i|ami)|aiut(?:are|armi|ami|i)|mand(?:are|armi|ami)|sped(?:ire|irla|irti|irlo)|spese|risparmi|pagare|carta\b<15>\b(?:bloccata|non)|conto\b<15>\b(?:bloccato|non)|mi\s+fido|mi\s+mancano|mandami|restitui\w+|soldi|<amount>)\b|\b(?:(?:mio\s+)?(?:amore|tesoro|angelo)|mia\s+(?:regina|vita|cara)|cara|ti\s+amo|innamorat[oa]\s+di\s+te|carissima|vicin[oa]|(?:tua|tuo)\s+(?:foto|profilo)|arrivo\s+da\s+te|venire\s+da\s+te|sposar\w+|vedovo|innamorat[oa])\b[\s\S]{0,60}\b(?:(?:ti\s+(?:insegno|mostro|faccio\s+vedere))\b<25>\b(?:trad\w+|invest\w+|cripto\w*|guadagn\w+)|(?:zio|mentore|zia)\b<40>\b(?:trad\w+|analista|cripto\w*|borsa|piattaforma))\b|)"
     R"(\b(?:(?:mijn\s+)?(?:schat|lieveling|engel|liefste)|mijn\s+(?:lief|hart|koningin)|ik\s+hou\s+van\s+je|verliefd\s+op\s+(?:jou|je)|lieve|dicht\s+bij\s+je|je\s+(?:foto|profiel)|van\s+iemand\s+gehouden|naar\s+(?:je|jou)\s+(?:toe|komen)|trouwen|weduwnaar|verliefd)\b[\s\S]{0,60}\b(?:(?:nog\s+)?(?:nooit|niet)\b<15>\b(?:gezien|ontmoet)|(?:pas|nog\s+maar)\s+(?:\w+\s+)?(?:enkele|twee|drie|paar|\d+)\s+(?:dagen|weken)|alleen\s+(?:\w+\s+)?(?:online|via\s+(?:internet|chat|app)))\b|\b(?:(?:nog\s+)?(?:nooit|niet)\b<15>\b(?:gezien|ontmoet)|(?:pas|nog\s+maar)\s+(?:\w+\s+)?(?:enkele|twee|drie|paar|\d+)\s+(?:dagen|weken)|alleen\s+(?:\w+\s+)?(?:online|via\s+(?:internet|chat|app)))\b[\s\S]{0,60}\b(?:(?:mijn\s+)?(?:schat|lieveling|engel|liefste)|mijn\s+(?:lief|hart|koningin)|ik\s+hou\s+van\s+je|verliefd\s+op\s+(?:jou|je)|lieve|dicht\s+bij\s+je|je\s+(?:foto|profiel)|van\s+iemand\s+gehouden|naar\s+(?:je|jou)\s+(?:toe|komen)|trouwen|weduwnaar|verliefd)\b|\b(?:(?:mijn\s+)?(?:schat|lieveling|engel|liefste)|mijn\s+(?:lief|hart|koningin)|ik\s+hou\s+van\s+je|verliefd\s+op\s+(?:jou|je)|lieve|dicht\s+bij\s+je|je\s+(?:foto|profiel)|van\s+iemand\s+gehouden|naar\s+(?:je|jou)\s+(?:toe|komen)|trouwen|weduwnaar|verliefd)\b[\s\S]{0,60}\b(?:booreiland|platform|schip|missie|leger|contract|douane|visum|vlucht|ticket|ziekenhuis|operatie|syrië|jemen|buitenland|arts|chirurg|ingenieur|militair|kapitein|vn|vliegveld|gestolen|verlof|zee)\b[\s\S]{0,60}\b(?:lenen|leen|help\s+me|helpen|overmaken|kosten|stuur\s+me|voorschieten|pas\b<15>\b(?:niet|geblokkeerd)|rekening\b<15>\b(?:niet|geblokkeerd)|tekort|betaal\b<12>\bterug|nodig|<amount>)\b|\b(?:(?:nog\s+)?(?:nooit|niet)\b<15>\b(?:gezien|ontmoet)|(?:pas|nog\s+maar)\s+(?:\w+\s+)?(?:enkele|twee|drie|paar|\d+)\s+(?:dagen|weken)|alleen\s+(?:\w+\s+)?(?:online|via\s+(?:internet|chat|app)))\b[\s\S]{0,60}\b(?:booreiland|platform|schip|missie|leger|contract|douane|visum|vlucht|ticket|ziekenhuis|operatie|syrië|jemen|buitenland|arts|chirurg|ingenieur|militair|kapitein|vn|vliegveld|gestolen|verlof|zee)\b[\s\S]{0,60}\b(?:lenen|leen|help\s+me|helpen|overmaken|kosten|stuur\s+me|voorschieten|pas\b<15>\b(?:niet|geblokkeerd)|rekening\b<15>\b(?:niet|geblokkeerd)|tekort|betaal\b<12>\bterug|nodig|<amount>)\b|\b(?:(?:mijn\s+)?(?:schat|lieveling|engel|liefste)|mijn\s+(?:lief|hart|koningin)|ik\s+hou\s+van\s+je|verliefd\s+op\s+(?:jou|je)|lieve|dicht\s+bij\s+je|je\s+(?:foto|profiel)|van\s+iemand\s+gehouden|naar\s+(?:je|jou)\s+(?:toe|komen)|trouwen|weduwnaar|verliefd)\b[\s\S]{0,60}\b(?:(?:leer|laat)\s+(?:ik\s+)?je\b<25>\b(?:trad\w+|handel\w+|invest\w+|crypto|verdien\w+)|(?:oom|tante|mentor)\b<40>\b(?:trad\w+|analist|crypto|beurs|handelsplatform))\b|)"
     R"(\b(?:любим(?:ая|ый)|мо[яй]\s+(?:любовь|королева|ангел|дорогая|дорогой)|милая|я\s+(?:тебя\s+)?люблю(?:\s+тебя)?|влюбил\w+\s+в\s+тебя|тво[йеёюя]\s+(?:фото\w*|анкет\w+|профил\w+)|приехать\s+к\s+тебе|жениться|вдовец|влюбил\w+|близк\w+\s+тебе)\b[\s\S]{0,60}\b(?:(?:никогда|ещё|еще)\s+не\s+(?:видел\w*|встречал\w*|виделись|встречались)|хотя\s+мы\s+не\s+(?:видел\w*|встречал\w*)|всего\s+(?:\w+\s+)?(?:недел\w+|дн\w+)|только\s+(?:по\s+переписке|в\s+интернете|онлайн))\b|\b(?:(?:никогда|ещё|еще)\s+не\s+(?:видел\w*|встречал\w*|виделись|встречались)|хотя\s+мы\s+не\s+(?:видел\w*|встречал\w*)|всего\s+(?:\w+\s+)?(?:недел\w+|дн\w+)|только\s+(?:по\s+переписке|в\s+интернете|онлайн))\b[\s\S]{0,60}\b(?:любим(?:ая|ый)|мо[яй]\s+(?:любовь|королева|ангел|дорогая|дорогой)|милая|я\s+(?:тебя\s+)?люблю(?:\s+тебя)?|влюбил\w+\s+в\s+тебя|тво[йеёюя]\s+(?:фото\w*|анкет\w+|профил\w+)|приехать\s+к\s+тебе|жениться|вдовец|влюбил\w+|близк\w+\s+тебе)\b|\b(?:любим(?:ая|ый)|мо[яй]\s+(?:любовь|королева|ангел|дорогая|дорогой)|милая|я\s+(?:тебя\s+)?люблю(?:\s+тебя)?|влюбил\w+\s+в\s+тебя|тво[йеёюя]\s+(?:фото\w*|анкет\w+|профил\w+)|приехать\s+к\s+тебе|жениться|вдовец|влюбил\w+|близк\w+\s+тебе)\b[\s\S]{0,60}\b(?:платформ\w+|корабл\w+|мисси\w+|арми\w+|контракт\w*|таможн\w+|виз\w+|перел[её]т\w*|билет\w*|больниц\w+|операци\w+|сири\w+|йемен\w*|врач|хирург|инженер|военный|капитан|оон|аэропорт\w*|украли|служб\w+)\b[\s\S]{0,60}\b(?:одолж\w+|помоги\w*|пришли|переведи\w*|оплатить|пошлин\w+|карт\w\b<15>\b(?:не|заблок\w+)|занять|не\s+хватает|верну|деньги|\d+\s+(?:тысяч|рублей|долларов))\b|\b(?:(?:никогда|ещё|еще)\s+не\s+(?:видел\w*|встречал\w*|виделись|встречались)|хотя\s+мы\s+не\s+(?:видел\w*|встречал\w*)|всего\s+(?:\w+\s+)?(?:недел\w+|дн\w+)|только\s+(?:по\s+переписке|в\s+интернете|онлайн))\b[\s\S]{0,60}\b(?:платформ\w+|корабл\w+|мисси\w+|арми\w+|контракт\w*|таможн\w+|виз\w+|перел[её]т\w*|билет\w*|больниц\w+|операци\w+|сири\w+|йемен\w*|врач|хирург|инженер|военный|капитан|оон|аэропорт\w*|украли|служб\w+)\b[\s\S]{0,60}\b(?:одолж\w+|помоги\w*|пришли|переведи\w*|оплатить|пошлин\w+|карт\w\b<15>\b(?:не|заблок\w+)|занять|не\s+хватает|верну|деньги|\d+\s+(?:тысяч|рублей|долларов))\b|\b(?:любим(?:ая|ый)|мо[яй]\s+(?:любовь|королева|ангел|дорогая|дорогой)|милая|я\s+(?:тебя\s+)?люблю(?:\s+тебя)?|влюбил\w+\s+в\s+тебя|тво[йеёюя]\s+(?:фото\w*|анкет\w+|профил\w+)|приехать\s+к\s+тебе|жениться|вдовец|влюбил\w+|близк\w+\s+тебе)\b[\s\S]{0,60}\b(?:(?:научу|покажу)\s+тебя?\w?\b<25>\b(?:трейд\w+|инвест\w+|крипт\w+|зарабат\w+)|(?:дядя|т[её]тя|наставник)\b<40>\b(?:трейд\w+|аналитик\w*|крипт\w+|бирж\w+))\b|)"
     R"((?:[亲親][爱愛]的|[宝寶][贝貝]|老婆|老公|我[爱愛]你|[爱愛]上你|你的照片|[离離]你很近|娶你|嫁[给給]我|[认認]定(?:了)?你|喜[欢歡](?:上)?你)[\s\S]{0,40}(?:(?:[还還])?[没沒](?:有)?[见見]?[过過]?面|未[曾谋謀][见見面]|才[认認][识識]|[认認][识識][\s\S]{0,4}(?:天|周|週|星期)|[网網]上(?:[认認][识識]|聊))|(?:(?:[还還])?[没沒](?:有)?[见見]?[过過]?面|未[曾谋謀][见見面]|才[认認][识識]|[认認][识識][\s\S]{0,4}(?:天|周|週|星期)|[网網]上(?:[认認][识識]|聊))[\s\S]{0,40}(?:[亲親][爱愛]的|[宝寶][贝貝]|老婆|老公|我[爱愛]你|[爱愛]上你|你的照片|[离離]你很近|娶你|嫁[给給]我|[认認]定(?:了)?你|喜[欢歡](?:上)?你)|(?:[亲親][爱愛]的|[宝寶][贝貝]|老婆|老公|我[爱愛]你|[爱愛]上你|你的照片|[离離]你很近|娶你|嫁[给給]我|[认認]定(?:了)?你|喜[欢歡](?:上)?你)[\s\S]{0,40}(?:[医醫]生|[军軍]人|工程[师師]|[联聯]合[国國]|休假|平台上|部[队隊]|任[务務]|油田|[钻鑽]井|船上|合同|海[关關]|[签簽][证證]|机票|機票|[医醫]院|手[术術]|[叙敘]利[亚亞]|也[门門]|[国國]外)[\s\S]{0,24}(?:借我|借[点點]|[帮幫]我[\s\S]{0,4}(?:付|交|[转轉]|[垫墊])|[转轉][给給]我|[费費]|卡[\s\S]{0,4}(?:[冻凍]|用不了)|[汇匯]|差[\s\S]{0,8}[元钱錢]|美[金元])|(?:(?:[还還])?[没沒](?:有)?[见見]?[过過]?面|未[曾谋謀][见見面]|才[认認][识識]|[认認][识識][\s\S]{0,4}(?:天|周|週|星期)|[网網]上(?:[认認][识識]|聊))[\s\S]{0,40}(?:[医醫]生|[军軍]人|工程[师師]|[联聯]合[国國]|休假|平台上|部[队隊]|任[务務]|油田|[钻鑽]井|船上|合同|海[关關]|[签簽][证證]|机票|機票|[医醫]院|手[术術]|[叙敘]利[亚亞]|也[门門]|[国國]外)[\s\S]{0,40}(?:借我|借[点點]|[帮幫]我[\s\S]{0,4}(?:付|交|[转轉]|[垫墊])|[转轉][给給]我|[费費]|卡[\s\S]{0,4}(?:[冻凍]|用不了)|[汇匯]|差[\s\S]{0,8}[元钱錢]|美[金元])|(?:[亲親][爱愛]的|[宝寶][贝貝]|老婆|老公|我[爱愛]你|[爱愛]上你|你的照片|[离離]你很近|娶你|嫁[给給]我|[认認]定(?:了)?你|喜[欢歡](?:上)?你)[\s\S]{0,40}(?:带你[\s\S]{0,4}[赚赚賺]|帶你[\s\S]{0,4}[賺赚]|教你[\s\S]{0,6}(?:投[资資]|炒|交易|[赚賺])|(?:叔叔|舅舅|阿姨|[导導][师師])[\s\S]{0,16}(?:交易所|分析|投[资資]|[内內]幕|平台))|)"
     R"((?:愛してい?る|愛してい?ます|愛しい|恋しました|近くに感じ|写真を見|プロフィール|結婚した|暮らしたい|ダーリン|ハニー|僕の女王|運命の人|大好き(?:です|だ)|私の(?:天使|王子|愛))[\s\S]{0,40}(?:(?:まだ)?(?:一度も)?会った?こと(?:が|は)?な|まだ会えて|会ってい?ない|知り合って(?:まだ)?[\s\S]{0,4}(?:日|週間)|ネットで(?:しか|知り合))|(?:(?:まだ)?(?:一度も)?会った?こと(?:が|は)?な|まだ会えて|会ってい?ない|知り合って(?:まだ)?[\s\S]{0,4}(?:日|週間)|ネットで(?:しか|知り合))[\s\S]{0,40}(?:愛してい?る|愛してい?ます|愛しい|恋しました|近くに感じ|写真を見|プロフィール|結婚した|暮らしたい|ダーリン|ハニー|僕の女王|運命の人|大好き(?:です|だ)|私の(?:天使|王子|愛))|(?:愛してい?る|愛してい?ます|愛しい|恋しました|近くに感じ|写真を見|プロフィール|結婚した|暮らしたい|ダーリン|ハニー|僕の女王|運命の人|大好き(?:です|だ)|私の(?:天使|王子|愛))[\s\S]{0,40}(?:医師|軍人|エンジニア|空港|盗まれ|休暇|任務|基地|船|油田|契約|税関|ビザ|航空券|飛行機|病院|手術|シリア|イエメン|海外|国連)[\s\S]{0,24}(?:貸して|助けて|立て替え|送って(?:ほしい|くれ|もらえ)|費用|手数料|足りま|必要です|万円|ドル|カードが(?:使え|止)|口座が(?:使え|凍結)|お金が)|(?:(?:まだ)?(?:一度も)?会った?こと(?:が|は)?な|まだ会えて|会ってい?ない|知り合って(?:まだ)?[\s\S]{0,4}(?:日|週間)|ネットで(?:しか|知り合))[\s\S]{0,40}(?:医師|軍人|エンジニア|空港|盗まれ|休暇|任務|基地|船|油田|契約|税関|ビザ|航空券|飛行機|病院|手術|シリア|イエメン|海外|国連)[\s\S]{0,40}(?:貸して|助けて|立て替え|送って(?:ほしい|くれ|もらえ)|費用|手数料|足りま|必要です|万円|ドル|カードが(?:使え|止)|口座が(?:使え|凍結)|お金が)|(?:愛してい?る|愛してい?ます|愛しい|恋しました|近くに感じ|写真を見|プロフィール|結婚した|暮らしたい|ダーリン|ハニー|僕の女王|運命の人|大好き(?:です|だ)|私の(?:天使|王子|愛))[\s\S]{0,40}(?:教えて(?:あげ|ます)[\s\S]{0,10}(?:投資|取引|稼)|(?:投資|取引|稼[ぐぎ])[\s\S]{0,10}教えて?(?:あげ|ます)|(?:叔父|おじ|先生|おば)[\s\S]{0,16}(?:投資|取引所|アナリスト|プラットフォーム))|)"
     R"((?:자기야|여보|내 ?사랑|사랑하게|반했|당신 ?사진|가까이 ?느|결혼하|사랑해|사랑하는|달링|허니|운명)[\s\S]{0,40}(?:(?:아직|한 ?번도) ?(?:한 ?번도 ?)?(?:만나|본|못 ?만)|만난 ?적 ?(?:은|이)? ?없|알게 ?된 ?지[\s\S]{0,6}(?:일|주)|온라인으로만|채팅으로만)|(?:(?:아직|한 ?번도) ?(?:한 ?번도 ?)?(?:만나|본|못 ?만)|만난 ?적 ?(?:은|이)? ?없|알게 ?된 ?지[\s\S]{0,6}(?:일|주)|온라인으로만|채팅으로만)[\s\S]{0,40}(?:자기야|여보|내 ?사랑|사랑하게|반했|당신 ?사진|가까이 ?느|결혼하|사랑해|사랑하는|달링|허니|운명)|(?:자기야|여보|내 ?사랑|사랑하게|반했|당신 ?사진|가까이 ?느|결혼하|사랑해|사랑하는|달링|허니|운명)[\s\S]{0,40}(?:의사|군인|군의관|엔지니어|공항|도난|휴가|파병|임무|부대|배 ?위|시추|계약|세관|비자|비행기|항공권|병원|수술|시리아|예멘|해외|유엔)[\s\S]{0,24}(?:빌려|도와 ?(?:줘|줄|주)|보내 ?(?:줘|줄|주)|부족|필요해|필요합|만 ?원|달러|통관비|수수료|비용|카드가 ?(?:안|막)|계좌가 ?(?:막|동결)|대신 ?내)|(?:(?:아직|한 ?번도) ?(?:한 ?번도 ?)?(?:만나|본|못 ?만)|만난 ?적 ?(?:은|이)? ?없|알게 ?된 ?지[\s\S]{0,6}(?:일|주)|온라인으로만|채팅으로만)[\s\S]{0,40}(?:의사|군인|군의관|엔지니어|공항|도난|휴가|파병|임무|부대|배 ?위|시추|계약|세관|비자|비행기|항공권|병원|수술|시리아|예멘|해외|유엔)[\s\S]{0,40}(?:빌려|도와 ?(?:줘|줄|주)|보내 ?(?:줘|줄|주)|부족|필요해|필요합|만 ?원|달러|통관비|수수료|비용|카드가 ?(?:안|막)|계좌가 ?(?:막|동결)|대신 ?내)|(?:자기야|여보|내 ?사랑|사랑하게|반했|당신 ?사진|가까이 ?느|결혼하|사랑해|사랑하는|달링|허니|운명)[\s\S]{0,40}(?:(?:투자|거래|코인)[\s\S]{0,8}(?:알려|가르쳐)[\s\S]{0,2}(?:줄|드|줘)|(?:삼촌|이모|멘토|선생님)[\s\S]{0,16}(?:투자|거래소|애널리스트|코인|플랫폼)))"},
    // The same before a meeting, with less around it: for a rule that counts beside `<suitor>`.
    {"<faraway>",
     R"(\b(?:never|not\s+yet|not\s+even|haven['’]t)\s+(?:\w+\s+)?(?:met|seen|touched)\b<15>\b(?:each\s+other|in\s+person|face\s+to\s+face|yet)\b|\b(?:days|weeks)\s+of\s+(?:chatting|writing|talking|messages)\b|\b(?:darling|sweetheart|my\s+(?:love|queen|king|angel|dearest|heart)|honey|soul\s?mate|(?:woman|man|one)\s+(?:god|of\s+my|i\s+(?:have\s+)?waited)|i\s+love\s+you|in\s+love\s+with\s+you|(?:fell|falling|fallen)\s+(?:\w+\s+)?in\s+love|so\s+close\s+to\s+you|your\s+(?:photo|profile|picture|smile)|my\s+(?:dear(?:est)?|soul)|marry\s+you|come\s+to\s+you|widow(?:er|ed)?)\b[\s\S]{0,60}\b(?:(?:oil\s+)?rig|ship|vessel|mission|army|base|contract|customs|visa|flight|ticket|hospital|surgery|syria|yemen|abroad|overseas|surgeon|doctor|engineer|soldier|captain|officer|airport|stranded|stuck|stolen|united\s+nations)\b|\b(?:darling|sweetheart|my\s+(?:love|queen|king|angel|dearest|heart)|honey|soul\s?mate|(?:woman|man|one)\s+(?:god|of\s+my|i\s+(?:have\s+)?waited)|i\s+love\s+you|in\s+love\s+with\s+you|(?:fell|falling|fallen)\s+(?:\w+\s+)?in\s+love|so\s+close\s+to\s+you|your\s+(?:photo|profile|picture|smile)|my\s+(?:dear(?:est)?|soul)|marry\s+you|come\s+to\s+you|widow(?:er|ed)?)\b[\s\S]{0,60}\b(?:(?:i|let\s+me|can)\s+(?:will\s+|can\s+)?(?:teach|show)\s+you\b<25>\b(?:trad\w+|invest\w*|crypto|earn|profits?|money)|(?:uncle|aunt|mentor|friend)\b<40>\b(?:trad\w+|analyst|crypto|exchange|platform|invest\w*))\b|)"
     R"(\b(?:(?:noch\s+)?(?:nie|nicht)\b<15>\b(?:getroffen|gesehen|begegnet)|erst\s+(?:seit\s+)?(?:\w+\s+)?(?:wenigen?|zwei|drei|einigen?|paar|\d+)\s+(?:tagen?|wochen)|nur\s+(?:\w+\s+)?(?:online|schreiben|chat\w*|internet))\b|\b(?:(?:mein\s+)?(?:schatz|liebling|engel|herz|süße[rn]?)|meine?\s+(?:liebe|königin|prinzessin)|ich\s+liebe\s+dich|in\s+dich\s+verliebt|liebste[rn]?|nah\b<6>\bfühl\w*|fühle?\s+mich\b<12>\bnah|(?:dein|deinem?)\s+(?:foto|profil|bild)|(?:komme|fliege)\s+(?:ich\s+)?(?:\w+\s+){0,2}zu\s+dir|dich\s+heirat\w+|witwer)\b[\s\S]{0,60}\b(?:bohrinsel|schiff|einsatz|armee|mission|vertrag|zoll|visum|flug|ticket|krankenhaus|operation|syrien|jemen|ausland|arzt|chirurg|ingenieur|soldat|offizier|kapitän|uno|flughafen|gestohlen|urlaubsantrag|bundeswehr|us-armee)\b|\b(?:(?:mein\s+)?(?:schatz|liebling|engel|herz|süße[rn]?)|meine?\s+(?:liebe|königin|prinzessin)|ich\s+liebe\s+dich|in\s+dich\s+verliebt|liebste[rn]?|nah\b<6>\bfühl\w*|fühle?\s+mich\b<12>\bnah|(?:dein|deinem?)\s+(?:foto|profil|bild)|(?:komme|fliege)\s+(?:ich\s+)?(?:\w+\s+){0,2}zu\s+dir|dich\s+heirat\w+|witwer)\b[\s\S]{0,60}\b(?:(?:zeige?|bringe?)\s+(?:ich\s+)?dir\b<25>\b(?:handel\w*|trad\w+|invest\w*|krypto|geld\s+verdien\w+)|(?:onkel|mentor|tante)\b<40>\b(?:trad\w+|analyst|krypto|börse|handelsplattform))\b|)"
     R"(\b(?:(?:jamais|pas\s+encore)\b<12>\b(?:vus?|rencontrée?s?|croisée?s?)|(?:depuis|que)\s+(?:\w+\s+)?(?:quelques|deux|trois|\d+)\s+(?:jours|semaines)|que\s+(?:par|sur)\s+(?:internet|messages?|tchat|chat))\b|\b(?:mon\s+(?:amour|cœur|coeur|ange|chéri|trésor|roi)|ma\s+(?:chérie|reine|belle)|chérie?|je\s+t['’]aime|amoureu\w+\s+de\s+(?:toi|vous)|ma\s+douce|proche\s+de\s+toi|(?:ta|ton|votre)\s+(?:photo|profil|sourire)|te\s+rejoindre|t['’]épouser|veuf|mon\s+(?:âme|bébé))\b[\s\S]{0,60}\b(?:plateforme|bateau|navire|mission|armée|contrat|douane|visa|vol|billet|hôpital|opération|syrie|yémen|étranger|mali|abidjan|chirurgien|médecin|ingénieur|soldat|capitaine|officier|onu|aéroport|volé|congé|avion|mer)\b|\b(?:mon\s+(?:amour|cœur|coeur|ange|chéri|trésor|roi)|ma\s+(?:chérie|reine|belle)|chérie?|je\s+t['’]aime|amoureu\w+\s+de\s+(?:toi|vous)|ma\s+douce|proche\s+de\s+toi|(?:ta|ton|votre)\s+(?:photo|profil|sourire)|te\s+rejoindre|t['’]épouser|veuf|mon\s+(?:âme|bébé))\b[\s\S]{0,60}\b(?:(?:t['’]apprendre|te\s+montrer|t['’]apprends|te\s+montre)\b<25>\b(?:trad\w+|investi\w+|crypto|gagner)|(?:oncle|mentor|tante)\b<40>\b(?:trad\w+|analyste|crypto|bourse|plateforme))\b|)"
     R"(\b(?:(?:mai|non\s+ancora|non\s+ci\s+siamo\s+(?:ancora\s+)?(?:mai\s+)?)\s*(?:vist[ie]|incontrat[ie]|conosciut[ie])|(?:da|solo)\s+(?:\w+\s+)?(?:poch[ie]|due|tre|\d+)\s+(?:giorni|settimane)|solo\s+(?:online|in\s+chat|su\s+internet))\b|\b(?:(?:mio\s+)?(?:amore|tesoro|angelo)|mia\s+(?:regina|vita|cara)|cara|ti\s+amo|innamorat[oa]\s+di\s+te|carissima|vicin[oa]|(?:tua|tuo)\s+(?:foto|profilo)|arrivo\s+da\s+te|venire\s+da\s+te|sposar\w+|vedovo|innamorat[oa])\b[\s\S]{0,60}\b(?:piattaforma|nave|missione|esercito|contratto|dogana|visto|volo|biglietto|ospedale|operazione|siria|yemen|estero|militare|chirurgo|medico|ingegnere|soldato|capitano|ufficiale|onu|aeroporto|rubato|congedo)\b|\b(?:(?:mio\s+)?(?:amore|tesoro|angelo)|mia\s+(?:regina|vita|cara)|cara|ti\s+amo|innamorat[oa]\s+di\s+te|carissima|vicin[oa]|(?:tua|tuo)\s+(?:foto|profilo)|arrivo\s+da\s+te|venire\s+da\s+te|sposar\w+|vedovo|innamorat[oa])\b[\s\S]{0,60}\b(?:(?:ti\s+(?:insegno|mostro|faccio\s+vedere))\b<25>\b(?:trad\w+|invest\w+|cripto\w*|guadagn\w+)|(?:zio|mentore|zia)\b<40>\b(?:trad\w+|analista|cripto\w*|borsa|piattaforma))\b|)"
     R"(\b(?:(?:nog\s+)?(?:nooit|niet)\b<15>\b(?:gezien|ontmoet)|(?:pas|nog\s+maar)\s+(?:\w+\s+)?(?:enkele|twee|drie|paar|\d+)\s+(?:dagen|weken)|alleen\s+(?:\w+\s+)?(?:online|via\s+(?:internet|chat|app)))\b|\b(?:(?:mijn\s+)?(?:schat|lieveling|engel|liefste)|mijn\s+(?:lief|hart|koningin)|ik\s+hou\s+van\s+je|verliefd\s+op\s+(?:jou|je)|lieve|dicht\s+bij\s+je|je\s+(?:foto|profiel)|van\s+iemand\s+gehouden|naar\s+(?:je|jou)\s+(?:toe|komen)|trouwen|weduwnaar|verliefd)\b[\s\S]{0,60}\b(?:booreiland|platform|schip|missie|leger|contract|douane|visum|vlucht|ticket|ziekenhuis|operatie|syrië|jemen|buitenland|arts|chirurg|ingenieur|militair|kapitein|vn|vliegveld|gestolen|verlof|zee)\b|\b(?:(?:mijn\s+)?(?:schat|lieveling|engel|liefste)|mijn\s+(?:lief|hart|koningin)|ik\s+hou\s+van\s+je|verliefd\s+op\s+(?:jou|je)|lieve|dicht\s+bij\s+je|je\s+(?:foto|profiel)|van\s+iemand\s+gehouden|naar\s+(?:je|jou)\s+(?:toe|komen)|trouwen|weduwnaar|verliefd)\b[\s\S]{0,60}\b(?:(?:leer|laat)\s+(?:ik\s+)?je\b<25>\b(?:trad\w+|handel\w+|invest\w+|crypto|verdien\w+)|(?:oom|tante|mentor)\b<40>\b(?:trad\w+|analist|crypto|beurs|handelsplatform))\b|)"
     R"(\b(?:(?:никогда|ещё|еще)\s+не\s+(?:видел\w*|встречал\w*|виделись|встречались)|хотя\s+мы\s+не\s+(?:видел\w*|встречал\w*)|всего\s+(?:\w+\s+)?(?:недел\w+|дн\w+)|только\s+(?:по\s+переписке|в\s+интернете|онлайн))\b|\b(?:любим(?:ая|ый)|мо[яй]\s+(?:любовь|королева|ангел|дорогая|дорогой)|милая|я\s+(?:тебя\s+)?люблю(?:\s+тебя)?|влюбил\w+\s+в\s+тебя|тво[йеёюя]\s+(?:фото\w*|анкет\w+|профил\w+)|приехать\s+к\s+тебе|жениться|вдовец|влюбил\w+|близк\w+\s+тебе)\b[\s\S]{0,60}\b(?:платформ\w+|корабл\w+|мисси\w+|арми\w+|контракт\w*|таможн\w+|виз\w+|перел[её]т\w*|билет\w*|больниц\w+|операци\w+|сири\w+|йемен\w*|врач|хирург|инженер|военный|капитан|оон|аэропорт\w*|украли|служб\w+)\b|\b(?:любим(?:ая|ый)|мо[яй]\s+(?:любовь|королева|ангел|дорогая|дорогой)|милая|я\s+(?:тебя\s+)?люблю(?:\s+тебя)?|влюбил\w+\s+в\s+тебя|тво[йеёюя]\s+(?:фото\w*|анкет\w+|профил\w+)|приехать\s+к\s+тебе|жениться|вдовец|влюбил\w+|близк\w+\s+тебе)\b[\s\S]{0,60}\b(?:(?:научу|покажу)\s+тебя?\w?\b<25>\b(?:трейд\w+|инвест\w+|крипт\w+|зарабат\w+)|(?:дядя|т[её]тя|наставник)\b<40>\b(?:трейд\w+|аналитик\w*|крипт\w+|бирж\w+))\b|)"
     R"((?:(?:[还還])?[没沒](?:有)?[见見]?[过過]?面|未[曾谋謀][见見面]|才[认認][识識]|[认認][识識][\s\S]{0,4}(?:天|周|週|星期)|[网網]上(?:[认認][识識]|聊))|(?:[亲親][爱愛]的|[宝寶][贝貝]|老婆|老公|我[爱愛]你|[爱愛]上你|你的照片|[离離]你很近|娶你|嫁[给給]我|[认認]定(?:了)?你|喜[欢歡](?:上)?你)[\s\S]{0,40}(?:[医醫]生|[军軍]人|工程[师師]|[联聯]合[国國]|休假|平台上|部[队隊]|任[务務]|油田|[钻鑽]井|船上|合同|海[关關]|[签簽][证證]|机票|機票|[医醫]院|手[术術]|[叙敘]利[亚亞]|也[门門]|[国國]外)|(?:[亲親][爱愛]的|[宝寶][贝貝]|老婆|老公|我[爱愛]你|[爱愛]上你|你的照片|[离離]你很近|娶你|嫁[给給]我|[认認]定(?:了)?你|喜[欢歡](?:上)?你)[\s\S]{0,40}(?:带你[\s\S]{0,4}[赚赚賺]|帶你[\s\S]{0,4}[賺赚]|教你[\s\S]{0,6}(?:投[资資]|炒|交易|[赚賺])|(?:叔叔|舅舅|阿姨|[导導][师師])[\s\S]{0,16}(?:交易所|分析|投[资資]|[内內]幕|平台))|)"
     R"((?:(?:まだ)?(?:一度も)?会った?こと(?:が|は)?な|まだ会えて|会ってい?ない|知り合って(?:まだ)?[\s\S]{0,4}(?:日|週間)|ネットで(?:しか|知り合))|(?:愛してい?る|愛してい?ます|愛しい|恋しました|近くに感じ|写真を見|プロフィール|結婚した|暮らしたい|ダーリン|ハニー|僕の女王|運命の人|大好き(?:です|だ)|私の(?:天使|王子|愛))[\s\S]{0,40}(?:医師|軍人|エンジニア|空港|盗まれ|休暇|任務|基地|船|油田|契約|税関|ビザ|航空券|飛行機|病院|手術|シリア|イエメン|海外|国連)|(?:愛してい?る|愛してい?ます|愛しい|恋しました|近くに感じ|写真を見|プロフィール|結婚した|暮らしたい|ダーリン|ハニー|僕の女王|運命の人|大好き(?:です|だ)|私の(?:天使|王子|愛))[\s\S]{0,40}(?:教えて(?:あげ|ます)[\s\S]{0,10}(?:投資|取引|稼)|(?:投資|取引|稼[ぐぎ])[\s\S]{0,10}教えて?(?:あげ|ます)|(?:叔父|おじ|先生|おば)[\s\S]{0,16}(?:投資|取引所|アナリスト|プラットフォーム))|)"
     R"((?:(?:아직|한 ?번도) ?(?:한 ?번도 ?)?(?:만나|본|못 ?만)|만난 ?적 ?(?:은|이)? ?없|알게 ?된 ?지[\s\S]{0,6}(?:일|주)|온라인으로만|채팅으로만)|(?:자기야|여보|내 ?사랑|사랑하게|반했|당신 ?사진|가까이 ?느|결혼하|사랑해|사랑하는|달링|허니|운명)[\s\S]{0,40}(?:의사|군인|군의관|엔지니어|공항|도난|휴가|파병|임무|부대|배 ?위|시추|계약|세관|비자|비행기|항공권|병원|수술|시리아|예멘|해외|유엔)|(?:자기야|여보|내 ?사랑|사랑하게|반했|당신 ?사진|가까이 ?느|결혼하|사랑해|사랑하는|달링|허니|운명)[\s\S]{0,40}(?:(?:투자|거래|코인)[\s\S]{0,8}(?:알려|가르쳐)[\s\S]{0,2}(?:줄|드|줘)|(?:삼촌|이모|멘토|선생님)[\s\S]{0,16}(?:투자|거래소|애널리스트|코인|플랫폼)))"},
    // Something is blocked, and data are to be entered.
    {"<lockout>",
     R"(\b(?:(?:account|acct|card|banking|profile|access|wallet|log-?ins?|mailbox)\b[\s\S]{0,40}\b(?:on\s+hold|restricted|blocked|locked|frozen|paused|limited|suspended|deactivated|disabled|flagged|odd|unusual|strange|suspicious|held|shut\s+down|stopped)|(?:hold\s+on|restricted|blocked|locked|froze|paused|closed|suspended|stopped|signed?\s+in(?:to)?|signing\s+in(?:to)?|logged\s+in(?:to)?)\b[\s\S]{0,25}\b(?:your|ur|as\s+you))\b<unasked><warning>(?=[\s\S]{0,140}\b(?:otherwise|or|before|within|today|now|immediately|again|midnight|secure\s+your|to\s+(?:lift|restore|unlock|secure|regain|keep|avoid|get)|2\s+unlock|back|until|minutes|hours|steps|as\s+soon\s+as)\b)[\s\S]{0,140}\b(?:(?:confirm|verify|prove|check|put\s+in|re-?enter|enter|provide|fill\s+in|log\s+?in|log\s+on|sign\s+in|tap|click|follow|press|use|open|visit|complete|unlock|lift|restore|reactivate|update|submit|upload)\b[\s\S]{0,35}\b(?:link|page|below|here|form|website|portal|your\s+data|button|verification|identity|who\s+you\s+are|selfie|password|passcode|card\s+number|your\s+details))\b|)"
     R"(\b(?:(?:conto|carta|account|spid|accesso|profilo|utenza|home\s+banking|postepay)\b[\s\S]{0,30}\b(?:disattivat\w+|bloccat\w+|sospes\w+|limitat\w+|scadut\w+|congelat\w+|disabilitat\w+|chius\w+))\b[\s\S]{0,60}\b(?:rifa\w*|aggiorn\w+|conferm\w+|verific\w+|inser\w+|invi\w+|mand\w+|carich\w+|complet\w+|ripristin\w+)\b[\s\S]{0,60}\b(?:riconoscimento|documento|selfie|credenziali|password|pin|codic[ei]|identità|numero\s+(?:di|della)\s+carta|dati\s+(?:personali|anagrafici|bancari))\b|)"
     R"(\b(?:(?:account|rekening|pas|bankpas|toegang|digid|profiel|internetbankieren|creditcard)\b[\s\S]{0,40}\b(?:geblokkeerd|beperkt|opgeschort|op\s+slot|verloopt|bevroren|gedeactiveerd|opgeheven|stopgezet|gesloten)|(?:ingelogd|aangemeld|ingelogt)\b[\s\S]{0,20}\b(?:op|in)\s+(?:je|uw))\b[\s\S]{0,90}\b(?:log|geef|vul|bevestig|voer|werk|update|verifieer|scan|activeer|vernieuw|controleer)\b[\s\S]{0,90}\b(?:scannercode|inlogcode|pincode|link|linkje|kaartnummer|beveiligingscode|wachtwoord|identiteit|betaalgegevens|qr-?code|inloggegevens|rekeningnummer)\b|)"
     R"(\b(?:cuenta|conta\b|tarjeta|cart[ãa]o|acces[oe]|acess[oe]|aceder|app\b|banca\b|homebanking|perfil|in[ií]cio\s+de|login|clave|senha|cadastro|banco\b|aplica[cç]|usuario|utilizador|servi[cç]io\b|correo|buz[óo]n|netflix|amazon|paypal|apple\b|whatsapp|instagram|facebook|token|firma\b|por\s+su\s+seguridad|por\s+seguran[çc]a)<estafa>(?![\s\S]{0,170}\b(?:si\s+fuiste|se\s+foi\s+voc|a\s+(?:su|tu)\s+petici|a\s+seu\s+pedido|si\s+no\s+(?:lo\s+)?(?:has\s+)?(?:solicit|ped)|se\s+n[ãa]o\s+(?:pediu|solicit)))(?=[\s\S]{0,150}\b(?:suspen|bloque|limit|restr[ie]n|desac?tiv|inhabil|deshabil|congel|cancel|inusual|sospech|suspeit|no\s+reconoc|n[ãa]o\s+reconhec|irregular|expir|caduc|encerr|cerrad|motivos\s+de|no\s+pas[óo]|inativ|inac?tiv|pausa|retenid|parad[ao]\b|perder|perd[ae]\b|raros?\b|estranh|extra[ñn]|an[óo]mal|desconocid|desconhecid|tentativ|interrump|interromp|de\s+baja|no\s+fue\s+usted|n[ãa]o\s+foi\s+voc|n[ãa]o\s+reconhe))(?=[\s\S]{0,150}\b(?:confirm|verifi|val[ií]d|actuali|atuali|regulari|introdu|ingres|insir|complet|preench|rellen|clique|clic\b|puls|pinch|aced[ae]|acced[ae]|acess[ae]|desbloque|reac?tiv|identif|met[ae]\b|pon\b|ponga|coloque|digit[ae]|inform[ea]\b|envi[ea]|mand[ea]\b|entr[ea]\b|abra\b|toque|carregue|apert|renov|renuev|restab|recuper|reveja|facilit|escan|vinc[uú]l|associ|corri[jg]|inici[ea]\b|acerte))[\s\S]{0,150}\b(?:enlace|link|liga\b|liga[çc][ãa]o|aqu[ií]|aki\b|p[áa]gina|sitio|site\b|formul|portal|da[td]os|identi|senha|contrase|clave|pin\b|ades[ãa]o|[\w-]+[.]\w|\d+\s?h|antes|caso\s+contr|de\s+lo\s+contr|ou?\s+ser[áa]|para\s+(?:no|n[ãa]o|evitar|volt|recup|desbl|reac?t)|bot[óo]n|bot[ãa]o|usuario|utilizador|c[óo]digo|documento|dni\b|cpf\b|nif\b|selfie|tarjeta|cart[ãa]o|qr\b|ahora|agora|de\s+nuevo|novamente|minutos|horas)|)"
     R"((?:(?:[账帳賬][户戶号號]|卡片|\d{4}的卡|[银銀]行卡|信用卡|[网網][银銀]|[会會][员員]|[钱錢]包|支付功能|登[录錄入])[\s\S]{0,14}(?:[限受]制|[冻凍][结結]|停用|[暂暫]停|[锁鎖]定|停[权權]|[注註][销銷]|失效|[过過]期|封停|止付|[关關][闭閉]|[终終]止|[异異]常))[\s\S]{0,60}(?:(?:[补補][录錄充]|重新|更新|填[写寫]|[输輸]入|[验驗][证證](?![码碼])|核[实實]|[认認][证證]|上[传傳])[\s\S]{0,10}(?:身[份分]|[证證]件|密[码碼]|卡[号號]|信用卡|安全[码碼]|[银銀]行卡|金融卡|[资資]料|[绑綁]定))|(?:(?:[补補][录錄充]|重新|更新|填[写寫]|[输輸]入|[验驗][证證](?![码碼])|核[实實]|[认認][证證]|上[传傳])[\s\S]{0,10}(?:身[份分]|[证證]件|密[码碼]|卡[号號]|信用卡|安全[码碼]|[银銀]行卡|金融卡|[资資]料|[绑綁]定))[\s\S]{0,30}(?:(?:[账帳賬][户戶号號]|卡片|\d{4}的卡|[银銀]行卡|信用卡|[网網][银銀]|[会會][员員]|[钱錢]包|支付功能|登[录錄入])[\s\S]{0,10}(?:[限受]制|[冻凍][结結]|停用|[暂暫]停|[锁鎖]定|停[权權]|[注註][销銷]|失效|[过過]期|封停|止付|[关關][闭閉]|[终終]止|[异異]常))|)"
     R"((?:(?:アカウント|口座|カード|ご利用|会員|ログイン|サービス)[\s\S]{0,14}(?:ロック|停止|制限|凍結|無効|失効|保留|削除|利用でき(?:な|ませ)|(?:確認)が?でき(?:な|ませ|ず)))[\s\S]{0,50}(?:(?:カード(?:番号|情報)|セキュリティコード|暗証番号|パスワード|本人(?:情報|確認)|個人情報|支払い?(?:情報|方法))[\s\S]{0,20}(?:更新|入力|再?登録|認証|変更)(?!され|いたしません))|)"
     R"((?:(?:계좌|계정|카드|출금|이체|접속|신분증|멤버십)[\s\S]{0,14}(?:제한|정지|차단|동결|잠금|잠겼|잠겨|중지|폐쇄|해지|탈퇴|보류|만료)(?![\s\S]{0,80}(?:영업점|방문|지점)))[\s\S]{0,50}(?:(?:비밀 ?번호|주민 ?(?:등록)? ?번호|카드 ?(?:번호|정보)|CVC|본인 ?(?:인증|확인)|개인 ?정보|계좌 ?(?:번호|정보)|보안 ?카드|결제 ?(?:정보|수단)|OTP)[\s\S]{0,12}(?:다시|등록|입력|인증|갱신|업데이트|제출)))"},
    // A parcel waits for a payment on a page.
    {"<heldparcel>",
     R"(\b(?:parcel|package|your\s+box|gift\s+sent|item\s+sent|customs|goods|import|shipment|deliver|delivery|courier|your\s+(?:item|order)|depot|drop\s+off)\b<warning>(?=[\s\S]{0,150}\b(?:could\s+not|couldn['’]t|unable|failed|missing|incomplete|wrong|held|stuck|waiting|unpaid|short|outstanding|pending|on\s+hold|returned|not\s+paid|go(?:es)?\s+back|damaged|owed|too\s+heavy|holding|customs)\b)[\s\S]{0,150}\b(?:(?:pay|paying|settle|cover|clear|fix|complete|rebook|arrange)\b[\s\S]{0,40}\b(?:fee|charge|costs?|difference|duty|duties|postage|amount|small\s+sum|the\s+button|link|here|this\s+page|below|online)|not\s+(?:paid|received)\s+by)\b|)"
     R"(\b(?:pacco|spedizione|raccomandata|consegna|corriere|plico|dogana|giacenza|poste\s+italiane|brt|gls|dhl)\b(?![\s\S]{0,120}\b(?:gratuit\w+|nulla|senza\s+costi|chi\s+clicca|truff\w+)\b)[\s\S]{0,80}\b(?:occorre\b<20>\b(?:versare|pagare|saldare)|versare|versi|paghi|paga|saldi|saldare|pagare|pagando|dazi\w*|oneri\s+doganali|spese\s+di\s+\w+|contributo)\b[\s\S]{0,80}\b(?:link|modulo\s+online|online|portale|carta|restituit\w+|mittente|[\w-]+[.](?:com|it|info|top|net|example|online|site))\b|)"
     R"(\b(?:pakket\w*|pakje|bezorger|bezorging|bezorgd|postnl|dhl|dpd|ups|zending|levering|douane|depot|brievenbus)\b(?![\s\S]{0,140}\b(?:niets|geen|gratis|al\s+betaald|wie\s+klikt|oplicht\w+)\b)[\s\S]{0,90}\b(?:betal\w+|betaal\w*|overmaken|voldo\w+|invoerrechten|verzendkosten|bijbetal\w+|inklaring\w*|douanekosten)\b[\s\S]{0,90}\b(?:link|linkje|betaallink|kaartgegevens|bankpas|qr-?code|vernietigd|retour\s+(?:afzender|gestuurd)|kaartnummer|ideal)\b|)"
     R"(\b(?:paquete|encomienda|encomenda|env[íi]o\b|pedido|objeto|mercanc|mercadoria|pacote|correos\b|correios|ctt\b|dhl|transport|aduan|alf[âa]nd|entreg|volume|bulto|repartid|entregad|mrw|seur|gls\b|dpd|ups\b|fedex|amazon|jadlog|domicilio|resid[eê]nci|reparto|paqueter|carteir|cartero|mensajer)<estafa>(?=[\s\S]{0,150}\b(?:pag[aou]|pague|abon[ae]|liquid|tasa|taxa|gastos|portes|frete|impuest|imposto|arancel|tarifa|costos?\b|custos?\b|coste\b|custo\b|cobr|diferen[cç]|tarjeta|cart[ãa]o|cubr|pagu))(?=[\s\S]{0,150}\b(?:reten|retid|pendi?ent|no\s+(?:\w+\s+)?(?:pud|podid)|n[ãa]o\s+(?:foi|consegu|p[ôo]de)|incomplet|incorrect|devuel|devol|falta|parad|aguarda|en\s+espera|bloque|ta[xs]ad|insuf|errad|no\s+cuadra|n[ãa]o\s+bate|segunda|corri[gj]|mal\b|leil|remi?tent|localiz|encontr|intento|tentativa|reprogr|reagend|re-?entreg|ausente|impos[ts]|destru|regres|desaduan|desalfand|nueva\s+fecha|nova\s+data))[\s\S]{0,150}\b(?:enlace|link|liga\b|aqu[ií]|p[áa]gina|sitio|site\b|web\b|portal|clic\b|clique|[\w-]+[.]\w|\d\s?(?:€|eur|pesos|reais)|r?[$]\s?\d|tarjeta|cart[ãa]o|bizum|pix\b|c[eé]ntavo|c[eê]ntim|ac[áa]\b)|)"
     R"((?:包裹|快[递遞件]|[邮郵]件|物流|[派配]送|[货貨]件|清[关關]|海[关關])[\s\S]{0,40}(?:[补補][缴繳交付]|重新[派配]送|[关關清][税稅]|[运運]費?[不未]|[运運][费費]|手[续續][费費]|滞[纳納]|保管[费費]|[改更][派址])[\s\S]{0,40}(?:[点點][击擊此我开開]|[链連][接结結]|[网網]址|[a-z0-9-]+[.][a-z]{2,8}\b|由此|以下|[银銀]行卡|[销銷][毁毀])|)"
     R"((?:(?:荷物|宅配|配達|配送|不在|通関|関税|小包|お届け)[\s\S]{0,50}(?:(?:手数料|関税|保管料|通関料|再配達料|追加料金|送料|\d+円)[\s\S]{0,10}(?:必要|未払|未納|支払|発生|不足)))[\s\S]{0,30}(?:カード|入力|リンク|こちら|URL|ページ|決済|[a-z0-9-]+[.][a-z]{2,8}\b)|)"
     R"((?:(?:택배|소포|배송|운송장|통관|물품|우편물|화물)[\s\S]{0,50}(?:(?:재배송|통관|관세|보관료|미납|추가|주소 ?(?:불일치|오류|불명))[\s\S]{0,16}(?:비|비용|수수료|원|료|금)))[\s\S]{0,40}(?:결제하|결제 ?후|납부하|링크|클릭|입력|카드 ?(?:정보|번호)|[a-z0-9-]+[.][a-z]{2,8}\b))"},
    // A toll or a fine is open, and a link leads to its payment.
    {"<unpaidtoll>",
     R"(\b(?:tolls?|expressway|motorway|freeway|turnpike|bridge|tunnel|crossing|drove|traffic|motor\s+vehicles|parking\s+(?:fine|ticket)|e-?zpass|fastrak|sunpass|congestion|your\s+vehicle|number\s+plate|license\s+plate)\b<warning>(?=[\s\S]{0,150}\b(?:unpaid|outstanding|you\s+(?:still\s+)?owe|owing|overdue|without\s+pay(?:ing|ment)|not\s+(?:been\s+)?paid|balance|unsettled|no\s+payment|still\s+open|without\s+a\s+(?:tag|ticket))\b)[\s\S]{0,150}\b(?:(?:pay|paying|settle|clear|take\s+care|resolve)\b[\s\S]{0,60}\b(?:now|today|tomorrow|tonight|online|link|site|website|below|here|avoid|or|before|within))\b|\b(?:unpaid|outstanding|you\s+(?:still\s+)?owe|owing|overdue|without\s+pay(?:ing|ment)|not\s+(?:been\s+)?paid|balance|unsettled|no\s+payment|still\s+open|without\s+a\s+(?:tag|ticket))\b<warning>(?=[\s\S]{0,120}\b(?:tolls?|expressway|motorway|freeway|turnpike|bridge|tunnel|crossing|drove|traffic|motor\s+vehicles|parking\s+(?:fine|ticket)|e-?zpass|fastrak|sunpass|congestion|your\s+vehicle|number\s+plate|license\s+plate)\b)[\s\S]{0,120}\b(?:(?:pay|paying|settle|clear|take\s+care|resolve)\b[\s\S]{0,60}\b(?:now|today|tomorrow|tonight|online|link|site|website|below|here|avoid|or|before|within))\b|)"
     R"(\b(?:pedaggi\w*|autostrad\w*|telepass|multa|casello|tangenziale|transito|ztl|pedemontana|parcheggio|contravvenzione)\b[\s\S]{0,90}\b(?:mancat\w+|non\s+(?:pagat\w+|saldat\w+|risulta)|insolut\w+|senza\s+pagare|arretrat\w+|sollecito|da\s+saldare|scadut\w+)\b[\s\S]{0,90}\b(?:link|sanzione|recupero\s+crediti|fermo|regolarizz\w+|saldi|maggiorazione|[\w-]+[.](?:com|it|info|top|net|example))\b|\b(?:sollecito|insolut\w+|mancat\w+\s+pagament\w+|non\s+(?:è\s+stat[oa]\s+)?pagat[oa])\b[\s\S]{0,90}\b(?:pedaggi\w*|autostrad\w*|veicolo|targa|multa|tangenziale|ztl|pedemontana)\b[\s\S]{0,90}\b(?:link|sanzione|recupero\s+crediti|fermo|regolarizz\w+|saldi|maggiorazione|[\w-]+[.](?:com|it|info|top|net|example))\b|)"
     R"(\b(?:tol\w*|vignet\w*|boetes?|cjib|verkeersboete\w*|parkeer\w+|snelweg|wegenbelasting|milieuzone)\b[\s\S]{0,90}\b(?:openstaand\w*|niet\s+(?:betaald|voldaan)|aanmaning|onbetaald\w*|achterstand|zonder\s+(?:geldig\s+)?(?:vignet|betaling|ticket)|herinnering|verschuldigd)\b[\s\S]{0,90}\b(?:link|qr-?code|qr|deurwaarder|beslag|verhoogd|verhoging|incasso\w*|betaalverzoek)\b|)"
     R"(\b(?:peaje|portage|ped[áa]gio|autopista|autoestrada|rodovia|via\s+verde|sem\s+parar|tag\b|dgt\b|estacionam|multa|coima|infra[cç]|matr[ií]cula|ve[ií]cul|veh[ií]cul|condutor|conductor|passage[mn]|tr[áa]nsitos?\b|trayecto|trajet|autov[ií]a|estrada|carretera|radar|zona\s+azul|velocid|patente|[ab]r?-?\d+\b|v[ií]a\s+de\s+pago|circul[óo]|circulou|placa\b)<estafa>(?=[\s\S]{0,170}\b(?:sin\s+(?:pagar|saldo|abon)|sem\s+(?:pag|saldo|ident)|no\s+(?:\w+\s+){0,2}(?:abonad|pagad)|n[ãa]o\s+(?:\w+\s+)?(?:pag|liquid|quit)|pendi?ent|impag|deuda|d[ée]bito|d[íi]vida|adeud|por\s+pagar|em\s+aberto|em\s+atraso|[úu]ltim[ao]\s+(?:avis|notif)|debe\b|deve\b|debes\b|deves\b|no\s+(?:consta|registr)|n[ãa]o\s+(?:consta|registr)|saldar|vencid|sin\s+dispositivo|sem\s+dispositivo|fotomulta|descuento|desconto))(?=[\s\S]{0,170}\b(?:pag[aou]r?\b|pague|abone|regulari|liquid|quite\b|introdu|cancele|efectiv|acerte|saldar|h[áa]galo|resolv))[\s\S]{0,170}\b(?:enlace|link|liga\b|aqu[ií]|p[áa]gina|sitio|site\b|web\b|portal|clic\b|clique|v[ií]nculo|endere[çc]o|[\w-]+[.]\w|recargo|sanci|multa\b|coima|embarg|execu|acr[ée]sc|juros|tarjeta|cart[ãa]o|pix\b|horas|multiplic|aument|hoy\b|hoje|d[íi]as)|)"
     R"((?:通行[费費]|[过過]路[费費]|\bETC|高速|[违違][章规規停]|停[车車][费費]|[罚罰][单單款]|[车車][辆輛主]|[车車]牌)[\s\S]{0,40}(?:未[缴繳付处處交支][清纳納费費理付]?|欠[费費缴款]|失效|[异異]常|逾期|待[缴繳处處]|未能扣|[尚仍]未)[\s\S]{0,40}(?:[点點][击擊此我]|[链連][接结結]|[网網]址|[a-z0-9-]+[.][a-z]{2,8}\b|由此|扫[码描]|掃[碼描]|二[维維][码碼])|(?:未[缴繳付处處交支][清纳納费費理付]?|欠[费費缴款]|失效|[异異]常|逾期|待[缴繳处處]|未能扣|[尚仍]未)[\s\S]{0,30}(?:通行[费費]|[过過]路[费費]|\bETC|高速|[违違][章规規停]|停[车車][费費]|[罚罰][单單款]|[车車][辆輛主]|[车車]牌)[\s\S]{0,30}(?:[点點][击擊此我]|[链連][接结結]|[网網]址|[a-z0-9-]+[.][a-z]{2,8}\b|由此|扫[码描]|掃[碼描]|二[维維][码碼])|)"
     R"((?:通行料|\bETC|高速|違反金|反則金|駐車|有料道路|自動車税|電気料金|水道料金|ガス料金)[\s\S]{0,50}(?:未納|未払|滞納|支払われて|お支払いが確認|確認でき(?:ませ|な)|残高不足)[\s\S]{0,50}(?:こちら|リンク|URL|下記|→|差し押さえ|法的|延滞金|[a-z0-9-]+[.][a-z]{2,8}\b)|(?:未納|未払|滞納|支払われて|お支払いが確認|確認でき(?:ませ|な)|残高不足)[\s\S]{0,40}(?:通行料|\bETC|高速|違反金|反則金|駐車|有料道路|自動車税|電気料金|水道料金|ガス料金)[\s\S]{0,40}(?:こちら|リンク|URL|下記|→|差し押さえ|法的|延滞金|[a-z0-9-]+[.][a-z]{2,8}\b)|)"
     R"((?:통행료|하이패스|과태료|범칙금|신호 ?위반|속도 ?위반|주차 ?위반|교통 ?(?:민원|법규|위반|범칙)|톨게이트|도로공사|무인 ?단속|차량)[\s\S]{0,50}(?:미납|고지서|부과|체납|연체|단속|과태료|위반)[\s\S]{0,50}(?:링크|클릭|앱을? ?(?:설치|다운)|아래 ?주소|압류|앱에서 ?확인|[a-z0-9-]+[.][a-z]{2,8}\b))"},
    // An office pays something back for account or card data.
    {"<officialrefund>",
     R"(\b(?:tax(?:es)?|tax\s+office|hmrc|irs|revenue|council|treasury|the\s+government|gov|rebate|energy\s+bill)\b<warning>(?=[\s\S]{0,150}\b(?:refund|rebate|owed|owes\s+you|government|overpaid|paid\s+too\s+much|repayment|eligible|entitled|unclaimed|paid\s+out|a\s+credit|back\s+to\s+you|sitting\s+here|waiting\s+for\s+you)\b)[\s\S]{0,150}\b(?:(?:claim|receive|collect|fill|enter|submit|follow|click|tap|complete|provide|need|apply|give\s+us|log\s+on|tell\s+us)\b[\s\S]{0,50}\b(?:link|here|below|page|secure|card|short\s+form|bank\s+log-?in|your\s+details|log-?in|before|lapses|expires))\b|)"
     R"(\b(?:inps|agenzia\s+delle\s+entrate|bonus\s+\w+|rimborso\s+(?:fiscale|irpef|imposte|canone)|sussidio|indennità)\b[\s\S]{0,90}\b(?:beneficiari\w+|accredito|spett\w+|diritto|\d+\s?(?:€|euro)|€\s?\d+)\b[\s\S]{0,90}\b(?:link|iban|carta|documento|tessera\s+sanitaria|busta\s+paga|buste\s+paga|dati\s+bancari|spid|indirizzo)\b|)"
     R"(\b(?:belastingdienst|teruggave|teruggaaf|\w*toeslag|uwv|duo|svb|restitutie|recht\s+op|belastingteruggave)\b[\s\S]{0,90}\b(?:\d+\s*euro|€\s?\d+|bedrag|terug\w*|tegoed)\b[\s\S]{0,90}\b(?:link|iban|bankpas|pincode|kaartnummer|foto\s+van|rekeningnummer|inloggegevens|digid)\b[\s\S]{0,90}\b(?:invul\w*|vul|bevestig\w*|stuur|doorgeven|geef|klik|upload\w*|vandaag|binnen|verval\w*|rekening)\b|)"
     R"(\b(?:agencia\s+trib|hacienda|aeat|autoridade\s+trib|finan[çc]as|receita\s+fed|irs\b|imposto|impuesto|sat\b|renta\b|declara|fiscal|tribut|segur\w+\s+social|inss|gobierno|governo|dian\b|sunat|tesor(?:er|o\b)|tesouro|ministerio|minist[ée]rio|ayuntamiento|c[âa]mara\b|prefeitura|irpf|iva\b|fgts|devoluci[óo]n\s+de\s+imp|receita\b|sii\b)<estafa>(?![\s\S]{0,200}\b(?:sin\s+necesidad|sem\s+necessidade|n[ãa]o\s+precisa|no\s+tiene\s+que)\b)(?=[\s\S]{0,180}\b(?:devoluc|devolv|reembols|restitui|saldo\s+a\s+favor|corresponde|direito|derecho|de\s+m[áa]s|a\s+mais|exceso|excesso|aprobad|aprovad|ingreso|liberad|ayuda|subs[ií]d|aux[ií]lio|abono|cobrar|sacad|saque|receber|recibir|disponib|dispon[ií]v|libera))(?=[\s\S]{0,180}\b(?:introdu|ingres[ea]|inform[ea]|indi(?:que|cando)|confirm|complet|preench|rellen|solic[ií]t|clique|clic\b|respond|captur|acced|acess[ea]|valid|facilit|ponga|digit[ea]|mand[ea]\b|entre\b|puls|clica|d[ée]nos|haga|act?uali[cz]))[\s\S]{0,180}\b(?:tarjeta|cart[ãa]o|cuenta|conta\b|banc[áa]ri|da[td]os|cvv|enlace|link|liga\b|formul|senha|palavra-passe|clave|rut\b|pix\b|iban|impreso|documento)|)"
     R"((?:退[税稅]|[补補][贴貼助]|津[贴貼]|退[款费費]|普[发發]|返[还還]|[结結]余|[节節]余|[医醫社]保)[\s\S]{0,50}(?:[领領]取|登[录錄]|[输輸]入|填[写寫]|[验驗][证證]|提供|上[传傳]|[认認][证證]|核[验驗]|申[领領])[\s\S]{0,50}(?:卡[号號]|[银銀]行卡|金融卡|密[码碼]|身[份分][证證]|[账帳賬][户戶号號]|三[码碼]|CVV|[验驗][证證][码碼]|[a-z0-9-]+[.][a-z]{2,8}\b)|)"
     R"((?:還付|給付金|過払|払い戻し|返金|補助金|支援金|払いすぎ|払い過ぎ)[\s\S]{0,50}(?:(?:マイナンバー|口座(?:番号|情報)?|暗証番号|カード(?:番号|情報)?|ATM)[\s\S]{0,20}(?:入力|登録|お手続|教えて|記入|操作|お持ち)(?![\s\S]{0,16}(?:ありませ|しない|しませ)))|)"
     R"((?:환급|지원금|보조금|돌려 ?드|과납|더 ?내신|미수령|장려금|숨은 ?(?:돈|보험))[\s\S]{0,50}(?:(?:ATM|현금 ?인출기|계좌 ?번호|비밀 ?번호|카드 ?번호|주민 ?(?:등록)? ?번호|신분증|인증 ?번호|OTP|링크)[\s\S]{0,24}(?:입력|누르|눌러|불러|알려 ?주세|가셔|클릭|설치|찍어|앞으로)))"},
    // A prize, and a fee to be paid for it.
    {"<prizefee>",
     R"(\b(?:you(?:['’]ve|\s+have|\s+are|\s+were|r)?\s+(?:been\s+)?(?:\w+\s+){0,4}(?:won|winner|selected|picked|chosen|drawn)|winner|lucky|we\s+(?:picked|chose)\s+you|lottery|foundation|(?:number|address|name|ticket)\s+(?:was|has\s+been|came)\s+(?:selected|drawn|picked|chosen|out)|congratulations)\b<local><warning>(?=[\s\S]{0,150}\b(?:iphone|phone|machine|voucher|tablet|million|dollars|pounds|euros|cash|prize|gift\s+card|car|tv|laptop|trip|reward|jackpot|\d{3,})\b)[\s\S]{0,150}\b(?:(?:pay|cover|settle|claim|collect|redeem|tap|click|send|confirm|fill|write)\b[\s\S]{0,45}\b(?:shipping|postage|transport|just\s+\d|handling|delivery|fee|taxes|customs|charge|below|here|link|full\s+name|date\s+of\s+birth|passport|lawyer|agent|card|before\s+midnight))\b|)"
     R"(\b(?:vinto|vincit\w+|complimenti|congratulazioni|premio|estratt[oa]|visitatore|sondaggio)\b[\s\S]{0,90}\b(?:paga|pagare|paghi|versi|versare|coprire|coprendo)\b[\s\S]{0,90}\b(?:spedizione|spese|tassa|contributo|imposta|notarili|sdoganamento)\b|)"
     R"(\b(?:gewonnen|winnaar|gefeliciteerd|prijs|hoofdprijs|cadeaubon|\w*loterij|uitgeloot|verloting|winactie)\b[\s\S]{0,90}\b(?:verzendkosten|administratiekosten|\w*belasting|notaris\w*|borg|bezorgkosten|vrij\s+te\s+geven|vrijgave|handelingskosten)\b[\s\S]{0,90}\b(?:voldoen|betal\w+|betaal\w*|overmak\w+|maak|creditcard|kaartgegevens|<amount>)\b|)"
     R"(\b(?:ganador|ganhador|vencedor|ganas\w*|gan[oó]\b|ganhou|ganhaste|premia|sortea|sorteo|sorteio|rifa|loter[ií]a|lotaria|favorecid|sele?ccionad|selecionad|concurso|cliente\s+n[úu]m|visitante|premio|pr[êé]mio|elegid|escolhid|llevart|llevars|toc[óo]\b|agraciad|contemplad)<estafa>(?=[\s\S]{0,170}\b(?:pag[aou]|pague|abon|cubr|env[ií][ae]|m[áa]nd[ae]|m[áa]nden|transf|deposit|me\s+pass|p[áa]s[ae]|haga|clique|d[ée]nos|levant|cobrar|solo\b|s[óo]\b|apenas|[úu]nicamente|contest|respond|rellen|preench))(?=[\s\S]{0,170}\b(?:de\s+env[ií]o|frete|transporte|portes|gasto|tasa|taxa|impuest|impost|seguro|tarjeta|cart[ãa]o|cuenta|conta\b|notari|abogad|advogad|da[td]os|documento|c[ée]dula|pix\b|tr[áa]mite|porte|coste|custo|gesti|gest[ãa]o|libera[cç]|direcci|endere[çc]|morada|el\s+env[ií]o|pasaporte|passaporte))[\s\S]{0,170}\b(?:iphone|samsung|m[óo]vil|celular|telem|coche|carro|camioneta|tv\b|vale\b|bono|\d{3,}|\d[.]\d{3}|euros|d[óo]lar|reais|mill?[oõ]|viaje|viagem|premio|pr[êé]mio|cupom|freidora|fritad|air\s?fryer|cesta|cabaz|regalo|brinde|port[áa]til|televis|patinete|playstation|ps5|dinero|dinheiro|producto)|)"
     R"((?:[中得][奖獎]|抽中|抽[选選]|幸[运運]|[奖獎][品金]|[恭贺賀]喜)[\s\S]{0,60}(?:先[交付转轉]|[须須需][先交支付缴繳]|[缴繳][纳納]|支付|[补補]交|[垫墊]付|[承][担擔])[\s\S]{0,60}(?:公[证證]|手[续續]|[运運][费費]|[邮郵][费費]|[税稅]|保[证證]金|[费費]用|押金)|)"
     R"((?:当選|当たりました|当たった|抽選で|選ばれ|おめでとう|プレゼント)[\s\S]{0,50}(?:送料|手数料|税金|発送料|保証金|事務手数料)[\s\S]{0,50}(?:カード|支払[いえっ]|払って|払えば|振り?込|入力|だけ)|)"
     R"((?:당첨|경품|추첨|선정되|공짜|축하)[\s\S]{0,60}(?:배송비|수수료|택배비|보증금|처리비|등록비)[\s\S]{0,60}(?:결제|입금|송금|카드|이체))"},
    // A relative on a strange telephone needs money.
    {"<kinneeds>",
     R"(\b(?:mamma|papà|nonn[ao]|zi[ao]|babbo)\b(?![\s\S]{0,160}\b(?:polizia|truff\w+)\b)[\s\S]{0,140}\b(?:numero\s+nuovo|nuovo\s+numero|altro\s+numero|raffreddore|(?:telefono|cellulare)\b[\s\S]{0,30}\b(?:caduto|rotto|water|rubato|perso|acqua|scheda)|tuo\s+nipote|amico\s+mio|(?:è\s+caduto|rotto|perso)\b[\s\S]{0,16}\b(?:telefono|cellulare))\b[\s\S]{0,140}\b(?:pagament\w+|bonifico|contanti|soldi|ricarica\w*|iban|oro|prest(?:armi|ami|ito)|<amount>)\b|)"
     R"(\b(?:mam|mama|mams|pap|papa|oma|opa|tante|oom|ma|pa|zus|broer)\b(?![\s\S]{0,160}\b(?:politie|oplicht\w+)\b)[\s\S]{0,130}\b(?:(?:nieuw|ander|tijdelijk)\w*\s+(?:nummer|telefoon|mobiel|toestel|sim\w*)|(?:telefoon|mobiel|gsm|toestel)\b[\s\S]{0,20}\b(?:kapot|gestolen|kwijt|gevallen|stuk|gejat)|nummer\s+van\s+(?:een|mijn)\s+\w+|ander\s+nummer)\b[\s\S]{0,130}\b(?:overmaken|overma\w+|maak\w*|betalen|betaal|rekening|lenen|leen|voorschiet\w*|geld|euro)\b|)"
     R"(\b(?:mam[áaãi]|m[ãa]e\b|pap[áai]\b|pai\b|v[óôo]\b|av[óô]|vov[óô]|abuel|t[íi][oa]\b|hij[oa]\b(?!\s+dice)|filh[oa]\b(?!\s+diz)|herman[oa]|prim[oa]\b|sobrin|niet[oa]|irm[ãa]|mami\b|mamita|papi\b|m[ãa]ezinha|padrin|madrin|amig[oa]\b|soy\s+tu|sou\s+(?:eu\s+)?(?:o\s+|a\s+)?(?:tu|seu|sua|teu|tua))<estafa>(?=[\s\S]{0,190}\b(?:n[úu]mero|m[óo]vil|celular|cel\b|telem|tel[ée]fon|tlf|chip\b|ecr[ãa]|pantalla|gr[úu]a|guincho|coche|carro\b))(?=[\s\S]{0,190}\b(?:rot[oa]|romp|avari|estrag|quebr|ca[ií]d|cay[óo]|caiu|rob|perd|agua|[áa]gua|nuev|nov[oa]\b|cambi|troqu|mudei|otro|outro|provis|de\s+una?\s+amig|de\s+uma?\s+amig|apuro|sufoco|sin\s+(?:celular|m[óo]vil|tel)|sem\s+(?:celular|telem)|compa[ñn]er|colega|no\s+(?:me\s+)?(?:carga|funciona|enciende)|n[ãa]o\s+(?:carrega|liga|funciona)|bloque|aver[ií]|molh|moj|parti\b|arranj|arregl|tirad[oa]\b|parad[oa]\s+|solo\s+(?:cobra|acepta)|s[óo]\s+aceita))(?=[\s\S]{0,190}\b(?:pag[aou]|pague|bizum|pix\b|transf|prest|dinero|dinheiro|plata\b|efectivo|factura|fatura|mb\s?way|euros|pesos|reais|\d{3,}|fianza|consign|dep[óo]sit|alquiler|aluguel|renda\b|recarga|compra\b))[\s\S]{0,190}\b(?:puedes|pod[ée]s|podr[íi]as|pode\b|necesit|precis|consegue|faz\b|fazes|faças|hazme|haces|hac[ée]rme|hacerla|prest|devuelv|devolv|te\s+(?:lo\s+)?(?:pago|doy)|pago-te|manda|ayuda|ajuda|falta|passe\b|prisa|pressa|urg|adelant|adiant|tem\s+como|d[áa]s?\s+(?:para|pra)|me\s+dejas|me\s+arr)|)"
     R"((?:[妈媽]|爸|奶奶|[爷爺]{2}|外[婆公]|姥[姥爷爺]|[叔姑舅姨伯]|哥|姐|老[公婆]|[儿兒]子|[侄孫孙]子)(?![\s\S]{0,100}(?:警[方察]|[诈詐骗騙]))[\s\S]{0,70}(?:(?:手[机機]|[电電][话話]|[号號][码碼]?|微信)[\s\S]{0,10}(?:[坏壞掉丢丟摔停]|[进進]水|[没沒][电電]|借|同[学學]|朋友|新|[换換]|修|[厕廁]所|登不)|(?:同[学學]|朋友|[别別]人)的?(?:手[机機]|[电電][话話]|[号號]|微信))[\s\S]{0,70}(?:[转轉汇匯](?:[给給到账帳款]|\d)|打[钱錢到]|[垫墊]|[费費]\d|\d+[元块塊万萬]|[万千萬][元块塊]?|急[用需]|借[我点點]|交[学學押培][费費金]?)|)"
     R"((?:お?母さん|お?父さん|ママ|パパ|ばあちゃん|じいちゃん|おばさん|おじさん|母ちゃん|父ちゃん|オレ|俺だ|姉さん|兄さん|おばあさん|おじいさん)(?![\s\S]{0,120}(?:警察|詐欺))[\s\S]{0,80}(?:(?:番号|携帯|スマホ|ケータイ|電話|アドレス|LINE)[\s\S]{0,14}(?:変わ|かわ|変え|かえ|替え|壊|こわ|落と|おと|なくし|水没|新し|買い替|修理|友達|借り|紛失))[\s\S]{0,80}(?:振り?込|ふりこ|貸して|貸し(?:て|ても)|立て替え|払わない|払えない|足りな|足りなく|お金|\d+万|示談)|)"
     R"((?:엄마|아빠|어머니|아버지|할머니|할아버지|이모|고모|삼촌|누나|언니|오빠|여보|형)(?![\s\S]{0,120}(?:경찰|사기|피싱))[\s\S]{0,80}(?:(?:번호|폰|핸드폰|휴대폰|전화기?|액정|유심|카톡)[\s\S]{0,14}(?:바뀌|바뀐|바꿨|바꾼|깨|고장|망가|잃어|분실|수리|친구|빌려|물에|안 ?[돼되]|먹통|임시)|(?:친구|다른) ?(?:폰|번호|핸드폰))[\s\S]{0,80}(?:(?:만 ?원|\d만|돈|이체|송금|입금|결제|상품권|계좌|잔금|월세)[\s\S]{0,40}(?:줘|주세요|줄래|줄 ?수|주실|부탁|빌려|모자라|급하|급해|필요|드릴게|갚)))"},
    // Police or a court, a crime, and money or secrecy.
    {"<policecall>",
     R"(\b(?:customs\s+office|this\s+is\s+agent|you\s+are\s+named|criminals|detective|officer|sergeant|inspector|constable|police|sheriff|marshal|fraud\s+(?:squad|team|unit|department)|federal\s+agent|fbi|warrant|investigators?|social\s+security\s+number|prosecutor|arrested)\b<warning>(?=[\s\S]{0,180}\b(?:warrant|arrest\w*|jury|jail|drugs?|laundering|your\s+identity|suspects?|at\s+risk|compromised|innocen\w+|custody|undercover|handcuffs|burglars?|stay\s+silent|empty\s+your|do\s+not\s+tell|don['’]t\s+tell|tell\s+no\s+one|nobody|to\s+yourself|secret|stay\s+on\s+the\s+line|insiders?)\b)[\s\S]{0,180}\b(?:(?:withdraw|take|move|transfer|hand|pay|buy|put|settle|keep|give)\b[\s\S]{0,45}\b(?:cash\s+out|jewel\w+|cash\s+safe|account\s+we|crypto\w*|bitcoin|money|safe|secure\s+account|bond|bail|courier|kiosk|atm|gold|gift\s+cards|savings))\b|)"
     R"(\b(?:(?:carabinieri|maresciallo|polizia|questura|guardia\s+di\s+finanza|procura|tribunale|comandante|ispettore|interpol|europol|avvocato|citazione)\b(?![\s\S]{0,160}\b(?:mai|truffator[ei]|fals[io]|riagganci\w+|diffida\w+|112|truff[ae])\b))\b[\s\S]{0,130}\b(?:incidente|investito|indagat\w+|arrest\w+|carcere|denunci\w+|reat[oi]|frode|furto|rapina|riciclaggio|clonat\w+)\b[\s\S]{0,130}\b(?:cauzione|contanti|gioielli|oro|ammenda|bonifico|non\s+(?:ne\s+)?(?:parl\w+|dica)|riservatezza|conto\s+sicuro|codic[ei]|pagamento|consegn\w+|48\s+ore|prelev\w+)\b|)"
     R"(\b(?:(?:politie|rechercheur|agent|wijkagent|recherche|fraudedesk|fraudeafdeling|officier\s+van\s+justitie|marechaussee|inspecteur)\b(?![\s\S]{0,160}\b(?:nooit|waarschuw\w+|nepagent\w*|oplichters?|trap\s+er)\b))\b[\s\S]{0,120}\b(?:aangehouden|verdacht\w*|inbrekers?|onderzoek|fraude|lijst|arrestatie|misbruik\w*|witwas\w*|identiteit|overboeking|bende|ongeluk|aangereden)\b[\s\S]{0,120}\b(?:sieraden|contant\w*|cash|pinpas|bankpas|pincode|veiligstellen|veilig\s+te\s+stellen|veilige?\s+rekening|kluisrekening|overmaken|niemand|anydesk|meegeven|afgeven|ophalen|borgsom|goud)\b|)"
     R"(\b(?:polic[ií]|guardia\s+civil|pol[ií]cia|inspe[ct]+or|delegad|comandante|comisar|esquadra|delegacia|interpol|europol|fiscal|minist[ée]rio|juzgado|tribunal|juez|juiz|dete[ct]+ive|abogad|advogad|agente\b|mandado|orden\s+de|su\s+hij|(?:o\s+)?seu\s+filh|una?\s+nombre|unidad|delitos|crimes\b|procurad|sargento|capit[áa]n|oficial\b|brigada|departamento\s+de|c[ée]dula|cpf\b|curp\b|nif\b)<estafa>(?=[\s\S]{0,210}\b(?:arrest|deten[ic]|detid|pres[oa]\b|prisi|pris[ãa]o|c[áa]rcel|cadeia|blanque|lava[dg]|branqueam|delit|crim|investiga|droga|tr[áa]fico|narco|fraud|acc?ident|denunci|cautelar|sospech|suspeit|processo|causa\b|clonad|robad|roubad|ciber|hacker|implicad|imputad|atropell|herid[oa]|ferid[oa]|grave\b|prend[ie]))(?=[\s\S]{0,210}\b(?:transf|fianza|fian[çc]a|cau[çc]|efectivo|dinero|dinheiro|pag[aou]|pague|pix\b|ahorros|poupan|joyas|j[óo]ias|multa|saque|saldo|retir|deposit|cuenta\s+(?:segura|protegida)|conta\s+segura|tarjeta|cart[ãa]o|a\s+salvo|proteg|econom|mand[ae]|entreg|oro\b|ouro|cripto|cajero))[\s\S]{0,210}\b(?:no\s+(?:\w+\s+){0,2}(?:cuent|dig|coment|cuelg|habl)|n[ãa]o\s+(?:cont|dig|coment|deslig|fal)|nadie|ningu[ée]m|secret|sigilo|confiden|evitar|hoy\b|hoje|inm?ediat|imediat|urgent|recog|entr[eé]g|cust[óo]di|no\s+cuelg|en\s+l[ií]nea|em\s+linha|recolh|buscar|segura|protegida|a\s+su\s+nombre|em\s+seu\s+nome|en\s+su\s+contra|48|lo\s+contr|caso\s+contr|discret|discri?[çc]|indiqu|silenci|sil[êe]nci|ahora|agora|mensajer|motoboy|pasar[áa]|vai\s+passar|no\s+(?:\w+\s+){0,2}cort)|)"
     R"((?:(?:公安|[检檢]察|[检檢]方|警[察官方局]|法院|[刑经經][侦偵警]|派出所|地[检檢]署|[网網]警|通信管理|通管局|[银銀]保[监監]|金管[会會]|[电電]信局|出入境|大使[馆館]|健保[署局]|[医醫]保局)(?![\s\S]{0,120}(?:都?是[诈詐]|[骗騙]子|96110|\b165\b|切勿|[谨謹]防|警惕|不[会會]要求|[绝絕]不[会會]|受[骗騙]|不[会會](?:通[过過]|以)|呼[吁籲]|[防被][诈詐]?[骗騙])))[\s\S]{0,60}(?:涉[嫌及案]|洗[钱錢]|[通拘][缉緝捕留]|逮捕|冒[用名]|非法|案件|[传傳]票|[冻凍][结結]|名下|[贩販]毒|[绑綁]架|[掳擄]人)[\s\S]{0,60}(?:保密|不要告[诉訴]|不[要得能可准][\s\S]{0,6}(?:[说說]|透露|[挂掛][断斷电電])|[转轉][到入账帳]|[现現][金款]|[资資]金|[财財][产產]|[监監]管|保[证證释釋]金|共享|[视視][频頻訊讯]|下[载載]|[汇匯]|密[码碼]|不公[开開]|存款|清[查点點])|)"
     R"((?:(?:警察|県警|府警|道警|警視庁|検察|検事|捜査|刑事|総務省|厚労省|金融庁|銀行協会|入管|大使館|生活安全|国民生活)(?![\s\S]{0,140}(?:注意喚起|ご?注意ください|ことは(?:絶対に)?ありません|詐欺が|不審な電話|手口|騙され|だまされ)))[\s\S]{0,70}(?:犯罪|詐欺|事件|容疑|逮捕|不正|悪用|名義|資金洗浄|マネーロ|押収|リスト|示談|事故)[\s\S]{0,70}(?:暗証番号|カード[\s\S]{0,14}(?:渡|預|封筒|交換|回収)|現金|振り?込|送金|口座[\s\S]{0,10}(?:調査|移|調べ)|保釈|ビデオ通話|LINE|秘密|口外|誰にも|伺い|伺う|資産|保護)|)"
     R"((?:(?:검찰|지검|검사|수사관|수사대|경찰|형사|금감원|금융감독원|법원|사이버 ?수사|국세청|우체국|카드사|출입국|대사관)(?![\s\S]{0,140}(?:사칭|주의하|보이스 ?피싱|조심|속지|의심|신고하|않습니다|예방)))[\s\S]{0,70}(?:명의|도용|대포|세탁|범죄|연루|사건|영장|구속|불법|소환|체포|피의자|개설|유출|사고)[\s\S]{0,70}(?:안전 ?계좌|이체|송금|옮기|옮겨|현금|인출|비밀|말씀하시면|말하지|알리지|기밀|앱을?|설치|텔레그램|영상 ?통화|숙소|모텔|계좌 ?(?:번호|정보)|자산|예금|보호|합의금|보석금))"},
    // Easy tasks, daily pay, and a messenger to write to.
    {"<chatjob>",
     R"(\b(?:assistant|you\s+passed|part[-\s+]?time|full[-\s+]?time|recruit\w*|hiring|hr|job|role|position|your\s+(?:resume|cv|profile)|vacanc\w+|looking\s+for\s+people|we\s+hire|package\s+handlers|shopping\s+platform|remote|from\s+home|work\s+account)\b<warning>(?=[\s\S]{0,190}\b(?:(?:per|each|every)\s+(?:day|click|task|like|review)|hours?\s+a\s+day|a\s+day|\d+\s+(?:dollars\s+|pounds\s+|euros\s+)?(?:daily|weekly)|monthly|paid\s+(?:daily|out|every\s+day)|rating|like\s+videos|first\s+pay|(?:good|positive)\s+reviews|better\s+paid|simple\s+tasks|commission|no\s+experience|you\s+earn|earn)\b)[\s\S]{0,190}\b(?:whatsapp|telegram|(?:text|message|write)\s+me\s+on|(?:add|contact)\s+(?:our|my|the)\s+(?:manager|mentor|hr)|training\s+package|top\s+up|recharge|signal|viber|copy\s+of\s+your\s+id|want\s+details)\b|)"
     R"(\b(?:lavor\w+|guadagn\w+|collabora\w+|offerta|posizione|smart\s+working|part[- ]time|reddito|arrotond\w+)\b[\s\S]{0,90}\b(?:like|mi\s+piace|recension\w+|video|hotel|app|telefono|cellulare|compiti|semplic\w+|minut\w+|senza\s+esperienza|pacchi|da\s+casa|prodott\w+)\b[\s\S]{0,90}\b(?:\d+\s?(?:€|euro)|€\s?\d+|al\s+giorno|commission\w+|settiman\w+)\b[\s\S]{0,90}\b(?:whats\s?app|telegram|signal|in\s+privato)\b|)"
     R"(\b(?:bijverdien\w*|thuiswerk\w*|bijbaan\w*|bijverdienste|thuis|zoeken\s+mensen|online\s+werk\w*)\b[\s\S]{0,90}\b(?:bankrekening|betalingen|pakket\w*|pakjes|likes?|liken|reviews?|beoordel\w+|taken|taakjes|telefoon|uurtje\w*|minuten|ervaring|hotels?)\b[\s\S]{0,90}\b(?:\d+\s*(?:euro|€|%)|€\s?\d+|cash|commissie|uitbetal\w*|per\s+dag)\b[\s\S]{0,90}\b(?:whats\s?app|telegram|snap\w*|dm|app\s+(?:me|mij|naar)|signal|insta\w*)\b|)"
     R"(\b(?:trabaj|trabalh|empleo|emprego|vacante|vaga\b|recursos\s+humanos|rh\b|extra\b|desde\s+casa|(?:em|de)\s+casa|home\s?office|medio\s+tiempo|part[-\s]?time|reclut|recrut|contrat|gana[rs]?\b|ganh[ae]|oferta|oportunidad|a[yj]udantes|tienda|loja\b|tarefas|tareas|perfil|buscamos|procuramos|teletrab|valorar|avaliar|sof[áa]\b|ofrecemos|oferecemos|necesitamos|precisamos|cobr[ae]s?\b|ingresos?\b|renda\b|colaborador|puesto|curro)<estafa>(?![\s\S]{0,240}\b(?:segur\w+\s+social|pasar?\s+por|pás[ae]te|trae\b|traiga|traga|carteira\s+assinada|presencial)\b)(?=[\s\S]{0,240}\b(?:me\s+gusta|like|curt[iu]|gostos|v[ií]deos|hotel|hot[ée]is|rese[ñn]|avali|eval|produc?to|tareas?\b|tarefa|m[óo]vil|celular|telem|experi[eê]nc|sencill|f[áa]ci[ls]|minutos|pedidos|desde\s+casa|(?:em|de)\s+casa|recarg|en\s+l[ií]nea|online|restaurant|rese[ñn]|google\s+maps|tiktok|instagram|youtube|reels|an[úu]nci|encuest|pesquis|captura|print|apps?\b|tiempo\s+libre|tempo\s+livre|paquetes|pacotes|reservar|plataforma))(?=[\s\S]{0,240}\b(?:\d+[.,]?\d*\s?(?:€|eur|d[óo]l|usd|pesos|reais|mil\b)|(?:€|[$])\s?\d|al\s+d[ií]a|por\s+d[ií]a|di[áa]ri|al\s+mes|por\s+m[êe]s|por\s+cada|semanal|jornada|cada\s+noche|toda\s+noite|comis))[\s\S]{0,240}\b(?:whats|telegram|wpp|zap\b|wsp|recarg|escr[ií]b[ea]|me\s+chama|chama\b|privado|retir|saque|a[ñn][áa]de|agr[ée]ga|adicion|respond|mensag|mensaj|dime\b|diga\b|info\b|inbox|a[ñn]ad|registr|deposit[ae]s?\b|jef[ea]\b)|)"
     R"((?:[线線]上|兼[职職差]|副[业業]|打工|[远遠]程|居家|在家|人[资資事]|履[历歷]|手[机機]|招[聘募]|[闲閒]暇|[诚誠][招聘])[\s\S]{0,50}(?:分[钟鐘]|[点點按][赞讚]|[评評][价價]|刷[单單]|[抢搶][单單]|[无無]需[经經]|[轻輕簡简][松鬆單单]|名[额額]|[关關]注|任[务務]|[时時]间自由|時間自由|商品)[\s\S]{0,50}(?:日[领領薪结結入]|月入|[赚賺]|佣金|\d+\s?[元块塊]|[~～\-至到]\s?\d{3,}|[现現][结結]|返[佣利现])[\s\S]{0,50}(?:LINE|微信|WhatsApp|Telegram|TG|QQ|加[我Vv微]|[飞飛][机機]|私[讯訊聊信我]|[联聯][系繫]|助理)|)"
     R"((?:在宅|副業|お仕事|バイト|スマホ|スキマ|隙間|求人|募集)[\s\S]{0,60}(?:いいね|スクショ|動画|レビュー|口コミ|フォロー|タスク|簡単|誰でも|未経験|コピペ|荷物|タップ|\d+分)[\s\S]{0,60}(?:円|報酬|日給|月収|稼[げぎぐ]|日払い)[\s\S]{0,60}(?:LINE|ライン|テレグラム|Telegram|DM|WhatsApp|アシスタント|友だち追加)|)"
     R"((?:재택|부업|알바|투잡|모집|구인|집에서|누구나)[\s\S]{0,50}(?:좋아요|구독|리뷰|미션|클릭|후기|댓글|체험|핸드폰|휴대폰|간단|하루|시간|쇼핑몰)[\s\S]{0,50}(?:건당|일당|당일|수익|만 ?원|천 ?원|지급|원씩|수당)[\s\S]{0,50}(?:텔레그램|카톡|카카오|라인|오픈 ?채팅|디엠|DM|팀장|매니저|톡 ?주))"},
    // Gift cards, and their codes to be sent.
    {"<cardcodes>",
     R"(\b(?:(?:with|using|buy|get|pick\s+up|grab|purchase|load|need)\b[\s\S]{0,50}\b(?:apple|steam|google\s+play|amazon|itunes|ebay|roblox|gift|razer|xbox|target|walmart|vanilla|prepaid|visa))\b<party><warning>(?=[\s\S]{0,105}\b(?:cards?|vouchers?|codes)\b)[\s\S]{0,105}\b(?:scratch\w*|codes?|the\s+numbers|(?:pictures?|photos?|pics?|snap)\s+of|the\s+back|pay\s+you\s+back|reimburse\s+you|give\s+you\s+the\s+money)\b|)"
     R"(\b(?:gift\s?card|buon[oi]\s+(?:amazon|regalo|apple)|paysafe\w*|carte?\s+regalo|itunes|google\s+play|steam|ricarich[ea]\s+(?:paysafe\w*|itunes|apple))\b[\s\S]{0,60}\b(?:(?:invi\w+|mand\w+|foto\w*|gratt\w+|comunic\w+|dett\w+|girar?\w*)\b[\s\S]{0,25}\bcodic[ei])\b|\b(?:gift\s?card|buon[oi]\s+(?:amazon|regalo|apple)|paysafe\w*|carte?\s+regalo|itunes|google\s+play|steam|ricarich[ea]\s+(?:paysafe\w*|itunes|apple))\b[\s\S]{0,60}\b(?:codic[ei])\b[\s\S]{0,60}\b(?:invi\w+|mand\w+|foto\w*|comunic\w+|dett\w+)\b|)"
     R"(\b(?:cadeaukaart\w*|cadeaubon\w*|gift\s?card\w*|paysafe\w*|itunes\w*|steam\w*|google\s+play\w*|apple-?kaart\w*|tegoedkaart\w*|bol\w*bon\w*)\b[\s\S]{0,80}\b(?:kras\w*|codes?|nummers?|achterkant|bonnetje)\b[\s\S]{0,80}\b(?:stuur|app|mail|geef|doorsturen|sturen|appen|mailen|doorgeven|foto)\b|)"
     R"(\b(?:tarjetas?\s+(?:de\s+)?(?:regalo|prepago|amazon|apple|google|steam|itunes)|gift\s?card|cart\w+\s+(?:amazon|apple|google|steam|itunes|xbox)|cart\w+[-\s]presente|vale[-\s](?:presente|oferta)|vales\s+(?:d|presente)|google\s+play|itunes|steam|paysafe|play\s+store|cart\w+\s+d[ae]\s+(?:apple|google|amazon|steam)|tarjetas\s+de)<estafa>(?=[\s\S]{0,170}\b(?:c[óo]digo|n[úu]meros|foto|rasc|rasp|reverso|verso|claves|lo\s+que\s+pone|o\s+que\s+est[áa]|detr[áa]s|atr[áa]s|r[áa]sc|numera))[\s\S]{0,170}\b(?:m[áa]nda(?:me|mos|los|las)|env[ií][ae]-?(?:me|los|las|nos|mos)|me\s+(?:mand|envi|pass|pas)|p[áa]same|reembols|devuelv|devolv|te\s+(?:lo\s+)?pago|pago-te|acertamos|envi[aá]rme|conseguir|mand[ea]\s+(?:a|o|as|os|la|el|los)\s+(?:foto|c[óo]d)|m[áa]nda|pass?[ae]r?-?me|hago\s+(?:una\s+)?transf|fa[çc]o\s+(?:um\s+)?pix|te\s+(?:hago|fa[çc]o)|sorpr|surpre)|)"
     R"(\b(?:подарочн\w+\s+(?:карт\w+|сертификат\w*)|карт\w+\s+(?:пополнени\w+|оплаты|steam|apple|itunes|google)|steam|itunes|google\s+play)\b[\s\S]{0,60}\b(?:отправ\w+|пришли\w*|скинь\w*|сфотограф\w+|продиктуй\w*|перешли\w*|вышли\w*|сообщи\w*)\b[\s\S]{0,60}\b(?:код\w*|номер\w*|фото\w*)\b|\b(?:подарочн\w+\s+(?:карт\w+|сертификат\w*)|карт\w+\s+(?:пополнени\w+|оплаты|steam|apple|itunes|google)|steam|itunes|google\s+play)\b[\s\S]{0,60}\b(?:код\w*|фото\w*)\b[\s\S]{0,60}\b(?:отправ\w+|пришли\w*|скинь\w*|продиктуй\w*|перешли\w*|вышли\w*)\b|)"
     R"((?:[买買]|[购購]|便利店|超商|[帮幫]我)[\s\S]{0,40}(?:[礼禮][品物]卡|[点點][数數]卡?|E卡|[购購]物卡|充值卡|[游遊][戏戲]卡|iTunes|Steam|GASH|MyCard|[苹蘋]果卡)[\s\S]{0,40}(?:卡密|刮[开開]|序[号號列]|密[码碼]|[拍照][\s\S]{0,4}[发發傳传]|[发發傳传回報报][给給我])|)"
     R"((?:(?:コンビニ|セブン|ローソン|ファミマ|Amazon|アマゾン|アップル|Apple|iTunes|Google|グーグル|プリペイド|ギフト|電子マネー|ビットキャッシュ|ウェブマネー)[\s\S]{0,12}(?:カード|券|ギフト|マネー|番号))[\s\S]{0,40}(?:番号|コード|シリアル|裏面|レシート|スクラッチ|削っ)[\s\S]{0,40}(?:教え|送って|送れ|伝え(?:て|くだ|下)|お伝え|写真|撮って|読み上げ|お?知らせ(?:て|くだ))|)"
     R"((?:상품권|기프트 ?카드|구글 ?(?:플레이|기프트)|문상|컬쳐랜드|해피머니|편의점)[\s\S]{0,40}(?:사서|사고|사 ?줘|사다|구매|구입|급하게|필요|만 ?원어치|대신)[\s\S]{0,40}(?:(?:핀 ?번호|뒷면|코드|일련 ?번호|영수증|번호)[\s\S]{0,20}(?:보내|찍|알려|전송|톡|불러)))"},
    // A payment that is to go to a new account.
    {"<newaccount>",
     R"(\b(?:(?:bank|bank\s+account|our\s+account|usual\s+account|iban|payment\s+details|bank\s+details)\b[\s\S]{0,40}\b(?:changed|closed|closing|under\s+audit|being\s+audited|frozen|no\s+longer|switched|on\s+file|instead)|changing\s+accounts|(?:new|different|another|updated)\s+(?:bank|account|iban|sort\s+code|payment\s+details|bank\s+details))\b<warning>(?=[\s\S]{0,130}\b(?:invoices?|bills|payments?|due|funds|deposit|wire|remittances?|bill|balance)\b)[\s\S]{0,130}\b(?:(?:pay|send|wire|transfer|remit|go|settled|paid|use)\b[\s\S]{0,60}\b(?:the\s+account\s+at|in\s+place\s+of|below|attached|instead|new\s+(?:account|iban|bank|one)|rather\s+than|following\s+account))\b|\b(?:(?:pay|send|wire|transfer|remit|go|settled|paid|use)\b[\s\S]{0,60}\b(?:the\s+account\s+at|in\s+place\s+of|below|attached|instead|new\s+(?:account|iban|bank|one)|rather\s+than|following\s+account))\b<warning>(?=[\s\S]{0,130}\b(?:invoices?|payments?|due|funds|wire|closing|bill|confirm|attached)\b)[\s\S]{0,130}\b(?:(?:bank|bank\s+account|our\s+account|usual\s+account|iban|payment\s+details|bank\s+details)\b[\s\S]{0,40}\b(?:changed|closed|closing|under\s+audit|being\s+audited|frozen|no\s+longer|switched|on\s+file|instead)|changing\s+accounts|(?:new|different|another|updated)\s+(?:bank|account|iban|sort\s+code|payment\s+details|bank\s+details))\b|)"
     R"(\b(?:bonific\w+|versat\w+|vers\w+|pag\w+|acconto|caparra|fattur\w+|saldo|giralo|giri|accredit\w+)\b(?![\s\S]{0,140}\b(?:segreteria|espost[oi]|stampat[oi]|bacheca|assemblea|di\s+persona)\b)[\s\S]{0,100}\b(?:(?:nuov\w+|divers\w+|altr\w+|aggiornat\w+)\s+(?:\w+\s+)?(?:iban|conto|coordinate)|conto\s+(?:\w+\s+)?divers\w+)\b[\s\S]{0,100}\b(?:mail|oggi|entro|contabile|urgen\w+|allegat\w+|telefon\w+|istantaneo|in\s+giornata)\b|\b(?:(?:nuov\w+|divers\w+|altr\w+|aggiornat\w+)\s+(?:\w+\s+)?(?:iban|conto|coordinate)|conto\s+(?:\w+\s+)?divers\w+)\b(?![\s\S]{0,140}\b(?:segreteria|espost[oi]|stampat[oi]|bacheca|assemblea|di\s+persona)\b)[\s\S]{0,100}\b(?:bonific\w+|versat\w+|vers\w+|pag\w+|acconto|caparra|fattur\w+|saldo|giralo|giri|accredit\w+)\b[\s\S]{0,100}\b(?:mail|oggi|entro|contabile|urgen\w+|allegat\w+|telefon\w+|istantaneo|in\s+giornata)\b|)"
     R"(\b(?:factu\w+|betal\w+|voldoen|overmak\w+|over\s+te\s+maken|maak|aanbetaling)\b(?![\s\S]{0,140}\b(?:op\s+papier|haast\s+is|persoonlijk|penningmeester|vergadering)\b)[\s\S]{0,90}\b(?:(?:nieuwe?|ander|gewijzigd\w*|buitenlands\w*|onderstaand\w*|tijdelijk\w*)\s+(?:iban|rekening|rekeningnummer|bankrekening|bankrekeningnummer|bankgegevens))\b[\s\S]{0,90}\b(?:mail\w*|bijlage|vandaag|telefo\w+|bereikbaar|spoed|direct|bevestig\w*|per\s+omgaande)\b|\b(?:(?:nieuwe?|ander|gewijzigd\w*|buitenlands\w*|onderstaand\w*|tijdelijk\w*)\s+(?:iban|rekening|rekeningnummer|bankrekening|bankrekeningnummer|bankgegevens))\b(?![\s\S]{0,140}\b(?:op\s+papier|haast\s+is|persoonlijk|penningmeester|vergadering)\b)[\s\S]{0,90}\b(?:factu\w+|betal\w+|voldoen|overmak\w+|over\s+te\s+maken|maak|aanbetaling)\b[\s\S]{0,90}\b(?:mail\w*|bijlage|vandaag|telefo\w+|bereikbaar|spoed|direct|bevestig\w*|per\s+omgaande)\b|)"
     R"(\b(?:(?:nuev[ao]|nov[ao]|otr[ao]|outr[ao]|sigui?ente|seguinte|difer\w+|esta)\s+(?:\w+\s+)?(?:cuenta|conta\b|iban|nib\b|banco|clabe|cbu|pix\b|chave)|(?:cuenta|conta|iban|chave|banco)\s+(?:nuev|nov|difer)|(?:cambi|mud|alter|troc)\w*\s+(?:de\s+|o\s+|el\s+|a\s+|la\s+|nuestr\w+\s+)?(?:banco|cuenta|conta\b|iban)|da[td]os\s+(?:de\s+pago|banc)|iban\s+(?:de\s+abajo|abaixo|adjunt|em\s+anexo)|(?:cuenta|conta)\s+(?:habitual|anterior|antigua|antiga|del?\s+presup)|(?:otr[oa]|outr[oa]|nuev[oa]|nov[oa])\s+n[úu]mero\s+de\s+(?:cuenta|conta)|(?:cuenta|conta)\s+(?:de\s+si?empre|adjunta|anexa|abaixo)|de[ij]x?\w+\s+de\s+us)<estafa><enmano>(?=[\s\S]{0,150}\b(?:factur|fatura|pag[aou]|pague|transfer|abon[ae]|boleto|nota\b|liquid|anticipo|sinal))(?=[\s\S]{0,150}\b(?:cambi|mud|alter|auditor|cerrad|encerrad|operativ|no\s+(?:us|pag|llam)|n[ãa]o\s+(?:us|pag|lig|mais)|a\s+partir|anterior|antig|en\s+lugar|em\s+vez|son\s+otros|indispon|bloque|desconsider|cierr|fecha))[\s\S]{0,150}\b(?:hoy|hoje|comprobante|justificante|comprovat|urgen|adjunt|anex|no\s+(?:us|llam)|n[ãa]o\s+(?:us|lig)|anterior|pendi?ent|sigui?ente|seguinte|todas|todos|paso\b|segue\b|nuev[oa]|nov[oa]\b)|\b(?:factur|fatura|pag[aou]|pague|transfer|abon[ae]|boleto|nota\b|presup|saldo)<estafa><enmano>(?=[\s\S]{0,150}\b(?:(?:nuev[ao]|nov[ao]|otr[ao]|outr[ao]|sigui?ente|seguinte|difer\w+|esta)\s+(?:\w+\s+)?(?:cuenta|conta\b|iban|nib\b|banco|clabe|cbu|pix\b|chave)|(?:cuenta|conta|iban|chave|banco)\s+(?:nuev|nov|difer)|(?:cambi|mud|alter|troc)\w*\s+(?:de\s+|o\s+|el\s+|a\s+|la\s+|nuestr\w+\s+)?(?:banco|cuenta|conta\b|iban)|da[td]os\s+(?:de\s+pago|banc)|iban\s+(?:de\s+abajo|abaixo|adjunt|em\s+anexo)|(?:cuenta|conta)\s+(?:habitual|anterior|antigua|antiga|del?\s+presup)|(?:otr[oa]|outr[oa]|nuev[oa]|nov[oa])\s+n[úu]mero\s+de\s+(?:cuenta|conta)|(?:cuenta|conta)\s+(?:de\s+si?empre|adjunta|anexa|abaixo)|de[ij]x?\w+\s+de\s+us))[\s\S]{0,150}\b(?:cambi|mud[ao]|mudar|alter|auditor|cerrad|encerr|son\s+otros|no\s+(?:us|pag|llam)|n[ãa]o\s+(?:us|pag|lig)|erro\b|indispon|desconsider|anterior|no\s+al\b|n[ãa]o\s+no\b|guardad|problema|ruego|rogamos|pe[çc]o\b|solicit|urg|nuestr[oa]\s+(?:entidad|banco)|a\s+nombre\s+de\s+mi|em\s+nome\s+d[eo]\s+meu|no(?:ss)?o\s+banco|bloque|justific|comprov|el\s+otro|o\s+outro|adjunt|anex)|)"
     R"((?:改|[请請]|[烦煩]|款[项項]?|[货貨]款|尾款)(?![\s\S]{0,120}(?:[亲親]自|本人到|[当當]面|[柜櫃][台檯]|公告[栏欄]|前台|携[带帶]))[\s\S]{0,30}(?:[汇匯付打转轉存][\s\S]{0,8}(?:[至到入]))[\s\S]{0,30}(?:(?:新|附件|下列|另[一外]|其他|[变變更][更換换]|[关關][联聯]|境外|香港|海外|[离離]岸)[\s\S]{0,10}[账帳賬][户戶号號])|(?:(?:原|[旧舊]|之前的?|先前的?)[\s\S]{0,6}[账帳賬][户戶号號])[\s\S]{0,40}(?:[审審][计計]|停[用止]|[暂暫]停|[冻凍][结結]|[注註][销銷]|[无無]法|不再)[\s\S]{0,40}(?:[汇匯转轉付打][款到至入账帳])|)"
     R"((?:(?:振り?込|口座|送金|入金|お支払い?)先?[\s\S]{0,24}(?:変更|新し|新口座|誤り|訂正|別の|関連会社|海外|香港|監査|凍結)(?![\s\S]{0,120}(?:窓口|紙で|本人が|ご?持参|直接|管理人)))[\s\S]{0,60}(?:送金|振り?込|お支払い|入金)[\s\S]{0,60}(?:本日|至急|今日|午前|返信|メール|着金|電話|お急ぎ|までに)|)"
     R"((?:(?:기존|이전|종전|주거래|거래 ?은행|감사|세무|신규|새로운|새|변경된?|바뀐|다른|해외)[\s\S]{0,14}계좌(?![\s\S]{0,120}(?:직접|방문|가지고|지참|접수|관리사무소|비치)))[\s\S]{0,50}(?:송금|입금|이체|결제|지급|대금)[\s\S]{0,50}(?:부탁|바랍|주세요|주십시오|주시|요망|회신))"},
    // Wages that are to go to a new account, or a page that asks for it.
    {"<newsalary>",
     R"(\b(?:my\s+(?:next\s+|last\s+)?(?:salary|wages?|pay|paychec?[kq]u?e?|payroll|direct\s+deposit))\b<byhand>(?=[\s\S]{0,150}\b(?:(?:new|different|another)\s+(?:bank|account|routing|iban|one)|switched\s+banks?|changed?\s+(?:banks?|accounts?)|account\s+number|routing)\b)[\s\S]{0,150}\b(?:can\s+you|could\s+you|please|would\s+like|what\s+do\s+you\s+need|no\s+longer|this\s+pay\w*|next\s+pay\w*|before|today|effective)\b|\b(?:update|change|switch|swap|move|opened\s+an?\s+(?:new|different)|open\s+another|new\s+(?:checking\s+)?account|shut|wages)\b<byhand>(?=[\s\S]{0,110}\b(?:can\s+you|could\s+you|please|if\s+i\s+send|in\s+time|i\s+need\s+(?:the|it|my)|need\s+you|from\s+me|today|before|this\s+pay\w*|next\s+pay\w*)\b)[\s\S]{0,110}\b(?:my\s+(?:next\s+|last\s+)?(?:salary|wages?|pay|paychec?[kq]u?e?|payroll|direct\s+deposit)|account\s+my\s+(?:salary|wages?|pay)|money\s+sent|wages)\b|)"
     R"(\b(?:(?:ho\s+)?cambiato\s+(?:banca|conto)|nuov[oa]\s+(?:iban|conto|banca)|aggiornar\w*|modific\w+|variazione|sostitu\w+)\b(?![\s\S]{0,140}\b(?:segreteria|espost[oi]|stampat[oi]|bacheca|assemblea|di\s+persona)\b)[\s\S]{0,100}\b(?:iban|conto|coordinate|carta)\b[\s\S]{0,100}\b(?:stipendi\w*|emolument\w+|busta\s+paga|mensilità|cedolino)\b|\b(?:stipendi\w*|emolument\w+|busta\s+paga|mensilità|cedolino)\b(?![\s\S]{0,140}\b(?:segreteria|espost[oi]|stampat[oi]|bacheca|assemblea|di\s+persona)\b)[\s\S]{0,100}\b(?:iban|conto|carta\s+conto|coordinate)\b[\s\S]{0,100}\b(?:aggiorn\w+|cambi\w+|nuov\w+|precedente|modific\w+|chius[oa]|divers\w+|in\s+luogo)\b|)"
     R"(\b(?:salaris\w*|loon|loonbetaling|uitbetaling)\b(?![\s\S]{0,140}\b(?:op\s+papier|haast\s+is|persoonlijk|penningmeester|vergadering)\b)[\s\S]{0,90}\b(?:iban|rekening|rekeningnummer|bankrekening|bank|bankgegevens)\b[\s\S]{0,90}\b(?:aanpass\w+|pas|wijzig\w+|ontvangen|gestort|storten|overgestapt|nieuwe?|ander\w*|bijwerk\w+|verander\w+)\b|\b(?:overgestapt|andere\s+bank|nieuwe\s+(?:bank|rekening)|van\s+bank\s+(?:ge)?wissel\w*)\b(?![\s\S]{0,140}\b(?:op\s+papier|haast\s+is|persoonlijk|penningmeester|vergadering)\b)[\s\S]{0,90}\b(?:salaris\w*|loon|loonbetaling|uitbetaling)\b|\b(?:salaris\w*|loon|loonbetaling|uitbetaling)\b(?![\s\S]{0,140}\b(?:op\s+papier|haast\s+is|persoonlijk|penningmeester|vergadering)\b)[\s\S]{0,90}\b(?:aanpass\w+|pas|wijzig\w+|ontvangen|gestort|storten|overgestapt|nieuwe?|ander\w*|bijwerk\w+|verander\w+)\b[\s\S]{0,90}\b(?:iban|rekening|rekeningnummer|bankrekening|bank|bankgegevens)\b|)"
     R"(\b(?:n[óo]mina|sueldo|sal[áa]rio|ordenado|vencimento|quincena|planilla|haberes|me\s+pagu[ée]|receber\s+(?:em|no)|cobrar\s+en|mi\s+paga\b)<estafa><enmano>(?=[\s\S]{0,160}\b(?:cambi|alter|mud|actuali|atuali|modific|nuev|nov[ao]\b|otr[ao]\b|outr[ao]\b|fecha|encerr|cierr|cerrad|troc))(?=[\s\S]{0,160}\b(?:cuenta|conta\b|iban|nib\b|clabe|cbu|cci\b|banco|chave))[\s\S]{0,160}\b(?:mi\b|mis\b|me\b|meus?\b|minha|\w+rme\b|les?\s+(?:dejo|paso)|te\s+(?:dejo|paso|mando)|deixo|dejo|segue\b|necesito|preciso|podr[ií]as|pode\b)|\b(?:(?:mi|mis|meus?|minha|otro|n?outro|mia)\s+(?:\w+\s+)?(?:cuenta|conta\b|iban|nib\b|banco|clabe|cbu|da[td]os)|cuenta\s+donde|conta\s+onde|ya\s+no\s+uso|j[áa]\s+n[ãa]o\s+uso)<estafa><enmano>(?=[\s\S]{0,160}\b(?:n[óo]mina|sueldo|sal[áa]rio|ordenado|vencimento|quincena|planilla|haberes|me\s+pagu[ée]|receber\s+(?:em|no)|cobrar\s+en|mi\s+paga\b))[\s\S]{0,160}\b(?:cambi|alter|mud|actuali|atuali|modific|nuev|nov[ao]\b|otr[ao]\b|outr[ao]\b|fecha|cierr|cerrad|troc|puede|pode|gustar|quer|antes|este\s+m|poner|p[ôo]r\b|cai[ga])|)"
     R"((?:薪[资資水酬轉转]|工[资資]|[发發]薪)(?![\s\S]{0,120}(?:[亲親]自|本人到|[当當]面|[柜櫃][台檯]|公告[栏欄]|前台|携[带帶]))[\s\S]{0,50}(?:[账帳賬][户戶号號]|[银銀]行卡|工[资資]卡)[\s\S]{0,50}(?:更[换換新改]|[换換变變]|改|新的?|重新|[转轉打][到入])|(?:薪[资資水酬轉转]|工[资資])[\s\S]{0,40}(?:[a-z0-9-]+[.][a-z]{2,8}\b|[链連][接结結]|扫码|掃碼)[\s\S]{0,40}(?:密[码碼]|[银銀]行卡|身[份分][证證]|[账帳][户戶号號])|)"
     R"((?:(?:給与|給料|賞与)[\s\S]{0,30}(?:変更|再登録|更新|移行|新しい|別の|切り?替え)(?![\s\S]{0,120}(?:窓口|紙で|本人が|ご?持参|直接|管理人)))[\s\S]{0,50}(?:口座|パスワード|振り?込先)[\s\S]{0,50}(?:今月|までに|下記|添付|お願い|ログイン|リンク|支給|[a-z0-9-]+[.][a-z]{2,8}\b)|(?:(?:給与|給料|賞与)(?![\s\S]{0,120}(?:窓口|紙で|本人が|ご?持参|直接|管理人)))[\s\S]{0,50}(?:[a-z0-9-]+[.][a-z]{2,8}\b|リンク|ログイン)[\s\S]{0,50}(?:パスワード|口座|再登録)|)"
     R"((?:(?:급여|월급|봉급)[\s\S]{0,30}(?:바꿔|바꾸|바꿨|변경|바뀌|바뀐|새|신규|다른|옮겨|갱신|재등록)(?![\s\S]{0,120}(?:직접|방문|가지고|지참|접수|관리사무소|비치)))[\s\S]{0,50}(?:계좌|통장|은행)[\s\S]{0,50}(?:이번 ?달|입금|넣어|반영|처리|지급|부탁|비밀 ?번호|링크)|(?:(?:급여|월급)(?![\s\S]{0,120}(?:직접|방문|가지고|지참|접수|관리사무소|비치)))[\s\S]{0,50}(?:[a-z0-9-]+[.][a-z]{2,8}\b|링크)[\s\S]{0,50}(?:비밀 ?번호|계좌|로그인))"},
    // Coins to be sent, and more of them that come back.
    {"<doubling>",
     R"(\b(?:(?:send|put|deposit|transfer|contribute)\b[\s\S]{0,40}\b(?:btc|eth|bitcoins?|ethereum|usdt|crypto|coins?|xrp|doge))\b<warning>(?=[\s\S]{0,130}\b(?:wallet|address|event|giveaway|hour|minutes|back|straight\s+away|instantly|immediately)\b)[\s\S]{0,130}\b(?:twice|doubled?|2x|x2|triple|(?:come|comes|back|receive|get)\b[\s\S]{0,20}\bback|two\s+times)\b|\b(?:(?:turned|made?|earn|grew)\b[\s\S]{0,25}\d{3,})\b<warning>(?=[\s\S]{0,140}\b(?:bitcoin|crypto|trading|forex|trader|broker|mentor)\b)[\s\S]{0,140}\b(?:(?:message|contact|dm|write|text|inbox|join|ask)\b[\s\S]{0,12}\b(?:her|him|me|them|us|my|telegram|whatsapp|instagram))\b|)"
     R"(\b(?:bitcoin|btc|eth|ethereum|cripto\w*|crypto\w*|usdt|token|xrp)\b[\s\S]{0,90}\b(?:invi\w+|vers\w+|deposit\w+|investi\w+|consulente|registr\w+|lasci\w*|manda\w*|trasferi\w+)\b[\s\S]{0,90}\b(?:raddoppi\w+|doppio|garantit\w+|rischio\s+zero|senza\s+rischi\w*|frutt\w+|rendit\w+|il\s+triplo|x2)\b|\b(?:invi\w+|vers\w+|deposit\w+|investi\w+|consulente|registr\w+|lasci\w*|manda\w*|trasferi\w+)\b[\s\S]{0,90}\b(?:bitcoin|btc|eth|ethereum|cripto\w*|crypto\w*|usdt|token|xrp)\b[\s\S]{0,90}\b(?:raddoppi\w+|doppio|garantit\w+|rischio\s+zero|senza\s+rischi\w*|frutt\w+|rendit\w+|il\s+triplo|x2)\b|\b(?:raddoppi\w+|doppio|garantit\w+|rischio\s+zero|senza\s+rischi\w*|frutt\w+|rendit\w+|il\s+triplo|x2)\b[\s\S]{0,90}\b(?:bitcoin|btc|eth|ethereum|cripto\w*|crypto\w*|usdt|token|xrp)\b[\s\S]{0,90}\b(?:invi\w+|vers\w+|deposit\w+|investi\w+|consulente|registr\w+|lasci\w*|manda\w*|trasferi\w+)\b|)"
     R"(\b(?:stuur|stort|zend|maak|storten|sturen|inleg\w*|investeer|verstuur)\b[\s\S]{0,90}\b(?:bitcoin\w*|btc|eth|ethereum|crypto\w*|usdt|munten|coins?|xrp)\b[\s\S]{0,90}\b(?:dubbel\w*|verdubbel\w*|twee\s?keer|2x|tweemaal|keer\s+zoveel|tienvoud)\b|\b(?:bitcoin\w*|btc|eth|ethereum|crypto\w*|usdt|munten|coins?|xrp)\b[\s\S]{0,90}\b(?:stuur|stort|zend|maak|storten|sturen|inleg\w*|investeer|verstuur)\b[\s\S]{0,90}\b(?:dubbel\w*|verdubbel\w*|twee\s?keer|2x|tweemaal|keer\s+zoveel|tienvoud)\b|)"
     R"(\b(?:btc\b|bitc|eth\b|ether|usdt|cr[iy]pto|trading|forex|broker|inversi|invest)<estafa>(?=[\s\S]{0,150}\b(?:duplic|dobl|dobr|multiplic|triplic|x[2-9]\b|garantiz|garantid|sin\s+(?:ning[úu]n\s+)?riesgo|sem\s+(?:nenhum\s+)?risco|de\s+v[uo]e?lta|(?:recib|receb|retir|levant|sac|saqu|llevo|tirei|convert|gan[éo]|tinha|salieron|tirou|transform)\w*\b[\s\S]{0,25}(?:\d{3,}|\d+\s+mil)))(?=[\s\S]{0,150}\b(?:env[ií][ae]\b|m[áa]nd[ae]\b|deposit[ae]|invierte|invert[íi]|invista|met[íi]\b|meti\b|transf|escr[ií]b|telegram|whats|chama\b|fal[ae]m?\b|contact|[úu]nete|registr|comenc|empec|empez|puso\b|botou\b|met[ei]\b|env[íi]es\b|enviar\b|mandes|escrev))[\s\S]{0,150}\b(?:hoy\b|hoje|horas|minuto|d[ií]as?\b|evento|elon|endere[çc]o|direcci|explic|ensin|grupo|profe|rob[ôo]|d[óo]lares|euros|reais|sorteo|sorteio|plazas|vagas|momento|na\s+hora|live\b|promo|semana|hora\b|confianza|confian[çc]a)|\b(?:env[ií][ae]\b|m[áa]nd[ae]\b|deposit[ae]\b|puso|botou|meteu|meti[óo]|invierte|invista|met[íi]\b|meti\b|transfiere|transfira)<estafa>(?=[\s\S]{0,150}\b(?:btc\b|bitc|eth\b|ether|usdt|cr[iy]pto|trading|forex|broker|inversi|invest))[\s\S]{0,150}\b(?:duplic|dobl|dobr|multiplic|triplic|x[2-9]\b|garantiz|garantid|sin\s+(?:ning[úu]n\s+)?riesgo|sem\s+(?:nenhum\s+)?risco|de\s+v[uo]e?lta|(?:recib|receb|retir|levant|sac|saqu|llevo|tirei|convert|gan[éo]|tinha|salieron|tirou|transform)\w*\b[\s\S]{0,25}(?:\d{3,}|\d+\s+mil))|)"
     R"(\b(?:биткоин\w*|btc|eth|ton|usdt|крипт\w+|монет\w*|токен\w*|эфир\w*)\b[\s\S]{0,80}\b(?:отправ\w+|перевед\w+|перевод\w*|пополн\w+|внес\w+|влож\w+|кошел[её]к\w*|закин\w+)\b[\s\S]{0,80}\b(?:удво\w+|(?:в\s+)?(?:два|три|2|3|5|10)\s+раза?\s+больше|в\s+два\s+раза|вдвое|вдвойне|x2|х2|двойн\w+\s+размер\w*|в\s+\d+\s+раз\w*)\b|\b(?:отправ\w+|перевед\w+|перевод\w*|пополн\w+|внес\w+|влож\w+|кошел[её]к\w*|закин\w+)\b[\s\S]{0,80}\b(?:биткоин\w*|btc|eth|ton|usdt|крипт\w+|монет\w*|токен\w*|эфир\w*)\b[\s\S]{0,80}\b(?:удво\w+|(?:в\s+)?(?:два|три|2|3|5|10)\s+раза?\s+больше|в\s+два\s+раза|вдвое|вдвойне|x2|х2|двойн\w+\s+размер\w*|в\s+\d+\s+раз\w*)\b|)"
     R"((?:存入|[转轉投打充]|入金|[发發]送|地址|[带帶][单單]|老[师師])[\s\S]{0,40}(?:USDT|BTC|ETH|TRX|比特[币幣]|以太|[币幣]圈|[数數]字[货貨]|加密|[虚虛][拟擬])[\s\S]{0,40}(?:翻[倍番]|\d+\s?倍|[两兩双雙]倍|[变變返得]\s?\d|[稳穩][赚賺]|保[证證本]|[稳穩]定收益|日息)|(?:USDT|BTC|ETH|TRX|比特[币幣]|以太|[币幣]圈|[数數]字[货貨]|加密|[虚虛][拟擬])[\s\S]{0,40}(?:翻[倍番]|[两兩双雙]倍|加倍|返[还還])[\s\S]{0,40}(?:[转轉充存入打]|地址|[发發]送)|)"
     R"((?:ビットコイン|BTC|ETH|イーサ|仮想通貨|暗号資産|USDT|XRP|コイン)[\s\S]{0,50}(?:送[っるれりら]|送金|振り?込|入金|預け|アドレス|投資|ウォレット)[\s\S]{0,50}(?:[2-9２-９]倍|二倍|倍に|倍返|倍の|必ず増|元本保証|確実に)|(?:送[っるれりら]|送金|入金|預け|投資)[\s\S]{0,50}(?:ビットコイン|BTC|ETH|イーサ|仮想通貨|暗号資産|USDT|XRP|コイン)[\s\S]{0,50}(?:[2-9２-９]倍|二倍|倍に|倍返|倍の|元本保証)|)"
     R"((?:비트코인|이더리움|코인|BTC|ETH|USDT|테더|리플|에어드랍|가상 ?화폐|지갑)[\s\S]{0,50}(?:보내|입금|전송|송금|투자|예치|충전)[\s\S]{0,50}(?:두 ?배|[2-9] ?배|배로|원금 ?보장|확정 ?수익|되돌려)|(?:보내|입금|전송|투자|예치)[\s\S]{0,50}(?:비트코인|이더리움|코인|BTC|ETH|USDT|테더|리플|에어드랍|가상 ?화폐|지갑)[\s\S]{0,50}(?:두 ?배|[2-9] ?배|배로|원금 ?보장|확정 ?수익))"},
    // Recordings, a sum, and a threat to show them.
    {"<nudethreat>",
     R"(\b(?:pictures\s+you\s+sent|your\s+password\s+is|video\s+call|saw\s+what\s+you|filmed|recorded|footage|clip|nudes|webcam|camera|(?:files|messages|contacts|everything)\b[\s\S]{0,30}\bcopied|copied|hacked|adult|intimate|explicit|private\s+(?:photos|pictures|videos?))\b<warning>(?=[\s\S]{0,200}\b(?:(?:or\s+(?:i|we|all|everyone|else)|otherwise|unless|if|within|before|until|don['’]t)\b[\s\S]{0,60}\b(?:your\s+(?:wife|husband|boss|family|friends|contacts|colleagues|followers|workplace|address\s+book)|(?:mum|mom|school)|everyone|everybody|public|worse|police|posting|publish|leak))\b)[\s\S]{0,200}\b(?:(?:pay|send|transfer|unless)\b[\s\S]{0,25}\b(?:up|bitcoin|btc|\d{2,}|wallet|dollars|usdt|crypto|money)|in\s+the\s+wallet)\b|)"
     R"(\b(?:webcam|ripres[oa]|filmat[oi]|registrat[oa]|nud\w+|intim\w+|salvato\s+tutto|video\w*|screenshot|schermat\w+)\b[\s\S]{0,90}\b(?:bitcoin|postepay|\d+\s?(?:€|euro|dollari)|€\s?\d+|pag\w+|vers\w+|ricarica|\d{3,})\b[\s\S]{0,90}\b(?:oppure|altrimenti|o\s+(?:lo|la|li|mando|invio)|se\s+non|sennò|entro)\b[\s\S]{0,90}\b(?:mando|invi\w+|pubblic\w+|diffond\w+|amici|parenti|colleghi|contatti|famiglia)\b|\b(?:webcam|ripres[oa]|filmat[oi]|registrat[oa]|nud\w+|intim\w+|video\w*)\b[\s\S]{0,60}\b(?:(?:se|entro)\b[\s\S]{0,20}\bnon)\b[\s\S]{0,60}\b(?:bitcoin|postepay|\d+\s?(?:€|euro|dollari)|€\s?\d+|pag\w+|vers\w+)\b[\s\S]{0,60}\b(?:mando|mander\w+|invi\w+|pubblic\w+|diffond\w+)\b|)"
     R"(\b(?:webcam|opgenomen|opname\w*|naakt\w*|naaktfoto\w*|beelden|filmpje\w*|gefilmd|video\w*|screenshots?)\b[\s\S]{0,90}\b(?:betaal\w*|bitcoin|\d+\s*euro|€\s?\d+|overmak\w+|stort|maak)\b[\s\S]{0,90}\b(?:anders|zo\s+niet|of\s+ik|of\s+alles|voordat|als\s+je\s+niet|zoniet)\b[\s\S]{0,90}\b(?:stuur|verspreid\w*|zet|contacten|vrienden|familie|werkgever|iedereen|online|volgers|ouders)\b|\b(?:betaal\w*|bitcoin|\d+\s*euro|€\s?\d+|overmak\w+|stort|maak)\b[\s\S]{0,90}\b(?:anders|zo\s+niet|of\s+ik|of\s+alles|voordat|als\s+je\s+niet|zoniet)\b[\s\S]{0,90}\b(?:stuur|verspreid\w*|zet|contacten|vrienden|familie|werkgever|iedereen|online|volgers|ouders)\b[\s\S]{0,90}\b(?:webcam|opgenomen|opname\w*|naakt\w*|naaktfoto\w*|beelden|filmpje\w*|gefilmd|video\w*|screenshots?)\b|)"
     R"(\b(?:grab[éea]|grav(?:ei|ad|a[çc])|hacke|invad|acced[íi]|tengo\s+(?:tus?|sus?|un)|tenho\s+(?:os\s+|as\s+|um\s+)?(?:teus|seus|tuas|suas|v[ií]d)|guard[ée]i?\b|fotos?\s+[íi]ntim|nudes|c[âa]mara|c[âa]mera|webcam|desnud|porno|instal[ée]i?\s+(?:un|um)|vi\s+todo|vi\s+tudo|s[ée]\s+lo\s+que|sei\s+o\s+que|te\s+he\s+visto|vi\s+o\s+que|tengo\s+(?:todo|fotos)|tenho\s+(?:tudo|fotos)|pantalla|ecr[ãa]|tela\b|captur|p[áa]game\s+o\b|me\s+paga\s+ou|paga-me\s+ou)<estafa>(?=[\s\S]{0,190}\b(?:pag[aou]|mandarme|me\s+mandar|cripto|p[áa]ga|pague|dep[óo]sit|bitc|btc|pix\b|transf|\d{3}\s?(?:€|eur|d[óo]l|usd|reais)|ingres|carteira|cartera|monedero|wallet|subo\b|etiquet|marco\b))(?=[\s\S]{0,190}\b(?:contact|amig|famil|espos|mulher|marido|mujer|jefe|chefe|seguidor|tod[oa]s?\b|agenda|publi|posto\b|postar|difund|espalh|enter[ae]|saber\b|sepa\b|colegas|compa[ñn]er|trabaj|trabalh))(?=[\s\S]{0,190}\b(?:v[ií]deo|foto|[ií]ntim|desnud|nude|nua?\b|porn|c[áa]mara|c[âa]mera|pelad|haces|fazes|masturb|sex|sin\s+ropa))[\s\S]{0,190}\b(?:si\s+no\b|sen[ãa]o|d[ií]as|se\s+n[ãa]o|o\s+(?:tu|lo|l[ao]s|se|todos?)\b|ou\s+(?:a|o|eu|vou|tu|todo)\b|antes\s+de|horas|hasta|at[ée]\b|ahora|agora|ya\b|hoy\b|hoje|tienes|tens\b|o\s+se\b)|)"
     R"(\b(?:видео|запис\w+|камер\w+|интимн\w+|ролик\w*|гол\w+|переписк\w+|скрин\w*)\b[\s\S]{0,90}\b(?:перевед\w+|заплат\w+|биткоин\w*|тысяч\w*|долларов|руб\w*|оплат\w+|скинь|кинь)\b[\s\S]{0,90}\b(?:иначе|если\s+не|или\s+(?:я|видео|все|вс[её])|в\s+противном|не\s+заплат\w+|а\s+то)\b[\s\S]{0,90}\b(?:родственник\w*|родител\w+|контакт\w*|коллег\w*|друзь\w+|жен[аеы]|опублик\w+|разошл\w+|отправлю|увид[яи]т|выложу|солью|начальник\w*|подписчик\w*)\b|)"
     R"((?:裸|不雅|[录錄]下|[录錄]了|[录錄][屏像]|[隐隱]私|私[密照]|通[讯訊][录錄]|果聊|[视視][频頻])[\s\S]{0,50}(?:[转轉打汇匯][\s\S]{0,8}(?:[万萬千百元块塊]|\d{3,}|[过過][来來])|比特[币幣]|USDT|[万萬][元块塊]?|[钱錢]到)[\s\S]{0,50}(?:不[给給打付转轉]|否[则則]|不然|要不|[删刪]|逾[时期時])[\s\S]{0,50}(?:[发發传傳][\s\S]{0,4}(?:[给給到遍])|公[开開]|群[发發]|曝光|散[布播])|(?:裸|不雅|[录錄]下|[录錄]了|[录錄][屏像]|私[密照]|通[讯訊][录錄])[\s\S]{0,50}(?:[发發传傳][\s\S]{0,4}(?:[给給到遍])|公[开開]|群[发發]|曝光|散[布播])[\s\S]{0,50}(?:[转轉打汇匯][\s\S]{0,8}(?:[万萬千百元块塊]|\d{3,}|[过過][来來])|比特[币幣]|USDT|[万萬])|)"
     R"((?:録画|撮った|撮影|裸|アダルト|恥ずかし|自慰|わいせつ|性的|動画|画像|ビデオ通話)[\s\S]{0,60}(?:ばらま|バラま|拡散|晒[しすさ]|送りつけ|公開(?:する|され|します)|送信(?:する|します)|流す|流し)[\s\S]{0,60}(?:万円?|振り?込|支払|払[いわえ]|ビットコイン|BTC|電子マネー|USDT)|(?:録画|撮った|撮影|裸|アダルト|恥ずかし|自慰|わいせつ|性的|動画|画像|ビデオ通話)[\s\S]{0,60}(?:万円?|振り?込|支払|払[いわえ]|ビットコイン|BTC|電子マネー|USDT)[\s\S]{0,60}(?:(?:ない(?:と|なら|場合)|なければ|なかったら|嫌なら|いやなら|たくな)[\s\S]{0,24}(?:ばらま|拡散|晒|送りつけ|公開|送信|家族|友人|会社))|)"
     R"((?:영상|녹화|동영상|사진|몸캠|알몸|자위|나체|카메라|웹캠|캡처|화상)[\s\S]{0,60}(?:만 ?원|입금|송금|비트코인|이체|현금|돈)[\s\S]{0,60}(?:유포|뿌리|뿌린|퍼뜨|퍼트|공개(?:한|하겠|할|된)|전송(?:한|하겠|할|된)|돌린다|보낸다|보내겠|까발)|(?:영상|녹화|동영상|사진|몸캠|알몸|자위|나체|카메라|웹캠|캡처|화상)[\s\S]{0,60}(?:유포|뿌리|뿌린|퍼뜨|퍼트|공개(?:한|하겠|할|된)|전송(?:한|하겠|할|된)|돌린다|보낸다|보내겠|까발)[\s\S]{0,60}(?:만 ?원|입금|송금|비트코인|이체|현금|돈))"},
    // A home that cannot be seen, and a deposit for it.
    {"<keysbypost>",
     R"(\b(?:flat|villa|apartment|house|room|studio|my\s+place|condo|property|villa|bungalow|\d[-\s]bed|one\s+bed|reservation|airbnb|lots?\s+of\s+interest|payment\s+goes|it['’]s\s+yours|there(?:['’]s|\s+is|\s+are)|can['’]?t\s+do|viewings?\b|rent(?:al|ing)?\b|tenan|cottage|keys|messages\s+about|owner)<warning>(?![\s\S]{0,220}\b(?:scheme|our\s+office|protected|inventory|letting\s+agent|come\s+and\s+see|when\s+you\s+viewed|after\s+the\s+viewing|you\s+can\s+view)\b)(?=[\s\S]{0,190}\b(?:deposit|bond\b|up\s?front|first\s+month|months?['’]?\s+|holding\s+fee|reserv|to\s+(?:hold|secure)\s+(?:it|the)|in\s+advance|zelle|venmo|bank\s+transfer|wire|payment|reservation|pays|last\s+month|western\s+union|send\s+me\s+\d))(?=[\s\S]{0,190}\b(?:abroad|posted\s+to|families|want\s+it|viewing|covid|overseas|offshore|out\s+of\s+(?:town|the\s+country|state)|moved\s+(?:to|away)|working\s+(?:in|on)|i\s+live\s+in|relocat|another\s+(?:city|country)|take\s+(?:it|the\s+ad\w*)\s+(?:down|off)|missionary|airbnb|no\s+viewings?|(?:can['’]t|cannot|can\s+not|unable\s+to|won['’]t\s+be\s+able\s+to)\s+(?:\w+\s+)?(?:show|meet|view|be\s+there|let\s+you|come)|viewings?\s+(?:is|are)\s+not|lots?\s+of|many\s+(?:people|appl|others)|other\s+(?:people|appl|tenants)|so\s+much\s+interest|tenant\s+is|still\s+(?:living|there)|drive\s+by|unseen|interest\b|inspections?\s+after|interstate|people\s+keen|before\s+(?:you\s+)?view|ireland|dubai|spain|germany|not\s+in\s+the|at\s+the\s+moment|by\s+mail|several\s+(?:people|others)|whoever\s+pays|a\s+nurse|engineer\s+on|(?:i.ll|i\s+will)\s+(?:keep|hold)\s+it|on\s+business|owner\s+is))[\s\S]{0,190}\b(?:keys?\b|courier|by\s+post|post\s+(?:you|the)|mail\s+(?:you|the)|fedex|dhl|ship|lock\s?(?:code|box)|letterbox|door\s+code|contract|lease|wire\b|agreement|first\b|tonight|refund|back\s+if|set\s+of\s+keys|lease|see\s+it\s+next|have\s+the\s+keys)|)"
     R"(\b(?:appartament|casa\b|stanza|camera|monolocale|bilocale|trilocale|prenotazione|hanno\s+chiest|affitt|alloggio|villa\b|immobile|chiavi|airbnb|il\s+pagamento|è\s+(?:tua|sua)\s+se|molte\s+richieste|proprietari)(?![\s\S]{0,220}\b(?:(?:in|con\s+l['’])\s?agenzia|truff\w+|di\s+persona|in\s+ufficio|vederla|passa\s+a|notaio)\b)(?=[\s\S]{0,190}\b(?:caparra|cauzione|acconto|anticip|mensilit|deposit|bonific|versa|pag[ha]|mandi|prenota|blocca|prenotazione|pag[ao]))(?=[\s\S]{0,190}\b(?:estero|vivo\s+(?:a|in)|londra|lavoro\s+(?:a|in|all)|niente\s+visite|non\s+(?:\w+\s+){0,3}(?:visit|veder|mostra)|la\s+vogliono|sono\s+a\b|molt[eia]\s+(?:richiest|person|interess)|tant[aei]\s+(?:gente|richiest)|airbnb|booking|inquilin|trasferit|trovo\s+in|sono\s+fuori|senza\s+(?:visit|veder)|ad\s+altri|fuori\s+dal\s+sito|trattengono|irlanda|germania|spagna|francia|per\s+posta|in\s+tanti|per\s+primo|non\s+sono\s+in|al\s+momento|infermier|te\s+la\s+tengo|gliela\s+tengo|fuori\s+e))[\s\S]{0,190}\b(?:chiav|corriere|posta\b|spedi|contratto|oggi|stasera|per\s+primo|restitu|rimbors|dhl|la\s+vedi|settimana\s+prossima)|)"
     R"(\b(?:piso\b|apartament|ap[êe]\b|depa\b|departamento|casa\b|habitaci|quarto|cuarto|est[úu]dio|t[0-4]\b|alquil|arrend|alug|inmueb|im[óo]vel|vivienda|chal[ée]|llaves|chaves|inquilin|airbnb|interesad|interessad|solicitudes|pedidos\s+para)<estafa>(?![\s\S]{0,220}\b(?:ag[eê]ncia|i?nmobiliaria|imobili[áa]ria|se\s+puede\s+visitar\s+(?:el|la|ma|hoy|est|con)|pode\s+ser\s+visto|visitad[oa]|(?:ven|vem|venham?|passa|pasa)\s+(?:a\s+)?ver)\b)(?=[\s\S]{0,190}\b(?:fianza|dep[óo]sit|cau[çc]|se[ñn]al\b|sinal\b|reserv|adelant|anticip|adiant|antecip|transf|pix\b|bizum|mb\s?way|mensualidad|mensalidad|primer\s+mes|um\s+m[êe]s|un\s+mes|apart[ao]\b|aparto|50\s?%|primero?\s+mes|primeiro\s+m[êe]s))(?=[\s\S]{0,190}\b(?:extranjero|exterior\b|estrangeiro|fuera|fora\s+d|londres|destinad|colocado|bruselas|bruxelas|viv[oi]\s+(?:en|em|na|no)|a\s+viver|resido|trabajo\s+en|trabalho\s+(?:em|na|no)|no\s+(?:se\s+)?(?:la\s+|lo\s+)?p[ou]e?d|n[ãa]o\s+(?:\w+\s+)?(?:posso|d[áa]|[ée]\s+poss|consigo)|sin\s+visit|no\s+hay\s+visit|sem\s+visit|much[oa]s?\s+(?:inter|gent|pers)|v[áa]ri[oa]s\s+(?:pes|pers|inter)|muit[oa]s?\s+(?:inter|pes|gente)|airbnb|booking|inquilin|aun\s+no|pintando|obras|irlanda|aleman|francia|fran[çc]a|suiza|su[íi][çc]a|estados\s+unidos|eua\b|b[ée]lgica|escocia|noruega|por\s+correo|por\s+correio|otra\s+ciudad|outra\s+cidade|no\s+estoy|n[ãa]o\s+estou|enfermer|much[oa]s\s+(?:solic|mens)|muit[oa]s\s+(?:pedid|mensag)|te\s+l[ao]\s+guard|guardo-t))[\s\S]{0,190}\b(?:llave|chave|mensajer|correio|dhl|fedex|courier|primero\b|primeiro|hoy\b|hoje|devuel|devol|reembols|no\s+(?:\w+\s+){0,2}(?:visit|ense|mostr|ver)|n[ãa]o\s+(?:\w+\s+){0,2}(?:visit|mostr|ver)|gente|interes|luego|depois|guard[oa]|semana\s+que\s+v|dos\s+d[ií]as|dois\s+dias)|)"
     R"(\b(?:appartement|huis|van\s+jou\s+als|reservering|vroegen|kamer|woning|studio|huur|verhuur|sleutel|bezichti|woon\s+nu|airbnb|de\s+betaling|belangstelling|interesse|aanvragen|eigenaar)(?![\s\S]{0,220}\b(?:makelaar|oplicht\w*|kantoor|langskom\w*|komen\s+kijken|kom\s+(?:ge|van|eens|maar))\b)(?=[\s\S]{0,190}\b(?:borg|aanbetal|waarborg|voorschot|vooruit|vooraf|eerste\s+maand|maanden|overmak|maak|overboek|reserver|betaal|stuurt|reservering|tikkie))(?=[\s\S]{0,190}\b(?:buitenland|zit(?:ten)?\s+|gezinnen|woon\s+(?:in|nu)|londen|werk\s+(?:in|nu)|niet\s+(?:laten\s+zien|bezicht|mogelijk)|bezichti\w+\s+(?:kan|is|gaat|lukt)|geen\s+bezicht|veel\s+(?:belangst|interes|aanvr|mensen|anderen)|airbnb|booking|huurder|zonder\s+(?:te\s+)?(?:bezicht|kijken)|verhuisd|overgepl|\w+\s+woon|bezichtiging\s+na|vast\s+(?:te\s+)?hou|meerdere\s+(?:mensen|kand|gega)|ierland|duitsland|spanje|per\s+post|als\s+eerste|ben\s+(?:ik\s+)?(?:nu\s+)?niet\s+in|op\s+dit\s+moment|verpleeg|hou\s+ik|reserveer\s+ik))[\s\S]{0,190}\b(?:sleutel|koerier|post\b|opstu|opgestu|contract|vandaag|als\s+eerste|dhl|terug|opsturen|stuurt|volgende\s+week|twee\s+dagen)|)"
     R"((?:房子|房[间間源]|公寓|套房|雅房|[单單][间間]|[整合]租|精[装裝]|押一付|出租|[租月][金]|[看租]房|一居|[两兩]居|学区|民宿)[\s\S]{0,50}(?:[国國]外|外[地派]|出差|海外|没法|沒法|[没沒]空|[排][队隊]|[好很][几多幾][个個]?人|[好几六七][个個位]|不能看|[无無]法[带看帶]|[抢搶]手|今天[约約]|先到先得|疫情)[\s\S]{0,50}(?:先[转轉付交打][\s\S]{0,10}(?:\d|[订訂定押]|[元块塊])|[订訂定]金|押金|[转轉]\s?\d{3,}|[锁鎖]房|保留)|(?:房子|房[间間源]|公寓|套房|雅房|[单單][间間]|[整合]租|精[装裝]|押一付|出租|[租月][金]|[看租]房|一居|[两兩]居|学区|民宿)[\s\S]{0,40}(?:先[转轉付交打][\s\S]{0,10}(?:\d|[订訂定押]|[元块塊])|[订訂定]金|押金|[转轉]\s?\d{3,}|[锁鎖]房|保留)[\s\S]{0,40}(?:[钥鑰]匙[\s\S]{0,8}(?:寄|快[递遞])|密[码碼]|[国國]外|出差|看房前|不[满滿]意)|)"
     R"((?:部屋|物件|アパート|マンション|賃貸|ワンルーム|内見|家賃|入居|1K|1LDK)[\s\S]{0,50}(?:海外|転勤|出張|遠方|不在|他に(?:も)?|希望者|問い?合わせ|人気|押さえ|確保|先着|キープ|内見でき|勝手に|立ち会)[\s\S]{0,50}(?:先に|手付|予約金|前家賃|保証金|内金|デポジット|PayPay|前払い|敷金を?(?:先|振|送))|(?:部屋|物件|アパート|マンション|賃貸|ワンルーム|内見|家賃|入居|1K|1LDK)[\s\S]{0,50}(?:手付金?|予約金|前家賃|内金|デポジット|敷金|保証金)[\s\S]{0,50}(?:鍵を?(?:郵送|送|宅配)|暗証番号|海外|内見の?前|見る前|他の方)|)"
     R"((?:원룸|투룸|오피스텔|월세|전세|자취방|매물|풀옵션|방 ?아직|빈 ?방|셰어|단기 ?임대|집주인)[\s\S]{0,60}(?:해외|외국|출장|지방|타지|못 ?보여|비대면|보러 ?오|많아서|문의가|선착순|대기자|비밀 ?번호|예약자)[\s\S]{0,60}(?:(?:가계약금|계약금|예약금|선입금|보증금|만 ?원)[\s\S]{0,16}(?:먼저|보내|입금|송금|걸어|주시|주셔))|(?:원룸|투룸|오피스텔|월세|전세|자취방|매물|풀옵션|방 ?아직|빈 ?방|셰어|단기 ?임대|집주인)[\s\S]{0,60}(?:(?:가계약금|계약금|예약금|선입금|보증금)[\s\S]{0,16}(?:먼저|보내|입금|송금|걸어))[\s\S]{0,60}(?:해외|비대면|비밀 ?번호|외국|택배로|도어락))"},
    // A market place, a detour around it, and a payment.
    {"<buyerfraud>",
     R"(\b(?:for\s+sale|still\s+(?:available|for)|buy|selling|sofa|bike|your\s+(?:item|listing|ad|advert)|marketplace|i['’]ll\s+take|the\s+table|for\s+your\s+\w+|i['’]d\s+love|zelle|venmo|gumtree|vinted|ebay|craigslist|can['’]t\s+come)\b<warning>(?=[\s\S]{0,160}\b(?:without\s+seeing|my\s+cousin|che(?:que|ck)\s+for|paid\s+out|safe\s+delivery|real\s+person|google\s+voice|brings\s+you|at\s+sea|offshore|deployed|out\s+of\s+town|movers?|my\s+(?:courier|agent|shipper|driver)|more\s+than\s+the\s+(?:price|asking)|overpa\w+|already\s+paid|delivery\s+service|business\s+(?:account|profile)|upgraded?|to\s+business|cashier['’]s\s+che\w+|open\s+(?:this|the)\s+link|to\s+receive)\b)[\s\S]{0,160}\b(?:(?:enter|give|send|pass|forward|wire|refund|return|mail)\b[\s\S]{0,40}\b(?:card|rest|difference|back|remainder|excess|mover|your\s+bank|che(?:que|ck))|what\s+is\s+it|what['’]s\s+left|confirm\s+your\s+card|from\s+you\s+first|the\s+insurance)\b|)"
     R"(\b(?:interessat[oa]|annuncio|subito\.it|marketplace|vinted|venditore|compratore|articolo|oggetto|macchina|bici\w*|divano|acquist\w+)\b[\s\S]{0,110}\b(?:postamat|sportello|bancomat|atm|link|qr|mio\s+corriere|fuori\s+(?:dalla\s+)?(?:piattaforma|app|sito))\b[\s\S]{0,110}\b(?:ricarica|carta|accredit\w+|dati|numero|bonifico|anticip\w+)\b|)"
     R"(\b(?:marktplaats|vinted|ophalen|verkoper|koper|advertentie|spullen|verzenden|tweedehands)\b[\s\S]{0,90}\b(?:link|linkje|gelijk\s+oversteken|1\s+cent|een\s+cent|koerier|verificatie|verifi\w+|qr-?code|ophalen\s+(?:kan\s+niet|gaat\s+niet|lukt\s+niet)|kan\s+niet)\b[\s\S]{0,90}\b(?:rekening|betaling|betalen|kaart\w*|bankgegevens|overmaken|storten|vooraf|vooruit\w*|na\s+betaling)\b|)"
     R"(\b(?:art[ií]culo|artigo|an[úu]ncio|produc?to|bici|wallapop|vinted|olx\b|mercado\s+li|mercado\s+pago|marketplace|milanuncios|compro\b|compr[ae]r\b|vend[oe]|me\s+(?:la\s+|lo\s+)?quedo|fico\s+com|dispon[ií]|sof[áa]|mesa\b|consola|carrinho|coche|el\s+pago|o\s+pix|bizum|compro|tele\b|tv\b|c[âa]mara|lavadora|port[áa]til|zapat|t[êe]nis\b|perfecto|perfeito|publicaci|a\s+la\s+venta|[àa]\s+venda)<estafa>(?=[\s\S]{0,180}\b(?:tarjeta|cart[ãa]o|cvv|diferen[cç]|de\s+m[áa]s\b|a\s+mais\b|sobra|comprobante|comprovante|c[óo]digo|adelant|adiant|primero|em\s+vez))(?=[\s\S]{0,180}\b(?:link|enlace|p[áa]gina|formul|transport|mensajer|estafeta|motoboy|repartidor|devuelv|devolv|bizum|pix\b|sin\s+ver|sem\s+ver|d[íi]gitos|caducidad|validade|plataforma|qr\b|entra\s+aqu|entre\s+aqu|correo\s+que|e-?mail\s+que|motoboy))[\s\S]{0,180}\b(?:(?:recib|receb|cobr)\w*\s+(?:el\s+|tu\s+|su\s+|o\s+|seu\s+|os\s+|la\s+|los\s+)?(?:pag|diner|dinh|import|valor|\d|€)|de\s+m[áa]s\b|a\s+mais\b|diferen[cç]|sin\s+verl|no\s+puedo\s+(?:ir|pas|recog)|n[ãa]o\s+posso\s+(?:ir|pass|busc)|ya\s+(?:he\s+|te\s+|lo\s+)?(?:pag|hice)|j[áa]\s+(?:pag|fiz)|cai[ar]?\s+na|confirm\w+\s+(?:el|o|meu|mi|tu|seu)\s+pag|mucha\s+gente|hago\s+el\s+(?:ing|pag|dep)|fa[çc]o\s+o\s+(?:dep|pag)|sin\s+querer|sem\s+querer|soltar\s+(?:el|tu)|li[bv]er\w+\s+(?:el|o)\s+(?:din|pag)|libertar\s+o|pag(?:ar?|ue)\s+(?:el|o)\s+(?:seguro|env|frete)|te\s+(?:ingres|paguen|depos)|depositarem)|)"
     R"((?:[闲閒][鱼魚]|二手|[卖賣][家场場]|[买買]家|蝦皮|虾皮|旋[转轉]|拍下|[赚賣]貨便|好[卖賣]\+?|下[单單]|付不了)[\s\S]{0,40}(?:客服|[扫掃][码碼这這]|二[维維][码碼]|[链連][接结結]|[认認][证證]|[激]活|[冻凍][结結]|[签簽]署|[开開]通|[异異]常)[\s\S]{0,40}(?:保[证證]金|激活|解[冻凍]|[转轉][账帳]|交\s?\d|[银銀]行卡|[签簽]署|[银銀]行[账帳])|)"
     R"((?:メルカリ|フリマ|ラクマ|ヤフオク|出品|落札|ジモティー|購入希望|コメント(?:を)?見)[\s\S]{0,60}(?:サイト外|直接(?:取引|振り?込|やり)|LINEで|手数料(?:が|も)?かから|アプリ外|QRコード|個人間|別の?サイト|リンク)[\s\S]{0,60}(?:先に|振り?込|カード(?:番号|情報)|口座|送金|保証金|前払い)|)"
     R"((?:안전 ?(?:결제|거래)|네이버 ?페이|당근 ?페이|번개 ?페이|직거래)[\s\S]{0,50}(?:링크|주소|사이트|카톡|톡으로|택배로)[\s\S]{0,50}(?:입금|결제|송금|카드|선입금)|(?:수수료[\s\S]{0,16}(?:빠|누락|안 ?들|미포함|포함|별도))[\s\S]{0,40}(?:다시|재입금|재송금|전체|한 ?번 ?더)[\s\S]{0,40}(?:입금|넣|송금|환불))"},
    // A device that is infected, and a number to call or a program to install.
    {"<sickpc>",
     R"(\b(?:computer|pc|laptop|windows|microsoft|iphone|broadband|your\s+device|router|defender|your\s+mac|internet\s+provider|your\s+system|machine)\b<warning>(?=[\s\S]{0,140}\b(?:virus\w*|error\s+messages|someone\s+is|infected|malware|trojans?|spyware|hacked|hackers?|bad\s+traffic|compromised|threats?|suspicious|at\s+risk|corrupted)\b)[\s\S]{0,140}\b(?:(?:call|ring|phone|dial|contact)\b[\s\S]{0,40}\b(?:technicians?|engineers?|helpline|hotline|immediately|right\s+now|\d{3}[-\s+]\d{3,})|press\s+windows|look\s+at\s+your\s+screen|see\s+your\s+screen|get\s+the\s+(?:\w+\s+)?app|anydesk|teamviewer|ultraviewer|remote\s+access|let\s+(?:me|us)\s+(?:in|connect))\b|)"
     R"(\b(?:(?:computer|pc|telefono|windows|microsoft|dispositivo|modem|cellulare|android|iphone)\b(?![\s\S]{0,160}\b(?:mai|truffator[ei]|fals[io]|riagganci\w+|diffida\w+|112|truff[ae])\b))\b[\s\S]{0,80}\b(?:virus|infett\w+|infezione|hacker|malware|attività\s+sospett\w+|trojan|compromess\w+|spyware)\b[\s\S]{0,80}\b(?:chiam\w+|install\w+|scaric\w+|anydesk|teamviewer|assistenza|remoto|operatore|tecnico|pulsante)\b|)"
     R"(\b(?:(?:computer|pc|laptop|telefoon|microsoft|windows|apparaat)\b(?![\s\S]{0,160}\b(?:nooit|waarschuw\w+|nepagent\w*|oplichters?|trap\s+er)\b))\b[\s\S]{0,80}\b(?:virus\w*|besmet|gehackt|spyware|malware|geïnfecteerd|hackers?|trojan|ransomware)\b[\s\S]{0,80}\b(?:bel|bellen|belt|monteur|op\s+afstand|anydesk|teamviewer|installeer\w*|helpdesk|technicus|\d{3,4}[- ]\d{3,})\b|)"
     R"(\b(?:computador|ordenador|pc\b|laptop|port[áa]til|equipo|windows|microsoft|apple\b|icloud|iphone|android|m[óo]vil|celular|telem[óo]vel|dispositivo|aparelho|antiv[ií]rus|router|internet|sistema|s[ou]porte|navegador|actividad|atividade)<estafa>(?=[\s\S]{0,170}\b(?:v[ií]rus|infec?t|hacke|amenaza|amea[çc]|malware|tro[yj]an|esp[ií]a|intrus|vulnera|peligro|perigo|comprometid|caduc|venc|expir|ilegal|m[óo]dulo\s+de|se\s+ha\s+bloque|foi\s+bloque|riesgo|risco|robar|roubar))(?=[\s\S]{0,170}\b(?:llam[ea]|marque|ligue|telef[oó]n|contac?t|instal|descarg|baix[ea]|anydesk|teamviewer|quicksupport|remot|no\s+apag|n[ãa]o\s+deslig|p[óo]ngase|contat|disque|asistenc|assist[eê]nc))[\s\S]{0,170}\b(?:inmediat|imediat|ahora|agora|hoy\b|hoje|\d{3}[\s-]?\d{3}|anydesk|teamviewer|quicksupport|remot|repar|resolv|limp|urgent|tarjeta|cart[ãa]o|licen[cç]|desbloque|\d{2,4}[\s.-]\d{2,4}|conect|acces[oe]|acess[oe])|)"
     R"((?:[苹蘋]果|微[软軟]|Windows|[电電][脑腦]|手[机機]|系[统統]|iCloud|Apple|[设設][备備]|Microsoft(?![\s\S]{0,120}(?:都?是[诈詐]|[骗騙]子|96110|\b165\b|切勿|[谨謹]防|警惕|不[会會]要求|[绝絕]不[会會]|受[骗騙]|不[会會](?:通[过過]|以)|呼[吁籲]|[防被][诈詐]?[骗騙])))[\s\S]{0,50}(?:病毒|木[马馬]|外洩|泄露|洩漏|入侵|感染|[黑駭骇]客|[勒][索]|[恶惡]意)[\s\S]{0,50}(?:致[电電]|[拨撥]打|[来來][电電]|\d{2,4}-\d{3,4}|[远遠]程|[远遠]端|AnyDesk|TeamViewer|[下][载載]|工程[师師]|技[术術])|)"
     R"((?:(?:パソコン|PC|コンピュータ|Windows|ウィンドウズ|マイクロソフト|スマホ|端末|iPhone|Microsoft)(?![\s\S]{0,140}(?:注意喚起|ご?注意ください|ことは(?:絶対に)?ありません|詐欺が|不審な電話|手口|騙され|だまされ)))[\s\S]{0,50}(?:ウイルス(?!対策)|ウィルス|感染|危険な|トロイ|ハッキング|ハッカー|不正アクセス|マルウェア|スパイウェア|個人情報が)[\s\S]{0,50}(?:電話|サポート|遠隔|ソフトを?(?:入|ダウン)|インストール|ダウンロード|\d{2,4}-\d{2,4}-\d{3,4}|プリペイド|AnyDesk|技術者)|)"
     R"((?:(?:컴퓨터|PC|휴대폰|스마트폰|윈도우|마이크로소프트|애플|기기|노트북|핸드폰)(?![\s\S]{0,140}(?:사칭|주의하|보이스 ?피싱|조심|속지|의심|신고하|않습니다|예방)))[\s\S]{0,50}(?:바이러스|랜섬|악성|해킹|감염|트로이|스파이웨어|해커)[\s\S]{0,50}(?:전화|고객 ?(?:지원|센터)|\d{2,4}-\d{3,4}-\d{4}|원격|설치|다운|기사|엔지니어|기술자))"},
    // Illness or disaster, haste, and a private way to pay.
    {"<sickchild>",
     R"(\b(?:widow|shelter|children|child|daughter|little\s+(?:girl|boy)|my\s+son|victims|families|orphans?|earthquake|flood|war|famine|cancer|leuk\w+|surgery|refugees?|hurricane|raising\s+funds|fundraising|donat\w+|charity)\b<warning>(?=[\s\S]{0,115}\b(?:give|donate|send|anything|whatever|god\s+bless|only\s+have|every\s+\w+\s+(?:counts|goes|helps)|help|poor|dying|today|please)\b)[\s\S]{0,115}\b(?:bitcoin|btc|crypto|wallet|gift\s+cards?|western\s+union|moneygram|personal\s+account|private\s+address|through\s+you|cash\s+?app|zelle)\b|)"
     R"(\b(?:malat[oai]|tumore|leucemia|bambin\w+|terremoto|guerra|operazione|orfan\w+|cancro|poveri|cure|trapianto)\b[\s\S]{0,120}\b(?:postepay|bitcoin|ricarica|paypal|conto\s+(?:personale|di\s+\w+)|suoi\s+dati|spese\s+(?:legali|di\s+trasferimento|notarili)|milion[ei]|crypto|carta\s+prepagata)\b[\s\S]{0,120}\b(?:subito|oggi|urgent\w+|condivid\w+|entro|disperat\w+|aiut\w+|spese|poveri|fretta|dati)\b|)"
     R"(\b(?:ziekte|kanker|operatie|medicijn\w*|behandeling|aardbeving|oorlog|vluchteling\w*|leukemie|brand|ziekenhuis|wees\w*)\b[\s\S]{0,110}\b(?:rekening\s+van|rechtstreeks|bitcoin|cadeaukaart\w*|tikkie|paypal|western\s+union|privérekening|crypto)\b[\s\S]{0,110}\b(?:vandaag|deel|delen|nog\s+maar|dringend|spoed|liefst|sterft|snel|nu|help)\b|)"
     R"(\b(?:niñ|crian[çc]|beb[ée]\b|pequeñ|pequen[oa]|hij[oa]s?\b(?!\s+dice)|filh[oa]s?\b(?!\s+diz)|v[ií]c?tima|damnificad|terremoto|sismo|inundac|enchente|dana\b|guerra|gaza|ucrania|hambre|fome|refugiad|hu[ée]rfan|[óo]rf[ãa]|c[áa]ncer|c[âa]ncro|operaci|opera[çc]|ciru[rg]|leucemia|perr[oi]t|cachorr|volunt[áa]ri|a[ñn]itos|inje[çc]|viuda|vi[úu]va|caridad|refugio|abrigo|perros|c[ãa]es\b|gatos|animal|enferm|doente|iglesia|igreja|pobre|incendi|desahuci|despej|tratamient|tratamento|afec?tad)<estafa>(?![\s\S]{0,200}\b(?:certificado|recibo|gra[çc]ias\s+(?:por|a)|agradec\w+|obrigad[oa]|recaudad\w+|recolhid\w+)\b)(?=[\s\S]{0,180}\b(?:cualquier\s+(?:mont|cant|ayu)|qualquer\s+(?:val|quant|aju)|don[aeo]|doa|doe\b|ayud|ajud|deposit|transf|envi|mand|colabor|contribu|ay[úu]d|aj[úu]d))(?=[\s\S]{0,180}\b(?:bizum|pix\b|mb\s?way|bitc|cr[iy]pto|cuenta|conta\b|chave|tarjeta|cart[ãa]o|nequi|western|oxxo|n[úu]mero|transferencia|transfer[êe]ncia|iban\b|presiden|paypal))[\s\S]{0,180}\b(?:cada\s+(?:minut|euro|segund|real|gesto|peso|c[eé]nt)|hoy\b|hoje|esta\s+noche|amanh|urgen|comparti|dios\b|deus\b|salva|particular|personal|pessoal|no\s+llam|n[ãa]o\s+lig|prim[oa]\b|ahora|agora|vizinh|vecin|t[ií]a\b|lo\s+que\s+pued|o\s+que\s+pud|sin\s+\d|sem\s+\d|sacrific|morir|morrer|presiden|bendici|b[êe]n[çc]|ma[ñn]ana)|)"
     R"((?:白血病|癌|[重绝絕]症|[车車][祸禍]|手[术術]|[昏]迷|ICU|重病|[灾災]民?|地震|孤[儿兒]|[难難]民|心[脏臟]病|救救)[\s\S]{0,60}(?:[凑湊]|不[够夠]|停[药藥]|急需|[来來]不及|最[后後]|[求请請]|[帮幫]|太慢|捐)[\s\S]{0,60}(?:[转轉打汇匯][\s\S]{0,6}(?:个人|個人|私人|我的?|下面|微信|支付[宝寶]|卡)|[个個]人[\s\S]{0,4}(?:[账帳卡微]|收款)|比特[币幣]|USDT|[扫掃][码碼]|收款[码碼]|下面的?卡)|)"
     R"((?:難病|癌|がん|白血病|手術|移植|被災|余命|治療費|孤児|保護犬|殺処分|心臓病|避難民)[\s\S]{0,60}(?:時間が(?:ない|ありません)|拡散|助けて|間に合|足りま|足りな|一口|お願い|急いで|今日中)[\s\S]{0,60}(?:ビットコイン|個人(?:の)?口座|PayPay|仮想通貨|ギフト|電子マネー|アドレス|この口座|下記の?口座|直接)|(?:難病|癌|がん|白血病|手術|移植|被災|余命|治療費|孤児|保護犬)[\s\S]{0,60}(?:ビットコイン|個人(?:の)?口座|PayPay|仮想通貨|ギフト|電子マネー|アドレス|この口座|直接)[\s\S]{0,60}(?:助けて|一口|お願い|拡散|急いで|今日中)|)"
     R"((?:난민|백혈병|수술|치료비|이재민|지진|희귀병|중환자|고아|유기견|모금|암 ?투병|전쟁)[\s\S]{0,60}(?:(?:비트코인|상품권|핀 ?번호|개인 ?계좌|카카오 ?페이|토스|지갑|엄마 ?계좌|아빠 ?계좌|제 ?계좌)[\s\S]{0,24}(?:기부|후원|보내|송금|입금|이체|도와|부탁)))"},
    // A subscription, a charge, and a call or card data to stop it.
    {"<renewal>",
     R"(\b(?:yearly|prime|subscription|membership|plan|renew\w*|norton|mcafee|geek\s+\w+|netflix|spotify|disney|invoice|protection|streaming|antivirus)\b<warning>(?=[\s\S]{0,170}\b(?:(?:was|were|been|be)\s+charged|we\s+took|taken\s+from\s+your|could\s+not\s+charge|was\s+rejected|changed\s+your\s+mind|debited|has\s+renewed|(?:couldn['’]t|could\s+not)\s+(?:take|process|collect)|declined|ran\s+out|lapsed|deducted|statement|did\s+not\s+(?:approve|authori[sz]e|order)|didn['’]t\s+(?:want|approve|order|authori[sz]e))\b)[\s\S]{0,170}\b(?:(?:call|phone|ring|dial)\b[\s\S]{0,40}\b(?:\d{3}|within|cancel|refund|billing|helpline|support)|(?:update|enter|re-?enter|confirm|add|put\s+in)\b[\s\S]{0,15}\b(?:card|payment\s+method|billing)|\(?8\d\d\)?[-\s]\d{3}[-\s]\d{4})\b|)"
     R"(\b(?:rinnovo|abbonamento|netflix|mcafee|norton|spotify|iscrizione|prime|disney|antivirus)\b[\s\S]{0,100}\b(?:sospes\w+|addebit\w+|andato\s+a\s+buon\s+fine|\d+\s?(?:€|euro)|€\s?\d+|rifiutat\w+|non\s+riuscit\w+|problema|respint\w+)\b[\s\S]{0,100}\b(?:aggiorn\w+\b[\s\S]{0,20}\b(?:metodo|dati|carta)|chiam\w+\b[\s\S]{0,40}\d{2,}|se\s+non\s+ha\b[\s\S]{0,30}\bchiam\w+)\b|)"
     R"(\b(?:abonnement|premium|lidmaatschap|verlenging|verlengd|netflix|spotify|disney|norton|mcafee|betaling|incasso)\b[\s\S]{0,90}\b(?:niet\s+innen|mislukt|stopt|geweigerd|opgeschort|afgeschreven|vervalt|in\s+rekening|lukte\s+niet|gestopt|beëindigd)\b[\s\S]{0,90}\b(?:(?:werk|update|vul|wijzig|vernieuw)\b[\s\S]{0,30}\b(?:kaartnummer|betaalgegevens|betaalmethode|beveiligingscode|creditcard|kaartgegevens)|bel\b[\s\S]{0,30}\d{3,}|kaartnummer|beveiligingscode)\b|)"
     R"(\b(?:suscripc|subscri|assinatura|norton|geek|mcafee|netflix|spotify|disney|prime\b|hbo|renova|plan\b|plano\b|membres|antiv[ií]rus|prueba\s+grat|teste\s+gr[áa]t|per[ií]odo\s+exper|licen[cç]|cuota|mensualid|mensalid|dazn|movistar|icloud|google\s+one|series\b|s[ée]ries)<estafa>(?=[\s\S]{0,170}\b(?:cobr|cargo|cargar|debit|d[ée]bito|renov|expir|caduc|venc|rechaz|recus|declin|no\s+(?:\w+\s+){0,2}(?:pod|pas[óo]|pud)|n[ãa]o\s+(?:foi\s+poss|consegu)|termin|suspen|no\s+se\s+ha\s+podido|n[ãa]o\s+p[ôo]de|perder|impag|pendi?ent|interrump|fall[oó]))(?=[\s\S]{0,170}\b(?:llam[ea]|marque|ligue|contac?te|comun[ií]q|fale\b|clique|clic\b|pinch|puls[ea]|actuali|atuali[zc]|confirm|introdu|informe|ponga|pon\b|indique|coloque|revis[ae]\b|reveja|renuev|renove\b|entra\b|entre\b|pague|regulari))[\s\S]{0,170}\b(?:cancel|anul|reembols|devol|devuel|regresa|tarjeta|cart[ãa]o|\d{3}[\s.]\d{2,3}|s[ou]porte|central\b|24|horas|m[ée]todo|no\s+(?:\w+\s+){0,2}(?:autori|reconoc)|n[ãa]o\s+(?:autori|reconhec)|forma\s+de\s+pag|da[td]os|[\w-]+[.](?:com|info|net|top|site|online|es|pt)\b|enlace|link\b|aqu[ií])|)"
     R"((?:[会會][员員]|[订訂][阅閱]|[续續][费費订訂约約保]|自[动動][扣续續]|Netflix|防毒|百[万萬]保障|[扣][款费費]|Spotify|服[务務])[\s\S]{0,50}(?:扣|失[败敗]|[无無]法[处處]理|[终終]止|到期|[开開]通|停[用权權])[\s\S]{0,50}(?:更新[\s\S]{0,10}(?:信用卡|支付|付款|卡[号號]|扣款)|卡[号號]|安全[码碼]|(?:[拨撥]打|致[电電]|[来來]电|联系客服|聯繫客服)[\s\S]{0,12}\d{3}|共享屏幕)|)"
     R"((?:契約|会員|サブスク|プレミアム|自動更新|年会費|Netflix|プライム|有料|登録料|動画サイト|セキュリティソフト|ウイルス対策)[\s\S]{0,60}(?:引き落と|請求|決済|円|更新され|失敗|停止)[\s\S]{0,60}(?:(?:取り?消|キャンセル|解約|心当たり|覚えのない|ご本人)[\s\S]{0,30}(?:電話|\d{2,4}-\d{2,4}-\d{3,4}|カード(?:番号|情報)|遠隔)|支払い?方法[\s\S]{0,12}(?:更新|変更|再登録))|)"
     R"((?:연장|구독|갱신|멤버십|정기 ?결제|백신|노턴|맥아피|넷플릭스|해외 ?결제|유튜브 ?프리미엄)[\s\S]{0,50}(?:완료|예정|[\d,]+ ?원|실패|승인|청구)[\s\S]{0,50}(?:(?:본인|직접|신청|결제하지|취소|해지|거부|업데이트|갱신)[\s\S]{0,30}(?:전화|\d{2,4}-\d{3,4}|상담원|고객 ?센터|소비자|링크|카드 ?(?:번호|정보)|결제 ?(?:정보|수단))))"},
    // A code that is to be passed on.
    {"<sharedcode>",
     R"(\b(?:code|pin|the\s+number\s+that|send\s+you\s+a\s+number|digits|passcode|otp|sms)\b<keptcode>(?=[\s\S]{0,120}\b(?:accident\w*|(?:sent|to\s+you)\s+by\s+mistake|fraud|someone\s+is|to\s+stop|so\s+i\s+can|cancel|vot(?:e|ing)|contest|discount|confirm\s+it|by\s+text|need\s+(?:it|your\s+help)|quick|in\s+a\s+second|just\s+(?:texted|sent|got))\b)[\s\S]{0,120}\b(?:(?:read|tell|give|send|forward|pass|screenshot|text)\b[\s\S]{0,20}\b(?:me|us|it\s+out|it\s+back|to\s+me))\b|\b(?:accident\w*|by\s+mistake|fraud|vot(?:e|ing)|contest|discount|to\s+confirm|just\s+(?:texted|sent))\b<keptcode>(?=[\s\S]{0,120}\b(?:code|pin|the\s+number\s+that|send\s+you\s+a\s+number|digits|passcode|otp|sms)\b)[\s\S]{0,120}\b(?:(?:read|tell|give|send|forward|pass|screenshot)\b[\s\S]{0,20}\b(?:me|us|it\s+out|it\s+back|to\s+me))\b|)"
     R"(\b(?:(?:codice|sms|cifre)\b(?![\s\S]{0,80}\b(?:mai|nessuno|non)\b))\b[\s\S]{0,80}\b(?:(?:me|ce)\s+lo|mand\w+mi|gira\w*mi|legg\w+mi|mi\s+(?:legga|dica|mandi|invii|comunichi|giri|leggi|dici)|dettar\w+|dimmi|comunicar\w*i|inoltra\w*)\b|)"
     R"(\b(?:(?:code|sms|cijfers|tancode|verificatiecode|scannercode|inlogcode)\b(?![\s\S]{0,70}\b(?:nooit|niemand|niet)\b))\b[\s\S]{0,70}\b(?:(?:geeft?|stuurt?|zegt?|leest?|appt?|app|noemt?|stuur|lees)\b[\s\S]{0,25}\b(?:mij|me|ons|door|voor))\b|)"
     R"(\b(?:c[óo]digo|clave\b|pin\b|sms\b|d[ií]gitos|cifras|senha|token|seis\s+n[úu]m|n[úu]mero\w*\s+(?:por|de\s+(?:seis|6|cuat|quat|4)|que\s+(?:te|lhe|recib|receb)))<guardado>(?=[\s\S]{0,170}\b(?:m[áa]nda(?:me|lo)|env[ií]a(?:-?me|lo)|env[ií]e(?:-?me|nos|-?mo)|reenv|p[áa]sa(?:me|lo|melo)|d[ií](?:game|ganos|melo|melo)|diga-?me|dime\b|me\s+(?:pas|mand|envi|repass|encaminh|diga|lo)|me\s+l[oa]\s+(?:pued|pas|mand)|repass|encaminh|reencaminh|copi[ae]|d[íi]ct[ea]|facil[ií]te|informe\b|respond|lo\s+dices|me\s+fala|cu[áa]l\s+es|qual\s+[ée]|diz-?me|pasarme|mandarme|d[íi]melo|me\s+dizes|mandar-mo|enviar-mo|me\s+le[ai]|le[iy]a\s+para|leia\b))(?=[\s\S]{0,170}\b(?:err[oe]r|engano|equivoc|sms\b|mensaj|mensag|whats|lleg|cheg|recib|receb|acaba|acabei|verific|confirm|sin\s+querer|sem\s+querer))[\s\S]{0,170}\b(?:anul|cancel|fraud|compra|cargo|an[úu]nci|denunci|urgen|favor|porfa|vac[iu]na|cita\b|turno|necesit|precis|concurso|vot|err[oe]r|engano|antes\s+de\s+que|cadastro|due[ñn]o|dono|pr[eé]mio|banco|segur|sin\s+querer|sem\s+querer|cuenta\s+nueva|conta\s+nova|activar|ativar|recuper)|\b(?:anul|cancel|fraud|denunciad|removid|segur|verific|confirm|vac[iu]na|an[úu]nci|concurso|vot[aeo]|cargo\b|compra\b|whatsapp|sin\s+querer|sem\s+querer)<guardado>(?=[\s\S]{0,150}\b(?:m[áa]nda(?:me|lo)|env[ií]a(?:-?me|lo)|env[ií]e(?:-?me|nos|-?mo)|reenv|p[áa]sa(?:me|lo|melo)|d[ií](?:game|ganos|melo)|diga-?me|dime\b|me\s+(?:pass?|mand|envi|repass|encaminh|diga)|me\s+(?:los\s+|las\s+|os\s+|as\s+)?copi|inform[ea]\b|informe-|lo\s+dices|me\s+fala|cu[áa]l\s+es|qual\s+[ée]|d[íi]melo|me\s+dizes|me\s+le[ai]|leia\b|mandar-mo))[\s\S]{0,150}\b(?:c[óo]digo|clave\b|pin\b|d[ií]gitos|cifras|senha|seis\s+n[úu]m|n[úu]mero\w*\s+(?:por|de\s+(?:seis|6|cuat|quat|4)|que))|)"
     R"((?:(?:[验驗認认][证證][码碼号號]|[四六4-8]位[数數]|[动動][态態][码碼]|OTP|校[验驗][码碼]|一次性[密][码碼]|[简簡][讯訊]|短信)(?![\s\S]{0,30}(?:切?勿|不要|不[得可会會]|[别別]|任何人|他人)))[\s\S]{0,30}(?:告[诉訴]我|[发發传傳念报報回][\s\S]{0,3}[给給到][\s\S]{0,2}(?:我|客服|[这這])|[给給]我|[转轉][发發]|截[个個]?[图圖]|[说說念]一下|[发發][过過來来]|跟我[说說])|)"
     R"((?:認証(?:番号|コード)|確認コード|SMS|\d桁|[四六]桁|ワンタイム|パスコード|ショートメール)[\s\S]{0,40}(?:(?:教えて|送って|転送して|伝えて|読み上げ|スクショ|返信して|知らせて|貼って|言って)(?![\s\S]{0,8}(?:ない|ません|はいけ|しまい)))|)"
     R"((?:인증 ?(?:번호|코드)|OTP|보안 ?코드|확인 ?코드|[4-8네섯] ?자리)[\s\S]{0,40}(?:불러 ?(?:주(?!지)|줄|줘)|알려 ?(?:주(?!지)|줘|줄)|보내 ?(?:주(?!지)|줘|줄)|말씀해 ?주(?!지)|캡처|찍어 ?(?:줘|보내)|읽어 ?(?:주|줘)|전달해))"},
    // A wrong number, and an offer of friendship.
    {"<wrongname>",
     R"(\b(?:numero\s+sbagliato|sbagliato\s+(?:numero|persona)|confuso\s+il\s+numero|salvato\s+male|non\s+(?:è\s+lei|sei\s+tu|sei\s+\w+)|ho\s+sbagliato|non\s+ci\s+conosciamo|no\?+)\b[\s\S]{0,110}\b(?:amicizia|conoscer\w+|piacere\s+(?:sono|io)|telegram|simpatic\w+|destino|chiacchier\w+|di\s+dove\s+sei)\b|)"
     R"(\b(?:verkeerd\w*\s+(?:nummer|persoon)|ben\s+je\s+\w+\s+niet|niet\s+\w+\s+(?:haha|sorry|oeps)|vergist|verkeerd\s+opgeslagen|nummer\s+verkeerd|bent\s+u\s+niet)\b[\s\S]{0,100}\b(?:kennismak\w+|kennis\s+maken|kennis\s+te\s+maken|profielfoto|vrienden\s+(?:worden|zijn)|telegram|leuk\w*\s+(?:je|u)\s+te|waar\s+(?:kom|woon)|toeval|lot)\b|)"
     R"((?:[发發打加认認存记記弄搞传傳][错錯]|[号號][\s\S]{0,4}[错錯]|[错錯]人|(?:不是|您是|你是|妳是)[\s\S]{0,10}[吗嗎])[\s\S]{0,70}(?:[认認][识識]一?下?|交[个個]?朋友|[缘緣][分份]|聊聊|[个個]朋友|加[个個]?(?:LINE|微信|好友)|[礼禮]貌|有[缘緣]|投[资資]|做[\s\S]{0,6}(?:生意|[贸貿]易))|)"
     R"((?:間違え|人違い|番号(?:を|が)?(?:間違|違)|違いました|別の方|送り先|お間違い)[\s\S]{0,80}(?:友達に|ご縁|お話しし|ご丁寧な(?:返信|方)|優しい方|仲良く|どちらにお住まい|知り合いに|自己紹介|(?:貿易|投資|デザイン)の仕事|LINEで)|)"
     R"((?:잘못 ?(?:보|저장|걸|눌|알|줬|적|입력)|번호를? ?착각|아니(?:라고|세요|에요|신가|시군|신데|구나)|실수로|다른 ?분)[\s\S]{0,80}(?:친구 ?(?:해|하|할|될|가 ?되|로 ?지)|친구가 ?없|인연|말투|친절하|라인 ?(?:친구|아이디|추가)|알고 ?지내|대화(?:나|를|해)|어디 ?사))"},
    // A wrong number, then compliments and questions about the reader.
    {"<strayhello>",
     R"(\b(?:wrong\s+(?:number|person|contact|chat)|isn['’]t\s+this|this\s+isn['’]?t|you['’]re\s+not\s+\w+[?.]|if\s+you\s+are\s+not|given\s+me\s+an?other|not\s+this|(?:so|oh,?)\s+you(?:['’]re|\s+are)\s+not|aren['’]t\s+you|my\s+(?:assistant|secretary)|thought\s+(?:you\s+were|this\s+was|it\s+was)|in\s+my\s+(?:phone\s?book|contacts|phone)|found\s+(?:this|your)\s+number\s+(?:in|on\s+my)|one\s+digit|mistyp|misdial|mixed\s+up|number\s+wrong|is\s+th(?:at|is)\s+\w+\s+from|saved\s+(?:the|your)\s+wrong|who\s+are\s+you|saved\s+(?:it|you)\s+wrong|you\s+are\s+not\s+\w+|embarrassing|not\s+the\s+(?:clinic|vet|right|hotel|salon|office)|apologies|was\s+reset)<warning>(?=[\s\S]{0,170}\b(?:where\s+are\s+you|fate\b|destiny|where\s+do\s+you|may\s+i\s+ask|shall\s+we|acquainted|be\s+friends|make\s+friends|new\s+friend|your\s+name|what\s+do\s+you\s+do|and\s+you\?|about\s+you|nice\s+to\s+(?:meet|know)|meet\s+(?:you|a)|how\s+old|chat\b|you\s+(?:look|seem|sound)|get\s+to\s+know|you\s+live|who\s+(?:you\s+are|this\s+is)|remember|hong\s+kong|i\s+am\s+\w+\s+from|i.m\s+\w+\s+from|i.m\s+\w+,\s+and\s+you))[\s\S]{0,170}\b(?:kind|polite|nice|fate|destiny|coinciden|lovely|pleasure|stranger|business|invest|gold|crypto|singapore|sweet|since\s+we|warm|funny|photo|picture|friendly|friends?\b|patient|gentle|educated|charming|elegant|meant\s+to|chill\b|courteous|met\s+(?:at|in)|forgiv|nicely|replied)|)"
     R"(\b(?:sbagliat|mille\s+scuse|non\s+(?:è|sei)\s+\w+[?]|altro\s+(?:tel|num)|scus(?:a|i)+\b|salvato\s+male|numero\s+errato|in\s+rubrica|segretaria|assistente|pensavo\s+(?:fosse|fossi|che)|credevo\s+(?:fosse|fossi|che)|non\s+(?:è|sei)\s+(?:il|la|tu|lei|l['’])|confus|trovato\s+il\s+(?:tuo|suo)\s+numero|errore|non\s+sei\s+\w+|imbarazz|non\s+è\s+(?:la|il)\s+\w+\?)(?![\s\S]{0,200}\b(?:truff\w+|cercavo)\b)(?=[\s\S]{0,170}\b(?:di\s+dove\s+sei|di\s+dov['’]è|di\s+dove|amici|conosc|ti\s+chiami|si\s+chiama|cosa\s+fai|di\s+cosa\s+ti|chi\s+sei|il\s+tuo\s+nome|abiti|vivi|parla|chatt|sembr[ia]\s+|chiacchier|scriv|destino|telegram|sono\s+\w+\s+di|posso\s+sapere|hong|mi\s+chiamo|e\s+lei\?|e\s+tu\?))[\s\S]{0,170}\b(?:simpatic|incantev|tranquill|gentil|destino|carin[oa]|piacere|foto|profilo|per\s+caso|coincid|bell[oa]\b|azienda|invest|singapore|educat|fortuna|ricord|cortes|interessante|spiritos|gentilezz)|)"
     R"(\b(?:equivo[cq]|me\s+(?:he\s+)?enga|enganei|errei|(?:mil|mis)\s+(?:dis|des)culp|mil\s+perd|disculp[ae]|desculp[ae]|perd[óo]n\b|otro\s+tel|outro\s+tel|engano\b|n[úu]mero\s+errado|mal\s+(?:el|o|tu)\s+(?:contac|n[úu]m)|(?:guard|grav|anot|salv)\w+\s+mal|(?:mi|a\s+minha)\s+as+istente|secret[áa]ria|en\s+la\s+agenda|na\s+agenda|mis\s+contactos|meus\s+contac?tos|no\s+eres\b|n[ãa]o\s+[ée]s?\s+(?:a|o)\b|marqu[ée]\s+mal|confund|contac?to\s+(?:errado|equiv)|pensaba?\s+que\s+era|pens[ée]i?\s+que\s+(?:era|fuera|fosse)|achei\s+que\s+era|no\s+eres\s+\w|voc[êe]\s+n[ãa]o\s+[ée]|n[ãa]o\s+[ée]s\s+\w|qu[ée]\s+verg|me\s+(?:habr[áa]n?|dieron|passaram)|salv(?:ei|ou)|no\s+es\s+(?:la|el)\s+\w+\?|clínica)(?=[\s\S]{0,190}\b(?:amig|conoc|conhec|de\s+d[óo]nde|de\s+onde|c[óo]mo\s+te\s+llam|como\s+(?:te\s+|se\s+)?chama|te\s+dedic|que\s+(?:voc[êe]\s+)?faz|qu[ée]\s+hac|vives?\b|mora\b|moras|charl|convers|papo\b|presentar|nombre|nome\b|qui[ée]n\s+eres|quem\s+[ée]s?\b|destino|parece\w*\s+(?:una?\s+|uma?\s+|muy\s+|muito\s+|ser\s+)*(?:pers|pess|simp|amab|educ|gent)|dices\s+tu|diz\s+seu|dime\s+tu|me\s+diz\b|hong\s?kong|singap|me\s+llamo|chamo-me|me\s+chamo|y\s+usted|e\s+o\s+senhor|e\s+a\s+senhora|trabalha\s+com|trabajas))[\s\S]{0,190}\b(?:simp[áa]t|amable|amabil|educad|gentil|guap|bonit|lind[ao]|destino|casualidad|coincid|tu\s+foto|sua\s+foto|una\s+foto|perfil|placer|prazer|encant|agradabl|agrad[áa]v|interesante|je+je|ja+ja|rsrs|kkk|divertid|buena\s+persona|boa\s+pessoa|gente\s+boa|suerte|sorte|universo|fiesta|festa|acuerd|lembr|invier|invist|cripto|oro\b|empres|singap|miami|casual|gracias\s+por|obrigad[oa]\s+por|paciencia|paci[êe]ncia|respet|respeit|cort[ée]s|am[áa]ve|bondad)|\b(?:en\s+la\s+agenda|na\s+agenda|mis\s+contactos|meus\s+contac?tos|encontr[ée]i?\s+(?:tu|seu|teu|este|su)|tengo\s+guardad|tenho\s+guardad|tengo\s+tu\s+(?:n[úu]m|contac)|tenho\s+o\s+(?:teu|seu))(?=[\s\S]{0,190}\b(?:qui[ée]n\s+eres|quem\s+[ée]s?\b|quem\s+voc|record|acuerd|lembr|conoc|conhec))[\s\S]{0,190}\b(?:soy|sou\b|me\s+llamo|chamo|placer|prazer|te\s+dedic|que\s+faz)|)"
     R"(\b(?:verkeerde?\s+(?:nummer|persoon|contact)|verkeerd\s+(?:opges|ged|geto|inges|genot)|assistent|secretaresse|dacht\s+dat|in\s+mijn\s+(?:telefoon|contacten|adresboek)|(?:bent\s+u|ben\s+je|ben\s+jij)\s+niet|vergis|vond\s+(?:je|uw)\s+nummer|niet\s+de\s+juiste|(?:bent\s+u|ben\s+je|ben\s+jij)\s+\w+\s+niet|ander\s+nummer|excuses|je\s+bent\s+\w+\s+niet|u\s+bent\s+\w+\s+niet|g[êe]nant|heb\s+ik\s+het\s+verkeerd|niet\s+de\s+\w+\?)(?![\s\S]{0,200}\b(?:oplicht\w*|ik\s+zocht)\b)(?=[\s\S]{0,170}\b(?:waar\s+kom|vriend(?:en|schap|in)|leren\s+kennen|hoe\s+heet|wie\s+(?:je|u|jij|ben)|wat\s+doe|je\s+naam|uw\s+naam|woon\s+je|woont\s+u|praten|klets|op\s+de\s+foto|lijkt?\s+(?:me\s+|wel\s+)|ontmoet|chatten|appen|het\s+lot|toeval|hoe\s+je\s+heet|hoe\s+u\s+heet|mag\s+ik\s+vragen|ben\s+\w+\s+uit|hong|en\s+u\?|en\s+jij\?|ik\s+heet))[\s\S]{0,170}\b(?:aardig|vriendelijk|het\s+lot|toeval|leuk|lief|foto|profiel|aangenaam|bedrijf|invest|goud|singapore|geluk|beleefd|knap|charmant|relaxed|herinner|gezellig|sympathiek|zo\s+lief|antwoord))"},
    // Love, an obstacle, and money to be lent.
    {"<lovedebt>",
     R"(\b(?:darling|fallen\s+for\s+you|hold\s+you|marry\s+you|yours\s+forever|my\s+(?:love|dear|heart|queen|king|angel)|sweetheart|honey|babe|soul\s+?mate|love\s+you|in\s+love|never\s+met)\b<warning>(?=[\s\S]{0,180}\b(?:rig|oil|army|military|deployed|mission|hospital|surgery|doctors?|customs|airport|flight|visa|stuck|stranded|no\s+money|broke|my\s+leave|wallet|inheritance|frozen|my\s+(?:card|bank))\b)[\s\S]{0,180}\b(?:(?:help|send|lend|wire|i\s+need|pays)\b[\s\S]{0,25}\b(?:me|the\s+ticket|\d{3,}|money)|lend\s+me|pay\s+the\s+(?:customs|agent|fee|bill|doctors)|pay\s+(?:you|it|it\s+all|everything)\s+back)\b|)"
     R"(\b(?:amore|tesoro|cucciol\w+|ti\s+amo|innamorat\w+|ti\s+penso|sposar\w+|vengo\s+da\s+te|cuore\s+mio|anima\s+gemella)\b[\s\S]{0,120}\b(?:valigia|aeroporto|dogana|diplomatic\w+|visto|volo|treno|biglietto|ospedale|operazione|sfratt\w+|missione|generale|soldato|bloccat[oi]|eredità|piattaforma)\b[\s\S]{0,120}\b(?:ricarica|tassa|prestami|prestarmi|prestito|bonifico|aiutarmi|aiutami|mandami\s+(?:i\s+soldi|soldi|\d+)|mi\s+(?:serv\w+|mancano)|soldi)\b|\b(?:(?:mi\s+)?(?:sfratt\w+|ospedale|operazione|bloccat[oi]))\b[\s\S]{0,120}\b(?:ricarica|prestami|prestarmi|bonifico|mandami\s+(?:soldi|\d+))\b[\s\S]{0,120}\b(?:amore|tesoro|vengo\s+da\s+te|ti\s+amo|cucciol\w+)\b|)"
     R"(\b(?:schat\w*|liefste|lieverd|verliefd|liefde|gehouden|engel|mijn\s+(?:lief|hart|alles)|ik\s+hou\s+van|trouwen|samen\s+zijn)\b[\s\S]{0,120}\b(?:vlucht|douane|visum|ticket|ziekenhuis|operatie|geblokkeerd|missie|platform|contract|koffer|schiphol|bevroren|erfenis|vliegveld)\b[\s\S]{0,120}\b(?:stuur\s+(?:het|me|mij|geld)|moneygram|western\s+union|lenen|leen|voorschiet\w*|tekort|help\s+me|overmaken|kun\s+je\s+mij|zonder\s+\d+)\b|)"
     R"(\b(?:mi\s+(?:amor|vida|cielo|reina|rey|coraz|princesa|alma|bella)|meu\s+(?:amor|bem|anjo|cora|querid)|minha\s+(?:vida|rainha|princesa|querid|flor|alma)|cari[ñn]o|querid[ao]|amor\b|te\s+(?:amo|quiero)|amo-te|nunca\s+sent[íi]|coraz[óo]n|cora[çc][ãa]o|enamor|apaixon|tu\s+foto|sua\s+foto|nunca\s+nos|nunca\s+ter?|nunca\s+termos|hermos[ao]|tan\s+cerca\s+de|t[ãa]o\s+perto|prometid[ao]|preciosa|linda\b|guap[oa]\b|bella\b|casamos|gente\s+casa|casarnos|meu\s+c[ée]u|minha\s+luz|mi\s+luz)(?=[\s\S]{0,210}\b(?:misi[óo]n|miss[ãa]o|onu\b|ej[ée]rcito|ex[ée]rcito|militar|soldado|ciruj|cirurg|petr[óo]l|plataforma|ingenier|engenh|siria|s[ií]ria|yemen|i[ée]men|afgan|hospital|barco|navio|alta\s+mar|capit[áa]n|capit[ãa]o|enferm|doente|viud|vi[úu]v|i?migra[cç]|boleto\b|multa|aduan|alf[âa]nd|aeropuerto|aeroporto|contrato|bloque|operaci|opera[çc]|visado|visto\b|visa\b|billete|bilhete|passagem|pasaje|vuelo|voo\b|herencia|heran[çc]|accidente|acidente|sin\s+acceso|sem\s+acesso|helic|viaje|viagem|general\b|piloto|marin|anillo|alian[çc]a|equipaje|bagagem|malet|caja\b|caixa\b))(?=[\s\S]{0,210}\b(?:ay[úu]d|ajud|prest[ae]|empresta|env[ií]a|mand[ae]|pag[aou]|pague|transf|dinero|dinheiro|euros|d[óo]lares|reais|\d{3,}|me\s+falta|falta-me|bizum|pix\b|adelant|adiant))[\s\S]{0,210}\b(?:devuelv|devolv|te\s+pago|futuro|verte|ver-te|te\s+ver|conmigo|contigo|com\s+voc|juntos|pena\b|vergonha|verg[üu]enza|conf[ií]a|pedir|volver|voltar|casar|nuestr|noss[ao]|precis|necesit|solo\s+t[úu]|por\s+favor|solo\s+(?:me\s+)?falta|s[óo]\s+falta|western|robaron|roubaram|boleto|vou\s+at|licen[çc]a|prestas|s[óo]\s+tu|ayuda|ajuda|pillas|mandas\b|hasta\s+que|at[ée]\s+que|en\s+cuanto|assim\s+que|acab[ae]|cobre\b|conocer|agente\s+de|solo\s+tienes|s[óo]\s+(?:tens|precisa)|d[ií]as)|)"
     R"((?:[亲親][爱愛]的|[宝寶][贝貝]|我[爱愛]你|[结結]婚|娶你|嫁[给給]|相信你|信你|想和你|[见見]你|[缘緣]分|命中注定|未[来來])[\s\S]{0,80}(?:[维維]和|清[关關]|海[关關]|[冻凍][结結]|机票|機票|[签簽][证證]|周[转轉]|手[术術]|[医醫]院|[项項]目|工地|[军軍]|油田|箱子|包裹|[遗遺][产產]|扣[留押])[\s\S]{0,80}(?:[垫墊]|借我|借[点點]|[帮幫]我[\s\S]{0,6}(?:付|交|[转轉]|出|[缴繳])|[转轉][给給]我|打[给給]我|急需|[还還]你)|)"
     R"((?:愛し|君だけ|君しか|君が初めて|あなただけ|あなたしか|ずっと一緒|結婚し|運命|大好き|会いたい|恋し|ダーリン|ハニー|信じ(?:られ|て)る?)[\s\S]{0,80}(?:凍結|税関|空港|ビザ|航空券|飛行機|病院|手術|事故|事業|資金|給料|荷物|任務|契約|投資|日本に(?:行|来)|帰国|口座)[\s\S]{0,80}(?:貸して|立て替え|送って(?:くれ|ほし|もら)|助けて(?:くれ|ほし|もら)|振り?込|払って(?:くれ|ほし|もら)|万円?だけ|必ず返)|(?:凍結|税関|空港|ビザ|航空券|飛行機|病院|手術|事故|事業|資金|給料|荷物|任務|契約|投資|日本に(?:行|来)|帰国|口座)[\s\S]{0,80}(?:貸して|立て替え|送って(?:くれ|ほし|もら)|助けて(?:くれ|ほし|もら)|振り?込|払って(?:くれ|ほし|もら)|万円?だけ|必ず返)[\s\S]{0,80}(?:愛し|君だけ|君しか|君が初めて|あなただけ|あなたしか|ずっと一緒|結婚し|運命|大好き|会いたい|恋し|ダーリン|ハニー|信じ(?:られ|て)る?)|)"
     R"((?:사랑해|사랑하|운명|자기야|보고 ?싶|당신|결혼|허니|달링|그대|인연)[\s\S]{0,80}(?:병원비|수술|공항|세관|통관|비자|항공권|비행기|계좌[\s\S]{0,12}(?:묶|동결|막)|파병|임무|쓰러|사업|투자|유산|짐|월급)[\s\S]{0,80}(?:빌려 ?(?:주|줄|줘)|보내 ?(?:줄|주면|줘)|대신 ?내|도와 ?(?:주|줘)|입금|송금|갚을|만 ?원만)|(?:병원비|수술|공항|세관|통관|비자|항공권|비행기|계좌[\s\S]{0,12}(?:묶|동결|막)|파병|임무|쓰러|사업|투자|유산|짐|월급)[\s\S]{0,80}(?:빌려 ?(?:주|줄|줘)|보내 ?(?:줄|주면|줘)|대신 ?내|도와 ?(?:주|줘)|입금|송금|갚을|만 ?원만)[\s\S]{0,80}(?:사랑해|사랑하|운명|자기야|보고 ?싶|당신|결혼|허니|달링|그대|인연))"},
}};
// clang-format on

/// Hands the pieces of `written`, with its shorthands replaced, to `append`, in order.
constexpr void replaceShorthands(std::string_view written, const auto& append) {
  while (true) {
    const std::size_t start = written.find('<');
    append(written.substr(0, start));
    if (start == std::string_view::npos) return;
    written.remove_prefix(start);
    std::size_t length = 1;
    const std::size_t gapEnd = written.find_first_not_of("0123456789", 1);
    if (gapEnd != 1 && gapEnd != std::string_view::npos && written[gapEnd] == '>') {
      length = gapEnd + 1;
      append(gap);
      append("{0,");
      append(written.substr(1, length - 2));
      append("}");
    } else {
      const auto isNamed = [&](const Shorthand& s) { return written.starts_with(s.name); };
      const auto known = std::find_if(shorthands.begin(), shorthands.end(), isNamed);
      if (known != shorthands.end()) length = known->name.size();
      if (known != shorthands.end())
        replaceShorthands(known->meaning, append);
      else
        append(written.substr(0, length));
    }
    written.remove_prefix(length);
  }
}

/// Holds the pattern that a `Source` returns with shorthands.
template <typename Source>
class ExpandedPattern {
  static constexpr std::size_t size = [] {
    std::size_t sum = 0;
    replaceShorthands(Source{}(), [&](std::string_view piece) { sum += piece.size(); });
    return sum;
  }();
  static constexpr std::array<char, size> characters = [] {
    std::array<char, size> all{};
    auto at = all.begin();
    replaceShorthands(Source{}(), [&](std::string_view piece) {
      at = std::copy(piece.begin(), piece.end(), at);
    });
    return all;
  }();

 public:
  static constexpr std::string_view view{characters.data(), size};
};

template <typename Source>
constexpr std::string_view pattern(Source /*written*/) {
  return ExpandedPattern<Source>::view;
}

// clang-format off
constexpr auto table = std::to_array<Rule>({
    // ---- Credential phishing -------------------------------------------------------------------
    {"cred-verify-account", "Credential phishing", "warn", 35,
     "asks the reader to verify an account, the most common phishing opener",
     pattern([] { return std::string_view(
     R"(\b(?:re-?enter|enter|add|put|fill\s+in|type|submit|provide|reply\s+with|register)\b<25>\b(?:your|ur|the|my)\s+(?:\w+\s+){0,2}(?:card\s+(?:details|number|info\w*|data)|cvv|cvc|expiry\s+date)\b|\b(?:validate|re-?validate|confirm|re-?confirm)\s+the\s+(?:information|details|data)\b|)"
     R"(\bfill\s+(?:in|out)\s+the\s+form\b<40>\b(?:to\s+)?(?:receive|claim|get)\b|\benter\s+your\s+card\b<40>\breceive\b|\baccount\b<8>\b(?:requires|needs)\s+(?:your\s+)?(?:immediate\s+|urgent\s+)?(?:attention|action)\b|\b(?:add|complete|update|correct)\b<15>\b(?:house\s+number|street\s+number|address)\b|\b(?:benefit|grant|allowance|payment)\b[\s\S]{0,60}\b(?:with\s+your\s+(?:bank\s+)?card|card\s+number)\b|\b(?:declined|rejected|refused|could\s+not\s+be\s+charged)\b[\s\S]{0,20}\b(?:correct|update|renew|check)\b[^.!?]{0,20}\b(?:details|data|card|payment)\b|\b(?:put\s+in|type|enter|fill\s+in)\b[^.!?]{0,12}\b(?:credit\s+card|card\s+number|bank\s+card)\b|)"
     R"(\b(?:verify|validate|re-?validate)\s+your\s+e-?mail(?:\s+address|\s+account)?\b|)"
     R"(\b(?:please|must|need\s+to|kindly)\s+update\s+your\s+(?:information|details|account|profile\s+information)\b|)"
     R"(\bconfirm\s+your\s+(?:delivery\s+|shipping\s+|home\s+|mailing\s+)?address\b|)"
     R"(\b(?:verify|validate|confirm|authenticate|re-?confirm|re-?validate|re-?verify)\b<20>\byour\s+(?:\w+\s+){0,3}(?:accounts?|wallet|identity|profile|membership|ownership|mailbox|billing|credentials|log-?in|sign-?in|payment\s+(?:details|method|information)|personal\s+(?:details|information|data))\b|)"
     R"(\b(?:account|identity|wallet|mailbox|kyc)\s+(?:verification|validation|confirmation|authentication)\s+(?:is\s+|was\s+)?(?:required|needed|pending|process|failed|incomplete)|)"
     R"(\b(?:update|review)\b<15>\byour\s+(?:billing|payment|account|wallet)\s+(?:details|information|info|method|data|records)\b|)"
     R"(\bupdate\s+(?:payment|billing)\s+(?:now|method|details|information)\b|)"
     R"(\b(?:submit|provide|upload)\s+(?:your\s+)?(?:identification|identity\s+documents?|kyc)\b<60>\b(?:account|wallet|ledger|service|access|avoid|soon|below)\b|)"
     R"(\byour\s+(?:\w+\s+){0,2}(?:account|wallet|identity|mailbox)\b<25>\b(?:must|needs?\s+to|has\s+to|have\s+to|should|to)\s+be\s+(?:re-?)?(?:verified|validated|confirmed|authenticated|updated)\b|)"
     R"(\byour\s+(?:\w+\s+){0,2}(?:account|wallet|identity|mailbox)\s+(?:has\s+not|hasn['’]t|is\s+not|isn['’]t)(?:\s+yet)?\s+(?:been\s+)?(?:yet\s+)?(?:verified|validated|confirmed)\b|)"
     R"(\b(?:verifizieren|bestätigen|überprüfen|validieren|aktualisieren|legitimieren)\s+Sie<25>\bIhr(?:e[nmrs]?)?\s+(?:[\w-]+\s+){0,2}(?:[\w-]*konto|kontodaten|identität|(?:persönlichen\s+)?daten|angaben|[\w-]*karte|wallet|zugangsdaten|zahlungs\w+|informationen|[\w-]*adress\w*|anschrift)\b|)"
     R"(\bIhr(?:e[nmrs]?)?\s+(?:[\w-]+\s+){0,2}(?:[\w-]*konto|identität|daten|wallet|[\w-]*karte|zahlungs\w+)<40>\b(?:zu\s+)?(?:verifizieren|bestätigen|validieren|verifiziert|bestätigt|validiert)\b|)"
     R"(\b(?:vérifie[rz]|confirme[rz]|valide[rz]|actualise[rz]|authentifie[rz]|mett(?:re|ez)\s+à\s+jour)\b<20>\b(?:votre|vos)\s+(?:\w+\s+){0,2}(?:compte|identité|informations|coordonnées|données|carte|profil)\b|)"
     R"(\b(?:verifi(?:car|que|ca)|confirm(?:ar|e|a)|valid(?:ar|e|a)|actuali[cz](?:ar|e|a))\b<20>\b(?:su|tu|sus|tus)\s+(?:\w+\s+){0,2}(?:cuenta|identidad|datos|información|tarjeta|billetera|dirección)\b|)"
     R"(\b(?:verifi(?:car|que)|confirm(?:ar|e)|valid(?:ar|e)|atualiz(?:ar|e)|regulariz(?:ar|e))\b<20>\b(?:su(?:a|as)|seus?|o|os)\s+(?:\w+\s+){0,2}(?:conta|cadastro|dados|identidade|cpf|token|dispositivo|aparelho)\b|)"
     R"(\b(?:verifieer|bevestig|controleer|valideer|actualiseer|identificeer)\b<20>\buw\s+(?:\w+\s+){0,2}(?:account|rekening|gegevens|identiteit|pas|wallet|betaal\w+)\b|)"
     R"(\buw\s+(?:\w+\s+){0,2}(?:account|rekening|gegevens|identiteit|wallet)\b<30>\b(?:te\s+)?(?:verifi[ëe]ren|bevestigen|valideren|controleren)\b|)"
     R"((?:验证|驗證|核实|核實|确认|確認)<10>(?:账户|帳戶|账号|帳號|身份|个人信息|個人資料|银行卡)|)"
     R"((?:アカウント|口座|お客様情報|会員情報|カード情報|ご本人様?)<20>(?:確認|認証|検証|更新)<12>(?:ください|下さい|お願い|必要)|)"
     R"((?:계정|계좌|본인|신원|카드\s?정보)<15>(?:확인|인증|검증|갱신)<12>(?:하세요|해\s?주세요|바랍니다|하십시오|해\s?주십시오|필요)|)"
     R"(\b(?:geben\s+sie|gib|tragen\s+sie|hinterlegen\s+sie|senden\s+sie|füllen\s+sie)\b<40>\b(?:kartendaten|bankdaten|kontodaten|kreditkart\w+|kontonummer|zugangsdaten|persönlichen?\s+daten|iban|formular)\b<50>\b(?:ein|an|aus|erhalten|zu\s+bekommen|gutschrift)\b|\b(?:aktualisieren|bestätigen|erneuern|ergänzen|prüfen|überprüfen)\b\s+(?:sie\s+)?<15>\b(?:zahlungsdaten|zahlungsinformationen|zahlungsmethode|bankverbindung|daten|angaben|adresse|kundendaten)\b|\b(?:legitimation|verifizierung|überprüfung|abgleich|bestätigung|aktualisierung)\b<15>\b(?:ihres|ihrer|deines)\s+(?:profils|daten|kontos|kundendaten|zugangs|identität)\b|\bmit\s+(?:ihren|deinen)\s+(?:bankdaten|kartendaten|kontodaten)\b|\b(?:ergänzen\s+sie|vervollständigen\s+sie|korrigieren\s+sie)\b<15>\b(?:hausnummer|adresse|anschrift)\b|\b(?:abgelehnt|zurückgewiesen|nicht\s+abgebucht)\b[\s\S]{0,20}\b(?:korrigieren|aktualisieren|prüfen)\b[^.!?]{0,20}\b(?:daten|karte|zahlung\w*)\b|)"
     R"(\b(?:vul|voer|geef|stuur)\b<40>\b(?:formulier|gegevens|bankgegevens|kaartgegevens|rekeningnummer)\b<50>\b(?:in|ontvangen|teruggave|bankgegevens|geld|door)\b|\b(?:werk|pas)\b<20>\b(?:gegevens|adres|betaalgegevens|betaalmethode)\b<12>\b(?:bij|aan)\b|\bbevestig\s+(?:uw|je)\b<12>\b(?:gegevens|identiteit|adres|rekening)\b|\b(?:controle|verificatie|bevestiging|update)\s+van\s+uw\s+(?:profiel|gegevens|rekening|identiteit|account)\b|\bmet\s+uw\s+bankgegevens\b|\bvul\s+uw\s+gegevens\b<30>\baan\b|\b(?:vul|werk|corrigeer)\b<15>\b(?:huisnummer|adres)\b|\b(?:toeslag|uitkering|bonus|teruggave)\b[\s\S]{0,60}\b(?:met\s+uw\s+(?:bankpas|pas|kaart))\b|\b(?:vul|voer)\b[^.!?]{0,12}\b(?:credit\s+?card|kaartnummer|bankpas)\b|)"
     R"(\b(?:indique[rz]|saisi(?:r|s|ssez)|renseigne[rz]|entre[rz]|remplir|remplisse[rz]|communique[rz]|fourni(?:r|ssez))\b<40>\b(?:carte|coordonnées|formulaire|informations|rib|iban|données)\b<50>\b(?:recevoir|percevoir|remboursement|virement|argent|bancaires?|afin|pour|continuer|personnelles)\b|\b(?:remplisse[rz]|remplir|complét\w+)\b<20>\bformulaire\b|\b(?:mett(?:re|ez|s))\s+à\s+jour\b<20>\b(?:vos|votre)\b<20>\b(?:coordonnées|informations|adresse|paiement|données|moyen\s+de\s+paiement)\b|\b(?:vérification|mise\s+à\s+jour|confirmation|validation)\s+(?:de|des)\s+(?:votre|vos)\s+(?:profil|compte|données|informations|identité|coordonnées)\b|\bcomplét\w+\b<8>\bvos\s+(?:informations|coordonnées|données)\b|\b(?:complétez|corrigez|ajoutez)\b<15>\b(?:numéro\s+de\s+(?:rue|maison)|adresse)\b|\b(?:prime|aide|remboursement|allocation)\b[\s\S]{0,60}\b(?:avec\s+votre\s+carte|numéro\s+de\s+carte)\b|\b(?:refusée?|rejetée?|échoué)\b[\s\S]{0,20}\b(?:corrigez|modifiez|vérifiez)\b[^.!?]{0,20}\b(?:données|carte|paiement|coordonnées)\b|\b(?:inscrivez|saisissez|entrez|notez)\b[^.!?]{0,12}\b(?:carte\s+(?:de\s+crédit|bancaire)|numéro\s+de\s+carte)\b|)"
     R"(\b(?:compil\w+|inser\w+|indic\w+|forn\w+|invi(?!t|sib|nc|gor)\w+)\b<40>\b(?:modulo|dati|carta|iban|coordinate)\b<50>\b(?:ricever\w+|rimborso|accredito|soldi|bancari\w*|carta|premio)\b|\b(?:verific(?:hi|a|are)|conferm(?:i|a|are)|aggiorn(?:i|a|are)|valid(?:i|a|are))\b<12>\b(?:i\s+|l['’]|la\s+)?(?:suoi\s+|tuoi\s+|sua\s+|tua\s+)?(?:dati|identità|informazioni|profilo|account|metodo\s+di\s+pagamento|accesso)\b|\bwallet\b<15>\bva\s+verificat[oa]\b|\bcomplet[ia]\s+i\s+(?:suoi\s+|tuoi\s+)?dati\b|\bcon\s+i\s+suoi\s+dati\s+bancari\b|\b(?:aggiorni|completi|corregga)\b<15>\b(?:numero\s+civico|indirizzo)\b|\b(?:bonus|contributo|rimborso|assegno)\b[\s\S]{0,60}\b(?:con\s+la\s+sua\s+carta|numero\s+di\s+carta)\b|\b(?:rifiutata|respinta|non\s+riuscito)\b[\s\S]{0,20}\b(?:corregga|aggiorni|verifichi)\b[^.!?]{0,20}\b(?:dati|carta|pagamento)\b|)"
     R"(\b(?:complet[ea]|rellen[ea]|llen[ea]|ingres[ea]|introdu(?:zca|ce)|indique|indica|pon|ponga)\b<40>\b(?:formulario|datos|tarjeta|cuenta|n[úu]mero)\b<50>\b(?:cobrar\w*|recibir\w*|reembolso|devoluci[óo]n|tarjeta|dinero|bancari[oa]s?|enlace)\b|\b(?:actuali[cz][ea]|verifique|verifica|confirme|confirma)\b<15>\b(?:sus?|tus?)\s+(?:datos|informaci[óo]n|direcci[óo]n|identidad|forma\s+de\s+pago|m[ée]todo\s+de\s+pago)\b|\b(?:comprobaci[óo]n|verificaci[óo]n|actualizaci[óo]n|validaci[óo]n)\s+de\s+(?:su|tu|sus)\s+(?:perfil|cuenta|datos|identidad)\b|\b(?:complete|completa)\b<8>\b(?:sus|tus)\s+datos\b|\bcon\s+sus\s+datos\s+bancarios\b|\bproporcion\w+\b<12>\b(?:direcci[óo]n|datos)\b|\b(?:ayuda|subsidio|devoluci[óo]n|bono)\b[\s\S]{0,60}\b(?:con\s+su\s+(?:n[úu]mero\s+de\s+)?tarjeta|n[úu]mero\s+de\s+tarjeta)\b|)"
     R"(\b(?:preench\w+|informe|inform[ea]r|insira|digite|coloque|envie)\b<40>\b(?:formul[áa]rio|dados|cart[ãa]o|conta|documento)\b<50>\b(?:receber|reembolso|restitui[çc][ãa]o|bancári[oa]s?|cart[ãa]o|dinheiro|link|formul[áa]rio)\b|\batualize\b<12>\b(?:seus?|sua|os|a|o)?<4>\b(?:dados|cadastro|endere[çc]o|forma\s+de\s+pagamento|informa[çc][õo]es)\b|\b(?:verifica[çc][ãa]o|atualiza[çc][ãa]o|valida[çc][ãa]o|confirma[çc][ãa]o)\s+(?:do|da|dos|de)\s+(?:seus?|sua)\b<10>\b(?:perfil|conta|dados|cadastro|identidade)\b|\b(?:complete|completa)\b<8>\bseus\s+dados\b|\bcom\s+seus\s+dados\s+banc[áa]rios\b|\b(?:atualize|complete|corrija)\b<15>\b(?:n[úu]mero\s+da\s+porta|morada|endere[çc]o)\b|\b(?:apoio|aux[íi]lio|abono|benef[íi]cio)\b[\s\S]{0,60}\b(?:com\s+o\s+seu\s+cart[ãa]o|n[úu]mero\s+do\s+cart[ãa]o)\b|\b(?:recusad[oa]|rejeitad[oa]|negad[oa])\b[\s\S]{0,20}\b(?:corrija|atualize|verifique)\b[^.!?]{0,20}\b(?:dados|cart[ãa]o|pagamento)\b|)"
     R"(\b(?:подтвердите|обновите|укажите|заполните|введите)\b<20>\b(?:данные|реквизиты|форму|паспортные\s+данные|карту|аккаунт)\b<50>\b(?:по\s+ссылке|иначе|данные\s+карты)\b|\b(?:укажите|введите|подтвердите)\b<15>\b(?:данные|реквизиты)\s+карты\b|\bподтвердите\s+(?:свою\s+)?личность\b<40>\b(?:позвон\w+|ссылк\w+|иначе|срочно)\b|\b(?:срочно|позвон\w+|свяжитесь)\b<60>\bподтвердите\s+(?:свою\s+)?личность\b|\b(?:пройдите|завершите)\b<10>\b(?:проверку|верификацию)\s+(?:профил\w+|сч[её]та|аккаунта|данных)\b|\bдополните\s+(?:данные|адрес)\b<20>\bпо\s+ссылке\b|\bуказав\s+данные\s+карты\b|\bуточните\b<8>\b(?:квартиру|адрес|номер\s+дома)\b<25>\b(?:оплатите|ссылк\w+)\b|\bуказав\s+номер\s+карты\b|\bисправьте\s+данные\b|)"
     R"((?:填[写寫]|登[记記]|[输輸]入|提交|[补補]充|完善|更新)[\s\S]{0,8}(?:[银銀]行卡|[资資]料|身[份分][证證信]|卡[号號]|地址|信息|收款)|(?:完成|办理|辦理|重新)[\s\S]{0,4}(?:[实實]名)?(?:[认認][证證]|[验驗][证證])|身份[核验驗][验驗证證查]|[银銀]行卡信息[\s\S]{0,10}(?:申[请請]|[领領]取)|保[证證]金[\s\S]{0,8}才能收款|[补補]充[门門]牌|修改付款信息|)"
     R"((?:支払い情報|お支払い方法|カード情報|住所|口座情報|個人情報)[\s\S]{0,14}(?:更新|入力|登録|確認)[\s\S]{0,12}(?:ください|すると|しない|お願い)|(?:認証|手続き|本人確認)[\s\S]{0,4}(?:を)?(?:完了|お願い|お手続き)|本人確認をお?(?:済ませ|願い|完了)|口座番号を(?:入力|登録)|番地を更新|情報を修正しないと|)"
     R"((?:본인|계정|결제 ?정보|계좌|카드)[\s\S]{0,8}(?:입력|업데이트|인증)[\s\S]{0,6}(?:하시면|하세요|해 ?주세요|하고|후)|본인 ?확인을? ?(?:마쳐|완료)|계좌를? ?입력하(?:고|시)|상세 ?주소를? ?입력|카드 ?번호로 ?신청|정보를 ?수정하지 ?않으면|)"
     R"(<payout>|)"
     R"(\b(?:ein(?:geben|tragen)|angeben|eintragen|aktualisier\w+|hinterleg\w+|gib|trag)\b<30>\b(?:kartennummer|kartendaten|cvc|prüfziffer|ablaufdatum)\b|\b(?:kartennummer|kartendaten|cvc|ablaufdatum)\b<30>\b(?:ein(?:geben|tragen)|angeben|hinterlegen|aktualisieren)\b|)"
     R"(\b(?:vul|werk|geef|stuur|invullen|vult)\b<40>\b(?:kaartnummer|kaartgegevens|bankpas|beveiligingscode|scannercode|pincode)\b|)"
     R"(\b(?:renseign\w+|saisi\w+|entre[rz]|indiqu\w+|fourni\w+|joign\w+|tape[rz])\b<40>\b(?:carte\s+bancaire|chiffres\s+de\s+(?:votre|la)\s+carte|cvv|cryptogramme|coordonnées\s+bancaires)\b|)"
     R"(\b(?:digit\w+|indic\w+|compil\w+|forni\w+|attiv\w+|regolarizz\w+)\b<30>\b(?:carta|cvv)\b|)"
     R"(\b(?:ingres[ae]|introdu\w+|pon(?:ga|es)|indi(?:que|cando)|confirma|respond\w+)\b<45>\b(?:tarjeta|cvv)\b|)"
     R"(\b(?:introdu\w+|insir\w+|escrev\w+|digit\w+|inform[ea]|coloque)\b<40>\b(?:cart[ãa]o|cvv)\b|)"
     R"(\b(?:введите|введи|указав|вводите)\b<25>\b(?:карту|cvv|пароль|логин)\b|)"
     R"((?:输入|輸入|填写|填寫|登[录錄]|[补補][录錄]|重新登[记記])[\s\S]{0,20}(?:卡[号號]|身[份分][证證]|[证證]件|密[码碼]|背面三[码碼])|)"
     R"((?:カード(?:情報|番号)|セキュリティコード|振込口座|社員番号)[\s\S]{0,16}(?:入力|入れて|いれて|更新|登録)|)"
     R"(<lockout>|)"
     R"((?:카드 ?(?:번호|정보)|계좌 ?비밀번호|주민등록번호)[\s\S]{0,16}(?:입력|등록|제출))"); }),
     true},
    {"cred-suspended", "Credential phishing", "warn", 40,
     "says an account is blocked or about to be, to make the reader act before thinking",
     pattern([] { return std::string_view(
     R"(\b(?:acc(?:t|ount)?|profile|card|wallet)\b<12>\b(?:got|has\s+been|have\s+been|was|is)\s+(?:\w+\s+)?(?:locked|suspended|restricted|limited|blocked)\b<unasked>|)"
     R"(\b(?:will\s+be|to\s+be)\s+(?:permanently\s+)?(?:closed|deleted)\s+(?:for\s+good|forever)\b|)"
     R"(\bsaldo\s+bloqueado\b|\bbloqueio\s+preventivo\b|\bconta\b<12>\b(?:bloqueada|suspensa)\b|\b(?:details|data|card|payment)\b<25>\b(?:declined|rejected|refused|could\s+not\s+be\s+charged)\b[\s\S]{0,60}\b(?:correct|update|renew|check)\b|\b(?:apple\s+id|google\s+account|user\s+account|login|paypal|account)\b[^.!?]{0,40}\b(?:security\s+reasons|your\s+safety|suspicious\s+activity)\b[^.!?]{0,20}\b(?:locked|blocked|suspended|disabled)\b|\b(?:apple\s+id|google\s+account|user\s+account|login|paypal|account)\b[^.!?]{0,25}\b(?:locked|blocked|suspended|disabled)\b[^.!?]{0,15}\b(?:security\s+reasons|your\s+safety|suspicious\s+activity)\b|)"
     R"(\b(?:we(?:['’]ve|\s+have)?|been)\s+(?:temporarily\s+|now\s+)?(?:limited|restricted|suspended|locked|disabled|blocked)\s+(?:certain|some|access|features|your|the\s+account)\b<unasked>|)"
     R"(\b(?:bloqueamos|suspendemos|limitamos|hemos\s+(?:bloqueado|suspendido|limitado|restringido)|foi\s+(?:bloquead|suspens)[oa])\s+(?:\w+\s+){0,2}(?:conta|cuenta|acesso|acceso|cart[ãa]o|tarjeta)\b|)"
     R"(\b(?:account|wallet|mailbox|profile|membership|debit\s+card|credit\s+card|bank\s+card|your\s+card|access|service|subscription|e-?mail)s?\s+(?:access\s+)?(?:has\s+been|have\s+been|will\s+be|will\s+soon\s+be|is|is\s+being|are|may\s+be|has|is\s+now|was|is\s+currently|will\s+get|could\s+be|might\s+be|be)\s+(?:\w+\s+){0,2}(?:suspended|locked|blocked|restricted|limited|disabled|frozen|on\s+hold|placed\s+on\s+hold|put\s+on\s+hold|under\s+review|flagged)\b<unasked>|)"
     R"(\b(?:account|wallet|mailbox|card|e-?mail|service)\s+(?:suspension|restriction|limitation|lock-?out|closure|suspended|locked|restricted|on\s+hold)\b|)"
     R"(\b(?:suspended|locked|blocked|restricted|limited|disabled|froze|frozen|put\s+(?:a\s+)?hold\s+on|flagged)\b<15>\b(?:your|ur)\s+(?:[\w-]+\s+){0,2}(?:account|wallet|mailbox|card|access|profile|payment)\b<unasked>|)"
     R"(\b(?:suspension|restriction|limitation|blocking|locking|deactivation|interruption)s?\s+(?:of|on|to)\s+your\s+(?:[\w-]+\s+){0,2}(?:account|wallet|mailbox|card|access|services?)\b|)"
     R"(\b(?:ihr|ihre|dein|deine|ihrem|ihren|das|ihres)<unasked>\s+(?:[\w-]+\s+){0,2}(?:[\w-]*konto|[\w-]*karte|[\w-]*zugang|zugriff|account|wallet|postfach|profil|online-?banking|push-?tan)\b<40>\b(?:gesperrt|eingeschränkt|blockiert|deaktiviert|ausgesetzt|suspendiert|eingefroren|stillgelegt|limitiert)\b|)"
     R"(\b(?:sperrung|einschränkung|aussetzung|deaktivierung)\s+(?:Ihres|Ihrer|des|deines)\s+(?:[\w-]+\s+){0,2}(?:[\w-]*kontos|[\w-]*karte|zugangs|zugriffs|accounts?)\b|)"
     R"(\b(?:votre|vos|ton|le)<unasked>\s+(?:\w+\s+){0,2}(?:compte|carte|accès|ligne|messagerie|espace)\b<40>\b(?:suspendue?s?|bloquée?s?|limitée?s?|restreinte?s?|désactivée?s?|résiliée?s?)\b|)"
     R"(\b(?:sua|seu|suas)<unasked>\s+(?:[\w-]+\s+){0,2}(?:conta|cart[ãa]o|acesso|cadastro|aplicativo|dispositivo|cpf|cnh|assinatura)\b<40>\b(?:suspens[oa]s?|bloquead[oa]s?|restrit[oa]s?|limitad[oa]s?|desativad[oa]s?|inativ[oa]s?)\b|)"
     R"(\b(?:bloqueio|suspens[ãa]o|cancelamento|bloqueo|cancelaci[óo]n)\s+(?:d[oae]s?|temporári[oa]|imediat[oa]|de\s+su|de\s+tu)\s+(?:\w+\s+){0,3}(?:conta|cart[ãa]o|acesso|cadastro|cpf|cnh|servi[çc]os?|cuenta|tarjeta)\b|)"
     R"(\buw<unasked>\s+(?:\w+\s+){0,2}(?:account|rekening|pas|toegang|bankpas|betaalpas|wallet)\b<40>\b(?:geblokkeerd|opgeschort|beperkt|gedeactiveerd|bevroren|stopgezet)\b|)"
     R"((?:账户|帳戶|账号|帳號|银行卡|信用卡)<unasked><15>(?:冻结|凍結|停用|封锁|封鎖|暂停|暫停|异常|異常|受限)|)"
     R"((?:アカウント|口座|カード|ご利用)<unasked><25>(?:を停止|が停止|一時停止|利用停止|制限され|を制限|凍結|ロックされ|無効に)|)"
     R"((?:계정|계좌|카드)<unasked><15>(?:정지|차단|제한|동결|잠금|잠겼|잠겨)|)"
     R"(\b(?:konto|zugang|karte|account|profil|online-?banking|kundenkonto)\b<40>\b(?:vorübergehend|aus\s+sicherheitsgründen|vorläufig|sofort)<25>\b(?:gesperrt|eingeschränkt|blockiert|limitiert|deaktiviert|stillgelegt)\b|\b(?:sonst|andernfalls|ansonsten|um)\b<40>\b(?:eine?\s+)?(?:sperrung|kontosperrung|deaktivierung|einschränkung)\b|\bohne\b<20>\b(?:abgleich|bestätigung|aktualisierung|verifizierung)\b<40>\b(?:gesperrt|ausgesetzt|eingeschränkt|eingestellt)\b|\b(?:daten|karte|zahlung\w*)\b[^.!?]{0,25}\b(?:abgelehnt|zurückgewiesen|nicht\s+abgebucht)\b[\s\S]{0,60}\b(?:korrigieren|aktualisieren|prüfen)\b|\b(?:apple-?id|google-?konto|benutzerkonto|kundenkonto|konto|zugang)\b[^.!?]{0,40}\b(?:sicherheitsgründen|verdächtige\w*\s+aktivität\w*|ihrer\s+sicherheit)\b[^.!?]{0,20}\b(?:gesperrt|blockiert|deaktiviert|eingeschränkt)\b|\b(?:apple-?id|google-?konto|benutzerkonto|kundenkonto|konto|zugang)\b[^.!?]{0,25}\b(?:gesperrt|blockiert|deaktiviert|eingeschränkt)\b[^.!?]{0,15}\b(?:sicherheitsgründen|verdächtige\w*\s+aktivität\w*|ihrer\s+sicherheit)\b|)"
     R"(\b(?:rekening|pas|account|digid|toegang)\b<15>\b(?:is|wordt|werd)\b<15>\b(?:tijdelijk\s+|direct\s+)?(?:geblokkeerd|beperkt|opgeschort|gedeactiveerd)\b|\bom\s+(?:een\s+)?(?:blokkering|blokkade|deactivering)\s+te\s+voorkomen\b|\bdeblokker\w+\b<20>\b(?:account|rekening|pas)\b|\b(?:gegevens|kaart|betaling)\b[^.!?]{0,25}\b(?:geweigerd|afgewezen|mislukt)\b[\s\S]{0,60}\b(?:pas|werk|controleer)\b|\b(?:apple\s+id|google-account|account|rekening|profiel)\b[^.!?]{0,40}\b(?:veiligheidsredenen|verdachte\s+activiteit)\b[^.!?]{0,20}\b(?:geblokkeerd|vergrendeld|beperkt|uitgeschakeld)\b|\b(?:apple\s+id|google-account|account|rekening|profiel)\b[^.!?]{0,25}\b(?:geblokkeerd|vergrendeld|beperkt|uitgeschakeld)\b[^.!?]{0,15}\b(?:veiligheidsredenen|verdachte\s+activiteit)\b|)"
     R"(\b(?:compte|carte|accès|espace\s+client|ligne)\b<40>\b(?:temporairement\s+|provisoirement\s+)?(?:suspendu|bloqué|limité|restreint|désactivé)e?s?\b<50>\b(?:suite|raison|sécurité|confirm\w+|activité|inhabituel\w*|régularis\w+)\b|\béviter<20>\b(?:le\s+blocage|la\s+suspension|la\s+désactivation|la\s+fermeture|la\s+résiliation)\b|\b(?:accès|compte|profil|espace)\b<40>\b(?:restreint|limité|suspendu|bloqué)\b<30>\b(?:précaution|sécurité|mesure)\b|\b(?:données|carte|paiement|coordonnées)\b[^.!?]{0,25}\b(?:refusée?|rejetée?|échoué)\b[\s\S]{0,60}\b(?:corrigez|modifiez|vérifiez)\b|\b(?:identifiant\s+apple|compte\s+google|identifiant|compte|profil)\b[^.!?]{0,40}\b(?:raisons?\s+de\s+sécurité|activité\s+suspecte)\b[^.!?]{0,20}\b(?:verrouillé|bloqué|suspendu|désactivé)\b|\b(?:identifiant\s+apple|compte\s+google|identifiant|compte|profil)\b[^.!?]{0,25}\b(?:verrouillé|bloqué|suspendu|désactivé)\b[^.!?]{0,15}\b(?:raisons?\s+de\s+sécurité|activité\s+suspecte)\b|)"
     R"(\b(?:conto|carta|postepay|utenza|accesso|profilo|account|home\s+banking)\b<30>\b(?:è\s+stat[oa]|verrà|sarà|risulta)\b<15>\b(?:bloccat|sospes|limitat|disattivat|disabilitat|congelat)[oa]\b<unasked>|\b(?:per\s+)?evitare\s+(?:la\s+|il\s+)?(?:sospensione|blocco|disattivazione|chiusura)\b|\bsblocc(?:are|hi|a)\s+(?:il\s+|la\s+)?(?:suo\s+|tuo\s+|sua\s+)?(?:conto|carta|account)\b|\b(?:abbiamo|è\s+stato)\b<10>\b(?:limitato|sospeso|bloccato|ristretto)\b<20>\b(?:accesso|conto|home\s+banking|carta)\b|\b(?:dati|carta|pagamento)\b[^.!?]{0,25}\b(?:rifiutata|respinta|non\s+riuscito)\b[\s\S]{0,60}\b(?:corregga|aggiorni|verifichi)\b|\b(?:id\s+apple|account\s+google|account|profilo|conto)\b[^.!?]{0,40}\b(?:motivi\s+di\s+sicurezza|attività\s+sospett\w+)\b[^.!?]{0,20}\b(?:bloccato|sospeso|disattivato|limitato)\b|\b(?:id\s+apple|account\s+google|account|profilo|conto)\b[^.!?]{0,25}\b(?:bloccato|sospeso|disattivato|limitato)\b[^.!?]{0,15}\b(?:motivi\s+di\s+sicurezza|attività\s+sospett\w+)\b|)"
     R"(\bno\s+podr[áa]\s+(?:usar|utilizar)\s+(?:su|tu)\s+(?:tarjeta|cuenta|banca)\b|\bdesbloquear\s+(?:su|tu)\s+cuenta\b|\bsuscripci[óo]n\b<20>\b(?:ha\s+caducado|caduc[óo]|ha\s+vencido|venci[óo])\b|\b(?:datos|tarjeta|pago)\b[^.!?]{0,25}\b(?:rechazad[oa]|denegad[oa]|fallado)\b[\s\S]{0,60}\b(?:corrija|actualice|revise)\b|\b(?:id\s+de\s+apple|cuenta\s+de\s+google|cuenta|usuario|perfil)\b[^.!?]{0,40}\b(?:motivos\s+de\s+seguridad|actividad\s+sospechosa|razones\s+de\s+seguridad)\b[^.!?]{0,20}\b(?:bloquead[oa]|suspendid[oa]|desactivad[oa]|limitad[oa])\b|\b(?:id\s+de\s+apple|cuenta\s+de\s+google|cuenta|usuario|perfil)\b[^.!?]{0,25}\b(?:bloquead[oa]|suspendid[oa]|desactivad[oa]|limitad[oa])\b[^.!?]{0,15}\b(?:motivos\s+de\s+seguridad|actividad\s+sospechosa|razones\s+de\s+seguridad)\b|)"
     R"(\b(?:conta|cart[ãa]o|acesso|cpf|cnh|cadastro)\b<20>\b(?:foi|ser[áa]|est[áa]|encontra-se|vai\s+ser)\b<15>\b(?:bloquead|suspens|restrit|limitad|desativad|cancelad|irregular)\w*\b<60>\b(?:seguran[çc]a|atualiz\w+|confirm\w+|regulari\w+|evit\w+|link|valid\w+|horas|agora)\b|\b(?:evitar|evite)\s+(?:o\s+|a\s+)?(?:bloqueio|cancelamento|suspens[ãa]o)\b|\b(?:restringimos|limitamos|bloqueamos|suspendemos)\b<15>\b(?:acesso|conta|cart[ãa]o)\b|\b(?:dados|cart[ãa]o|pagamento)\b[^.!?]{0,25}\b(?:recusad[oa]|rejeitad[oa]|negad[oa])\b[\s\S]{0,60}\b(?:corrija|atualize|verifique)\b|\b(?:id\s+apple|conta\s+google|conta|perfil|usu[áa]rio)\b[^.!?]{0,40}\b(?:motivos\s+de\s+seguran[çc]a|atividade\s+suspeita|raz[õo]es\s+de\s+seguran[çc]a)\b[^.!?]{0,20}\b(?:bloquead[oa]|suspens[oa]|desativad[oa]|limitad[oa])\b|\b(?:id\s+apple|conta\s+google|conta|perfil|usu[áa]rio)\b[^.!?]{0,25}\b(?:bloquead[oa]|suspens[oa]|desativad[oa]|limitad[oa])\b[^.!?]{0,15}\b(?:motivos\s+de\s+seguran[çc]a|atividade\s+suspeita|raz[õo]es\s+de\s+seguran[çc]a)\b|)"
     R"(\b(?:карт\w+|сч[её]т\w*|аккаунт\w*|доступ|кабинет\w*|вклад\w*|профил\w+)\b[\s\S]{0,60}\b(?:приостановлен\w*|заблокирован\w*|ограничен\w*|заморожен\w*|отключ[её]н\w*|удал[её]н\w*|деактивирован\w*|закро\w+|закры\w+)\b[\s\S]{0,60}\b(?:подтверд\w+|введ\w+|укаж\w+|обнов\w+|пройд\w+|авториз\w+|перейд\w+)\b[\s\S]{0,60}\b(?:парол\w+|паспорт\w*|реквизит\w+|cvv|код\w*|логин\w*|номер\w*\s+карты|личность|данны\w+\s+карты)\b|\b(?:карта|сч[её]т|аккаунт|кабинет|доступ|кошел[её]к|профиль|учётная\s+запись)\b<25>\b(?:заблокирован\w?|будет\s+заблокирован\w?|приостановлен\w?|ограничен\w?|взломан\w?|арестован\w?)\b[\s\S]{0,80}\b(?:подтверд\w+|ссылк\w+|позвон\w+|свяж\w+|разблок\w+|срочно|перейд\w+|введ\w+|восстанов\w+)\b|\b(?:для|чтобы)\s+(?:разблокировки|разблокировать|снять\s+блокировку|избежать\s+блокировки)\b|\bдоступ\s+к\s+(?:вашему\s+)?(?:онлайн-?банку|кабинету|сч[её]ту|аккаунту)\b<15>\b(?:ограничен|заблокирован|приостановлен)\b|\bкарта\s+отклонена\b<30>\bисправьте\b|\bиначе\b<12>\bзакроют\b|\b(?:id|аккаунт|уч[её]тная\s+запись)\b<12>\bзаблокирован\w?\b<15>\bбезопасности\b|)"
     R"((?:[账賬帐帳][户戶号號]|信用卡|[银銀]行卡|网银|網銀|ETC|微信|支付宝|支付寶|[会會]员|[会會]員)[\s\S]{0,14}(?:[异異]常|[冻凍][结結]|停用|限制|[过過]期失效|失效|封停|封[号號])<40>(?:[点點][击擊]|[链連][接結]|登[录入錄]|[认認][证證]|更新|[验驗][证證]|否[则則]|立即|http)|(?:[权權]限|[账賬帐帳][户戶]|[银銀]行)[\s\S]{0,6}(?:已)?被?限制|[续續][费費]失[败敗][\s\S]{0,20}(?:修改|更新)|(?:ID|[账賬帐帳][户戶号號])因安全[\s\S]{0,8}(?:[锁鎖]定|[冻凍][结結]|限制)|)"
     R"((?:アカウント|口座|カード|会員資格|ご利用|取引)[\s\S]{0,16}(?:停止|制限|凍結|規制|失効)[\s\S]{0,40}(?:こちら|下記|ログイン|URL|認証|確認をお願い|更新|手続き|http)|カードが拒否|(?:ID|アカウント|口座)[はが]?安全[\s\S]{0,8}(?:ロック|停止|制限)|)"
     R"((?:인터넷 ?뱅킹|뱅킹|이용|서비스)[\s\S]{0,6}제한되|카드가 ?거절|(?:ID|계정|계좌)[가이]? ?보안[\s\S]{0,8}(?:잠|정지|제한)|)"
     R"(\b(?:rekening|account|pas)\b<15>\b(?:staat|zit|gaat)\b<20>\bop\s+slot\b|)"
     R"(\b(?:spid|account|conto|carta|profilo)\b<8>\b(?:è|sono|sarà)\s+(?:stat[oa]\s+)?(?:disattivat|bloccat|sospes|limitat)\w\b<unasked>|)"
     R"((?:卡|[账帳賬][户戶号號])[\s\S]{0,16}(?:被限制|限制(?:非[柜櫃]面)?交易|[冻凍][结結])|)"
     R"(アカウントを(?:ロック|停止|制限)|)"
     R"(<lockout>|)"
     R"((?:출금|계좌|카드|이용)이? ?(?:제한|정지|폐쇄)되)"); }),
     true},
    {"cred-confirm-password", "Credential phishing", "warn", 45,
     "asks the reader to confirm or hand over a password or PIN",
     pattern([] { return std::string_view(
     R"(\b(?:reply|respond|answer)\s+with\b<15>\b(?:password|passcode|pin)\b|\b(?:type|enter|confirm|supply|provide)\b<15>\b(?:your|ur|the)\s+(?:\w+\s+){0,2}(?:password|passcode|pin)\b<40>\b(?:keep|continue|verify|unlock|check|restore|below|here|again)\b|\b(?:confirm|verify|validate|re-?confirm|re-?validate|provide|submit|supply|reply\s+with|tell\s+us|send\s+(?:us|me)|give\s+(?:us|me))\b<20>\b(?:your|ur)\s+(?:\w+\s+){0,3}(?:password|passcode|pin(?:\s+code|\s+number)?|security\s+code|log-?in\s+(?:details|credentials|information)|credentials|user\s?name\s+and\s+password)\b|)"
     R"(\bwhat\s+you\s+log\s+(?:in|on)\s+with\b|)"
     R"(\bcode\b<60>\b(?:can|could|please)\b<12>\b(?:you\s+)?(?:send|forward|text)\s+it\s+(?:to\s+me|back|over)\b|\bcode\b<20>\b(?:tell\s+me|read\s+me|send\s+me)\b<12>\b(?:what\s+it\s+says|it|the\s+(?:code|digits|number))\b|)"
     R"(\byour\s+(?:\w+\s+){0,2}(?:e-?mail|mailbox|account|webmail|office\s?365|outlook|network|domain|server|microsoft|outlook|access)?\s?password\s+(?:has\s+expired|is\s+(?:set|about|due|going)\s+to\s+expire|is\s+expiring|will\s+expire\s+(?:today|tomorrow|in|soon|within)|expires\s+(?:today|tomorrow|in|soon|within)|must\s+be\s+(?:updated|confirmed|validated))\b|)"
     R"(\b(?:keep|maintain|retain|keeping|continue\s+using)\b<12>\b(?:my\s+|your\s+|the\s+)?(?:current|same|existing|old)\s+password\b|)"
     R"(\bpassword\s+(?:expiration|expiry|validation)\s+(?:notice|notification|alert|warning|required)\b|)"
     R"(\b(?:bestätigen|senden|mitteilen|übermitteln)\s+(?:Sie\s+)?<15>\bIhr(?:e[nm]?)?\s+(?:[\w-]+\s+){0,2}(?:[\w-]*passwor\w*|kennwort|[\w-]*pin|tan|zugangsdaten)\b|)"
     R"(\bIhr(?:e[nm]?)?\s+(?:[\w-]+\s+){0,2}(?:[\w-]*passwort|kennwort|[\w-]*pin|tan|zugangsdaten)\s+(?:zu\s+bestätigen|läuft|ist\s+abgelaufen|wird\s+ablaufen)\b|)"
     R"(\b(?:confirme[rz]|communique[rz]|transmett(?:re|ez)|envoye[rz])\b<15>\b(?:votre|vos)\s+(?:\w+\s+){0,2}(?:mot\s+de\s+passe|code\s+(?:secret|pin|confidentiel)|identifiants)\b|)"
     R"(\b(?:confirm(?:ar|e|a)|envi(?:ar|e|a)|inform(?:e|ar)|ingres(?:ar|e|a)|digite)\b<15>\b(?:su|tu|sua|a\s+sua)\s+(?:\w+\s+){0,2}(?:contraseña|clave|senha|pin)\b|)"
     R"(\b(?:bevestig|stuur|geef)\b<15>\buw\s+(?:\w+\s+){0,2}(?:wachtwoord|pincode|inloggegevens)\b|)"
     R"((?<![勿不别別])(?:输入|輸入|提供|发送|發送|确认|確認)[^。！？.!?勿不，,]{0,10}(?:密码|密碼)|)"
     R"((?:パスワード|暗証番号)<12>(?:入力|送信|教えて|ご返信)<6>(?:ください|下さい)|)"
     R"((?:비밀번호<10>입력|(?:비밀번호|인증번호)<10>(?:알려|보내))<4>(?:하세요|주세요|주십시오|하십시오)|)"
     R"(\b(?:nennen|sagen|geben|schicken|teilen)\s+sie\s+(?:mir|uns)\b<25>\b(?:tan|code|pin|passwort|kennwort)\b|\b(?:code|tan)\b<50>\b(?:mir|uns)\s+(?:bitte\s+)?(?:kurz\s+)?(?:weiterleiten|schicken|nennen|sagen|geben|durchgeben)\b|\b(?:schick|send|gib|nenn|sag|leite?|teil)\w*\b<30>\b(?:sechs|vier|fünf|6|4)(?:-?stellige\w*)?\s+(?:ziffern|zahlen|code|nummer|stellen)\b|)"
     R"(\bgeef\s+(?:mij|me|ons)\b<10>\b(?:de\s+)?\w*code\b|\bcode\b<60>\bkun\s+je\s+die\s+(?:even\s+)?(?:doorsturen|sturen|geven)\b|\b1\s+cent\b<20>\bovermaken\b<25>\blink\b|\b(?:stuur|geef|zeg|app)\b<12>\b(?:zes|vier|6|4)\s+(?:cijfers|nummers)\b|)"
     R"(\b(?:communique[rz]|donne[rz]|dicte[rz]|transmette[rz]|envoie|envoye[rz])(?:-|\s+)(?:moi|nous)\b<20>\b(?:le\s+|les\s+|votre\s+|vos\s+)?(?:codes?|mot\s+de\s+passe|identifiants?)\b(?!<20>\b(?:carte|coupon|recharge)s?\b)|\bcode\b<40>\b(?:par\s+erreur|vérification|sms)\b<40>\b(?:me\s+le|le\s+transférer|l['’]envoyer|renvoyer|transférer)\b|\b(?:envoie|envoye[rz]|donne[rz]?|dis|transmets?|transfère)\b<20>\b(?:six|quatre|6|4)\s+(?:chiffres|numéros)\b|)"
     R"(\b(?:mi|ci)\s+(?:comunichi|invii|dica|fornisca|mandi|detti)\b<12>\b(?:il\s+)?codice\b|\bcodice\b<60>\bme\s+lo\s+(?:puoi|giri|mandi|invii|inoltri)\b|\bcodice\b<40>\b(?:puoi\s+)?(?:girarmelo|mandarmelo|inviarmelo)\b|\b(?:mandami|inviami|girami|dimmi|dammi|mi\s+mandi)\b<12>\b(?:sei|quattro|6|4)\s+(?:cifre|numeri)\b|)"
     R"(\b(?:d[íi]ganos|d[íi]game|p[áa]s[ea]me|env[íi]enos|facil[íi]tenos|ind[íi]quenos)\b<20>\bel? ?c[óo]digo\b(?!<20>\b(?:tarjeta|regalo)s?\b)|\bc[óo]digo\b<50>\b(?:me\s+lo|nos\s+lo)\s+(?:puedes?|pasas?|mandas?|env[íi]as?|reenv[íi]as?)\b|\b(?:m[áa]nda\w*|env[íi]a\w*|p[áa]sa\w*|dime|dame|d[íi]game)\b<15>\b(?:seis|cuatro|6|4)\s+(?:d[íi]gitos|n[úu]meros|cifras)\b|)"
     R"(\b(?:confirma|confirme|informe|passe|passa|diga|mande|envie)\b<10>\b(?:o\s+|seu\s+)?c[óo]digo\s+(?:que|de\s+verifica[çc][ãa]o|do\s+sms)\b|\bc[óo]digo\b<60>\b(?:pode|podes|consegue)\s+me\s+(?:passar|mandar|enviar|dizer|encaminhar)\b|)"
     R"(\b(?:назовите|продиктуйте|сообщите\s+нам|сообщите\s+мне|перешли\s+(?:его\s+)?мне|скажите)\b<10>\b(?:мне\s+|нам\s+)?(?:код|пароль|пин)\b|\bкод\b<60>\bперешли\s+(?:его\s+)?мне\b|\b(?:скинь|пришли|отправь|назови|продиктуй|скажи)\w*\b<12>\b(?:шесть|четыре|6|4)\s+цифр\w*\b|)"
     R"((?:告[诉訴]我|[发發][给給]我|提供[给給]|[报報][给給])[\s\S]{0,12}(?:[验驗][证證][码碼]|六位|位[数數]字|密[码碼])|[验驗][证證][码碼][\s\S]{0,20}(?:告[诉訴]我|[发發][给給]我|提供[给給](?:客服|工作|我))|(?:[六四6]|六位|四位)[个個位]?(?:[数數]字|[号號][码碼])[\s\S]{0,4}(?:[发發][给給]?我|告[诉訴]我|[报報][给給]我)|)"
     R"((?:暗証番号|認証番号|認証コード|6桁の番号)[\s\S]{0,16}(?:教えてください|教えてもらえ|返信してください|送ってください)|(?:六|四|6|4|6)桁の(?:数字|番号|コード)[\s\S]{0,4}(?:を)?(?:送って|教えて)|暗証番号[\s\S]{0,10}(?:書いた|教え|入力|一緒に)|)"
     R"((?:인증 ?번호|비밀 ?번호|6자리 ?번호)[\s\S]{0,14}(?:불러|알려 ?주세요|좀 ?알려|보내 ?주세요|말씀해)|(?:여섯|6|네|4) ?자리 ?(?:숫자|번호)[\s\S]{0,6}(?:보내|알려|불러))"); }),
     true},
    {"cred-click-verify", "Credential phishing", "warn", 30,
     "tells the reader to follow a link and verify, confirm or unlock something",
     pattern([] { return std::string_view(
     R"(\b(?:receive|collect|get)\s+(?:the|your|ur)\s+(?:money|payment|funds|cash)\b<60>\b(?:link|card|qr|form|page)\b|\b(?:scan|link|qr)\b<60>\b(?:receive|collect|money|amount)\b<40>\b(?:account|come|card)\b|)"
     R"(\b(?:pay|settle|clear|fix|sort|rebook|reschedul\w+|redeliver\w*|claim|update|reactivate|reset|submit|cancel|verify)\b<40>(?:\b(?:via|through|using|from|by\s+clicking)\s+(?:on\s+)?(?:the|this|our|below|secure)\s+(?:\w+\s+)?(?:link|form|button)\b|\b(?:at|on|via|here:?)\s+(?:https?://)?[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b)|\btap\s+here\b|)"
     R"(\b(?:open|tap|click|follow|use)\s+(?:this|the)\s+link\b<40>\b(?:enter|card|bank|receive|get\s+paid|money)\b|)"
     R"(\bnão\s+reconhe[çc]o\s+est[ea]\s+acesso\b|\bse\s+não\s+foi\s+você\b<25>\b(?:avise|clique|acesse|altere)|)"
     R"(\b(?:click|tap|follow|visit|log\s?in|sign\s?in|scan)\b<40>\b(?:here|below|link|button|page|portal|account|code)\b<15>\band\s+(?:verify|confirm|validate|update|re-?activate|unlock|restore)\b|)"
     R"(\b(?:click|tap|press|follow|visit|open|use\s+(?:the|this|our)\s+(?:\w+\s+)?(?:link|button|form|page|portal)|go\s+to|log\s?in|sign\s?in|scan)\b<50>\b(?:to|in\s+order\s+to)\s+(?:\w+\s+){0,2}(?:verify|confirm|validate|authenticate|re-?activate|re-?validate|unlock|restore|secure|recover|resolve|regain|sync|re-?confirm)\b|)"
     R"(\b(?:click|tap|press|follow)\b<30>\b(?:below|here|link|button)\b<30>\bto\s+(?:\w+\s+){0,2}(?:update|upgrade|avoid|prevent|release|claim|redeem)\b|)"
     R"(\b(?:verify|confirm|validate|re-?activate|unlock|restore|secure|recover|authenticate|claim|upgrade|update|reschedule|cancel)\b<50>\b(?:click(?:ing)?|tap(?:ping)?|follow(?:ing)?)\b<20>\b(?:here|below|(?:this|the|following|secure)\s+(?:\w+\s+){0,2}(?:link|button|page|portal))\b|)"
     R"(\b(?:kindly|please|simply)\s+(?:verify|confirm|validate)\b<15>\b(?:below|here|now)\b|)"
     R"(\b(?:verify|validate|confirm|unlock|restore|reactivate|secure|update)\s+(?:my|your)\s+(?:\w+\s+)?(?:account|wallet|identity|access|mailbox|device|information|details)\s+(?:now|here|below)\b|)"
     R"(\b(?:verify|validate|confirm|unlock|restore|re-?activate|update|secure|synchroni[sz]e|check)\s+my\s+(?:\w+\s+)?(?:account|wallet|identity|access|mailbox|e-?mail|information|details|device|password|activity|ledger|trezor)\b|)"
     R"(\b(?:klicken|tippen|folgen|nutzen|verwenden|besuchen)\s+Sie<80>\b(?:um|zur|zum)\b<60>\b(?:bestätig\w+|verifizier\w+|überprüf\w+|aktualisier\w+|entsperr\w+|freischalt\w+|wiederherstell\w+|vermeiden|beanspruch\w+|bezahlen|begleichen)\b|)"
     R"(\b(?:jetzt|hier)\s+(?:bestätigen|verifizieren|aktualisieren|freischalten|entsperren|bezahlen|verlängern)\b|)"
     R"(\b(?:konto|account|zugang|wallet|daten|identität|paket|sendung|lieferung|zahlung)s?daten?\s?(?:jetzt\s+|hier\s+)?(?:bestätigen|verifizieren|aktualisieren|freischalten)\b|)"
     R"(\b(?:cliquez|cliquer|appuyez|accédez|connectez-vous)\b<60>\b(?:pour|afin)\b<30>\b(?:confirmer|vérifier|valider|activer|débloquer|régulariser|mettre\s+à\s+jour|éviter|récupérer|actualiser|renouveler|suivre|régler)\b|)"
     R"(\b(?:clique|clicar|acesse|clicando|toque)\b<50>\b(?:para|e)\b<20>\b(?:confirm\w+|verific\w+|valid\w+|ativar|desbloque\w+|atuali\w+|regulariz\w+|evitar|resgat\w+|consult\w+|liberar|realizar|efetu\w+|visualizar|baixar|acompanhar)\b|)"
     R"(\b(?:klik|klikt|gebruik|volg|bezoek)\b<50>\b(?:om|en)\b<40>\b(?:bevestig\w+|verifi\w+|valid\w+|activ\w+|deblokk\w+|voorkomen|controleren|herstellen|verlengen|betalen)\b|)"
     R"((?:点击|點擊|点此|登录|登入)<25>(?:验证(?!码)|驗證(?!碼)|确认|確認|激活|解锁|解鎖|更新|恢复|恢復)|)"
     R"((?:下記|こちら|リンク|URL)<25>(?:クリック|アクセス|ログイン)<30>(?:確認|認証|更新|解除|再開)|)"
     R"((?:링크|버튼|여기|아래)<15>(?:클릭|눌러|접속)<25>(?:확인|인증|해제|갱신|복구)|)"
     R"(\b(?:aktualisier\w*|bestätig\w*|verlänger\w*|verifizier\w*|zahle?n?|bezahle?n?|begleiche?n?|erneuer\w*|einlös\w*|lös\w*)\b<50>\b(?:über\s+(?:den|folgenden|diesen|unten\w*)\s+(?:\w+\s+)?link|unter|hier|link)\b\s?:?<20>(?:\w[\w-]+[.](?:de|com|info|top|shop|net|org|xyz|online|site|cc|me|ly|to)\b|\blink\b|https?)|\bwidrigenfalls\b|\bjetzt\s+(?:über|unter)\s+(?:folgende[nm]|diese[nm])\s+link\b|\b(?:melden\s+sie\s+sich\s+an|loggen\s+sie\s+sich\s+ein|anmelden)\b[^.!?]{0,40}\b(?:freizuschalten|wiederherzustellen|entsperren|reaktivieren)\b|)"
     R"(\b(?:bevestig\w*|verleng\w*|betaal\w*|controleer\w*|werk\w*|vraag\w*|activeer\w*|vul\w*)\b<60>\b(?:via|met|op|open)\s+(?:de|onderstaande|deze)\s+(?:\w+\s+)?link\b|\bklik\s+hier\b<20>\b(?:om|en)\b<40>\b(?:claim\w*|bevestig\w*|betal\w*|verleng\w*|deblokk\w*)\b|\b(?:bevestig|verleng|betaal|wissel|vraag|werk|claim)\b<60>\b[\w-]+[.](?:com|info|top|shop|net|org|nl|xyz|online|site|me|ly)\b|\b(?:log\s+in|meld\s+u\s+aan|inloggen)\b[^.!?]{0,40}\b(?:herstellen|deblokkeren|heractiveren)\b|)"
     R"(\b(?:confirm\w+|vérifi\w+|mett\w+\s+à\s+jour|régl\w+|renouvel\w+|pay\w+|régularis\w+|actualis\w+|réactiv\w+|complét\w+)\b<60>\b(?:via|sur|par|avec|depuis)\s+(?:le|ce)\s+(?:\w+\s+)?lien\b|\b(?:confirme[rz]|régle[rz]|régularise[rz]|renouvele[rz]|mette[rz]|payez|choisissez|échange[rz]|réclame[rz])\b<60>\b(?:ici\b|[\w-]+[.](?:com|info|top|shop|net|org|fr|xyz|online|site|me|ly|cc)\b)|\b(?:clique[rz])\b<30>\b(?:ici|lien)\b<40>\b(?:récupérer|réclamer|recevoir|payer|mettre|éviter)\b|)"
     R"(\b(?:verific\w+|conferm\w+|aggiorn\w+|paga\w*|paghi|sald\w+|riattiv\w+|riprogramm\w+|inser\w+|evitare|acced\w+|effettu\w+)\b<60>\b(?:al|sul|dal|questo|seguente)\s+(?:seguente\s+)?link\b|\bclicc\w+\b<40>\b(?:verific\w+|conferm\w+|aggiorn\w+|evitare|ritirare|sbloccare|pagare|riscattare)\b|\b(?:aggiorn\w+|conferm\w+|verific\w+|attiv\w+)\b<60>\bcliccando\b|\bapri\s+il\s+link\b<30>\b(?:inser\w+|carta|ricever\w+)\b|\b(?:verific(?:a|hi|are|ate)|conferm\w+|aggiorn\w+|paga|paghi|pagare|salda|saldi|saldare|riscatt\w+)\b<60>\b[\w-]+[.](?:com|info|top|shop|net|org|it|xyz|online|site|me|ly)\b|\b(?:acceda|accedi|effettui\s+l[\'’]accesso)\b[^.!?]{0,40}\b(?:recuperare|ripristinare|sbloccare|riattivare)\b|)"
     R"(\b(?:actual[íi](?:ce|za|cela|cel[oa])\w*|verif[íi](?:que|ca)\w*|conf[íi]rm(?:e|a|ela|elo)|pague|paga|pagar|act[íi]vel[oa]|active\s+(?:su|el|la)|canj[ée]\w+|realice|indique|reclame|complete\s+(?:el|su))\b<60>\b(?:aqu[íi]\b|(?:en\s+)?(?:el|este|siguiente)\s+(?:siguiente\s+)?enlace|[\w-]+[.](?:com|info|top|shop|net|org|es|mx|xyz|online|site|me|ly)\b)|\b(?:haga|haz|hacer|pulse|entra|entre|ingrese)\s+(?:clic\s+|click\s+)?<25>\b(?:aqu[íi]|enlace|link)\b<40>\b(?:reclamar|cobrar|recibir|pagar|poner|pon|evitar)\b|)"
     R"(\b(?:atualize|confirme|regularize|pague|valide|resgate|acesse|informe|verifique|libere)\b<60>\b(?:(?:no|pelo|neste|esse|este|nesse)\s+link|aqui\b|link\s+abaixo|[\w-]+[.](?:com|info|top|shop|net|org|br|pt|xyz|online|site|me|ly)\b)|\b(?:entre|entra|abra|clique)\s+(?:no|nesse|neste|o|em)? ?link\b<40>\b(?:coloque|informe|confirm\w+|pag(?!e\b|es\b)\w+|receb\w+|atualiz\w+|regulariz\w+)\b|)"
     R"(\b(?:перейдите|пройдите|нажмите|авторизуйтесь)\b<15>\b(?:по|на)\s+(?:этой\s+|данной\s+|следующей\s+)?(?:ссылк\w+|кнопк\w+)\b<50>\b(?:подтверд\w+|смен\w+|введ\w+|забрать|получить\s+деньги|отмен\w+|оплат\w+)\b|\b(?:оплатите|обновите|подтвердите|обменяйте|проголосу\w+)\b<80>\bпо\s+ссылке\b|\bвойдите,\s+чтобы\s+восстановить\b|)"
     R"([点點](?:[这這][个個])[链連][接結][\s\S]{0,16}(?:[输輸]入|[银銀]行卡|[开開]通|收款)|(?:[点點][击擊此]|登[录陆入錄陸]|扫描|掃描)[\s\S]{0,12}(?:[链連][接結]|以下|下方|网址|網址|二[维維][码碼])[\s\S]{0,10}(?:[认認][证證]|[验驗][证證](?![码碼])|核[验驗]|[补補]充|填[写寫]|[缴繳]|付款|支付|解[除冻凍]|更新[资資]料|登[记記])|(?:[点點][击擊]?)?[链鏈連][接結结][\s\S]{0,6}(?:[缴繳][纳納]|填[写寫])[\s\S]{0,12}(?:收款|到[账賬])|打[开開]短信[里裡]的[页頁]面|)"
     R"((?:こちら|下記|リンク|URL|以下)[\s\S]{0,10}(?:より|から|の|にて)[\s\S]{0,14}(?:本人確認|支払|ログイン|認証を完了)|(?:至急|直ちに|すぐに)[\s\S]{0,12}(?:下記|URL|こちら)[\s\S]{0,10}確認|ログインして[\s\S]{0,10}(?:更新|手続き|お手続き|確認)|ログインして[\s\S]{0,8}復旧|)"
     R"((?:링크|아래|URL)[\s\S]{0,10}(?:눌러|클릭|접속|에서|로그인)[\s\S]{0,20}(?:변경|수정|입력|해제|인증|결제)|앱 ?설치 ?후|로그인하여[\s\S]{0,6}복구|)"
     R"(<payout>|)"
     R"(\b(?:begleich\w+|zahl\w+|eintrag\w+|freischalt\w*|bestätig\w+|aktualisier\w+|nachhol\w+)\b<50>\b[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b|\b(?:begleich\w+|zahl\w+|eintrag\w+)\b<30>\b(?:über|unter)\s+(?:den|diesen|folgende\w*)\s+link\b|\b(?:über|unter)\s+(?:den|diesen)\s+link\b<20>\b(?:begleichen|zahlen|bezahlen)\b|)"
     R"(\b(?:betaa?l\w*|overmaken|werk|vul|regel)\b<50>(?:\b[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b|\bvia\s+(?:dit|deze|onderstaande|de)\s+link(?:je)?\b)|\bvia\s+(?:onderstaande|dit|deze)\s+link(?:je)?\b|)"
     R"(\b(?:pay(?:ez|er)|régl\w+|réactiv\w+|reprogramm\w+|confirm\w+|annul\w+|regler)\b<50>(?:\b[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b|\b(?:via|sur|par)\s+(?:ce|le)\s+lien\b)|)"
     R"(\b(?:pag(?:hi|a|are)|regolarizz\w+|vers(?:are|i)|riattiv\w+|ritir\w+|inserisc\w+|appuntamento)\b<50>(?:\b[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b|\b(?:tramite|dal|sul|con)\s+(?:il\s+)?(?:link|modulo|pulsante)\b)|)"
     R"(\b(?:pag(?:ue|a|ar)|abone|regulari\w+|ingres[ae]|solic[ií]t\w+|confirm\w+|desbloquear\w*)\b<50>(?:\b[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b|\ben\s+el\s+(?:link|enlace|sitio)\b)|)"
     R"(\b(?:pag(?:ue|ar)|regulari\w+|introduz\w+|desbloque\w+|confirm\w+|abra)\b<50>(?:\b[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\b|\b(?:no|pelo|através\s+da)\s+(?:link|ligação)\b)|)"
     R"(\b(?:оплат\w+|доплат\w+|пройти|обновит\w+)\b<40>\bпо\s+(?:моей\s+)?ссылк\w+\b|\bссылочк\w+\s+скину\w+\b|)"
     R"((?:由此|至|到|在|打[开開]|[扫掃])[\s\S]{0,8}(?:[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}|二[维維][码碼])[\s\S]{0,10}(?:登[录錄]|[缴繳]|[补補]|支付|交|填|重新)|(?:[缴繳]款|[缴繳][费費]|支付)[\s\S]{0,6}[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}|)"
     R"((?:こちら|下記|ページ|URL)[\s\S]{0,14}(?:入力|入れて|支払)|[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}\s?に(?:ログイン|アクセス)|)"
     R"((?:아래|링크|주소)[\s\S]{0,16}(?:결제|납부|수정|설치|다시 ?넣)|(?:결제|납부|수정|등록)[\s\S]{0,30}[a-z0-9]{2,}(?:-[a-z0-9]+)+[.][a-z]{2,}|)"
     R"(\b(?:geld|betrag|zahlung)\b<25>\b(?:erhalten|bekommen|empfangen)\b<60>\b(?:link|karte\w*|qr\w*|seite|formular)\b|\b(?:link|karte\w*|qr\w*)\b<60>\b(?:geld|betrag|zahlung)\b<20>\b(?:erhalten|bekommen|empfangen)\b|)"
     R"(\bontvang\w*\b<60>\b(?:link|pas|bankpas|qr)\b|\b(?:link|bankpas|qr)\b<60>\bontvang\w*\b|)"
     R"(\b(?:encaisser|recevoir|percevoir|toucher)\b<60>\b(?:lien|carte|qr)\b|\b(?:lien|carte)\b<60>\b(?:encaisser|percevoir|toucher)\b|)"
     R"(\b(?:ricever\w*|incassar\w*)\b<60>\b(?:link|carta|qr)\b|\b(?:link|carta|postamat)\b<60>\b(?:incassar\w*|ricever\w*|accredit\w*)\b|)"
     R"(\b(?:recibir|cobrar)\b<60>\b(?:enlace|tarjeta|qr)\b|\b(?:enlace|tarjeta|link)\b<60>\b(?:recibir|cobrar)\b|)"
     R"(\breceber\b<60>\b(?:link|liga[çc][ãa]o|cart[ãa]o|qr)\b|\b(?:link|liga[çc][ãa]o|cart[ãa]o)\b<60>\breceber\b|)"
     R"((?:收款|收[钱錢]|到[账賬帳]|入[账帳賬])[\s\S]{0,30}(?:[链鏈][接結结]|二[维維][码碼]|卡[号號])|(?:二[维維][码碼]|[链鏈]接)[\s\S]{0,24}(?:收款|到[账賬帳]|[领領]取)|)"
     R"((?:受け取り|受取|入金)[\s\S]{0,20}(?:リンク|URL|QR|カード)[\s\S]{0,12}(?:入力|読|開)|)"
     R"(<officialrefund>|)"
     R"((?:대금|돈|금액)[\s\S]{0,10}(?:받으|수령)[\s\S]{0,20}(?:링크|카드|QR)|(?:링크|QR)[\s\S]{0,20}(?:대금|금액|돈)[\s\S]{0,6}(?:받|수령|들어))"); }),
     true},
    {"cred-unusual-signin", "Credential phishing", "warn", 30,
     "reports an unusual sign-in or transaction, the commonest pretext for stealing a password",
     pattern([] { return std::string_view(
     R"(\b(?:someone|somebody|stranger|unknown\s+person)\b<25>\b(?:logged|signed|tried|got)\s+(?:in|into|to\s+(?:log|sign|get))\b|\b(?:strange|odd|unusual|suspicious|unfamiliar|unrecognised|unrecognized)\s+(?:log-?ins?|sign-?ins?|activit\w+|transactions?|payments?|charges?|device)\b|\b(?:unusual|suspicious|unauthori[sz]ed|unrecogni[sz]ed|unfamiliar|unknown|new|abnormal|irregular|fraudulent|unexpected)\b<15>\b(?:sign-?in|log-?in|log-?on|logon|access|activity|activities|attempts?|transactions?|device|connection|charge|purchase|withdrawal)\b<40>\b(?:your|ur|from|on|to|detected|noticed|was|were|has|have|attempt)\b|\b(?:detected|noticed|identified|observed|recorded|flagged|found)\b<25>\b(?:unusual|suspicious|unauthori[sz]ed|unrecogni[sz]ed|unfamiliar|abnormal|irregular|fraudulent|strange|multiple\s+failed)\b<25>\b(?:sign-?in|log-?in|logon|access|activity|activities|attempts?|transactions?|movements?|behaviou?r|irregularit(?:y|ies))\b|)"
     R"(\bsign-?in\b<25>\bfrom\s+a\s+(?:new|different|unknown|strange)\s+(?:device|place|country|computer)\b|\bnew\s+(?:device|payee|login)\b<25>\b(?:was\s+added|near|has\s+been\s+added)\b|)"
     R"(\b(?:se\s+n[ãa]o\s+foi\s+voc[êe]|si\s+no\s+(?:has\s+sido|fuiste|fue)\s+(?:t[úu]|usted)|n[ãa]o\s+reconhe[çc]o\s+est[ea]|wenn\s+sie\s+das\s+nicht\s+waren|falls\s+sie\s+(?:das|dies)\s+nicht\s+waren|si\s+ce\s+n\'était\s+pas\s+vous|als\s+u\s+dit\s+niet\s+was)\b(?!<30>\b(?:ignor\w+|desconsider\w+|negeer|brauchen|müssen|nichts))|)"
     R"(\b(?:unusual|suspicious|abnormal)\s+traffic\b<20>\b(?:from|on)\s+your\b|)"
     R"(\b(?:someone|somebody|a\s+third\s+party|another\s+(?:device|person)|an\s+unknown\s+(?:device|person|user))\b<25>\b(?:tried|attempted|trying|has|have|just)\b<15>\b(?:log(?:ged)?\s?in|sign(?:ed)?\s?in|access(?:ed)?|reset)\b<25>\byour\b|)"
     R"(\b(?:if|in\s+case)\s+(?:this|it)\s+(?:was\s+not|wasn['’]t|is\s+not|isn['’]t)\s+you\b(?!<30>\b(?:ignore|disregard|delete|no\s+action|nothing)\b)|)"
     R"(\b(?:did\s+not|didn['’]t|do\s+not|don['’]t)\s+(?:recogni[sz]e|authori[sz]e|make|request|initiate|perform|place)\s+(?:this|the)\s+(?:\w+\s+)?(?:change|login|activity|transaction|charge|sign-?in|log-?in|device|purchase|request|order|payment|transfer)\b(?!<30>\b(?:ignore|disregard|delete|no\s+action|nothing)\b)|)"
     R"(\b(?:ungewöhnlich|verdächtig|unbefugt|nicht\s+autorisiert|unbekannt|auffällig)\w*\b<25>\b(?:anmeld\w+|aktivität\w*|zugriff\w*|login\w*|transaktion\w*|gerät\w*|zahlung\w*|abbuchung\w*|bewegung\w*)|)"
     R"(\b(?:inhabituel\w*|suspecte?s?|non\s+autorisée?s?|frauduleu\w+)\b<25>\b(?:connexions?|activités?|accès|transactions?|appareil|opérations?|paiements?)\b|)"
     R"(\b(?:connexions?|activités?|accès|transactions?|opérations?|paiements?)\s+(?:inhabituel\w*|suspecte?s?|non\s+autorisée?s?|frauduleu\w+)\b|)"
     R"(\b(?:actividad|acceso|transacci[óo]n|inicio\s+de\s+sesi[óo]n|movimiento|cargo|atividade|transa[çc][ãa]o|compra|acesso|login|tentativa|dispositivo)(?:es|s)?\s+(?:\w+\s+){0,2}(?:inusual|sospechos[oa]s?|no\s+autorizad[oa]s?|n[ãa]o\s+autorizad[oa]s?|n[ãa]o\s+reconhecid[oa]s?|suspeit[oa]s?|incomu[mn]|extrañ[oa]s?|desconhecid[oa]s?|estranh[oa]s?)\b|)"
     R"(\b(?:novo|nuevo|recente)\s+(?:acesso|dispositivo|acceso|inicio\s+de\s+sesi[óo]n|login)\b<20>\b(?:sua|su|tu|em|na|en)\s+(?:conta|cuenta)\b|)"
     R"(\b(?:ongebruikelijke|verdachte|onbekende|ongeautoriseerde)\b<20>\b(?:activiteit\w*|inlog\w*|aanmeld\w*|transactie\w*|toegang|apparaat|betaling\w*)\b|)"
     R"((?:异常|異常|可疑|陌生)<6>(?:登录|登入|活动|活動|交易|设备|設備)|)"
     R"((?:不審な|第三者|不正な?|異常な|身に覚えのない|いつもと異なる)<10>(?:ログイン|アクセス|利用|取引|サインイン)|)"
     R"((?:비정상|의심스러운|수상한|알\s+수\s+없는|새로운\s+기기)<10>(?:로그인|접속|활동|거래|결제)|)"
     R"(\b(?:verdächtig|ungewöhnlich|auffällig|unbekannt|unberechtigt|nicht\s+autorisiert)\w*\b<25>\b(?:aktivität\w*|anmeld\w*|buchung\w*|abbuchung\w*|zahlung\w*|zugriff\w*|login\w*|überweisung\w*)|\b(?:läuft\s+gerade|wurde\s+gerade|wird\s+gerade|versucht\s+gerade)\b<25>\b(?:abbuchung|zahlung|überweisung|buchung|jemand)|)"
     R"(\b(?:wordt|werd|is)\s+(?:nu|zojuist|net)\b<25>\b(?:afgeschreven|ingelogd|geprobeerd|overgemaakt)\b|\b(?:verdachte|ongebruikelijke|onbekende)\b<15>\b(?:transactie|betaling|overboeking|inlogpoging|afschrijving)\b|)"
     R"(\b(?:activité|connexion|opération|paiement|débit|transaction|achat)\b<15>\b(?:inhabituel\w*|suspecte?|frauduleu\w+|non\s+autorisée?|inconnue?|en\s+cours)\b|)"
     R"(\b(?:access[oi]|bonifico|transazione|operazione|pagamento|attività|addebito)\b<10>\b(?:anomal[oaie]|sospett[oaie]|non\s+autorizzat[oaie]|insolit[oaie]|fraudolent[oaie])\b|\b(?:nuovo\s+dispositivo)\b<30>\b(?:access\w+|collegat\w+|conto)\b|)"
     R"(\b(?:cargo|compra|transferencia|movimiento|operaci[óo]n|acceso)\b<15>\b(?:no\s+autorizad|sospechos|no\s+reconocid|inusual|irregular)\w*\b|)"
     R"(\b(?:pix|compra|acesso|transa[çc][ãa]o|transfer[êe]ncia|login)\b<25>\b(?:suspeit[oa]|n[ãa]o\s+reconhecid[oa]|n[ãa]o\s+autorizad[oa]|indevid[oa]|estranh[oa])\b|\bse\s+(?:voc[êe]\s+)?n[ãa]o\s+reconhece\b|)"
     R"(\b(?:подписк\w+|продлен\w*|продлени\w+|автопродлени\w+|тариф\w*|антивирус\w*|плюс|премиум)\b[\s\S]{0,80}\b(?:списан\w*|спишут\w*|снято|оплат\w+|не\s+удалось|приостановл\w*|отключ\w+)\b[\s\S]{0,80}\b(?:позвон\w+|по\s+номеру|оператор\w*|ссылк\w+|данные\s+(?:вашей\s+)?карты|обнов\w+\s+(?:данные|карт\w+|способ)|возврат\w*)\b|\b(?:обнаружен|зафиксирован|выполнен|замечен)\w?\b<15>\b(?:вход|подозрительн\w+|попытк\w+|несанкционированн\w+)\b<60>\b(?:если\s+это\s+не\s+вы|смените|подтвердите|код|отмен\w+|перейдите|позвоните)\b|)"
     R"((?:盗刷|盜刷|[异異]地登[录入錄])[\s\S]{0,20}(?:立即|致[电電]|[拨撥]打|[验驗][证證][码碼]|[点點][击擊])|)"
     R"((?:不正(?:利用|アクセス|に使)|第三者)[\s\S]{0,14}(?:検知|疑い|確認|使われ)|)"
     R"(<renewal>|)"
     R"((?:새로운|다른) ?기기[\s\S]{0,6}로그인[\s\S]{0,20}(?:링크|변경|즉시|본인이 ?아)|(?:결제|승인|출금)[\s\S]{0,16}본인 ?(?:이)? ?아(?:닐|니)[\s\S]{0,12}(?:문의|연락|전화|인증|신고))"); }),
     true},
    {"cred-session-expire", "Credential phishing", "warn", 25,
     "says a session or access is about to end, to rush the reader to a sign-in page",
     pattern([] { return std::string_view(
     R"(\b(?:session|access|login|log-?in|token)\b<25>\b(?:times?\s+out|timed\s+out|runs?\s+out|ends?\s+(?:in|at|soon|today|tonight)|will\s+lapse|about\s+to\s+(?:expire|end|lapse|close))\b|\b(?:log|sign)\s+back\s+in\b|)"
     R"(\bsign\s+in\s+again\s+now\b|)"
     R"(\b(?:membership|subscription|plan|protection|renewal)\b<60>\b(?:set|scheduled|due)\s+(?:to|for)\s+(?:auto-?matic\s+|auto-?)?renew(?:al)?\b|)"
     R"(\b(?:we\s+will|will\s+be|is\s+going\s+to\s+be)\s+(?:automatically\s+)?(?:debit(?:ed)?|charged?|deducted)\b<30><amount>|)"
     R"(\b(?:automatic|auto)\s+(?:charge|debit|renewal)\s+of\s+[$€£]?\s?\d|)"
     R"(\b(?:session|access|log-?in|link|token|certificate|authentication|security\s+(?:certificate|token)|2fa|mfa)\b<25>\b(?:has\s+expired|have\s+expired|is\s+expired|expired|will\s+expire|expires|is\s+expiring|is\s+about\s+to\s+expire|about\s+to\s+expire|due\s+to\s+expire|timed\s+out|expiring)\b<60>\b(?:sign|log|click|verify|renew|re-?authenticate|update|continue|confirm|restore|extend|within|in\s+\d+)\b|)"
     R"(\b(?:subscription|membership|licen[cs]e|plan|account|domain|mailbox|storage|protection|hosting|antivirus|package)\b<20>\b(?:has\s+expired|have\s+expired|has\s+ended|is\s+expired|will\s+expire|expires|is\s+expiring|is\s+about\s+to\s+expire|about\s+to\s+expire|due\s+to\s+expire|will\s+be\s+terminated|has\s+lapsed|could\s+not\s+be\s+renewed|was\s+not\s+renewed)\b|)"
     R"(\b(?:re-?new|renew|extend|update|reactivate)\b<15>\byour\s+(?:\w+\s+){0,3}(?:subscription|membership|licen[cs]e|protection|storage|plan|domain|hosting|access|session)\b|)"
     R"(\bIhr(?:e[nrs]?)?\s+(?:[\w-]+\s+){0,2}(?:sitzung|abonnement|abo|mitgliedschaft|zugang|zertifikat|lizenz|domain|registrierung|app|verfahren|photoTAN)\b<30>\b(?:abgelaufen|läuft|abläuft|abzulaufen|erneuern|verlängern|ungültig|erlischt)\b|)"
     R"(\b(?:session|abonnement|licence|accès|certificat|certicode|sécuripass)\s+(?:\w+\s+){0,3}(?:expirée?|expire|arrive\s+à\s+(?:expiration|échéance)|a\s+pris\s+fin)\b|)"
     R"(\buw\s+(?:\w+\s+){0,2}(?:sessie|abonnement|bankpas|pas|scanner|licentie|certificaat|digipas)\b<25>\b(?:verlopen|verloopt|verlengen|vervalt|vervallen|vernieuwen)\b|)"
     R"((?:会话|會話|会员|會員|订阅|訂閱|证书|證書)<8>(?:已过期|已過期|即将过期|即將過期|到期)|)"
     R"((?:有効期限|セッション|会員資格)<10>(?:切れ|終了|満了|失効)|)"
     R"(\b(?:push-?tan|photo-?tan|tan-?verfahren|s-?push|registrierung|zugang|sicherungsverfahren|sicherheitsverfahren)\b<30>\b(?:läuft|endet|verfällt|erlischt)\b|)"
     R"(\b(?:digid|bankpas|betaalpas|digipas|scanner|identificatie)\b<20>\b(?:verlopen|verloopt|vervalt)\b|)"
     R"(\b(?:sécuripass|certicode|clé\s+digitale|pass\s+sécurité|m?token|application\s+bancaire|carte\s+vitale|droits?(?:\s+cpf)?)\b<25>\b(?:expire\w*|arrive\w*\s+à)\b|)"
     R"(\b(?:spid|utenza|app|certificato|abbonamento|firma\s+digitale|password)\b<15>\b(?:in\s+scadenza|scade|scadut[oa]|scadrà)\b|)"
     R"(\b(?:договор|сим-?карт\w+|полис|подписк\w+)\b<20>\b(?:истекает|заканчивается|не\s+продлен\w?|закончился)\b<50>\b(?:код|продиктуйте|обновите|смс|ссылк\w+)\b|)"
     R"((?:密[码碼]器|口令卡|[动動][态態]口令|[电電]子[银銀]行|手[机機][银銀]行|U盾)[\s\S]{0,14}(?:[过過]期|到期|失效|作[废廢]|升[级級])|(?:即将|即將|将于今日|將於今日|今日|已)(?:到期|[过過]期|失效|清零)[\s\S]{0,20}(?:[点點][击擊]|更新|[认認][证證]|登[录入]|[兑兌]))"); }),
     true},
    {"cred-mfa-code", "Credential phishing", "warn", 50,
     "asks for a one-time code, which is never for anyone else",
     pattern([] { return std::string_view(
     R"(\b(?:need|give|send|text|read|tell|forward|pass)\b<15>\b(?:the|that|this|your|a)\s+(?:\w+[\s-]){0,3}(?:code|digits|pin)\b<40>\b(?:you|u|texted|sent|phone|got|just|sms|arriv\w+|received)\b|\bcode\b<25>\b(?:by\s+mistake|to\s+your\s+(?:phone|number))\b|\b(?:send|share|forward|tell|give|read)\b<25>\b(?:the|that|your|me)\s+(?:\w+\s+){0,2}code\b<20>\b(?:you\s+(?:just\s+)?(?:received|got|get|will\s+receive)|(?:we|i)\s+(?:just\s+)?sent|sent\s+to\s+your\s+phone)\b|)"
     R"(\b(?:code|6[\s-]digits?|six[\s-]digit\s+number)\b<40>[\s\S]{0,3}\b(?:can|could|just|please|pls|then|so)\b<20>\b(?:send|pass|read|forward|screenshot|tell)\b<15>\b(?:it|me|us|over)\b|)"
     R"(\b(?:sent|texted)\s+you\s+a\b<15>\bcode\b<25>\b(?:tell|send|read|give|forward|what\s+(?:it\s+says|is\s+it))\b|\bread\s+(?:me|us)\s+the\s+code\b|\b(?:tell\s+me|give\s+me|read\s+me|say)\b<20>\b(?:number|code|digits)\b<25>\b(?:text|sms|message)\b|)"
     R"(\b(?:send|forward|share|tell|give|read|provide|text|reply\s+with|need|want|get|pass)\b<30>\b(?:(?:one[- ]time|verification|security|authentication|confirmation|login|sign-?in|whatsapp|sms|6[- ]digit|six[- ]digit|4[- ]digit|otp|2fa|mfa)\s+(?:pass)?(?:code|password|pin|number)|otp|one-?time\s+passcode)\b|)"
     R"(\b(?:code|otp|pin)\b<20>\b(?:you\s+(?:just\s+)?(?:received|got|get|will\s+receive)|(?:we|i)\s+(?:just\s+)?sent\s+(?:to\s+)?you|sent\s+to\s+your\s+phone)\b<30>\b(?:send|share|forward|tell|give|read|reply|back)\b|)"
     R"(\b(?:schick|send|gib|nenn|teil|leit)\w*\b<30>\b(?:bestätigungs|verifizierungs|sicherheits|sms-?|einmal|tan-?)(?:code|passwort|nummer)\b|)"
     R"(\b(?:envoyez|transmettez|donnez|communiquez|partagez)\b<30>\bcode\s+(?:de\s+(?:vérification|sécurité|confirmation)|sms|reçu)\b|)"
     R"(\b(?:stuur|geef|deel)\b<30>\b(?:verificatie|beveiligings|sms-?)code\b|)"
     R"((?<![勿不别別])(?:把|将|將|告诉|告訴|发送|發送|提供)[^。！？.!?勿不]{0,12}(?:验证码|驗證碼|动态码|動態碼)|)"
     R"((?:認証コード|確認コード|ワンタイムパスワード)<12>(?:教えて|送って|お知らせ|ご返信|転送)|)"
     R"(\b(?:nenn|sag|gib|geb|schick|leit|send|les|lies|teil)\w*\b<40>\b(?:tan|code|sms-?code|bestätigungscode|freischaltcode|prüfcode|sechsstellige[nr]?\s+(?:code|nummer|zahl))\b(?!<40>\b(?:niemand|nicht|keinesfalls|nie)\b)|\bcode\b<40>\b(?:per\s+sms|aus\s+versehen|versehentlich)\b<50>\b(?:weiterleiten|schicken|nennen|sagen|geben|durchgeben)\b|\b(?:schick|send|gib|nenn|sag|leite?|teil)\w*\b<30>\b(?:sechs|vier|fünf|6|4)(?:-?stellige\w*)?\s+(?:ziffern|zahlen|code|nummer|stellen)\b|\bsechsstellige[nr]?\s+code\b<40>\b(?:weiterleiten|schicken|geben|sagen)\b|\baus\s+versehen\b<20>\bcode\b|\b(?:bestätigen|nennen|sagen|geben|schicken)\b[^.!?]{0,15}\b(?:code|tan)\b[^.!?]{0,12}\b(?:bekommen\s+haben|erhalten\s+haben|in\s+ihrer\s+app|angekommen)\b|\b(?:sag|nenn|gib|schick|lies|gebt|nennen|geben|schicken)\w*\b<25>\b(?:den|deinen|ihren|mir\s+den)\s+(?:\w+[\s-]?){0,2}(?:code|tan)\b<40>\b(?:sms|bekomm\w*|erhalt\w*|geschickt|gekommen|vor)\b|)"
     R"(\b(?:geef|noem|stuur|zeg|lees|deel)\b<30>\b(?:de\s+|die\s+)?(?:verificatie|beveiligings|sms-?)?code\b<40>\b(?:sms|kreeg|ontv\w+|zojuist|cijfers)\b(?!<25>\bniemand\b)|\bcode\b<30>\b(?:cijfers|per\s+ongeluk|sms)\b<50>\b(?:doorsturen|sturen|geven|noemen)\b|\b(?:stuur|geef|zeg|app)\b<12>\b(?:zes|vier|6|4)\s+(?:cijfers|nummers)\b|\b(?:lees\s+mij|geef\s+mij|noem|zeg)\b<20>\b(?:code|nummer|cijfers)\b<25>\b(?:sms|bericht)\b|\b(?:geef|noem|bevestig|zeg|stuur)\b[^.!?]{0,15}\b(?:code)\b[^.!?]{0,12}\b(?:gekregen|ontvangen|binnenkrijgt)\b|)"
     R"(\b(?:communique[rz]|donne[rz]|envoie|envoye[rz]|transfère|transférer|transmet\w*|dicte[rz]|lis(?:ez)?|indique[rz])\b<30>\bcodes?\b<40>\b(?:sms|reçu|recevoir|vérification|chiffres|texto)\b(?!<30>\bpersonne\b)|\bcode\b<30>\b(?:chiffres|sms|vérification|par\s+erreur)\b<40>\b(?:transférer|renvoyer|envoyer|donner|me\s+le)\b|\b(?:envoie|envoye[rz]|donne[rz]?|dis|transmets?|transfère)\b<20>\b(?:six|quatre|6|4)\s+(?:chiffres|numéros)\b|\b(?:confirmez|donnez|dites|lisez|communiquez)\b[^.!?]{0,15}\b(?:code)\b[^.!?]{0,12}\b(?:vous\s+avez\s+reçu|reçu|vient\s+d[\'’]arriver)\b|)"
     R"(\b(?:comunic\w+|invi(?!t|sib|nc|gor)\w+|mand(?!at|ar|y\b)\w+|gir\w+|dimmi|dica|detti|fornisc\w+|inoltr\w+)\b<30>\bcodice\b<40>\b(?:sms|ricevut\w+|verifica|cifre|arrivat\w+)\b(?!<25>\bnessuno\b)|\bcodice\b<30>\b(?:cifre|sms|verifica|sbaglio)\b<40>\b(?:girare|mandare|inviare|inoltrare|me\s+lo)\b|\b(?:mandami|inviami|girami|dimmi|dammi|mi\s+mandi)\b<12>\b(?:sei|quattro|6|4)\s+(?:cifre|numeri)\b|\b(?:mand\w+|dett\w+|invi\w+|gir\w+|dica|leg\w+|comunich\w+)\b<20>\b(?:il|quel)\s+codice\b<40>\b(?:arrivat\w|ricevut\w|sms|arriva)\b|)"
     R"(\b(?:d[íi]ganos|d[íi]game|dime|env[íi](?!ron|ous|sion|able)\w+|pas[aá]\w*|pasar|m[áa]nd\w+|dict\w+|facil[íi]\w+|comunique)\b<30>\bc[óo]digo\b<40>\b(?:sms|lleg[óo]|recib\w+|verificaci[óo]n|seis|6|d[íi]gitos)\b(?!<25>\bnadie\b)|\bc[óo]digo\b<30>\b(?:d[íi]gitos|sms|verificaci[óo]n|por\s+error)\b<40>\b(?:pasar|mandar|enviar|reenviar|decir)\b|\b(?:m[áa]nda\w*|env[íi]a\w*|p[áa]sa\w*|dime|dame|d[íi]game)\b<15>\b(?:seis|cuatro|6|4)\s+(?:d[íi]gitos|n[úu]meros|cifras)\b|\b(?:d[íi]game|dime|facil[íi]teme|d[íi]cteme|conf[íi]rmeme)\b<12>\bclave\b<30>\b(?:sms|recibi\w*|recibir|lleg\w+)\b|)"
     R"(\b(?:confirma|confirme|informe|informa|passa|passar|manda|mande|envia|envie|diga|fala)\b<30>\bc[óo]digo\b<40>\b(?:sms|chegou|receb\w+|verifica[çc][ãa]o|d[íi]gitos|enviamos)\b(?!<25>\bningu[ée]m\b)|\bc[óo]digo\b<30>\b(?:d[íi]gitos|sms|sem\s+querer|por\s+engano)\b<50>\b(?:passar|mandar|enviar|me\s+dizer|encaminhar)\b|)"
     R"(\b(?:назовите|продиктуйте|сообщите|пришлите|перешли\w*|скинь\w*|скажи\w*|отправьте)\b<25>\bкод\w?\b<25>\b(?:смс|sms|из|цифр\w*|сообщени\w+|который)\b(?!<20>\bникому\b)|\bслучайно\b<20>\bкод\b<50>\b(?:перешли|пришли|скинь|отправь)\b|\b(?:скинь|пришли|отправь|назови|продиктуй|скажи)\w*\b<12>\b(?:шесть|четыре|6|4)\s+цифр\w*\b|\bкод\b<50>\bпродиктуй\w*\b|\bпродиктуйте\b<15>\bкод\b|\b(?:пришли\w*|скинь\w*|продиктуй\w*|назовите)\b<15>\bкод\b<20>\b(?:смс|который|придёт|пришёл|пришел)\b|)"
     R"((?:(?:请|請|麻[烦煩]|[把将將])[\s\S]{0,20}|发|發)(?:短信)?[验驗][证證][码碼][\s\S]{0,16}(?:告[诉訴]我|[发發][给給]我|提供[给給]|[报報][给給]|[转轉][发發][给給]|念[给給])|(?:[六四6４４]|六位|四位)[个個位]?(?:[数數]字|[号號][码碼])[\s\S]{0,4}(?:[发發][给給]?我|告[诉訴]我|[报報][给給]我)|)"
     R"(\b(?:confermi|mi\s+dia|mi\s+dica|legga|comunichi)\b[^.!?]{0,15}\b(?:codice)\b[^.!?]{0,12}\b(?:arrivat[oa]|ricevut[oa])\b|\b(?:confirme|d[íi]game|deme|env[íi]eme|lea)\b[^.!?]{0,15}\b(?:c[óo]digo)\b[^.!?]{0,12}\b(?:ha\s+llegado|recibido|recibi[óo]|lleg[óo])\b|)"
     R"(\bcode\b<40>[\s\S]{0,3}\b(?:schick\w*|nenn\w*|sag\w*|gib|geben|leit\w*|lies)\b<12>\b(?:mir|uns|ihn)\b|)"
     R"(\b(?:code|chiffres)\b<40>[\s\S]{0,3}\b(?:envo\w+|transmet\w+|donne\w*|renvo\w+|lis\w*|communiqu\w+|dites)\b<8>\b(?:le|moi|nous|la)\b|)"
     R"(\b(?:c[óo]digo|clave)\b<40>[\s\S]{0,3}\b(?:me\s+l[oa]|p[áa]sam\w+|env[íi]am\w*|d[íi]ga\w*|mand\w+|dict\w+)\b|\breenv[íi]\w+\b<25>\b(?:c[óo]digo|clave)\b|)"
     R"(\b(?:прид[её]т|смс|sms|голосова\w+|проголосу\w+|подтвержд\w+|телеграм\w*|войти|авториз\w+|whats\s?app|ватсап\w*|сообщени\w+)\b[\s\S]{0,70}\b(?:код\w*|цифр\w*)\b[\s\S]{0,70}\b(?:скинь\w*|скинуть|пришли\w*|продикту\w+|назови\w*|перешли\w*|отправь\w*|скажи\w*|сообщи(?:те)?\s+(?:его\s+)?(?:мне|нам))\b|\bкод\b<20>[\s\S]{0,3}\b(?:скинь|пришли\w*|назови\w*|продиктуй\w*|сообщи\w*)\b<8>\b(?:его|мне|сюда|оператору)\b|)"
     R"(\b(?:stuur|geef|app|lees|noem)\b<20>\b(?:de|die)\s+(?:\w+\s+)?code\b<40>\b(?:sms|kreeg|krijgt|ontvang\w+|gekregen|binnen)\b|)"
     R"(\b(?:donne\w*|envoie\w*|transfère\w*|dicte\w*|lis\w*|dites|communiqu\w+)\b<20>\b(?:le|ce)\s+(?:code|numéro)\b<40>\b(?:reçu\w*|sms|recevoir|vient|arriv\w+|texto)\b|)"
     R"(\b(?:d[íi]ctem\w*|d[íi]ctam\w*|m[áa]nd[ae]m\w*|env[íi]em\w*|comp[áa]rt\w+)\b<20>\b(?:el|ese)\s+c[óo]digo\b|)"
     R"(\b(?:me\s+(?:manda|passa|envia|dita)|manda-me|diga-me)\b<15>\b(?:o|esse)\s+c[óo]digo\b|)"
     R"((?:把|[报報]|[发發]|[给給])[\s\S]{0,8}(?:[验驗][证證][码碼]|短信[码碼]|[数數]字)[\s\S]{0,6}(?:[给給]我|[报報]|[发發][过過]?[来來]|告[诉訴]我)|收到[\s\S]{0,10}[码碼][\s\S]{0,10}(?:[发發]|[给給]|告[诉訴])(?:[给給])?我|)"
     R"((?:コード|届いた番号|届いた数字)を?[\s\S]{0,6}(?:送って|教えて|転送して)(?:くれ|もらえ|ほしい|ください|欲しい)|)"
     R"(<sharedcode>|(?:인증번호|인증\s?코드|보안\s?코드)<10>(?:알려(?!\s?주지|\s?드리지|지)|보내(?!지)|전달(?!하지)|불러)|(?:인증 ?번호|인증 ?코드|6자리)[\s\S]{0,20}(?:불러|알려 ?(?:주세요|줘|주시|달라)|보내 ?(?:주세요|줘|주시)|좀)(?![\s\S]{0,4}(?:마세요|말))|(?:여섯|6|네|4) ?자리 ?(?:숫자|번호)?[\s\S]{0,6}(?:보내|알려 ?줘|불러)|인증 ?번호[\s\S]{0,24}(?:갔을|갔는데)[\s\S]{0,8}알려|문자로 ?온 ?번호를? ?(?:불러|알려)|받으신 ?인증 ?번호를? ?(?:말씀|알려|불러)|(?:認証コード|認証番号|6桁の番号|確認コード)[\s\S]{0,30}(?:教えてもら|教えてくだ|返信して|送って|転送)(?![\s\S]{0,4}ない)|(?:六|四|6|4|6)桁の(?:数字|番号|コード)[\s\S]{0,4}(?:を)?(?:送って|教えて|転送)|番号を読み上げて|\bcode\b<20>[\s\S]{0,3}\b(?:stuur|geef|geeft|lees|app|noem)\b<12>\b(?:die|hem|me|mij|ons)\b|\bcodice\b<40>[\s\S]{0,3}\b(?:me\s+lo|mandam\w+|mand[ai]|inviam\w+|dettam\w+|girm\w+|girami\w*|comunic\w+|legg\w+)\b|(?:[验驗][证證][码碼]|[认認][证證][码碼])[\s\S]{0,16}(?:截[图圖]|[发發]|告[诉訴]|[传傳]|[报報])[\s\S]{0,4}(?:[给給]我|我)|)"
     R"((?:코드|문자)[\s\S]{0,10}(?:캡[처쳐]|전달|알려|불러|보내)[\s\S]{0,2}(?:줘|주세요|주시면|줄래))"); }),
     true},
    {"cred-mfa-fatigue", "Credential phishing", "warn", 35,
     "asks the reader to approve a sign-in prompt on their phone",
     pattern([] { return std::string_view(
     R"(\b(?:tap|press|hit|click|say)\s+["“']?(?:yes|approve|allow|accept|ok)\b<40>\b(?:phone|prompt|push|notification|app|screen|pops?)\b|\b(?:prompt|push|notification|pop-?up)\b<40>\b(?:approve|accept|allow|tap\s+yes|press\s+yes|say\s+yes)\b|\b(?:notification|prompt|pop-?up)\s+(?:will\s+|should\s+)?(?:appear|pop\s+up|come\s+up|show\s+up)?<30>\b(?:just\s+|please\s+)?(?:hit|tap|press|click)\s+(?:yes|approve|accept|allow)\b|)"
     R"(\b(?:approve|accept|confirm|tap\s+yes)\b<30>\b(?:sign-?in|log-?in|request|prompt|notification)\b<25>\b(?:mobile|phone|device|app)\b|)"
     R"(\b(?:approve|accept|confirm|allow|tap\s+(?:yes|approve|allow)|press\s+(?:yes|approve))\b<30>\b(?:sign-?in|log-?in|authentication|authenticator|mfa|2fa|duo|push|okta|microsoft\s+authenticator)\b<15>\b(?:request|prompt|notification|push|attempt|message)\b|)"
     R"(\b(?:authenticator|mfa|2fa|two[- ]factor|multi[- ]factor|duo)\b<40>\b(?:approve|accept|tap\s+(?:yes|approve|allow)|press\s+(?:yes|approve)|re-?enrol+|re-?register|re-?configure|expir\w+|set\s?up\s+again)\b|)"
     R"(\b(?:genehmigen|bestätigen|freigeben)\s+Sie<40>\b(?:anmeldeanfrage|push-?(?:nachricht|tan|benachrichtigung)|anmeldung\s+in\s+(?:der|ihrer)\s+app|authenticator)\b|)"
     R"(\b(?:approuvez|acceptez|validez)\b<30>\b(?:notification|demande)\s+(?:de\s+connexion|d['’]authentification|sur\s+votre\s+(?:téléphone|mobile|application))\b|)"
     R"(\b(?:apruebe|acepte|autorize|aprove|aceite)\b<30>\b(?:notificaci[óo]n|solicitud|notifica[çc][ãa]o|solicita[çc][ãa]o)\b<20>\b(?:inicio\s+de\s+sesi[óo]n|login|celular|tel[ée]fono|aplica\w+)\b|)"
     R"(\b(?:auftrag|zahlung|freigabe|vorgang|push\w*)\b<30>\bapp\b<12>\b(?:frei|freigeben|bestätigen|zu)\b|\b(?:geben\s+sie|bestätigen\s+sie|gib)\b<40>\bapp\b<12>\b(?:frei|auftrag|zahlung)\b|\b(?:geben|erteilen|bestätigen)\s+sie\b<25>\b(?:freigabe|push\w*|auftrag)\b<20>\b(?:stopp\w+|stornier\w+|damit|verhinder\w+)\b|)"
     R"(\b(?:keur|bevestig|accepteer)\b<25>\b(?:melding|verzoek|opdracht)\b<25>\bapp\b|)"
     R"(\b(?:valide[rz]|approuve[rz]|accepte[rz]|confirme[rz])\b<30>\b(?:notification|opération|demande)\b<40>\b(?:application|appli|téléphone|annul\w+|affichée)\b|)"
     R"(\b(?:autorizz\w+|approv\w+|conferm\w+)\b<20>\b(?:notifica|operazione|richiesta)\b<30>\bapp\b)"); }),
     true},
    {"cred-reset-link", "Credential phishing", "warn", 20,
     "offers a link to reset a password",
     pattern([] { return std::string_view(
     R"(\b(?:password|passcode|pin)\b<25>\b(?:reset|changed|renewed|replaced)\b<40>\b(?:link|here|below|button|page)\b|)"
     R"(\breset\s+(?:it|one|yours)\s+(?:here|below)\b|\bnew\s+(?:one|password)\b<12>\bset\b<12>\b(?:page|here|below)\b|)"
     R"(\b(?:reset|change|re-?create|restore)\b<20>\b(?:your\s+|the\s+|my\s+)(?:\w+\s+){0,2}password\b<60>\b(?:(?:click|link|here|below|button|visit|go\s+to|follow|tap|immediately|within)\b|https?:)|)"
     R"(\b(?:click|link|tap|visit|follow|go\s+to|use)\b<60>\b(?:reset|change|restore|recover)\b<15>\b(?:your\s+|the\s+|my\s+)(?:\w+\s+){0,2}password\b|)"
     R"(\bpassword\s+(?:reset|change|recovery)\s+(?:request|link|notification|required|alert)\b|)"
     R"(\b(?:reset|change)\s+(?:my\s+)?password\b<5>$|)"
     R"(\b(?:passwort|kennwort)\b<25>\b(?:zurücksetzen|zurückzusetzen|ändern|zu\s+ändern)\b<60>\b(?:klick\w+|link|hier|unten|https?)\b|)"
     R"(\b(?:réinitialise[rz]|modifie[rz]|change[rz]|configurer)\b<15>\bvotre\s+mot\s+de\s+passe\b|)"
     R"(\b(?:restable(?:cer|zca|ce)|cambi(?:ar|e|a)|redefin(?:ir|a)|alter(?:ar|e)|troque)\b<15>\b(?:su|tu|sua|a)\s+(?:contraseña|senha)\b|)"
     R"(\bwachtwoord\b<20>\b(?:opnieuw\s+in(?:stellen|te\s+stellen)|resetten|wijzigen|herstellen)\b|)"
     R"(\b(?:reimpost\w+|cambi\w+)\b<12>\b(?:la\s+)?(?:sua\s+|tua\s+)?password\b<40>\blink\b)"); }),
     true},
    {"cred-secure-message", "Credential phishing", "warn", 20,
     "says a protected message or shared document waits behind a link",
     pattern([] { return std::string_view(
     R"(\b(?:secure|encrypted|protected|private|confidential)\s+(?:message|document|file|e-?mail|fax|voicemail)\b<60>\b(?:waiting|open|view|read|link|below|sign\s+in|log\s+in)\b|\b(?:document|file|folder)\b<25>\b(?:shared|waiting)\b<40>\b(?:open|view|sign\s+in|log\s+in|access)\b|\b(?:secure|encrypted|protected|confidential|private|new|important|pending|unread|undelivered|quarantined|held|voice|fax|shared)\b<12>\b(?:message|document|file|fax|voice\s?mail|e-?mail|mail)s?\b<30>\b(?:waiting|awaits?|pending|for\s+you|to\s+you|available|received|on\s+hold|held|in\s+quarantine|ready|attached\s+to\s+your|blocked)\b|)"
     R"(\b(?:received|have|got|sent\s+you)\b<8>\b(?:an?\s+)?(?:encrypted|protected|confidential|secure)\s+(?:message|e-?mail|document|file)\b|\bsign\s+in\s+to\s+(?:view|read|open)\b|)"
     R"(\b(?:has|have)\s+(?:\w+\s+)?(?:shared|sent)\b<15>\b(?:a|an|the|some|you|\d+)\b<20>\b(?:secure|encrypted|protected|confidential|onedrive|sharepoint|docusign|dropbox|excel|pdf|adobe|google\s+(?:drive|docs?)|important)\b<15>\b(?:document|file|folder|message|link|item|fax)s?\b|)"
     R"(\b(?:view|review|open|access|read|download|sign|preview)\b<15>\b(?:the\s+|your\s+|this\s+)?(?:\w+\s+)?(?:secure|encrypted|shared|protected|completed|pending|quarantined|held)\s+(?:\w+\s+)?(?:documents?|files?|messages?|e-?mails?)\b|)"
     R"(\b(?:review|view|open|sign)\s+(?:and\s+sign\s+)?(?:the\s+)?document(?:s)?\b<25>\b(?:here|below|click|link|button|docusign)\b|)"
     R"((?:\(\d+\)|\b\d+)\s+(?:new\s+|unread\s+|pending\s+|undelivered\s+|incoming\s+|important\s+){1,2}(?:voice\s?mails?|messages?|e-?mails?|documents?|faxe?s|notifications?)\b|)"
     R"(\bSie\s+haben\s+(?:\(?\d{1,4}\)?|eine|ein|einen|neue?)\s+(?:\w+\s+){0,3}(?:nachrichten?|dokumente?|mitteilung\w*|benachrichtigung\w*|aktualisierung\w*)\b|)"
     R"(\bvous\s+avez\s+(?:\(?\d{1,4}\)?|un|une|des)\s+(?:nouveaux?|nouvelles?)?\s?(?:messages?|documents?|notifications?)\b<30>\b(?:sécurisée?s?|important\w*|en\s+attente|non\s+lus?)\b|)"
     R"(\b(?:tiene|voc[êe]\s+(?:tem|recebeu)|recebeu|ha\s+recibido)\s+(?:\(?\d{1,4}\)?|un|una|uma?|novas?|nuevas?)\s+(?:\w+\s+){0,2}(?:mensaje|mensagem|mensagens|documento|notifica[çc][ãa]o|notificaci[óo]n|comunicado)\w*\b)"); }),
     true},
    {"cred-mailbox-full", "Credential phishing", "warn", 20,
     "says the mailbox is full or mail is being held back",
     pattern([] { return std::string_view(
     R"(\b(?:inbox|mailbox|storage|quota)\b<25>\b(?:full|limit|exceeded|almost|9\d\s?%|running\s+out|over)\b|\b(?:incoming|new)\s+(?:mails?|messages?|e-?mails?)\b<30>\b(?:held|bounc\w+|rejected|pending|stuck|blocked)\b|\b(?:mailbox|e-?mail|mail|storage|account)\s+(?:quota|storage|size\s+limit|capacity)\b<25>\b(?:exceeded|full|low|reached|used|upgrade|increase|almost|\d{2,3}\s?%)|)"
     R"(\b(?:messages?|mails?|e-?mails?)\b<30>\b(?:could\s+not\s+be\s+delivered|quarantine|pending\s+(?:your\s+)?release|held\s+back|on\s+hold)\b|)"
     R"(\b(?:mailbox|inbox|e-?mail|mail|storage|cloud|icloud|google\s+drive|onedrive)\b<30>\b(?:is|are|has|have|almost|nearly|now|was)\b<20>\b(?:full|exceeded|over\s+(?:the\s+|its\s+)?(?:quota|limit)|reached\s+(?:its|the|your)?<15>(?:limit|capacity|quota)|out\s+of\s+(?:space|storage)|run(?:ning)?\s+out)\b|)"
     R"(\b(?:exceeded|reached|over)\b<25>\b(?:mailbox|inbox|e-?mail|mail|storage|cloud|disk)\b<15>\b(?:quota|limit|capacity|space|size|plan)\b|)"
     R"(\b(?:incoming|pending|undelivered|important|new)?\s?(?:messages?|e-?mails?|mails?)\b<25>\b(?:are|is|were|was|have\s+been|has\s+been|being|will\s+be|could\s+not\s+be|cannot\s+be|not\s+be)\s+(?:\w+\s+)?(?:held|withheld|suspended|blocked|quarantined|rejected|delayed|delivered|returned|bounced|pending)\b<40>\b(?:mailbox|server|storage|quota|inbox|portal|release|release\s+them|e-?mail\s+account|sync\w*|your)\b|)"
     R"(\b(?:upgrade|increase|expand|clear|free\s+up|clean)\b<20>\b(?:your\s+|the\s+)?(?:mailbox|inbox|e-?mail|storage|cloud|quota)\b<15>\b(?:storage|quota|space|size|capacity|plan|now)\b|)"
     R"(\b(?:photos|files|data|documents|videos)\b<30>\bwill\s+be\s+(?:deleted|lost|removed|erased)\b|)"
     R"(\b(?:speicher\w*|postfach|cloud\w*)\b<25>\b(?:voll|überschritten|ausgeschöpft|erschöpft|aufgebraucht|begrenzt)\b|)"
     R"(\b(?:stockage|boîte\s+(?:mail|aux\s+lettres|de\s+réception)|espace)\b<25>\b(?:pleine?|saturée?|dépassée?|atteint|insuffisant)\b|)"
     R"(\b(?:mailbox|opslag\w*|postvak)\b<25>\b(?:vol|overschreden|bereikt)\b|)"
     R"((?:邮箱|郵箱|信箱|存储空间|儲存空間)<8>(?:已满|已滿|超出|不足|将满)|)"
     R"((?:メールボックス|ストレージ|受信トレイ)<10>(?:いっぱい|超過|不足|上限))"); }),
     true},
    {"cred-deactivate", "Credential phishing", "warn", 25,
     "threatens to close or delete an account",
     pattern([] { return std::string_view(
     R"(\b(?:account|mailbox|profile|e-?mail|access)\b<30>\b(?:terminated|deleted|removed|shut\s+down|closed|wiped|deactivated|switched\s+off)\b<40>\b(?:unless|if|within|today|tonight|hours|soon|permanently)\b|)"
     R"(\b(?:termination|closure|deactivation|deletion|loss)\s+of\s+(?:your|the|all)\s+(?:\w+\s+){0,2}(?:account|mailbox|profile|data)\b|\b(?:deactivate|close|delete|remove)\b<12>\b(?:it|your|the\s+\w+)?\b<25>\bunless\s+you\s+cancel\b|)"
     R"(\byour\s+(?:\w+\s+)?(?:account|membership|subscription|mailbox)\s+has\s+been\s+(?:closed|terminated|cancell?ed|deactivated)\b|\b(?:photos|files|data|mails)\b<40>\bscheduled\s+for\s+(?:removal|deletion)\b|)"
     R"(\b(?:can\s+no\s+longer|no\s+longer\s+be\s+able\s+to|be\s+unable\s+to|will\s+stop|not\s+be\s+able\s+to)\b<8>\b(?:send|sending|receive|receiving)\s+(?:(?:and|or)\s+(?:receive|receiving|send|sending)\s+)?(?:new\s+|any\s+|incoming\s+)?(?:messages|e-?mails?|mails?)\b|)"
     R"(\b(?:account|mailbox|wallet|profile|e-?mail\s+address|your\s+(?:\w+\s+)?(?:service|access|card|number|line|subscription|membership))\b<15>\b(?:will|is\s+going\s+to|shall|is\s+about\s+to|is\s+scheduled\s+to|is\s+due\s+to|has\s+been\s+scheduled\s+to)\s+(?:soon\s+|then\s+|automatically\s+|permanently\s+|also\s+|otherwise\s+)?be\s+(?:\w+ly\s+)?(?:closed|terminated|deactivated|deleted|removed|cancell?ed|discontinued|shut\s?down|disconnected|disabled|erased|suspended)\b|)"
     R"(\b(?:request|requested|instruction)\b<20>\b(?:to|for)\s+(?:the\s+)?(?:terminate|close|delete|de-?activate|shut\s?down|deactivation|termination|deletion|closure)\b<15>\b(?:your|of)\b<12>\b(?:account|mailbox|e-?mail|service|wallet)\b|)"
     R"(\b(?:avoid|prevent)\b<20>\b(?:(?:account|service|permanent|access)\s+(?:closure|termination|deactivation|deletion|suspension|interruption|disruption|restrictions?|loss)|(?:closure|termination|deactivation|deletion|suspension|interruption|restriction|loss)\s+of\s+(?:your|the|this|access|service|data)|losing\s+access|being\s+(?:closed|locked|suspended|deactivated|disabled))\b|)"
     R"(\b(?:you\s+(?:will|may|could)|your|permanently|risk\s+of)\s+(?:\w+\s+)?(?:lose|losing)\s+(?:access|your\s+(?:account|data|files|photos|wallet|funds|assets))\b|)"
     R"(\b(?:konto|account|zugang|postfach|abonnement|karte|profil)\b<40>\b(?:gelöscht|geschlossen|gekündigt|deaktiviert|abgeschaltet|gesperrt)\s+(?:wird|werden|würde)\b|)"
     R"(\b(?:wird|werden)\b<30>\b(?:konto|account|zugang|postfach|karte|profil)\b<30>\b(?:gelöscht|geschlossen|deaktiviert|abgeschaltet|gesperrt)\b|)"
     R"(\b(?:compte|accès|carte|ligne)\s+(?:\w+\s+){0,2}sera\s+(?:\w+\s+){0,2}(?:ferm|supprim|désactiv|résili|clôtur|suspend|bloqu)|)"
     R"(\b(?:cuenta|conta|acesso|acceso|servi[çc]io?|cadastro|benef[íi]cio)\b<20>\b(?:ser[áa]|podr[áa]\s+ser|poder[áa]\s+ser)\s+(?:\w+\s+){0,2}(?:cerrad|eliminad|cancelad|desactivad|encerrad|exclu[íi]d|desativad|deletad|interromp|suspens|suspend|bloquead)|)"
     R"(\buw\s+(?:\w+\s+){0,2}(?:account|rekening|pas|mailbox)\s+wordt\s+(?:\w+\s+){0,2}(?:gesloten|verwijderd|beëindigd|geblokkeerd|gedeactiveerd|opgeschort)\b|)"
     R"(\b(?:konto|abo|abonnement|mitgliedschaft|zugang)\b<40>\b(?:in|innerhalb\s+von)\s+(?:24|48|72)\s+stunden\b<20>\b(?:gekündigt|gelöscht|geschlossen|gesperrt|deaktiviert)\b|)"
     R"(\babonnement\b<10>\bwordt\b<15>\b(?:stopgezet|opgezegd|beëindigd)\b|)"
     R"(\b(?:abonnement|compte|accès)\b<15>\bsera\b<15>\b(?:résilié|supprimé|clôturé|fermé|suspendu|bloqué)\b|)"
     R"(\b(?:carta|conto|abbonamento|account|postepay|utenza)\b<20>\b(?:verrà|sarà)\b<15>\b(?:disattivat|cancellat|sospes|chius|bloccat|eliminat)[oa]\b|)"
     R"(\b(?:suscripci[óo]n|cuenta|tarjeta|l[íi]nea)\b<10>\bser[áa]\b<12>\b(?:cancelada|suspendida|bloqueada|eliminada)\b<20>\b(?:en|dentro\s+de)\s+(?:24|48|72)\s+horas\b|\b(?:tarjeta|cuenta|acceso)\b<10>\bse\s+(?:desactivar[áa]|bloquear[áa]|cancelar[áa]|suspender[áa])\b|)"
     R"(\bassinatura\b<10>\bser[áa]\s+(?:cancelada|suspensa|encerrada)\b|\b(?:cart[ãa]o|conta|acesso)\b<10>\bser[áa]\s+(?:desativad[oa]|bloquead[oa]|suspens[oa]|cancelad[oa])\b|)"
     R"((?:取消|[关關][闭閉]|[办辦]理[关關][闭閉])[\s\S]{0,6}(?:请|請)?[联聯][系繫]客服|)"
     R"(会員資格[がを]?(?:失効|停止)|)"
     R"((?:구독|계정|서비스)[\s\S]{0,6}(?:이|가)? ?(?:해지|삭제)(?:됩|될))"); }),
     true},

    // ---- Child sexual abuse --------------------------------------------------------------------
    {"ill-csam-offer", "Child sexual abuse", "block", 100,
     "offers or seeks child sexual abuse material",
     R"(\b(?:cp|child ?p[o0]rn\w*|underage (?:nudes?|porn|pics?|videos?)|pre-?teen (?:sex|nudes?|porn)|loli(?:con)?)\b[^.!?]{0,60}\b(?:for sale|selling|available|link|collection|trade|swap|dm me|pm me|price))",
     true},
    {"ill-csam-seek", "Child sexual abuse", "block", 100,
     "seeks child sexual abuse material",
     R"(\b(?:looking for|want|need|send me|got any)\b[^.!?]{0,40}\b(?:cp|child ?p[o0]rn\w*|underage (?:nudes?|pics?|videos?))\b)",
     true},
    {"ill-minor-solicit", "Child sexual abuse", "block", 100,
     "grooms a child to keep contact secret",
     R"(\b(?:don'?t tell your (?:parents|mum|mom|dad)|keep this (?:our|a) secret)\b[^.!?]{0,80}\b(?:photos?|pics?|videos?|meet|alone))",
     true},

    // ---- Terrorism -----------------------------------------------------------------------------
    {"ill-terror-plan", "Terrorism", "block", 100,
     "plans an attack",
     R"(\b(?:plant|detonate|set off|build)\b[^.!?]{0,30}\b(?:bomb|ied|explosive device|suicide vest)\b)",
     true},
    {"ill-terror-recruit", "Terrorism", "block", 100,
     "recruits for a terrorist organisation",
     R"(\b(?:join|pledge (?:allegiance|bayah)|travel to fight for)\b[^.!?]{0,40}\b(?:isis|isil|daesh|al[- ]?qaeda|the caliphate)\b)",
     true},
    {"ill-terror-incite", "Terrorism", "block", 100,
     "incites a violent attack",
     R"(\b(?:attack|bomb|shoot up|massacre)\b[^.!?]{0,30}\b(?:the (?:mosque|synagogue|church|school|embassy)|civilians|worshippers)\b[^.!?]{0,40}\b(?:must|should|will|let'?s|we should)\b|)"
     R"(\b(?:we should|let'?s|you should)\b[^.!?]{0,30}\b(?:attack|bomb|shoot up|massacre)\b)",
     true},
    {"ill-weapon-make", "Terrorism", "block", 100,
     "gives instructions for making a weapon",
     R"(\b(?:how to (?:make|build)|instructions for (?:making|building)|recipe for)\b[^.!?]{0,30}\b(?:a bomb|explosives?|napalm|ricin|nerve agent|a ghost gun|an untraceable (?:gun|firearm))\b)",
     true},
    {"ill-terror-glorify", "Terrorism", "block", 100,
     "praises the perpetrator of an attack",
     R"(\b(?:the )?(?:martyr|shahid|attacker|bomber|shooter|gunman)\b[^.!?]{0,60}\b(?:is|was|are)\b[^.!?]{0,20}\b(?:a )?(?:hero|heroes|blessed|martyr|legend|saint)\b|)"
     R"(\b(?:we should|let'?s|everyone should)\b[^.!?]{0,30}\bcelebrate\b[^.!?]{0,40}\b(?:attack|bombing|shooting|massacre)\b)",
     true},
    {"ill-terror-finance", "Terrorism", "block", 100,
     "raises money for armed fighters",
     R"(\b(?:send|donate|transfer|raise)\b[^.!?]{0,40}\b(?:funds?|money|zakat|donations?)\b[^.!?]{0,60}\b(?:mujahideen|jihad|the brothers fighting|the fighters|the resistance)\b|)"
     R"(\b(?:buys?|buy)\b[^.!?]{0,20}\bweapons for\b)",
     true},
    {"ill-terror-target", "Terrorism", "block", 100,
     "selects a place full of people as a target",
     R"(\b(?:best|ideal|easiest|soft(?:est)?)\s+target\b[^.!?]{0,60}\b(?:school|church|mosque|synagogue|market|station|stadium|concert|crowd|parade|hospital)\b|)"
     R"(\b(?:school|church|mosque|synagogue|market|station|stadium)\b[^.!?]{0,40}\bsecurity\b[^.!?]{0,30}\b(?:is|are)\b[^.!?]{0,20}\b(?:nonexistent|non-existent|weak|nothing|a joke)\b)",
     true},
    {"ill-terror-threat-place", "Terrorism", "block", 100,
     "threatens that a bomb has been placed",
     R"(\bthere (?:is|will be) a bomb\b|)"
     R"(\b(?:a |the )?bomb\b[^.!?]{0,30}\b(?:will|is going to) go off\b|)"
     R"(\b(?:i|we) (?:have )?placed (?:a |an )?(?:bomb|device|explosive)\b)",
     true},
    {"ill-terror-arm-up", "Terrorism", "block", 100,
     "acquires weapons for a specific event",
     R"(\bi (?:need|want|am getting|have got)\b[^.!?]{0,30}\b(?:an? )?(?:assault rifle|ak-?47|ar-?15|automatic weapon|machine gun|explosives?|pipe bombs?)\b[^.!?]{0,60}\b(?:before|for|ahead of)\b[^.!?]{0,40}\b(?:demonstration|protest|rally|march|event|meeting|gathering|day)\b)",
     true},
    {"ill-terror-manifesto", "Terrorism", "block", 100,
     "declares an attack is about to begin",
     R"(\b(?:declaration|declare) of war against\b|)"
     R"(\bthis is my (?:manifesto|declaration)\b[^.!?]{0,80}\b(?:operation|attack|war|begins)\b|)"
     R"(\bthe operation begins\b[^.!?]{0,40}\b(?:tomorrow|tonight|at dawn|no going back)\b)",
     true},

    // ---- Hate speech ---------------------------------------------------------------------------
    {"ill-hate-genocide", "Hate speech", "block", 100,
     "calls for a group of people to be killed or removed",
     R"(\b(?:all|those|these)\s+(?:\w+s)\s+(?:should|must|need to|deserve to)\s+(?:be\s+)?(?:die|killed|gassed|shot|hanged|exterminated|deported|removed|wiped out|eliminated)\b)",
     true},
    {"ill-hate-dehumanise", "Hate speech", "block", 100,
     "describes a group of people as less than human",
     R"(\b(?:\w+s|people|they)\s+are\s+(?:all\s+)?(?:sub-?human|vermin|rats|cockroaches|parasites|filth|scum)\b)",
     true},
    {"ill-hate-direct", "Hate speech", "block", 100,
     "tells people to leave because of where they are from",
     R"(\b(?:go back to)\s+(?:your|their)\s+(?:own\s+)?(?:country|shithole)\b|)"
     R"(\byou people (?:don'?t belong|should (?:leave|go back))\b)",
     true},
    {"ill-hate-denial", "Hate speech", "block", 100,
     "denies a genocide",
     R"(\b(?:the )?holocaust\b[^.!?]{0,30}\b(?:never happened|is a (?:hoax|lie|myth)|was fabricated)\b|)"
     R"(\bgenocide\b[^.!?]{0,20}\b(?:never happened|is a hoax)\b)",
     true},

    // ---- Illegal goods -------------------------------------------------------------------------
    {"ill-drug-sale", "Illegal goods", "block", 100,
     "offers illegal drugs for sale",
     R"(\b(?:selling|for sale|in stock|buy)\b[^.!?]{0,30}\b(?:cocaine|heroin|meth(?:amphetamine)?|mdma|ketamine|fentanyl|crack)\b|)"
     R"(\b(?:cocaine|heroin|meth|mdma|fentanyl)\b[^.!?]{0,25}\b(?:per gram|a gram|an ounce|price list|dm for|hit me up)\b)",
     true},
    {"ill-weapon-sale", "Illegal goods", "block", 100,
     "offers weapons without lawful checks",
     R"(\b(?:selling|for sale|can supply|in stock)\b[^.!?]{0,40}\b(?:untraceable|unregistered|no (?:paperwork|background check)|no serial)\b[^.!?]{0,30}\b(?:gun|firearm|pistol|rifle|ammo)\b|)"
     R"(\b(?:gun|pistol|rifle)s?\b[^.!?]{0,30}\bno background check\b)",
     true},
    {"ill-fake-docs", "Illegal goods", "block", 100,
     "offers forged identity documents",
     R"(\b(?:fake|forged|novelty|replica)\b[^.!?]{0,25}\b(?:passports?|drivers? licen[cs]es?|id cards?|diplomas?|certificates?)\b[^.!?]{0,40}\b(?:for sale|we (?:make|supply)|order|price|delivery)\b)",
     true},
    {"ill-stolen-data", "Illegal goods", "block", 100,
     "trades stolen accounts or card data",
     R"(\b(?:fullz|dumps|cvv (?:shop|list)|track ?[12] data)\b|)"
     R"(\b(?:selling|buying|fresh)\b[^.!?]{0,25}\b(?:stolen|hacked|cracked)\b[^.!?]{0,25}\b(?:accounts?|cards?|databases?|logins?)\b)",
     true},

    // ---- Illegal services ----------------------------------------------------------------------
    {"ill-hacking-service", "Illegal services", "block", 100,
     "offers hacking as a service",
     R"(\b(?:hire a hacker|hacking service|ddos for hire|booter|stresser)\b|)"
     R"(\b(?:i can|we can)\b[^.!?]{0,25}\bhack\b[^.!?]{0,30}\b(?:account|email|instagram|whatsapp|facebook)\b[^.!?]{0,25}\bfor \$?\d)",
     true},

    // ---- Human trafficking ---------------------------------------------------------------------
    {"ill-trafficking", "Human trafficking", "block", 100,
     "offers people for sale or describes debt bondage",
     R"(\b(?:girls?|women|workers?)\b[^.!?]{0,30}\b(?:for sale|available for|delivered to)\b[^.!?]{0,30}\b(?:any city|your city|order|price)\b|)"
     R"(\bpassport (?:will be |is )?(?:held|kept|confiscated)\b[^.!?]{0,50}\b(?:until|debt|work)\b)",
     true},

    // ---- Sexual abuse --------------------------------------------------------------------------
    {"ill-nci-share", "Sexual abuse", "block", 100,
     "distributes intimate images without consent",
     R"(\b(?:share|post|leak|send)\b[^.!?]{0,25}\b(?:her|his|their)\b[^.!?]{0,20}\b(?:nudes?|intimate (?:photos?|images?)|sex tape)\b)",
     true},
    {"ill-sexual-coercion", "Sexual abuse", "block", 100,
     "demands sexual images or acts under threat",
     R"(\b(?:send (?:me )?(?:nudes?|pics?)|sleep with me)\b[^.!?]{0,60}\b(?:or (?:i|we) will|otherwise|or you'?ll lose|keep your job)\b)",
     true},

    // ---- Self-harm -----------------------------------------------------------------------------
    {"ill-selfharm-promote", "Self-harm", "block", 100,
     "gives instructions for suicide or self-harm",
     R"(\b(?:here'?s how to|best way to|easiest way to)\b[^.!?]{0,20}\b(?:kill yourself|end your life|commit suicide|overdose)\b)",
     true},

    // ---- Payment instruction -------------------------------------------------------------------
    {"pay-imperative-transfer", "Payment instruction", "block", 100,
     "instructs someone to move money to an account",
     R"((?:^|[.!?\n]\s*|\bplease\s+|\bkindly\s+|\band\s+|\bnow\s+)(?:please\s+|kindly\s+)?(?:wire|transfer|remit|send|release|pay)\s+(?:the\s+|those\s+|that\s+|out\s+the\s+)?(?:money|funds|payment|balance|amount|invoice|\$[\d,]+|[\d,]{3,})\b[^.!?]{0,60}\b(?:to|into)\b)",
     true},
    {"pay-authorise-movement", "Payment instruction", "block", 100,
     "authorises a payment",
     R"(\b(?:i (?:approve|authorise|authorize|confirm)|approved|go ahead|please proceed|please action|please release)\b[^.!?]{0,140}\b(?:wire|transfer|remit|pay|send|release)\b[^.!?]{0,80}\b(?:money|funds|payment|balance|amount|invoice|account))",
     true},
    {"pay-movement-then-approval", "Payment instruction", "block", 100,
     "approves a payment instruction",
     R"(\b(?:wire|transfer|remit|pay|send|release)\b[^.!?]{0,80}\b(?:money|funds|payment|balance|invoice|account)\b[^.!?]{0,140}\b(?:i (?:approve|authorise|authorize|have approved)|approved (?:it|this)|is approved))",
     true},
    {"pay-authorise-noun", "Payment instruction", "block", 100,
     "authorises a payment",
     R"(\bi (?:approve|authorise|authorize)\b[^.!?]{0,40}\b(?:payment|transfer|wire|remittance|disbursement)\b)",
     true},
    {"pay-identity-then-instruction", "Payment instruction", "block", 100,
     "states who you are and then instructs a payment or a gift-card purchase — the exact shape of business email compromise",
     R"(\b(?:this is|i am) (?:the )?[A-Z][a-z]+(?: [A-Z][a-z]+)?\b[^.!?]{0,10}[.!?][^!?]{0,200}?\b(?:wire|transfer|remit|pay|send|buy|purchase)\b[^.!?]{0,80}\b(?:money|funds|payment|account|gift\s?cards?|vouchers?)\b)",
     true},

    // ---- Payment redirection -------------------------------------------------------------------
    {"bec-bank-change", "Payment redirection", "warn", 55,
     "announces new bank details, the core of payment-redirection fraud",
     pattern([] { return std::string_view(
     R"(\b(?:account|bank)\b<30>\b(?:frozen|froze|audit\w*|under\s+review|not\s+(?:operational|available)|blocked)\b[\s\S]{0,60}\b(?:pay|transfer|send|remit)\b<40>\b(?:this|new|other|another|following|below)\b|\b(?:moved|switched|changed)\s+(?:to\s+another\s+)?banks?\b<byhand><40>\b(?:new|below|update\w*)\b|\bnew\s+account\s+for\s+(?:receipts|invoices|payments)\b|)"
     R"(\bchanged\s+banks\b[\s\S]{0,40}\b(?:direct\s+deposit|payroll|salary)\b|\bwe\s+(?:now\s+)?bank\s+with\b<60>\b(?:details|records|system)\b|\b(?:settle|pay|transfer|remit)\b[^.!?]{0,60}\baccount\s+in\s+\w+[^.!?]{0,20}\b(?:until\s+further\s+notice|for\s+the\s+time\s+being|temporarily)\b|\b(?:until\s+further\s+notice|for\s+the\s+time\s+being|temporarily)\b[^.!?]{0,40}\baccount\s+in\s+\w+|)"
     R"(\b(?:we\s+are|we['’]re)\s+changing\s+banks\b|\bbank\s+has\s+flagged\b|\bchange\s+ach\b|\bright\s+bank\s+details\b|\bresend\b<20>\b(?:this|the)\s+(?:other|new)\s+one\b|)"
     R"(\baccount\s+on\s+(?:file|the\s+invoice)\b<60>\b(?:closed|audited|flagged|incorrect)\b|\bnew\s+(?:bank\s+)?details\s+attached\b|\bbank\s+changed\b<30>\b(?:notice|invoice|updated|attached|our)\b|)"
     R"(\bhas\s+changed\s+(?:its\s+|their\s+)?banks?\b|\bbank\s+(?:account\s+)?(?:has\s+(?:been\s+)?)?changed\s+to\s+our\b|\bswitch(?:ed|ing)\s+our\s+bank\b|)"
     R"(\b(?:our|the)\s+(?:\w+\s+){0,2}account\b<30>\b(?:can['’]?t|cannot|can\s+not)\s+be\s+(?:used|credited)\b|)"
     R"(\buse\s+our\s+(?:alternate|alternative|other|second)\s+account\b|\b(?:put|deposit)\s+100%\s+(?:in|into|of\s+it)\b|\breplace\s+it\s+with\s+the\s+(?:below|following|new)\b|)"
     R"(\b(?:re-?send|wired|paid)\b<30>\b(?:to|into)\s+the\s+account\s+below\b|\bwire\s+instructions\b<40>\b(?:earlier|error)\b|\bthe\s+\w+\s+account\s+from\s+now\b|)"
     R"(\b(?:our|firm['’]s|company['’]s)\s+(?:\w+\s+){0,3}(?:bank|account)s?\b<30>\b(?:has|have|is|was|are)\s+(?:been\s+|being\s+|currently\s+|now\s+)*(?:changed?|blocked|moved|migrated|audited|upgrading|updated|replaced|undergoing|bouncing)\b|)"
     R"(\b(?:transition(?:ed|ing)|moved|chang(?:ed|ing)|updated)\b<15>\b(?:to\s+a\s+)?(?:new\s+)?bank(?:ing)?\s+(?:institution|relationships?|partner|provider)s?\b|)"
     R"(\bold\s+account\b<60>\b(?:new\s+one|new\s+account|discharge|lost|recall)\b|\bdo\s+not\s+(?:make|send)\s+(?:any\s+)?payments?\s+to\s+(?:the\s+|our\s+)?old\s+account\b|)"
     R"(\b(?:account|collect|payments?|paid|pay)\b<40>\b(?:sister|associate|associated|factoring)\s+company\b|\b(?:sister|associate|factoring)\s+company\b<60>\b(?:account|collect\w*|payments?|paid)\b|)"
     R"(\b(?:new|interim|updated)\s+account\b<25>\b(?:attached|enclosed|below|instead)\b|\b(?:pay|send|wire|re-?issue|disburse\w*|remit)\b<60>\baccount\b<20>\b(?:in|on)\s+the\s+(?:attached|enclosed)\b|)"
     R"(\b(?:attached|enclosed)\b<25>\bach\s+(?:form|enrol?lment)\b|\bach\s+(?:form|enrol?lment)\b<30>\b(?:attached|enclosed|new)\b|)"
     R"(\b(?:opened|have|got)\s+a\s+new\s+(?:bank\s+)?account\b<byhand><80>\b(?:salary|payroll|wages)\b|\bpay\s?(?:stub|slip)\b<40>\bold\s+(?:account|bank)\b|)"
     R"(\bwiring\s+instructions?\b<60>\b(?:replaced|updated|changed|disregard)\b|\b(?:disregard|ignore)\b<20>\b(?:details|instructions?)\b<20>\bin\s+(?:our|my)\s+(?:previous|earlier|last)\b|)"
     R"(\bour\s+(?:\w+\s+){0,3}account\b<40>\b(?:is|was|has\s+been|remains)\s+(?:currently\s+|temporarily\s+|now\s+)*(?:on\s+hold|frozen|closed|inactive|unavailable|under\s+(?:audit|review)|being\s+audited|restricted)\b|)"
     R"(\b(?:not\s+to\s+use|stop\s+using|(?:do\s+not|don['’]t|no\s+longer)\s+use)\b<12>\b(?:our|my|that|this)\s+(?:\w+\s+)?(?:bank\s+)?account\b|)"
     R"(\b(?:pay|paid|send|sent|remit|wire|wired|deposit|put)\b<60>\b(?:our|an?|the)\s+(?:other|alternate|alternative|different)\s+(?:bank\s+)?account\b|)"
     R"(\b(?:updated|new|revised|amended|corrected)\s+(?:wiring|wire|ach|remittance|banking)\s+(?:transfer\s+)?(?:instructions?|details|information|form)\b(?!<60>\b(?:in\s+person|to\s+the\s+(?:hr|payroll|personnel)\s+(?:desk|office)|(?:hr|payroll|front|personnel)\s+(?:desk|office|counter)|room\s+\d))|)"
     R"(\b(?:our|my)\s+(?:previous|old|former)\s+bank\s+account\b|)"
     R"(\bbank\s+gewechselt\b<byhand><80>\b(?:gehalt|lohn|konto)\b|\b(?:gehalt|lohn|zahlung\w*|rechnung\w*)\b<byhand><80>\b(?:neues?\s+konto|neue\s+bankverbindung|neuen\s+konto)\b|)"
     R"(\b(?:nómina|salario|sueldo|pagos?|facturas?)\b<80>\bnueva\s+cuenta\b|)"
     R"(\bchangé\s+de\s+banque\b<byhand><80>\b(?:salaire|paie|compte|virement)\b|\b(?:salaire|paie|paiements?|virements?|factures?|règlements?)\b<80>\b(?:nouveau\s+(?:compte|rib)|nouvelles\s+coordonnées\s+bancaires)\b|)"
     R"(\b(?:bank|banking|payment|remittance|account|wire|ach)\s+(?:account\s+)?(?:details|information|info|instructions?|coordinates|particulars)\b<30>\b(?:has|have|had|is|are|was|were)\s+(?:been\s+|now\s+|recently\s+|just\s+|being\s+)*(?:changed|updated|amended|revised|modified|replaced)\b<byhand>|)"
     R"(\b(?:we|i|our\s+company|our\s+supplier|the\s+company|vendor|our\s+\w+\s+department)\b<25>\b(?:have|has|had|['’]ve|recently|are|am|just)\s+(?:recently\s+|just\s+|now\s+)?(?:chang(?:ed|ing)|switch(?:ed|ing)|mov(?:ed|ing)|updat(?:ed|ing)|migrat(?:ed|ing)|open(?:ed|ing))\b<25>\b(?:our\s+|my\s+|a\s+|to\s+a\s+|the\s+|new\s+)(?:new\s+|different\s+|corporate\s+|company\s+|business\s+)?(?:bank(?:ing)?(?:\s+account|\s+accounts|\s+details|\s+information|\s+provider|\s+partner)?|account\s+details|payment\s+details|remittance\s+(?:details|information))\b|)"
     R"(\b(?:our|my|the)\s+(?:new|updated|revised|amended|current|correct)\s+(?:\w+\s+){0,2}(?:bank(?:ing)?\s+(?:account|details|information|info|coordinates|instructions)|account\s+details|payment\s+(?:details|instructions)|remittance\s+(?:details|instructions|information)|wire\s+instructions|ach\s+(?:details|information))\b(?!<60>\b(?:in\s+person|to\s+the\s+(?:hr|payroll|personnel)\s+(?:desk|office)|(?:hr|payroll|front|personnel)\s+(?:desk|office|counter)|room\s+\d))|)"
     R"(\b(?:change|changes|switch)\s+(?:in|of|to)\s+(?:our|my|the|your|vendor|supplier)\s+(?:\w+\s+)?(?:bank(?:ing)?(?:\s+account)?|payment|remittance|account)\s+(?:details|information|info|instructions|coordinates|account)\b(?!<60>\b(?:in\s+person|to\s+the\s+(?:hr|payroll|personnel)\s+(?:desk|office)|(?:hr|payroll|front|personnel)\s+(?:desk|office|counter)|room\s+\d))|)"
     R"(\bnew\s+(?:bank(?:ing)?|remittance|wire|ach|payment)\s+(?:details|information|instructions|coordinates)\b<40>\b(?:attached|below|future|invoice|invoices|payments?|effective|going\s+forward|from\s+now)\b|)"
     R"(\b(?:old|previous|former|existing|usual)\s+(?:bank\s+)?account\b<40>\b(?:is|has\s+been|was|currently|under|no\s+longer)\b<25>\b(?:closed|audit(?:ed)?|frozen|review|inactive|suspended|unavailable|use|used|accessible|receive|merged)\b|)"
     R"(\b(?:unsere?|meine?)\b<15>\b(?:bankverbindung|bankdaten|kontodaten|kontoverbindung|iban)\b<40>\b(?:geändert|gewechselt|aktualisiert|neu|ändert)\b|)"
     R"(\b(?:neuen?|geänderten?|aktualisierten?)\s+(?:bankverbindung|bankdaten|kontodaten|kontoverbindung|iban)\b<byhand>|)"
     R"(\b(?:nos|mes|nouvelles?|nouveaux?)\s+(?:nouvelles\s+|nouveaux\s+)?coordonnées\s+bancaires\b<40>\b(?:chang|modifi|mise\s+à\s+jour|nouvelles?|ci-(?:joint|dessous))|)"
     R"(\b(?:changement|modification)\s+(?:de\s+(?:nos\s+|mes\s+)?|des\s+)(?:coordonnées\s+bancaires|rib|iban|compte\s+bancaire|domiciliation)\b<byhand>|)"
     R"(\bnouve(?:au|l|lles)\s+(?:rib|iban|coordonnées\s+bancaires|compte\s+bancaire)\b<byhand>|)"
     R"(\b(?:nuev[oa]s?|cambi\w+|actualiz\w+)\b<20>\b(?:nuestr[oa]s?\s+|mis?\s+)?(?:datos\s+bancarios|cuenta\s+bancaria|datos\s+de\s+pago|n[úu]mero\s+de\s+cuenta)\b<byhand>|)"
     R"(\b(?:nov[oa]s?|alter\w+|mudan\w+|atualiz\w+)\b<20>\b(?:noss[oa]s?\s+|meus?\s+)?(?:dados\s+banc[áa]rios|conta\s+banc[áa]ria)\b<byhand>|)"
     R"(\b(?:nieuwe?|gewijzigde?|ons|onze)\b<15>\b(?:bankgegevens|rekeningnummer|bankrekening)\b<40>\b(?:gewijzigd|veranderd|nieuwe?|voortaan)\b|)"
     R"((?:更改|变更|變更|更换|更換|新的)<8>(?:银行账户|銀行帳戶|收款账户|收款帳戶|银行账号|銀行帳號|收款账号|银行信息)|)"
     R"((?:銀行口座|振込先|振込口座)<12>(?:変更(?!する|したい|を希望|され|届|の(?:場合|方|際))|新しい)|)"
     R"((?:입금\s?계좌|은행\s?계좌|계좌\s?정보|계좌번호)<10>(?:변경(?!\s?(?:은|을|하실|하시려|원하|신청))|바뀌|새로운)|)"
     R"(\b(?:gehaltskonto|gehalt|lohn)\b<byhand><50>\b(?:ändern|neue[ns]?\s+(?:konto|iban)|umstellen)\b|\b(?:gehalt|lohn)\b<40>\b(?:dorthin|darauf)\b<12>\büberweis\w*|\b(?:begleichen|überweisen|zahlen)\b[^.!?]{0,60}\bkonto\s+in\s+\w+[^.!?]{0,20}\b(?:bis\s+auf\s+weiteres|vorübergehend|vorläufig)\b|\b(?:bis\s+auf\s+weiteres|vorübergehend|vorläufig)\b[^.!?]{0,40}\bkonto\s+in\s+\w+|)"
     R"(\b(?:rekeningnummer|bankgegevens|iban|bankrekening)\b<12>\b(?:is|zijn)\b<10>\b(?:gewijzigd|veranderd|aangepast)\b|\bsalaris\b<50>\bnieuwe\s+rekening\b|\bnieuwe\s+iban\b|\bnieuwe?\s+(?:bank)?rekeningnummer\b<40>\b(?:voldoe\w*|betal\w+|overmaken|storten|bijlage)\b|\b(?:voldoe\w*|betal\w+|overmaken)\b<40>\bnieuwe?\s+(?:bank)?rekeningnummer\b|\bsalaris\b<30>\bdaarop\s+storten\b|\b(?:voldoen|betalen|overmaken)\b[^.!?]{0,60}\brekening\s+in\s+\w+[^.!?]{0,20}\b(?:tot\s+nader\s+order|voorlopig|tijdelijk)\b|\b(?:tot\s+nader\s+order|voorlopig|tijdelijk)\b[^.!?]{0,40}\brekening\s+in\s+\w+|)"
     R"(\b(?:nouveau|nouvelle)\s+(?:rib|iban|compte|coordonnées)\b<60>\b(?:salaire|paie|versement|virement|règlement)\b|\b(?:régler|payer|virer|verser)\b[^.!?]{0,60}\bcompte\s+(?:au|en)\s+\w+[^.!?]{0,20}\b(?:jusqu[\'’]à\s+nouvel\s+ordre|provisoirement|temporairement)\b|\b(?:jusqu[\'’]à\s+nouvel\s+ordre|provisoirement|temporairement)\b[^.!?]{0,40}\bcompte\s+(?:au|en)\s+\w+|)"
     R"(\b(?:coordinate\s+bancarie|iban|conto\s+corrente)\b<20>\b(?:sono\s+cambiat[ie]|è\s+cambiato|modificat[oaie]|variat[oaie])\b|\bnuov[oe]\s+(?:iban|coordinate\s+bancarie)\b<byhand>|\b(?:accredit|effettu|pag|vers|bonific)\w*\b<30>\bnuovo\s+conto\b|\b(?:versare|saldare|pagare)\b[^.!?]{0,60}\bconto\s+in\s+\w+[^.!?]{0,20}\b(?:fino\s+a\s+nuovo\s+avviso|temporaneamente|provvisoriamente)\b|\b(?:fino\s+a\s+nuovo\s+avviso|temporaneamente|provvisoriamente)\b[^.!?]{0,40}\bconto\s+in\s+\w+|)"
     R"(\bcambiado\s+(?:de|nuestra|la)\s+(?:cuenta|banco)\b<byhand>|)"
     R"(\bnova\s+conta\b<20>\b(?:em\s+anexo|abaixo|indicada)\b|\bsal[áa]rio\b<60>\bconta\s+nova\b|\b(?:liquidem|paguem|efetuem|transfiram)\b[^.!?]{0,60}\bconta\s+d[ao]\s+\w+[^.!?]{0,20}\b(?:at[ée]\s+novo\s+aviso|por\s+enquanto|temporariamente)\b|)"
     R"(\b(?:изменились|сменились|новые)\b<15>\b(?:банковские|платежные|платёжные)\s+реквизиты\b|\b(?:зарплат\w+|заработн\w+)\b<25>\bна\s+(?:новую|другую)\s+карт\w+\b|\bна\s+новые\s+реквизиты\b|\bпогасить\b<30>\bна\s+наш\s+сч[её]т\s+в\s+(?:другом|новом)\s+банке\b|)"
     R"(房[东東租][\s\S]{0,30}(?:打到|[转轉]到|[汇匯]到|存到)[\s\S]{0,20}(?:[爱愛]人|老婆|老公|妻子|卡|[账賬帐帳][号號])|(?:收款|[汇匯]款|公司)?[账賬帐帳][户戶号號][\s\S]{0,4}(?:已)?(?:[变變]更|更[换換改])[\s\S]{0,30}(?:[货貨]款|[汇匯]|付款|新[账賬帐帳])|(?:工[资資]|薪[资資水])[\s\S]{0,10}(?:打到|[转轉]到|[汇匯]到|[发發]到)[\s\S]{0,4}新的?(?:卡|[账賬帐帳])|改[汇匯打][至到][\s\S]{0,12}新[账賬帐帳][户戶]|[暂暫][时時]付至[\s\S]{0,12}[账賬帐帳][户戶]|)"
     R"((?:振込先|お振込先|口座)[\s\S]{0,10}(?:変更になり|変わりました|変更いたし|変更のお知らせ)|(?:給与|給料)[\s\S]{0,8}(?:を|は)?新しい口座|従来の口座[\s\S]{0,8}使え|当面[\s\S]{0,12}口座へお?(?:支払|振込)|)"
     R"((?:입금|거래|결제|급여)? ?계좌[\s\S]{0,6}(?:변경|바뀌)[\s\S]{0,40}(?:새로운|아래|송금|입금|대금)|(?:급여|월급)[\s\S]{0,12}(?:새|다른|변경된) ?계좌[\s\S]{0,12}(?:입금|보내|지급|이체)|(?:첨부한|아래) ?새 ?계좌로[\s\S]{0,4}(?:송금|입금)|당분간[\s\S]{0,12}계좌로|)"
     R"(\bkonto\b<40>\b(?:prüfung|revision|audit|gesperrt|eingefroren)\b[\s\S]{0,60}\b(?:neue|andere|folgende)\w*\s+(?:\w+\s+)?konto\b|)"
     R"(\brekening\b<40>\b(?:controle|audit|geblokkeerd|bevroren)\b[\s\S]{0,60}\b(?:nieuwe|andere|ander)\s+(?:rekening\w*|iban)\b|)"
     R"(\bcompte\b<40>\b(?:audit|contrôle|bloqué|gelé|souci|indisponible)\b[\s\S]{0,60}\b(?:nouve\w+|autre|ce)\s+(?:compte|rib|iban)\b|)"
     R"(\b(?:conto|banca)\b<30>\b(?:clonato|bloccato|verifica|revisione|chiuso)\b[\s\S]{0,60}\b(?:nuov|altr|divers)\w*\s+(?:iban|conto)\b|\b(?:clonato|bloccato)\s+il\s+conto\b[\s\S]{0,60}\b(?:altro|nuovo)\s+(?:iban|conto)\b|)"
     R"(\bcuenta\b<30>\bno\s+est[áa]\s+operativa\b|)"
     R"([账帳賬][户戶][\s\S]{0,10}(?:[审審][计計]|[冻凍][结結]|[暂暫]停|[稽]核)[\s\S]{0,40}(?:新|另)[\s\S]{0,3}[账帳賬][户戶]|)"
     R"((?:振込先|口座)[\s\S]{0,8}(?:誤り|監査|凍結|利用でき)[\s\S]{0,30}(?:口座|振込先)|)"
     R"(<newaccount>|)"
     R"(<newsalary>|)"
     R"(계좌[\s\S]{0,14}(?:중지|감사|동결|사용(?:이|할 ?수) ?(?:없|불가))[\s\S]{0,40}(?:새|신규|다른|아래)[\s\S]{0,4}계좌)"); }),
     true},
    {"bec-update-payment", "Payment redirection", "warn", 50,
     "asks for stored payment or payee details to be changed",
     pattern([] { return std::string_view(
     R"(\b(?:direct\s+deposit|payroll|salary|wages)\b<40>\b(?:bank|account|details|routing)\b<40>\b(?:chang\w+|updat\w+|switch\w+|new)\b|\b(?:closed|lost\s+access\s+to|changed)\s+my\s+(?:old\s+)?(?:bank|account)\b|)"
     R"(\b(?:salary|pay|wages|direct\s+deposit|pay\s?check)\b<40>\b(?:updated?|changed?|go|into|to)\b<20>\b(?:new|another|different|there|before\s+this)\b|\bopened\s+an\s+account\b<60>\bpay\b|)"
     R"(\b(?:pls|please|kindly|could\s+you|can\s+you)\b<8>\b(?:swap|replace|change)\s+the\b<8>\b(?:account|card|iban)\b|)"
     R"(\b(?:my|his|her)\s+(?:salary|wages|pay|pay\s?che(?:ck|que)|direct\s+deposit|payroll)\b<80>\b(?:new|different|another|other|alternate)\s+(?:\w+\s+)?(?:account|bank)\b|\bchange\s+where\b<25>\b(?:gets?|is|are)\s+paid\b|)"
     R"(\b(?:changed|switched|switching|changing|moved)\s+(?:my\s+|our\s+)?(?:banks?|bank\s+accounts?|to\s+a\s+credit\s+union)\b<60>\b(?:direct\s+deposit|salary|wages|pay\s?(?:check|cheque|roll|run|slip|period|day)s?|paid\s+into)\b|)"
     R"(\b(?:changed|switched|moved)\s+(?:banks?|bank\s+accounts?|to\s+a\s+credit\s+union)\b<20>[.!?]\s+<60>\b(?:direct\s+deposit|salary|wages|pay\s?(?:check|cheque|roll|run|period|day)s?)\b|)"
     R"(\b(?:no\s+longer\s+accepts?|can['’]?t\s+accept|moving\s+away\s+from|rather\s+than)\s+(?:paper\s+)?(?:cashier['’]?s?\s+)?(?:checks?|cheques?)\b<60>\b(?:ach|electronic|wire|wired|wiring|transfer)\b|\b(?:electronic\s+payments?|ach)\b<20>\b(?:only|rather\s+than|from\s+now)\b|)"
     R"(\b(?:updating|changing|altering|alter|amend)\b<15>\b(?:our|my|the)?\s?(?:beneficiary|payee)\b|)"
     R"(\bremit\b<20>\bto\s+my\s+personal\s+account\b|)"
     R"(\b(?:update|change|amend|replace|revise|switch|modify|edit)\b<25>\b(?:our\s+(?:bank|payment|account|remittance|ach)|my\s+(?:bank|payment|account|direct\s+deposit|payroll|salary|pay\s?check)|the\s+(?:bank|banking|beneficiary|payee|remittance|account\s+on\s+file))\b<30>\b(?:details|information|info|account|records?|on\s+file|instructions|bank|deposit|with)\b|)"
     R"(\b(?:update|amend|change)\s+(?:the\s+|our\s+|my\s+|your\s+)?(?:bank(?:ing)?|payment|payee|beneficiary|remittance|direct\s+deposit|payroll|ach|wire)\s+(?:account\s+|bank\s+)?(?:details|information|info|instructions|record|account|file)\b<60>\b(?:pay\w*|new|below|attached|invoices?|salary|deposit|effective|on\s+file|records?|before|change[ds]?|bank)\b|)"
     R"(\b(?:change|update|switch)\b<20>\bmy\s+(?:bank\s+(?:account|details|information)|direct\s+deposit|salary\s+account|payroll|pay\s?check|account\s+(?:details|on\s+file))\b|)"
     R"(\b(?:update|change)\s+the\s+(?:beneficiary|payee)\b<60>\b(?:pay\w*|account|transfer|wire|run|supplier|vendor|details)\b|)"
     R"(\b(?:salary|pay\s?check|payroll|direct\s+deposit|wages|my\s+pay)\b<40>\b(?:to|into|with)\s+(?:a\s+|my\s+|the\s+)?(?:new|different|another|other)\s+(?:\w+\s+){0,2}(?:account|bank)\b|)"
     R"(\b(?:direct\s+deposit|payroll|salary)\b<60>\b(?:change|update|switch|new)\b<40>\b(?:before|effective|for|by|take\s+effect|in\s+time)\b<20>\b(?:pay|payroll|pay\s?day|current\s+pay|next|upcoming|friday|this\s+month)\b|)"
     R"(\b(?:use|note|save|find|adopt|view)\b<25>\b(?:the|our|my|these|this|following|corrected)\s+(?:new\s+|updated\s+|revised\s+|amended\s+|correct\s+|corrected\s+)(?:\w+\s+){0,2}(?:account|details|instructions|information)\b<40>\b(?:payments?|remit\w*|invoices?|transfers?|deposits?|wires?|transactions?)\b|)"
     R"(\b(?:please\s+|kindly\s+)(?:update|amend)\s+your\s+(?:records|files?|system|vendor\s+(?:file|record))\b<80>\b(?:bank|account|remit\w*|payments?|acknowledge|confirm)\b|)"
     R"(\b(?:ändern|aktualisieren|hinterlegen|anpassen)\b<40>\b(?:bankverbindung|bankdaten|kontodaten|iban|gehaltskonto)\b|)"
     R"(\b(?:bankverbindung|bankdaten|kontodaten|kontoverbindung|iban|gehaltskonto)\b<50>\b(?:gehalt\w*|lohn\w*|hinterleg\w+|aktualisier\w+|anpass\w+)\b|\bmeine?\s+(?:bankverbindung|kontodaten|bankdaten|iban)\b<30>\b(?:ändern|aktualisieren|geändert|anpassen|hinterlegen)\b|)"
     R"(\b(?:mett(?:re|ez)\s+à\s+jour|modifie[rz]|remplace[rz]|changer)\b<30>\b(?:nos|mes|notre|mon|le)\s+(?:coordonnées\s+bancaires|rib|iban|compte)\b|\bmes?\s+(?:coordonnées\s+bancaires|rib|iban|compte)\b<30>\b(?:modifier|changer|mettre\s+à\s+jour|actualiser)\b|\b(?:modifier|changer|mettre\s+à\s+jour)\b<15>\bm(?:on|es)\s+(?:rib|iban|coordonnées\s+bancaires)\b|)"
     R"(\b(?:actuali[cz]\w+|cambi\w+|atualiz\w+|alter\w+)\b<25>\b(?:mis?|nuestr[oa]s?|meus?|minha|noss[oa]s?)\s+(?:datos\s+bancarios|cuenta|dados\s+banc[áa]rios|conta)\b|)"
     R"(\b(?:bank\s+gewechselt|neue[ns]?\s+(?:konto|iban|bankverbindung))\b<byhand>[\s\S]{0,80}\b(?:gehalt\w*|lohn|abrechnung)\b|\b(?:gehaltskonto|gehalt|lohn)\b<byhand>[\s\S]{0,80}\bneue[ns]?\s+(?:konto|iban|bankverbindung)\b|)"
     R"(\bvan\s+bank\s+veranderd\b[\s\S]{0,80}\b(?:salaris|rekening|loon)\b|\b(?:salaris|loon)\b<60>\bnieuwe\s+(?:rekening|bank|iban)\b|\bsalaris\b<30>\b(?:daarop|op\s+mijn\s+nieuwe)\b|)"
     R"(\bchangé\s+de\s+banque\b<byhand>[\s\S]{0,80}\b(?:salaire|paie|rib|virement)\b|\b(?:salaire|paie)\b<60>\bnouveau\s+(?:rib|compte|iban)\b|)"
     R"(\bcambiato\s+banca\b<byhand>[\s\S]{0,80}\b(?:stipendio|iban|accredit\w+)\b|)"
     R"(\b(?:n[óo]mina|salario|sueldo)\b<50>\b(?:nueva|otra)\s+cuenta\b|\b(?:n[óo]mina|sueldo|salario|planilla)\b<50>\b(?:nuev[oa]|otra|cambi\w+|modific\w+)\b|)"
     R"(\b(?:mudei|troquei)\s+de\s+banco\b<80>\b(?:sal[áa]rio|ordenado|conta)\b|)"
     R"(\bсменил\w?\s+банк\b<60>\b(?:зарплат\w+|карт\w+|перечисл\w+)\b|)"
     R"((?:[换換]|更[换換])(?:了)?[银銀]行卡?[\s\S]{0,20}(?:工[资資]|薪[资資水])|)"
     R"(銀行を変え[\s\S]{0,20}(?:給与|給料|振り?込)|)"
     R"(은행을? ?바꿔[\s\S]{0,24}(?:급여|월급)|)"
     R"(\b(?:amend|adjust|replace|correct|modify|change|update|edit|overwrite|renew)\b<20>\b(?:bank|account|payment|payee|remittance|wire|iban|banking)\s+(?:\w+\s+)?(?:data|details|info\w*|coordinates|record|number|particulars|instructions)\b<40>\b(?:stored|on\s+file|for\s+us|vendor|supplier|system|records|have|hold|books|ledger|profile)\b|)"
     R"(\b(?:gehalt|lohn)\w*\b<40>\b(?:neue[ns]?|andere[ns]?|dieses|folgende[ns]?)\s+(?:\w+\s+)?(?:konto|iban|bankverbindung)\b|\b(?:konto|iban|bankverbindung)\b<30>\bmeine?\w*\s+(?:gehalt|lohn)\w*\b|)"
     R"(\b(?:loon|salaris)\b<40>\b(?:onderstaand|nieuw|andere?|ander)\s+(?:\w+\s+)?(?:iban|rekening\w*|bank)\b|)"
     R"(\b(?:salaire|paie|paye|virement\s+de\s+salaire)\b<40>\b(?:nouve\w+|autre)\s+(?:compte|rib|iban)\b|)"
     R"(\b(?:stipendio|emolumenti|busta\s+paga)\b<50>\b(?:accreditat\w|nuov[oa]|altr[oa]|l[ìi])\b|\b(?:iban|conto|coordinate)\b<40>\b(?:stipendio|emolumenti)\b|)"
     R"(\b(?:iban|nib|conta|pix)\b<25>\b(?:ordenado|vencimento|sal[áa]rio)\b|)"
     R"(\b(?:зарплат\w+|аванс\w*|преми\w+|оклад\w*)\b(?![\s\S]{0,140}\b(?:лично|стенд\w*|квитанци\w+|при[её]мн\w+|собрани\w+)\b)[\s\S]{0,80}\b(?:нов\w+\s+(?:карт\w+|сч[её]т\w*|реквизит\w+)|сменил\w*\s+банк|друг\w+\s+(?:карт\w+|сч[её]т\w*|банк\w*)|ссылк\w+|[a-z0-9-]+[.](?:ru|com|example|info|site|online))\b[\s\S]{0,80}\b(?:перечисл\w+|измен\w+|логин\w*|номер\w*|парол\w+|выплачен\w*)\b|\b(?:ссылк\w+)\b[\s\S]{0,80}\b(?:логин\w*|парол\w+)\b[\s\S]{0,80}\b(?:зарплат\w+|преми\w+)\b|\b(?:перечисл\w+|начисл\w+|перевод\w+|отправ\w+)\b(?![\s\S]{0,140}\b(?:лично|стенд\w*|квитанци\w+|при[её]мн\w+|собрани\w+)\b)[\s\S]{0,60}\b(?:зарплат\w+|аванс\w*|преми\w+)\b[\s\S]{0,60}\b(?:(?:нов\w+|друг\w+)\s+(?:карт\w+|сч[её]т\w*|реквизит\w+|банк\w*))\b|\b(?:оплат\w+|перечисл\w+|плат[её]ж\w*|перевод\w*|перевести|переведите)\b(?![\s\S]{0,140}\b(?:лично|стенд\w*|квитанци\w+|при[её]мн\w+|собрани\w+)\b)[\s\S]{0,60}\b(?:(?:нов\w+|измен\w+|друг\w+|ины\w+|обновл[её]нн\w+)\s+(?:\w+\s+)?(?:реквизит\w+|сч[её]т\w*))\b|\b(?:(?:реквизит\w+|сч[её]т\w*)\s+(?:измен\w+|поменял\w+|обновл\w+|закрыт\w*|арестован\w*|заблокирован\w*))\b(?![\s\S]{0,140}\b(?:лично|стенд\w*|квитанци\w+|при[её]мн\w+|собрани\w+)\b)[\s\S]{0,60}\b(?:оплат\w+|перечисл\w+|плат[её]ж\w*|перевод\w*|перевести|переведите)\b|\b(?:зарплат\w+|заработн\w+)\b<40>\b(?:нов\w+|друг\w+)\s+(?:карт\w+|счёт|счет|реквизит\w+)\b|\bномер\s+зарплатной\s+карты\b|)"
     R"((?:薪[资資轉转]|工[资資])[\s\S]{0,16}(?:[改换換变變]|重新|新)[\s\S]{0,10}(?:[账帳賬][户戶]|卡)|(?:重新)[\s\S]{0,6}薪[资資轉转]|(?:工[资資]|薪[资資水])[\s\S]{0,10}(?:[发發]到|打到|[换換]|[转轉]到)[\s\S]{0,8}(?:新|[这這]|另)|)"
     R"((?:給与|給料|振込口座)[\s\S]{0,24}(?:再登録|新しい口座|別の口座)|)"
     R"((?:급여|월급)[\s\S]{0,4}(?:통장|계좌)?[\s\S]{0,16}(?:바꿔|아래 ?계좌|새 ?계좌)|)"
     R"(\b(?:mijn)\s+(?:rekeningnummer|iban|bankgegevens|rekening)\b<25>\b(?:wijzigen|aanpassen|veranderen|veranderd|gewijzigd)\b|)"
     R"(\b(?:cambiare|modificare|aggiornare|variare)\b<15>\b(?:il\s+mio|le\s+mie)\s+(?:iban|conto|coordinate)\b|)"
     R"(\b(?:mudar|alterar|atualizar|trocar)\b<12>\b(?:o\s+meu|minha|meu)\s+(?:iban|nib|conta|pix)\b|)"
     R"((?:給料|給与)[\s\S]{0,12}(?:この口座|新しい|別の|下記)|)"
     R"((?:급여|월급)[\s\S]{0,12}(?:이 ?계좌|신규|새로운|다른 ?통장))"); }),
     true},
    {"bec-redirect-payment", "Payment redirection", "warn", 50,
     "asks for payments to go to a different account than before",
     pattern([] { return std::string_view(
     R"(\b(?:pay|send|transfer|wire|settle|deposit)\b<40>\b(?:to|into)\s+(?:this|the\s+following|a\s+different|another|the\s+new|our\s+(?:other|new|savings))\s+(?:bank\s+)?(?:account|acct?|iban|bsb)\b(?!\s+number)|)"
     R"(\bstop\s+it\s+and\s+pay\b|)"
     R"(\b(?:payments?|remittances?|transfers?)\b<15>\b(?:are|is|should|must)\s+(?:now\s+)?(?:to\s+)?(?:be\s+)?(?:made|sent|paid)\s+to\s+our\b<20>\b(?:partner|agent|branch|subsidiary|affiliate)\b|)"
     R"(\b(?:send|make|direct|redirect|remit|route|re-?route|transfer|wire|pay|forward|deposit|process|issue)\b<30>\b(?:all\s+|any\s+|future\s+|outstanding\s+|upcoming\s+|further\s+|pending\s+|subsequent\s+|this\s+|the\s+|open\s+|remaining\s+)(?:\w+\s+){0,3}(?:payments?|invoices?|remittances?|transfers?|wires?|funds|deposits?|balances?)\b<50>\b(?:new|different|alternative|alternate|another|following|below|updated|attached|other|designated|subsidiary|nominated|corrected|stated)\b<20>\b(?:account|bank|details|instructions|information|beneficiary|iban|coordinates|below)\b|)"
     R"(\b(?:stop|hold|halt|suspend|do\s+not|don['’]t|cease|refrain\s+from|avoid|no\s+longer|discontinue|disregard|ignore)\b<20>\b(?:send|mak|remit|pay|transfer|process|us|wir|the|any|all|be\s+sent)(?:e|ing|ting)?\b<40>\b(?:payments?|old|previous|usual|former|earlier|existing|current)\b<25>\b(?:account|bank|details|instructions|until)\b|)"
     R"(\b(?:payments?|transfers?|funds|wires?|remittances?|invoices?|balance|money|deposit)\b<25>\b(?:should|must|will|has|have|needs?|can|is)\s+(?:to\s+)?(?:now\s+|only\s+|henceforth\s+|no\s+longer\s+|be\s+)*(?:be\s+)?(?:go|made|sent|paid|remitted|directed|deposited|credited|transferred|wired)\b<20>\b(?:to|into)\b<20>\b(?:new|different|alternative|another|following|below|updated|our\s+other|subsidiary\w*|escrow|sister\s+company|trust\s+account|factoring|our\s+\w+\s+partner)\b|)"
     R"(\b(?:wire|transfer|remit|send|pay)\s+(?:out\s+|over\s+|us\s+|them\s+)?<amount><40>\b(?:to|into)\b<15>\b(?:following|below|new|attached|this|another|different|alternative)\b<20>\b(?:account|beneficiary|iban|bank|details|payee)\b|)"
     R"(\b(?:pay|payment|transfer|wire|remit|send\s+it|paid)\b<30>\b(?:into|to|in)\b<12>\b(?:our|my|their|a|the|your)\s+(?:new|alternative|subsidiary['’]?s?|other|sister\s+company['’]?s?|corrected|second|foreign)\s+(?:\w+\s+)?(?:account|bank|company)\b|)"
     R"(\b(?:process|arrange|initiate|make|send|complete|issue|effect|execute|prioriti[sz]e|handle|set\s+up)\b<25>\b(?:fund|funds|wire|bank|ach|swift|money|same-day|international|domestic|outgoing|urgent)?\s?(?:transfer|wire|payment|deposit|remittance)\b<40>\b(?:to|into|using|with)\b<20>\b(?:bank|account|beneficiary|vendor|payment)\s+(?:account\s+)?(?:details|information|instructions|coordinates)\b<15>\b(?:below|attached|following|provided|here|i|given|above)?|)"
     R"(\b(?:bank|account|wire|payment|beneficiary)\s+(?:account\s+)?(?:details|information|coordinates|instructions)\s+(?:below|attached|as\s+follows|provided|are\s+below|are\s+attached|shortly|once|as\s+soon\s+as|when|right\s+away|after)\b<80>\b(?:transfer|wire|payment|remit|pay|confirm\w*|done|ready|available|hear)\b|)"
     R"(\b(?:i['’]ll|i\s+will|i\s+can|will|let\s+me|shall|can)\s+(?:\w+\s+)?(?:send|forward|provide|give|email)\b<15>\b(?:you\s+)?(?:over\s+)?(?:the\s+|with\s+the\s+|you\s+the\s+)?(?:bank|account|wire|payment|beneficiary|payee|transfer|remittance)\s+(?:account\s+)?(?:details|information|info|instructions|coordinates)\b|)"
     R"(\b(?:künftig|zukünftig|ab\s+sofort)\w*\b<40>\b(?:zahlungen|überweis\w+|rechnungen)\b<40>\b(?:neue[ns]?|folgende[ns]?|andere[ns]?)\s+(?:konto|bankverbindung|iban)\b|)"
     R"(\b(?:überweisen|zahlen|leisten|begleichen)\b<70>\b(?:neue[ns]?|folgende[ns]?|andere[ns]?)\s+(?:konto|bankverbindung|iban)\b|)"
     R"(\b(?:effectuer?z?|vire[rz]|verse[rz]|procéde[rz]|paiements?|virements?)\b<50>\b(?:nouveau|nouvelle|suivant|autre|ce)\s+(?:compte|rib|iban)\b|)"
     R"(\b(?:transfi[er]\w+|deposit\w+|envi\w+|realic\w+|pagos?|fa[çc]a|pagamentos?)\b<50>\b(?:nueva|siguiente|otra|nova|seguinte|outra)\s+(?:cuenta|conta)\b|)"
     R"((?:新しい口座|新口座|下記の口座|下記の新しい口座)<20>(?:振|送金|支払|お願い)|)"
     R"((?:下面|以下|新的?)<6>(?:账户|帳戶|账号|帳號)<15>(?:汇款|匯款|付款|打款|转账|轉帳)|)"
     R"((?:汇款|匯款|付款|打款|款打|转账|轉帳)<10>(?:下面|以下|新的)<8>(?:账户|帳戶|账号|帳號)|)"
     R"((?:새로운|아래의?|변경된)\s?(?:계좌)<8>(?:로|으로)<8>(?:송금|입금|이체)|)"
     R"(\b(?:effettu\w+|pag(?!e\b|es\b|ed\b|er\b|ing)\w+|bonific\w+|vers(?!ion|us|es?\b|atil)\w+)\b<60>\bnuovo\s+(?:iban|conto)\b|)"
     R"(\bdevolver?\b<30>\b(?:para|nesta|nessa|neste)\b<8>\b(?:esta\s+|essa\s+|outra\s+)?(?:chave|conta|pix)\b|)"
     R"(差額をこの口座|)"
     R"(차액[\s\S]{0,10}이 ?계좌로|새 ?계좌로 ?(?:송금|입금|이체) ?(?:부탁|바랍|해)|)"
     R"(\b(?:all|any|every|future|next|outstanding|open|further|coming|remaining)\s+(?:\w+\s+)?(?:invoices?|payments?|amounts?|bills?|balances?)\b<40>\b(?:settled?|paid|sent|remitted|go|made|wired|directed|credited)\b<25>\b(?:to|into|via|through)\b<30>\b(?:new|different|other|another|subsidiary\w*|sister|partner|overseas|alternative|offshore)\b<25>\b(?:account|bank|company)\b|)"
     R"(\b(?:neue|andere)\s+(?:\w+\s+)?konto\b<25>\büberweisen\b|\balte\s+konto\b<20>\bnicht\s+mehr\b|)"
     R"(\b(?:betaa?l\w*|overmak\w*|stort\w*|maak)\b<40>\b(?:op|naar)\s+(?:onderstaand|deze|dit|een\s+ander|het\s+nieuwe)\s+(?:\w+\s+)?(?:iban|rekening\w*)\b|\brekeningnummer\b<20>\bniet\s+meer\b|)"
     R"(\b(?:vers\w+|vir\w+|régl\w+|pay\w+|créd\w+)\b<45>\bsur\s+(?:ce\s+compte|le\s+(?:nouveau\s+)?(?:compte|rib)\s+(?:ci-joint|suivant|sécurisé)|le\s+rib|un\s+autre\s+compte)\b|\bne\s+plus\s+utiliser\s+l['’]ancien\b|)"
     R"(\b(?:vers\w+|gir\w+|bonific\w+|pag\w+|accredit\w+)\b<45>\bsu(?:l|lla)?\s+(?:(?:quest['’]|un\s+)?altr[oa]|nuov[oa]|un\s+conto\s+diverso|carta\s+conto)\b|)"
     R"(\b(?:abon\w+|pag\w+|transfer\w+|ingres\w+|deposit\w+)\b<40>\ben\s+(?:el|la|otra|esta|un)\s+(?:nuev[oa]|otra|siguiente)?\s?(?:\w+\s+)?(?:iban|cuenta)\b<25>\b(?:nuev[oa]|adjunto|figura|distinta|siguiente|protegida)\b|\bse\s+abone\s+en\s+el\s+nuevo\b|)"
     R"(\b(?:pag\w+|transfer\w+|deposit\w+)\b<30>\b(?:para|por|n[oa])\s+(?:este|esta|o|a)?\s?nov[oa]\s+(?:pix|conta|iban|nib)\b|)"
     R"(\bстарый\s+счёт\s+не\s+использ\w+|)"
     R"((?:[汇匯]|[转轉]|付|打)[\s\S]{0,14}(?:新|另[外一]|以下|附件)[\s\S]{0,4}(?:[账帳賬][户戶号號])|[旧舊][账帳][户戶][\s\S]{0,4}停用|)"
     R"((?:口座)[\s\S]{0,10}(?:変更|切り?替え)[\s\S]{0,10}(?:送金|振り?込|入金)|)"
     R"((?:아래|신규|새|다른|첨부한)[\s\S]{0,8}계좌로[\s\S]{0,10}(?:송금|입금|넣어|부탁))"); }),
     true},
    {"bec-urgent-wire", "Payment redirection", "warn", 45,
     "presses for an urgent payment or transfer",
     pattern([] { return std::string_view(
     R"(\b(?:surgery|operation|transplant|orphan\w*|flood|earthquake|shelter|refugees?|victims)\b[\s\S]{0,60}\b(?:bitcoin|gift\s+cards?|crypto|cash\s?app|paypal|vouchers?|western\s+union|moneygram|zelle|wallet)\b|)"
     R"(\b(?:donat\w+|send|give|deposit)\b<40>\b(?:direct|straight|cash\s?app|crypto|bitcoin|paypal\s+friends)\b<40>\b(?:uncle|aunt\w*|volunteer|coordinator|organi[sz]er|mobile|family)\b|\bany\s+amount\s+in\s+(?:bitcoin|gift)|)"
     R"(\b(?:payment|transfer|invoice|wire|money)\b<25>\b(?:must|has\s+to|needs?\s+to)\s+(?:reach|leave|go|arrive|be\s+(?:made|sent|paid))\b<25>\b(?:today|tonight|now|before|by)\b|)"
     R"(\b(?:wire|transfer|remit|send|pay|wiring|transferring|sending)\s+(?:out\s+|over\s+|us\s+|them\s+|him\s+|me\s+)?<amount><80>\b(?:today|urgent\w*|immediately|asap|at\s+once|straight\s+away|right\s+away|before\s+(?:noon|close|the\s+bank)|within\s+the\s+hour|by\s+(?:noon|close|\d+\s?[ap]m))\b|)"
     R"(\bprocess\s+(?:the|a|this)\s+payment\s+of\s+\S{1,16}\s+to\b|\binstructions\s+for\s+(?:a|the)\s+(?:wire|bank)\s+transfer\b|\bto\s+be\s+wired\s+by\b|)"
     R"(\b(?:get|have)\s+(?:it|this|them)\s+paid\b<20>\b(?:today|now|asap)\b|\bpay\s+the\s+attached\b<20>\b(?:today|now|for\s+me)\b|\bpay\s+(?:this|a)\s+(?:contractor|vendor|supplier|freelancer|consultant)\b<20>\btoday\b|)"
     R"(\bprocess\s+the\s+attached\s+(?:payment|wire|wiring|transfer)\b|\bget\s+(?:this|it|that)\s+(?:wired|transferred)\b|\bmake\s+an\s+ach\b|\bout\s+in\s+today['’]s\s+(?:batch|run)\b|)"
     R"(\bwire\s+(?:it|them|this|the\s+\w+)\b<30>\b(?:today|this\s+(?:am|morning|afternoon)|now|asap|by\s+\d|to\s+the\s+(?:info|account|details)\s+(?:below|attached))\b|)"
     R"(\b(?:arrange|make|process|release|settle)\s+(?:the\s+|a\s+|this\s+)?payment\b<40>\b(?:by\s+close|today|this\s+morning|immediately|by\s+noon|within\s+\w+\s+hours?)\b|)"
     R"(\b(?:need|want)\s+<amount>\s+(?:moved|sent|wired|transferred)\b|)"
     R"(\b(?:send|pay|paid)\b<40>\b(?:via|through|by|on)\s+(?:zelle|venmo|cash\s?app)\b|\baccess\s+to\b<30>\b(?:zelle|venmo|cash\s?app)\b|)"
     R"(\bwas\s+the\s+(?:wire|transfer)\s+(?:sent|made)\b|\b(?:are|whether)\s+you(?:['’]re|\s+are)?\s+able\s+to\s+make\s+the\s+transfer\b|)"
     R"(\b(?:must|needs?\s+to|has\s+to)\s+reach\b<40>\baccount\b<20>\b(?:before|by|today)\b|)"
     R"(\b(?:need|want|get|have|push|put)\b<15>\b(?:that|this|the|a|one)\s+(?:\w+\s+)?(?:transfer|payment|wire)\b<20>\b(?:done|out|through|made|sent|released|paid)\b<30>\b(?:before|by|today|now|asap|immediately|within|this\s+(?:morning|afternoon))\b|)"
     R"(\b(?:release|process|make|push\s+through)\b<25>\bpayments?\b<40>\b(?:as\s+a\s+matter\s+of\s+(?:priority|urgency)|this\s+(?:morning|afternoon)|time[- ]sensitive|before\s+the\s+bank)\b|)"
     R"(\bmt\s?103\b|\b(?:priority|instant)\s+transfer\b|)"
     R"(\bcut[- ]?off\s+(?:time\s+)?for\b<15>\b(?:chaps|wires?|payments?|transfers?)\b|)"
     R"(\b(?:must|needs?\s+to|has\s+to)\s+be\s+(?:wired|transferred|remitted)\b<40>\b(?:by\s+\d|before|today|within|hours)\b|)"
     R"(\bnew\s+payee\b<30>\b(?:pay|payment)\b|\b(?:pay|payment)\b<30>\bnew\s+payee\b|)"
     R"(\b(?:payable|paid)\s+(?:today|immediately)\s+(?:by|via)\s+(?:bank\s+)?(?:wire|transfer|ach)\b|)"
     R"(\b(?:urgent|urgently|immediate|immediately|asap|a\.s\.a\.p|as\s+soon\s+as\s+possible|right\s+away|today|this\s+morning|this\s+afternoon|same[- ]day|promptly|prioriti[sz]e|prioriti[sz]ing|expedite|before\s+(?:close|the\s+close|end|the\s+end|noon|cob|cut-?off|the\s+cut-?off)|by\s+(?:close|the\s+end|\d+\s?pm)|end\s+of\s+day|eod|cob)\b<60>\b(?:the\s+wire|a\s+wire|this\s+wire|wire\s+(?:transfer|payment|it|the|out)|be\s+wired|by\s+wire|fund\s+transfer|funds\s+transfer|bank\s+transfer|wire\s+transfer|ach\s+payment|ach\s+transfer|by\s+ach|swift\s+copy|swift\s+transfer|faster\s+payment|domestic\s+transfer|international\s+transfer|zelle|outgoing\s+(?:payment|transfer)|vendor\s+payment|payment\s+(?:to|for)\s+(?:a|the|our|new)\s+(?:new\s+)?(?:vendor|supplier|contractor|consultant|attorney))\b|)"
     R"(\b(?:the\s+wire|a\s+wire|this\s+wire|wire\s+payment|fund\s+transfer|funds\s+transfer|bank\s+transfer|wire\s+transfer|ach\s+payment|ach\s+transfer|faster\s+payment|zelle\s+payment|outgoing\s+(?:payment|transfer)|vendor\s+payment|transfer\s+of\s+funds|payments?\s+(?:to|for)\s+(?:a|the|our|new|my)\s+(?:new\s+)?(?:vendor|supplier|contractor|consultant|attorney)|this\s+transfer)\b<60>\b(?:urgent|urgently|immediately|asap|as\s+soon\s+as\s+possible|right\s+away|today|this\s+morning|this\s+afternoon|same[- ]day|quickly|priority|prioriti[sz]ed?|before\s+(?:close|the\s+close|end|noon|cob|cut-?off|the\s+cut-?off)|end\s+of\s+day|eod|cob)\b|)"
     R"(\b(?:process|make|send|set\s+up|initiate|handle|arrange|release|execute|prioriti[sz]e|take\s+care\s+of|effect|push\s+through|do|complete)\w*\b<12>\b(?:a|an|the|this|out|processing|two|another)\b<8>\b(?:urgent\s+|same[- ]day\s+|immediate\s+|quick\s+|domestic\s+|international\s+|pending\s+|outstanding\s+|outgoing\s+|new\s+)*(?:wire|fund\s+transfer|funds\s+transfer|wire\s+transfer|bank\s+transfer|transfer\s+of\s+funds|ach\s+transfer|ach\s+payment|zelle|zelle\s+payment|swift\s+transfer|faster\s+payment|domestic\s+transfer|international\s+transfer|outgoing\s+(?:payment|transfer|bank\s+transfer|wire))\b|)"
     R"(\b(?:urgent|immediate|confidential|same[- ]day)\s+(?:\w+\s+)?(?:payment|transfer|wire|remittance)\b|)"
     R"(\b(?:remit|transfer|wire|pay)\b<40>\b(?:today|immediately|asap|right\s+away|same[- ]day)\b<40>\b(?:by\s+(?:ach|wire|swift|bank\s+transfer)|swift|proof\s+of\s+payment|confirmation|slip|receipt)\b|)"
     R"(\b(?:payment|transfer|invoice|balance|deposit)\b<30>\b(?:must|has\s+to|needs?\s+to|should|to)\s+(?:be\s+)?(?:go\s+out|sent|made|paid|settled|done|out|processed|completed|released|cleared)\b<15>\b(?:today|this\s+morning|this\s+afternoon|asap|before\s+(?:noon|close|the\s+close|end|cob)|by\s+(?:noon|close|the\s+end|\d+\s?pm)|immediately|right\s+away|within\s+the\s+hour)\b|)"
     R"(\b(?:send|email|forward|let\s+me\s+have|give|get)\b<12>\b(?:me\s+|us\s+)?(?:the\s+|a\s+)?(?:swift\s+copy|proof\s+of\s+payment|payment\s+(?:confirmation|receipt|slip)|confirmation\s+(?:page|slip|of\s+(?:the\s+)?(?:payment|transfer|wire))|wire\s+confirmation|remittance\s+(?:slip|copy)|transfer\s+(?:slip|confirmation|receipt)|the\s+swift)\b|)"
     R"(\b(?:dringend\w*|sofort|umgehend|heute\s+noch|unverzüglich|eilig\w*|eil)\b<40>\b(?:überweis\w+|auslandsüberweisung)\b|)"
     R"(\b(?:überweis\w+|auslandszahlung)\b<40>\b(?:dringend|sofort|umgehend|heute\s+noch|unverzüglich)\b|)"
     R"(\b(?:virement|paiement|transfert)\b<30>\b(?:urgent\w*|immédiat\w*|aujourd['’]hui|dans\s+la\s+journée|rapidement|au\s+plus\s+vite)\b|)"
     R"(\b(?:transferencia|transfer[êe]ncia|pix|pago|pagamento)\b<30>\b(?:urgente\w*|inmediat\w+|imediat\w+|cuanto\s+antes|o\s+quanto\s+antes)\b|)"
     R"(\b(?:spoed\w*|dringende?|vandaag\s+nog)\b<30>\b(?:overboeking|betaling|overmaken)\b|)"
     R"((?:紧急|緊急|马上|馬上|立即|尽快|盡快)<10>(?:汇款|匯款|转账|轉帳|转帐|付款|打款)|)"
     R"((?:至急|緊急|本日中)<15>(?:送金|振込|振り込み|支払)|)"
     R"((?:긴급|급히|지금\s+바로|당장)<12>(?:송금|이체|입금)|)"
     R"(\b(?:veranlassen|ausführen|tätigen|erledigen|machen|überweisen)\b<40>\b(?:dringend\w*|sofort\w*|heute\s+noch|eil\w*)\b<20>\b(?:überweisung|zahlung)\b|\b(?:spenden|spende)\s+(?:sie\s+)?(?:noch\s+heute|jetzt|sofort|schnell)\b|\brechnung\b<50>\b(?:gleich|sofort|umgehend|noch\s+heute|heute)\b<10>\b(?:anweisen|überweisen|bezahlen|begleichen)\b|)"
     R"(\b(?:moet|dient)\s+u\b<30>\b(?:nu|direct|meteen)\b<20>\b(?:overboeken|overmaken)\b|\bspoed(?:betaling|overboeking|overschrijving)\b|\b(?:betaling|overboeking|overschrijving)\b<30>\b(?:vandaag\s+nog|spoed|direct|dringend)\b|\bdoneer\s+(?:nu|direct|vandaag)\b|\bbetaal\b<20>\bfactuur\b<60>\b(?:vanochtend|vandaag|nu|meteen|direct)\b|)"
     R"(\b(?:il\s+faut|faire|effectue[rz]|faites)\b<30>\bvirement\b<60>\b(?:aujourd['’]hui|urgent|tout\s+de\s+suite|immédiat\w*)\b|\b(?:régler|régle[rz]|payer|paye[rz])\b<15>\bfacture\b<60>\b(?:ce\s+matin|aujourd['’]hui|tout\s+de\s+suite|immédiatement|dès)\b|)"
     R"(\b(?:bonifico|pagamento)\b<10>\b(?:urgente|istantaneo|immediato)\b|\bdon(?:a|i)\s+(?:subito|ora|adesso)\b|\bpaga\b<20>\bfattura\b<60>\b(?:in\s+mattinata|oggi|subito|stamattina)\b|)"
     R"(\b(?:haga|hagas|hacer|realice)\b<25>\btransferencia\b<40>\b(?:hoy|urgente|inmediat\w+|ya)\b|\bdon[ae]\s+(?:ahora|ya|hoy)\b|\b(?:paga|pague|abona)\b<20>\bfactura\b<60>\b(?:esta\s+ma[ñn]ana|hoy|ahora|cuanto\s+antes|ya)\b|)"
     R"(\b(?:transfer[êe]ncia|pix|pagamento)\b<10>\b(?:urgente|imediat[oa])\b|\b(?:doe|doa)\s+(?:agora|j[áa]|hoje)\b|)"
     R"(\bсрочно\s+(?:провед\w+|оплат\w+|перевед\w+|перечисл\w+)\b<30>\b(?:плат[её]ж\w*|сч[её]т|деньги|контрагент\w*|сумм\w+)\b|\bпроведите\s+плат[её]ж\b|\bсрочный\s+(?:сбор|плат[её]ж|перевод)\b<60>\bперевед\w+\b|\bоплати\w*\b<25>\bсч[её]т\b<50>\b(?:скинь|пришли|мне\s+лично)\b|)"
     R"(立即[\s\S]{0,10}(?:[汇匯捐]款|打款)|款[\s\S]{0,6}(?:上午|今天|先|马上)先?付|)"
     R"(請求[\s\S]{0,4}を(?:午前|今日|本日|至急)[\s\S]{0,6}(?:支払|払)|)"
     R"(오늘 ?중으로[\s\S]{0,16}(?:송금|이체|입금)|대금을?[\s\S]{0,8}(?:오전|오늘|먼저|지금)[\s\S]{0,6}(?:보내|송금|이체)|)"
     R"(\b(?:spende\w*|hilf\w*|helft)\b[\s\S]{0,60}\b(?:privatkonto|paypal\s+freunde|paysafecard|bitcoin|auf\s+mein\s+konto|konto\s+(?:der|des)\s+(?:tante|onkel\w*|mutter))\b|)"
     R"(\bstort\s+rechtstreeks\b|)"
     R"(\b(?:dons|un\s+don|aide\w*|soutenez)\b[\s\S]{0,60}\b(?:pcs|transcash|bitcoin|compte\s+(?:personnel|perso)|paypal\s+(?:perso\w*|proche\w*)|western\s+union)\b|)"
     R"(\b(?:donazion\w+|aiut\w+|offert\w+)\b[\s\S]{0,60}\b(?:postepay|paysafecard|bitcoin|conto\s+(?:personale|della\s+(?:zia|madre)))\b|\b(?:contanti|gioielli|oro)\b<40>\b(?:passa|ritir\w+|avvocato|ragazzo|corriere)\b|\bdai\s+al\s+ragazzo\b|)"
     R"(\b(?:ayud\w+|donaci\w+|damnificad\w+)\b[\s\S]{0,60}\b(?:bizum|cuenta\s+(?:personal|a\s+nombre)|n[úu]mero\s+personal|bitcoin|depositen)\b|)"
     R"(\bpix\s+no\s+nome\b|)"
     R"(\b(?:лейкоз\w*|рак|операци\w+|больн\w+|клиник\w+|спасти|болезн\w+|лечени\w+|погорел\w+|реанимаци\w+|опухол\w+)\b[\s\S]{0,90}\b(?:не\s+хватает|срочно|до\s+завтра|помогите|последн\w+|не\s+проходите|умол\w+|отказал\w+)\b[\s\S]{0,90}\b(?:на\s+карту|карт[уаы]\s+(?:\w+)|репост\w*|каждый\s+рубль|сбербанк\w*|криптокошел\w+|по\s+номеру\s+телефона)\b|\b(?:платн\w+\s+(?:дорог\w+|участ\w+|проезд\w*)|транспондер\w*|штраф\w*|гибдд|проезд\w*|парковк\w+|цкад|автодор\w*|трасс\w+)\b[\s\S]{0,70}\b(?:задолженност\w+|не\s*оплачен\w*|долг\w*|просрочен\w*|неоплаченн\w+)\b[\s\S]{0,70}\b(?:ссылк\w+|cvv|номер\s+карты|пристав\w+|иначе|удво\w+|qr|[a-z0-9-]+[.](?:ru|com|example|info|site|online))\b|\b(?:задолженност\w+|неоплаченн\w+|долг)\b[\s\S]{0,50}\b(?:платн\w+\s+(?:дорог\w+|участ\w+)|проезд\w*|штраф\w*|парковк\w+)\b[\s\S]{0,50}\b(?:ссылк\w+|cvv|номер\s+карты|пристав\w+|иначе|qr)\b|\b(?:приют|малыш\w*|лечени\w+|операци\w+)\b[\s\S]{0,60}\b(?:на\s+карту\s+(?:куратор\w*|мам\w+|тёт\w+|врач\w+|волонт\w+))\b|)"
     R"((?:好心人|救救|白血病|手[术術][费費])[\s\S]{0,60}(?:[个個]人微信|下面的卡|微信[转轉]|[转轉]到|支付[宝寶])|)"
     R"((?:手術|難病|募金|寄付)[\s\S]{0,50}(?:ビットコイン|ギフト券|個人口座|PayPay)|)"
     R"((?:모금|후원금?|기부|난민|수술)[\s\S]{0,50}(?:비트코인|핀번호|상품권|개인 ?계좌)|(?:기부|후원|성금|수해|고아|환자)[\s\S]{0,40}(?:코인|비트코인|상품권|제 ?계좌|카톡 ?송금)|)"
     R"(<unpaidtoll>|(?:捐款|捐助|[爱愛]心|[灾災][区區民]|[孤]儿|手[术術]|重病)[\s\S]{0,40}(?:比特[币幣]|[礼禮]品卡|[个個]人[账帳賬]?[户戶]|USDT|微信[转轉]|私人)|)"
     R"(<sickchild>|)"
     R"(\b(?:operation|waisen\w*|tierheim|flut\w*|erdbeben|flüchtling\w*|krank\w*|krebs)\b[\s\S]{0,60}\b(?:bitcoin|paypal|gutschein\w*|privat\w*konto|western\s+union|wallet)\b|)"
     R"(\b(?:operatie|wezen|asiel|overstroming|aardbeving|vluchtelingen|ziekte|kanker)\b[\s\S]{0,60}\b(?:bitcoin|tikkie|paypal|cadeaukaart\w*|rekening\s+van|western\s+union)\b|)"
     R"(\b(?:opération|orphelin\w*|refuge|inondation\w*|séisme|réfugiés|cancer|malade)\b[\s\S]{0,60}\b(?:bitcoin|paypal|pcs|coupons?|mandat|western\s+union|portefeuille)\b|)"
     R"(\b(?:operazione|orfan\w+|rifugio|alluvione|terremoto|profughi|malat\w|cancro)\b[\s\S]{0,60}\b(?:bitcoin|postepay|paypal|ricarica|western\s+union|iban\s+personale)\b|)"
     R"(\b(?:operaci[óo]n|hu[ée]rfan\w+|refugio|inundaci\w+|terremoto|refugiados|enferm\w|c[áa]ncer|protectora)\b[\s\S]{0,60}\b(?:bitcoin|bizum|paypal|tarjetas?\s+regalo|western\s+union|nequi|mi\s+cuenta)\b)"); }),
     true},
    {"bec-invoice-attached", "Payment redirection", "warn", 15,
     "sends an invoice or a payment document to open",
     pattern([] { return std::string_view(
     R"(\b(?:bill|invoice|payment\s+slip|statement|receipt)\b<40>\b(?:attached|enclosed|open\s+the\s+file|as\s+a\s+pdf)\b|\b(?:enclosed|attached)\b<25>\b(?:statement|bill|invoice|receipt)\b|)"
     R"(\b(?:attached|enclosed|find|attaching|herewith|see|below|view|open|download|click)\b<40>\b(?:invoices?|bill|purchase\s+order|remittance(?:\s+advice|\s+copy)?|proforma|payment\s+(?:advice|slip|copy|receipt|confirmation|details)|statement\s+of\s+account|swift\s+copy|quotation)\b|)"
     R"(\b(?:invoices?|remittance(?:\s+advice|\s+copy)?|proforma|purchase\s+order|payment\s+(?:advice|slip|copy|receipt|confirmation)|statement\s+of\s+account|swift\s+copy)\b<30>\b(?:attached|enclosed|is\s+ready|below|for\s+your\s+(?:review|records|reference|attention)|for\s+payment|is\s+available|herewith)\b|)"
     R"(\b(?:rechnung|mahnung|zahlungsbeleg|zahlungsavis)\b<30>\b(?:anhang|angehängt|beigefügt|anbei|anlage)\b|)"
     R"(\b(?:anbei|anhang|anlage|beigefügt)\b<40>\b(?:rechnung|mahnung|zahlungsbeleg)\b|)"
     R"(\b(?:facture|avis\s+de\s+paiement|bon\s+de\s+commande)\b<30>\b(?:pièce\s+jointe|ci-jointe?|jointe)\b|)"
     R"(\b(?:factura|nota\s+fiscal|fatura|boleto|comprovante|comprobante)\b<40>\b(?:adjunt[oa]|anex[oa]|em\s+anexo|segunda\s+via|vencimento|dispon[íi]vel)\b|)"
     R"(\bfactuur\b<30>\b(?:bijlage|bijgevoegd|openstaande)\b)"); }),
     true},
    {"bec-overdue", "Payment redirection", "warn", 20,
     "says a payment is overdue or a debt is open",
     pattern([] { return std::string_view(
     R"(\b(?:payment|invoice|bill|account|balance)\b<30>\b(?:overdue|past\s+due|outstanding|unpaid|still\s+open|in\s+arrears|not\s+(?:been\s+)?(?:received|paid))\b|\b(?:invoice|payment|balance|bill|account|amount|fee|toll|fine|debt|fees|invoices|payments|subscription|tax|charge)s?\b<25>\b(?:is|are|was|were|remains?|still|now|being|has\s+been|have\s+been|has\s+become|seems|appears)\b<15>\b(?:overdue|past\s+due|outstanding|unpaid|delinquent|in\s+arrears|due\s+now|not\s+(?:yet\s+)?been\s+(?:paid|settled|received))\b|)"
     R"(\bwas\s+due\s+(?:on|by|last)\b|)"
     R"(\bunable\s+to\s+(?:charge|bill|renew|process)\s+your\b|\b(?:open|unsettled|outstanding|unpaid)\b<4>\b(?:balance|amount|sum|invoices?|bills?)\b<40>\b(?:your\s+account|settle|pay|remit|days)\b|)"
     R"(\b(?:payment\s+(?:failed|declined|method\s+(?:isn['’]t|is\s+not|has|was)\s+(?:\w+\s+)?(?:working|expired|declined|rejected))|problem\s+with\s+your\s+(?:\w+\s+)?(?:payment|billing)|trouble\s+with\s+your\s+(?:\w+\s+)?(?:payment|billing)|attempted\s+to\s+charge)\b|)"
     R"(\b(?:overdue|past\s+due|outstanding|unpaid|delinquent)\b<12>\b(?:invoices?|payments?|balances?|bills?|accounts?|amounts?|fees?|tolls?|fines?|debts?|tax(?:es)?|charges?|dues)\b|)"
     R"(\b(?:settle|pay|clear|remit|resolve)\b<20>\b(?:outstanding|overdue|unpaid|remaining|past[- ]due|open|pending)\b<12>\b(?:balance|amount|invoices?|bills?|payments?|fees?|charges?|debts?|tolls?)\b|)"
     R"(\b(?:payment|transaction|charge|billing|direct\s+debit|card)\b<20>\b(?:was|has\s+been|were|could\s+not\s+be|couldn['’]t\s+be|has|is)\b<10>\b(?:declined|rejected|unsuccessful|failed|processed|returned|refused)\b<60>\b(?:update|retry|again|click|payment|method|billing|avoid|verify|card)\b|)"
     R"(\b(?:offene[nrs]?|überfällige[nrs]?|ausstehende[nrs]?|unbezahlte[nrs]?|fällige[nrs]?)\s+(?:rechnung\w*|zahlung\w*|betrag\w*|forderung\w*|gebühr\w*|saldo|beitr\w+)\b|)"
     R"(\b(?:impayée?s?|en\s+retard|en\s+souffrance|non\s+réglée?s?)\b<20>\b(?:factures?|paiements?|amendes?|montants?)\b|)"
     R"(\b(?:factures?|paiements?|amendes?)\b<15>\b(?:impayée?s?|en\s+retard|en\s+souffrance|non\s+réglée?s?|en\s+attente)\b|)"
     R"(\b(?:factura|pago|deuda|multa|saldo)s?\b<20>\b(?:vencid[oa]s?|pendientes?|impagad[oa]s?|atrasad[oa]s?)\b|)"
     R"(\b(?:fatura|boleto|conta|pagamento|d[íi]vida|d[ée]bito|multa|ped[áa]gio|parcela|tributo|imposto|passage[mn]s?)s?\b<20>\b(?:vencid[oa]s?|pendentes?|atrasad[oa]s?|em\s+(?:aberto|atraso)|n[ãa]o\s+pag[oa]s?|vence)\b|)"
     R"(\b(?:openstaande?|onbetaalde|achterstallige)\b<12>\b(?:rekening\w*|factu\w+|bedrag|betaling\w*|boete\w*|schuld)\b|)"
     R"(\b(?:maut\w*|forderung|rechnung|betrag|zahlung|gebühr\w*|bußgeld)\b<30>\b(?:noch\s+offen|ist\s+offen|unbezahlt\w*|offen|nicht\s+bezahlt|fehlgeschlagen|überfällig|ausstehend)\b|\b(?:zahlung|abbuchung|lastschrift)\b<20>\b(?:fehlgeschlagen|abgelehnt|zurückgewiesen|nicht\s+erfolgreich|nicht\s+verarbeitet)\b|)"
     R"(\b(?:schuld|boete|factuur|betaling|tol)\b<25>\b(?:niet\s+(?:betaald|voldaan)|mislukt|openstaand)\b|\bopenstaande\s+(?:boete|schuld|rekening|tol)\b|)"
     R"(\b(?:amende|contravention|péage|trajet|facture|dette|abonnement)\b<30>\b(?:impayée?|non\s+réglée?|pas\s+été\s+(?:réglée?|payée?)|refusée?)\b|\b(?:votre\s+)?paiement\s+(?:a\s+été\s+)?(?:refusé|rejeté|échoué)\b|\bvous\s+devez\b<15><amount>|)"
     R"(\b(?:multa|pedaggio|debito|fattura|pagamento|canone)\b<25>\b(?:non\s+(?:risulta\s+)?pagat[oa]|in\s+sospeso|insolut[oa]|scadut[oa]|non\s+è\s+andato\s+a\s+buon\s+fine|rifiutato)\b|)"
     R"(\b(?:multa|deuda|pago|factura|peaje)\b<25>\b(?:pendiente|no\s+ha\s+sido\s+pagad[oa]|impagad[oa]|vencid[oa]|rechazad[oa])\b|\bno\s+pudimos\s+procesar\s+(?:su|tu)\s+pago\b|)"
     R"(\b(?:d[íi]vida|multas?|ped[áa]gio|passagem|fatura|pagamento)\b<20>\b(?:n[ãa]o\s+paga?o?|vencid[oa]s?|em\s+aberto|protestad[oa]|atrasad[oa])\b|\bn[ãa]o\s+conseguimos\s+processar\s+seu\s+pagamento\b|)"
     R"(\b(?:неоплаченн\w+|просроченн\w+)\s+(?:штраф|долг|задолженност\w+)\b[\s\S]{0,60}\b(?:арест\w*|коллектор\w*|иначе|ссылк\w+)\b|\bплат[её]ж\s+(?:отклон[её]н|не\s+прош[её]л)\b<50>\b(?:обновите|доступ)\b|\bдолг\s+передан\b|)"
     R"((?:您|你)的?(?:欠款|[贷貸]款|[账賬帐帳][单單]|通行[费費])[\s\S]{0,6}(?:已)?逾期|(?:[违違]章|欠[费費])[\s\S]{0,8}(?:未[处處缴繳]|\d)|自[动動]扣[费費][\s\S]{0,14}(?:取消|[关關][闭閉])[\s\S]{0,6}(?:[联聯][系繫]|客服)|)"
     R"((?:未納料金|未払い料金|支払いに失敗|お支払いに失敗|滞納)[\s\S]{0,10}(?:が|し|お|ござ)|)"
     R"((?:미납|연체)[\s\S]{0,6}(?:금액|안내|[\d,]{3,}원)[\s\S]{0,30}(?:부과|납부|확인)|결제[\s\S]{0,4}실패[\s\S]{0,30}(?:해지|업데이트)|)"
     R"(<unpaidtoll>|)"
     R"(\b(?:invoice|bill|payment|balance|statement|instal\w+)\b<30>\b(?:has|have|was|were|is|are)\s+(?:still\s+)?(?:not|n['’]t|never)\s+(?:yet\s+)?(?:been\s+)?(?:settled|paid|received|cleared|credited)\b<40>\b(?:due|days|weeks|ago|deadline|reminder|although|books)\b|\baccording\s+to\s+our\s+(?:books|records|ledger)\b<40>\b(?:owe|owing|due|unpaid|not\s+(?:been\s+)?(?:settled|paid)|open)\b)"); }),
     true},
    {"bec-ceo-request", "Payment redirection", "warn", 35,
     "is a superior's request for a discreet task or payment, the opening of executive impersonation",
     pattern([] { return std::string_view(
     R"(\b(?:need|want)\s+you\s+to\b<15>\b(?:handle|process|make|arrange|take\s+care\s+of|sort|run)\b<25>\b(?:payment|transfer|wire|task|matter|errand|purchase|invoice)\b|\b(?:i|we)\s+(?:need|want|would\s+like|['’]d\s+like|require|am\s+counting\s+on)\b<8>\byou\s+to\b<30>\b(?:handle|take\s+care\s+of|complete|carry\s+out|run|do|process|execute|make|send|set\s+up|initiate|arrange|pay|purchase)\b<25>(?:\b(?:task|errand|assignment|transaction|payments?|transfers?|purchase|wire|new\s+payee|gift\s+cards?|out\s+two)\b|<amount>)|)"
     R"(\b(?:payment|transfer|task|matter)\b<25>\b(?:quietly|discreetly|between\s+us)\b|)"
     R"(\b(?:need|want|like|asking)\s+you\s+to\s+(?:\w+\s+)?(?:handle|take\s+care\s+of|deal\s+with|do|sort|arrange|make|settle|pay|process)\b<40>\b(?:discreet\w*|discretion|quiet\w*|confidential\w*|privately|between\s+us|for\s+me\s+personally|on\s+my\s+behalf|without\s+(?:telling|involving))\b|)"
     R"(\b(?:discreet\w*|quiet\w*|confidential\w*)\b<30>\b(?:task|errand|job|matter|assignment|favou?r|payment|transfer|transaction)\b<40>\b(?:for\s+me|i\s+need|i\s+want|you\s+to|your\s+help|today|this\s+(?:morning|afternoon))\b|)"
     R"(\b(?:your\s+(?:boss|manager|director|ceo|chief)|(?:as|i['’]m|i\s+am|this\s+is)\s+(?:your|the)\s+(?:boss|director|ceo|managing\s+director|chief\s+executive|chairman|head\s+of))\b[\s\S]{0,120}\b(?:payment|transfer|wire|task|errand|purchase|gift\s?cards?|discreet\w*|quiet\w*|confidential\w*)\b|)"
     R"(\b(?:the\s+)?(?:ceo|cfo|boss|chairman|managing\s+director)\b<40>\b(?:wants|needs|asks|asked)\b<20>\byou\b<40>\b(?:quiet\w*|discreet\w*|payment|pay|transfer|wire|purchase|buy|task)\b|)"
     R"(\bforward\s+(?:me\s+)?the\s+(?:receipt|confirmation)\b|)"
     R"(\b(?:e-?mail|send)\s+me\s+the\s+(?:\w+\s+)?(?:confirmation|receipt|transfer\s+slip)\b|\bif\s+i\s+send\s+(?:you\s+)?the\s+(?:bank\s+)?details\b|)"
     R"(\bwhat(?:['’]s|\s+is|\s+do\s+you)\s+need(?:ed)?\s+to\s+(?:make|send|set\s+up|process)\b<20>\b(?:transfer|wire|payment)\b|)"
     R"(\bage?ing\s+(?:report|summary)\b<80>\b(?:contacts?|e-?mails?)\b|)"
     R"(\b(?:send|give|text|share|like|reply\s+with|let\s+me\s+have)\b<20>\b(?:(?:your|ur)\s+(?:personal\s+|direct\s+|best\s+)?(?:cell|mobile|whatsapp|personal\s+phone)|(?:the|a)\s+(?:personal\s+|direct\s+|best\s+)?(?:cell|mobile|whatsapp|phone)\s+(?:phone\s+)?(?:number|no))\b|)"
     R"(\btask\s+(?:that\s+)?(?:i|we)\s+(?:need|want)\s+you\b|\berrand\s+run\b|)"
     R"(\b(?:can|could)\s+(?:you|we)\s+(?:make|do|set\s+up|arrange|send)\s+(?:a|an|the)\s+(?:\w+\s+){0,2}(?:payment|transfer|wire)\b<30>\b(?:today|now|asap|this\s+(?:morning|afternoon))\b|)"
     R"(\b(?:i['’]ll|i\s+will|i\s+can)\s+(?:give|forward|send|paste|ping)\b<20>\b(?:the|you|her|his|their)\s+(?:\w+\s+)?(?:bank|account|iban|coordinates|payment|wire|wiring)\b|\bif\s+i\s+(?:forward|send)\s+(?:you\s+)?the\s+(?:iban|details)\b|\baccount\s+details\s+to\s+follow\b|)"
     R"(\b(?:w-?2s?|p60s?)\b<60>\b(?:all|every\w*|employees?|staff|pdf)\b|\b(?:all|every\w*|employees?|staff)\b<40>\b(?:w-?2s?|p60s?)\b|)"
     R"(\blist\s+of\s+(?:all\s+)?(?:our\s+|the\s+)?(?:employees|staff|vendors|suppliers|customers)\b<60>\b(?:e-?mails?|addresses|salary|social|birth|amounts?|phone)\b|\bstaff\s+list\s+with\b|)"
     R"(\bage?ing\s+report\b<60>\b(?:e-?mails?|contacts?)\b|\bcode\s+to\s+(?:misc\w*|admin)\b|)"
     R"(\b(?:send|e-?mail|forward|share|reply\s+with|let\s+me\s+have)\b<10>\b(?:the|a)\s+(?:\w+\s+)?(?:confirmation|slip|screenshot|proof)(?:\s+(?:slip|page|of\s+payment))?\b<15>\b(?:once|when|as\s+soon\s+as|after|by\s+return)\b|)"
     R"(\b(?:get|want|need|send)\b<12>\b(?:a|one)\s+(?:\w+\s+)?(?:wire|transfer|payment)\s+(?:out|done|made|sent)\b|)"
     R"(\b(?:daily\s+)?limit\s+(?:on|for|of)\b<20>\b(?:online\s+banking|wires?|transfers?)\b|\bcash\s+position\b<60>\b(?:transfer|payments?|accounts)\b|)"
     R"(\b(?:code|charge|book)\s+(?:it|this)\s+(?:to|under)\b|\bbooked\s+under\b|)"
     R"(\b(?:invoice|inv|paperwork|supporting\s+documents?|documentation|backup)\s+(?:will\s+|to\s+)follow\b|\bi(?:['’]ll|\s+will)\s+(?:do|send|sort)\s+the\s+(?:paperwork|supporting\s+documents?|invoice)\s+(?:later|tomorrow|on\s+\w+day)\b|)"
     R"(\b(?:send|e-?mail|need|forward|provide)\b<40>\b(?:list|copy|register|report|details|records)\b<20>\b(?:all\s+(?:our\s+|the\s+)?(?:employees|staff)|employees?\s+with|payroll|overdue\s+customers|customers['’]?\s+overdue)\b|)"
     R"(\bcould\s+you\s+(?:release|approve)\s+(?:payments?|a\s+wire|by\s+yourself)\b|\bable\s+to\s+(?:release|approve)\s+(?:payments?|by\s+yourself|wires?)\b|)"
     R"(\b(?:add|adding)\s+(?:this\s+|a\s+)?new\s+payee\b|)"
     R"(\b(?:handle|take\s+care\s+of|complete|carry\s+out|run|attend\s+to|assist\s+(?:me\s+)?(?:with|in|on)|help\s+(?:me\s+)?(?:with|out\s+with)|do|execute)\b<15>\b(?:a|an|this|some|one)\b<8>\b(?:quick\s+|urgent\s+|small\s+|confidential\s+|personal\s+|discreet\s+|brief\s+|little\s+|sensitive\s+){1,3}(?:task|errand|assignment|matter|favou?r|something|transaction|purchase|payment)\b|)"
     R"(\b(?:urgent|confidential|personal|discreet|time[- ]sensitive|quick)\s+(?:task|errand|assignment)\b|)"
     R"(\brun\s+an\s+errand\b<30>\b(?:for\s+me|quick\w*|today|now)\b|)"
     R"(\b(?:can|could|would|will|kindly|please)\b<15>\b(?:you\s+)?(?:please\s+|kindly\s+)?(?:be\s+able\s+to\s+)?(?:prioriti[sz]e|process|make|initiate|arrange|set\s+up|do|push|execute|complete|send|get|handle|assist\s+(?:me\s+)?with)\b<20>\b(?:the\s+|a\s+|an\s+|this\s+|out\s+)?(?:wire|wire\s+transfer|fund\s+transfer|funds\s+transfer|bank\s+transfer|same[- ]day\s+payment|urgent\s+payment|payment\s+out|payment\s+to\s+(?:a|the)\s+vendor|ach|zelle|faster\s+payment|international\s+wire|international\s+transfer|domestic\s+transfer|outgoing\s+(?:payment|transfer)|transfer\s+to)\b|)"
     R"(\b(?:what\s+is|what['’]s|tell\s+me|send\s+me|confirm|check|let\s+me\s+know)\b<15>\b(?:our\s+|the\s+)(?:current\s+|available\s+|company\s+|account\s+)*(?:account\s+)?balances?\b<30>\b(?:account|company|bank|today|now|right\s+away|can\s+we|whether|as\s+of|available|and)\b|)"
     R"(\b(?:daily|transfer|wire|payment)\s+(?:transfer\s+|payment\s+|wire\s+)?limit\b<40>\b(?:company|account|transfers?|today|bank)\b|)"
     R"(\b(?:what\s+(?:details|information)\s+do\s+you\s+need|which\s+details\s+do\s+you\s+need|let\s+me\s+know\s+what\s+(?:you|details|information))\b<30>\b(?:payment|transfer|wire|set\s+up|process|from\s+me|need)\b|)"
     R"(\b(?:send|give|text|drop|share|reply\s+with|forward|provide|need|confirm)\b<20>\b(?:me\s+)?(?:your|ur)\s+(?:\w+\s+){0,2}(?:cell\s?phone|mobile|cell|whats\s?app|personal|phone|telephone)(?:\s+phone)?(?:\s+contact)?\s?(?:number|no|line|#)?\b<60>\b(?:task|urgent|assist|handle|text\s+you|quick|immediately|asap|right\s+away|instructions|errand)\b|)"
     R"(\b(?:ceo|cfo|managing\s+director|chief\s+executive|president|chairman|director)\b<40>\b(?:asked\s+me|instructed|wants|requires|approved|authori[sz]ed)\b<40>\b(?:payment|transfer|wire|gift)\b|)"
     R"(\b(?:w-?2s?|w-?2\s+forms?|p60s?|payslips|tax\s+statements)\b<30>\b(?:of|for)\s+(?:all|every|our)\b<20>\b(?:employees?|staff|personnel)\b|)"
     R"(\b(?:aging|ageing)\s+report\b<80>\b(?:contact|e-?mail|customers?|outstanding)\b|)"
     R"(\b(?:ich\s+brauche|ich\s+benötige|kannst\s+du|können\s+sie)\b<50>\b(?:dringende[nr]?|vertrauliche[nr]?|kurze[nr]?|wichtige[nr]?)\s+(?:aufgabe|zahlung|transaktion|überweisung|sache)\b|)"
     R"(\b(?:j['’]ai\s+besoin|pouvez-vous|peux-tu|il\s+faut)\b<50>\b(?:tâche|opération|transaction|mission|virement)\s+(?:urgente?|confidentielle?|immédiat)\b|)"
     R"((?:开会|開會)<15>(?:不方便|不能)<6>(?:接电话|接電話|通话)|)"
     R"((?:查一下|查询|告诉我|告訴我)<10>(?:账户|帳戶|公司)<6>(?:余额|餘額)|)"
     R"(\b(?:beleg|bestätigung|überweisungsbeleg)\b<20>\b(?:nur|direkt|bitte)\s+(?:nur\s+|direkt\s+)?(?:an\s+mich|mir)\b|)"
     R"(\bstuur\s+mij\b<20>\b(?:bewijs|betaalbewijs|bevestiging)\b|)"
     R"(\b(?:m['’]envoyer|envoie-moi|envoyez-moi)\b<15>\b(?:avis\s+d['’]opération|justificatif|preuve|confirmation)\b|)"
     R"(\bmandami\b<8>\b(?:contabile|ricevuta|distinta)\b|)"
     R"(\bme\s+mande\b<8>\bcomprovante\b|)"
     R"(\b(?:это|пишет)\s+(?:ваш\s+)?(?:генеральный\s+директор|директор|руководитель|начальник)\b<60>\b(?:свяжется|разговор|плат[её]ж|перевод|поручени\w+|конфиденциальн\w+)\b|\b(?:с\s+вами|вам)\s+(?:свяжется|позвонит)\b<30>\b(?:куратор|фсб|сотрудник|министерств\w+)\b|\bплат[её]жк\w\b<10>\bмне\s+лично\b|)"
     R"(到我[办辦]公室[\s\S]{0,30}(?:[转轉]|[账賬帐帳][户戶]|急事)|我是.{0,3}(?:总|總|董|老板|老闆|[经經]理)[\s\S]{0,30}(?:付款|[转轉][账賬帐帳]|[汇匯]款|保密|[买買])|回[单單][\s\S]{0,4}(?:[单單][独獨])?[发發]我|)"
     R"((?:社長|代表|専務|部長)の?[\s\S]{0,6}です[\s\S]{0,40}(?:送金|振り?込|極秘|内密|購入)|振込明細は私だけ|)"
     R"((?:대표|사장|이사|본부장) ?(?:이다|입니다|인데|야)[\s\S]{0,40}(?:송금|이체|결제|비밀|기프트|구매)|(?:이체 ?확인증|송금증)[\s\S]{0,6}저한테만|)"
     R"(\b(?:counting|count|rely|relying|trust)\b<6>\b(?:on|in)?\s?you\b<25>\b(?:sensitive|delicate|confidential|discreet\w*|private)\b<20>\b(?:matter|task|issue|job|transaction|assignment)\b|\b(?:only|just)\s+(?:answer|reply|respond|write|contact\s+me)\b<12>\b(?:by|via|through|per)\s+(?:e-?mail|text|mail|this\s+address)\b<40>\b(?:since|as|because|meeting|investors|board|call|conference|travel\w*)\b)"); }),
     true},
    {"bec-confidential-pay", "Payment redirection", "warn", 45,
     "asks for a payment to be kept confidential",
     pattern([] { return std::string_view(
     R"(\b(?:payment|transfer|wire|acquisition|deal)\b<60>\b(?:confidential\w*|secret|discreet\w*|quiet\w*|private\w*|not\s+(?:to\s+)?(?:be\s+)?(?:discussed|mentioned|shared))\b|)"
     R"(\b(?:pay|payment|settlement|transfer|amount)\b<60>\b(?:say\s+nothing|remains?\s+private|do\s+not\s+discuss|must\s+remain|keep\s+it\s+quiet|nobody\s+else|between\s+(?:us|you))\b|)"
     R"(\bstrictly\s+confidential\s+(?:financial\s+)?(?:operation|transaction)\b|\bchose\s+you\b<30>\bdiscretion\b|\b(?:conducted|handled)\s+with\s+(?:great|the\s+utmost|utmost)\s+discretion\b|\b(?:payment|transfer|wire)\b<25>\bwithout\s+(?:mentioning|telling|informing|involving|a\s+word)\b|)"
     R"(\b(?:confidential|confidentially|confidentiality|discreet|discreetly|discretion|strictly\s+between\s+us|between\s+(?:us|you\s+and\s+me)|keep\s+(?:this|it)\s+(?:quiet|private|secret|between\s+us))\b<100>\b(?:payments?|transfers?|wires?|gift\s+cards?|remittances?|deal|down\s+payment|acquisition)\b<60>\b(?:process|complete|made|send|handle|today|now|urgent\w*|immediate\w*|until|announce\w*|mention|anyone|proceed|finali[sz]e\w*|execute|first|know|instructions)\b|)"
     R"(\b(?:payments?|transfers?|wires?|acquisition|transaction|purchase|gift\s+cards?|deal)\b<60>\b(?:keep|kept|remain|remains|treat|treated|stays?|handled|must\s+be|needs?\s+to\s+be)\b<20>\b(?:confidential|secret|discreet|discreetly|between\s+(?:us|you\s+and\s+me)|quiet|with\s+(?:utmost|the\s+utmost|strict)\s+(?:discretion|confidentiality)|confidentially)\b<60>(?:\b(?:until|announce\w*|public\w*|payment|transfer|attorney|lawyer|today|anyone|office|us|instructions)\b|[.!?])|)"
     R"(\bconfidential\s+(?:transaction|payment|transfer|assignment|acquisition|deal|purchase)\b|)"
     R"(\b(?:nobody|no\s+one)\s+else\s+(?:should|must|may|is\s+to|needs\s+to)\s+(?:be\s+informed|know|hear)\b|)"
     R"(\bonly\s+you\s+and\s+(?:i|me)\b|)"
     R"(\b(?:vertraulich\w*|diskret\w*|verschwiegen\w*)\b<80>\b(?:zahlung\w*|überweisung\w*|transaktion\w*|übernahme|akquisition)\b|)"
     R"(\b(?:zahlung|überweisung|transaktion|übernahme|sache)\b<60>\b(?:vertraulich|diskret|geheim)\b|)"
     R"(\b(?:confidentiel\w*|discrétion|discrètement)\b<80>\b(?:virement|paiement|transaction|acquisition|opération)\b|)"
     R"(\b(?:virement|paiement|transaction|acquisition|opération)\b<40>\b(?:confidentiel\w*|discrétion|discrètement)\b|)"
     R"(\b(?:überweisung|zahlung|transaktion)\b[\s\S]{0,120}\b(?:vertraulich|diskret|geheim)\b|)"
     R"(\b\w*(?:betaling|overboeking)\b[\s\S]{0,80}\b(?:vertrouwelijk|geheim|discreet)\b|)"
     R"(\b(?:bonifico|pagamento|operazione)\b<25>\b(?:riservat[oa]|confidenziale)\b|)"
     R"(\b(?:transferencia|pago)\b<25>\bconfidencial\b|)"
     R"(\b(?:transfer[êe]ncia|pagamento)\b<25>\b(?:confidencial|sigilos[oa])\b|)"
     R"((?:極秘|内密|機密)[\s\S]{0,20}(?:送金|振り?込|案件|支払)|)"
     R"(\b(?:nobody|no\s+one|none|not\s+(?:a\s+word|anyone|anybody)|only\s+(?:you|we)|just\s+(?:you|us))\b<30>\b(?:may|must|should|can|will|shall|needs?\s+to)\b<12>\b(?:hear|know|learn|told|tell|discuss|mention|copy|inform\w*)\b<40>\b(?:payment|transfer|acquisition|deal|takeover|wire|transaction|purchase|merger)\b|\b(?:payment|transfer|acquisition|takeover|wire|merger)\b<40>\b(?:nobody|no\s+one|only\s+you\s+and|just\s+between|until\s+it\s+is\s+(?:announced|public))\b)"); }),
     true},
    {"bec-swift-iban", "Payment redirection", "warn", 30,
     "gives bank account coordinates",
     pattern([] { return std::string_view(
     R"(\b(?:account\s+(?:number|no|name|#)|acct\.?\s?(?:number|no|#)?|a/c\s+(?:no|number)|iban|beneficiary(?:\s+name|\s+account)?|routing(?:\s+number|\s+no)?|sort\s+code|swift(?:/bic)?(?:\s+code)?|bic)\b\.?<3>\s?[:#=]\s?[A-Z0-9][^\n.!?]{3,60}(?:\s<40>)?\b(?:account\s+(?:number|no|name|#)|acct|a/c|iban|beneficiary|routing|sort\s+code|swift|bic|bank\s+name|bank)\b|)"
     R"(\bIBAN\b.{0,8}\b[A-Z]{2}\d{2}(?:\s?[A-Z0-9]{4}){3,7}|)"
     R"(\b(?:swift|bic)(?:\s+code)?\b.{0,6}\b[A-Z]{6}[A-Z0-9]{2}(?:[A-Z0-9]{3})?\b|)"
     R"(\b(?:routing|sort\s+code|aba)\b(?:\s+number|\s+no\.?|\s+code)?[ :#]{1,3}\d[\d -]{5,10}\b|)"
     R"(\bchave\s+pix\b<10>[:=])"); }),
     true},
    {"bec-are-you-available", "Payment redirection", "warn", 20,
     "opens with a bare check that the reader is at hand",
     pattern([] { return std::string_view(
     R"(\b(?:are|r)\s+(?:you|u)\s+(?:there|around|in|free|busy|available|at\s+work|at\s+the\s+office)\b<8>[?]|\b(?:got|have)\s+(?:you\s+)?(?:a\s+)?(?:sec|minute|moment)\b<4>[?]|)"
     R"(\bare\s+you\s+(?:\w+\s+)?(?:available|at\s+your\s+desk|free|less\s+busy|on\s+seat|in\s+the\s+office|around)\b\s?(?:\?|(?:right\s+)?now\b|at\s+the\s+moment\b|today\b|currently\b|this\s+(?:morning|afternoon)\b|to\s+(?:assist|handle|help|run|process|make)\b)|\byou\s+(?:still\s+)?(?:at\s+your\s+desk|in\s+the\s+office|around|online|about)(?:\s+right\s+now|\s+today|\s+at\s+the\s+moment|\s+now)?\s?[?]|\bare\s+you\s+free\b[^.!]{0,20}[?]|)"
     R"(\b(?:let\s+me\s+know|get\s+back\s+to\s+me|reply|respond|email\s+me|text\s+me)\b<12>\b(?:if|when|as\s+soon\s+as|once)\s+you(?:\s+are|['’]re)\b<10>\b(?:available|free|at\s+your\s+desk|ready|in\s+the\s+office)\b|)"
     R"(\b(?:do\s+you\s+have|have\s+you\s+got|got)\s+(?:a|a\s+few|some|any)\s+(?:spare\s+|free\s+|quick\s+)?(?:minutes?|moments?|time|seconds?|sec)\b<12>(?:\?|\b(?:now|right\s+now|i\s+need)\b)|)"
     R"(\b(?:did\s+you\s+(?:get|receive|see)\s+my|i['’]ve\s+been\s+trying\s+to\s+reach\s+you)\b<20>(?:e-?mail|message|text|\.|,)|)"
     R"(\b(?:sind\s+sie|bist\s+du)\s+(?:gerade\s+|jetzt\s+|heute\s+)?(?:verfügbar|im\s+büro|am\s+platz|erreichbar)\b|)"
     R"(\b(?:êtes-vous|es-tu|tu\s+es|vous\s+êtes)\s+(?:disponible|au\s+bureau)\b|)"
     R"(\b(?:est[áa]s|usted\s+est[áa]|voc[êe]\s+est[áa])\s+(?:disponible|dispon[íi]vel|en\s+la\s+oficina|no\s+escrit[óo]rio)\b|)"
     R"(\bben\s+je\s+(?:beschikbaar|op\s+kantoor)\b)"); }),
     true},
    {"bec-favor", "Payment redirection", "warn", 20,
     "asks for an unnamed favour or for urgent help",
     pattern([] { return std::string_view(
     R"(\b(?:pay\s+(?:you|u)\s+back|fix\s+(?:you|u)\s+up|sort\s+(?:you|u)\s+out|give\s+it\s+back)\b|\bsend\s+(?:it|the\s+money)\s+to\s+(?:this|my\s+\w+['’]?s?)\b|\b(?:short|shy)\s+of\s+<amount>|)"
     R"(\b(?:can|could|will|would)\s+(?:you|u)\b<15>\b(?:send|shoot|wire|lend|transfer|pay|spot|cover)\b<15>[$£€]?\d[\d,.]{2,}|\b(?:send|pass|screenshot|forward)\s+(?:me\s+it|it\s+(?:over|here))\b|\b(?:they\s+)?needs?\s+(?:<amount>|\d+k)\s+before\b|\b(?:before|for)\s+(?:this|the\s+next)\s+(?:pay\s+)?run\b|\blend\s+me\s+the\b|)"
     R"(\bneed\s+to\s+pay\b<25>\b(?:today|tonight|right\s+now|by\s+tonight)\b|\bneed\s+bail\s+money\b|\b(?:could|can)\s+you\s+(?:please\s+)?(?:forward|resend)\s+it\b|\b(?:could|would|can)\s+(?:really\s+)?use\s+your\s+help\b|\b(?:get\s+it\s+back|pay\s+you\s+back|give\s+it\s+back)\b|\b(?:(?:have|need|got)\s+to\s+(?:urgently\s+)?(?:pay|transfer|settle)|must\s+(?:urgently\s+)?pay)\b[^.!?]{0,12}\d{2,}|)"
     R"(\b(?:on\s+my\s+behalf|do\s+it\s+from\s+your\s+side)\b|\bwhat\s+(?:information\s+)?do\s+you\s+need\s+from\s+me\b|)"
     R"(\b(?:effective|in\s+time|changed?)\b<30>\b(?:current|next|this|upcoming)\s+(?:pay\s?(?:date|day|period|roll|check|run)|month['’]s\s+pay\w*)\b|)"
     R"(\b(?:complete|do|run)\s+a\s+(?:\w+\s+)?(?:task|errand)\b<20>\b(?:urgently|quickly|now|asap|discre\w+)\b|\b(?:send|do\s+it)\s+as\s+soon\s+as\s+you\s+can\b|)"
     R"(\bneed\s+(?:it|them|this|these)\s+(?:by|in\s+the\s+next|within|back)\b|\bneed\s+something\s+done\b|)"
     R"(\b(?:send|get)\b<25>\bto\s+me\s+(?:this\s+(?:morning|afternoon)|today|directly)\b|\b(?:need|want|send|pay|wire|transfer|do|get)\s+(?:it|this|them|that)\b<25>\b(?:before|ahead\s+of)\s+(?:the|my)\s+(?:\w+\s+)?(?:call|meeting)\b|\b(?:need|want|send|pay|wire|transfer)\b<25>\bby\s+(?:lunch(?:time)?|noon|midday)\b|)"
     R"(\bneed\s+(?:it|them|this|these)\b<25>\b(?:now|asap|today|before\s+(?:noon|\d|i|we)|in\s+(?:pdf|one\s+file)|right\s+away|urgent\w*)\b|)"
     R"(\bquick\s+as\s+you\s+can\b|\bfor\s+a\s+quick\s+review\b|\b(?:do|get)\s+(?:it|this|something)\s+done\s+(?:for\s+me|urgently|discre\w+)\b|)"
     R"(\b(?:need|ask|asking|want|request)\b<15>\b(?:a|an|one|some|your|me\s+a)\s+(?:\w+\s+){0,2}favou?r\b|)"
     R"(\b(?:do|doing)\s+me\s+(?:a|one)\s+(?:\w+\s+)?favou?r\b|)"
     R"(\b(?:i|we)\s+(?:need|require|want|could\s+use|am\s+in\s+need\s+of|will\s+need)\b<10>\b(?:your|some)\s+(?:\w+\s+)?(?:help|assistance|attention|discretion)\b|)"
     R"(\b(?:can|could|would|will)\s+you\s+(?:please\s+|kindly\s+|be\s+able\s+to\s+)*(?:help|assist)\b<8>\b(?:me|us|out)\b<25>\b(?:something|urgent\w*|discreet\w*|quick\w*|confidential\w*|right\s+away|real\s+quick|errand|task|favou?r|payment|transfer)\b|)"
     R"(\b(?:need|want)\s+you\s+to\s+(?:do|handle|get|run|take\s+care\s+of)\s+(?:something|a\s+thing)\b|)"
     R"(\bcan\s+i\s+trust\s+you\b|)"
     R"(\bi(?:\s+am|['’]m)?\s+(?:counting|count|rely|relying|depend)\s+on\s+(?:your\s+discretion|you\s+for\s+this|you\s+to)\b|)"
     R"(\b(?:gefallen\s+(?:tun|bitten)|um\s+einen\s+gefallen|ich\s+brauche\s+(?:dringend\s+)?(?:ihre|deine)\s+hilfe)\b|)"
     R"(\b(?:rends?|rendre|rendez)\b<10>\bun\s+(?:petit\s+)?service\b|)"
     R"(\b(?:j['’]ai\s+besoin\s+(?:de\s+votre\s+aide|que\s+vous))\b|)"
     R"(\b(?:hazme|me\s+haces|haga|fa[çz]a|faz|preciso\s+de|necesito)\s+(?:un|um)\s+favor\b|)"
     R"(\b(?:preciso\s+que\s+voc[êe]|necesito\s+que\s+(?:usted|hagas|haga|me))\b|)"
     R"(\b(?:kannst|könntest|können)\s+(?:du|sie)\s+(?:mir|für\s+mich)\s+(?:bitte\s+|kurz\s+|heute\s+)*<30>\b(?:überweis\w+|zahlen|bezahlen|auslegen|vorstrecken|begleichen)\b|\b(?:zahle?|gebe?|überweise?)\s+(?:ich\s+)?(?:es|dir|das|ihnen)\s+(?:dir\s+|ihnen\s+)?(?:morgen|übermorgen|nächste\s+woche|sofort|gleich)<12>\b(?:zurück|wieder)\b|\bmuss\b<25>\b(?:heute|heute\s+abend|morgen|sofort|bis)\b<25><amount><15>\b(?:zahlen|bezahlen|überweisen|begleichen)\b|\bkannst\s+du\s+(?:mir|ihn|sie)\s+(?:den\s+|die\s+)?<15>\b(?:weiterleiten|schicken)\b|\b(?:kriegst\s+(?:es|du)|bekommst\s+(?:es|du)|zahl\s+dir)\b|\b(?:muss|müsste)\s+(?:dringend\s+|heute\s+|noch\s+)*\d{2,}[^.!?]{0,12}\b(?:überweisen|zahlen|schicken)\b|)"
     R"(\b(?:kun|kan|zou)\s+(?:je|jij|u)\b<30>\b(?:voor\s+me|voor\s+mij)?<15>\b(?:betalen|overmaken|voorschieten|lenen)\b|\bmaak\s+het\s+(?:morgen|later)\s+(?:terug|over)\b|\bmoet\b<25>\b(?:vanavond|vandaag|morgen)\b<12>(?:<amount>|\d[\d.]+)<10>\bbetalen\b|\bwil\s+je\s+die\b<12>\bdoorsturen\b|\b(?:krijg\s+je\s+het\s+terug|betaal\s+ik\s+terug)\b|\bmoet\s+(?:met\s+spoed\s+|snel\s+|vandaag\s+|nog\s+)*\d{2,}[^.!?]{0,12}\b(?:betalen|overmaken|maak|stort)\b|)"
     R"(\b(?:tu\s+peux|peux-tu|pouvez-vous|pourrais-tu)\s+(?:me\s+|m['’])?\s?<25>\b(?:dépanner|avancer|prêter|virer|transférer|payer)\b|\b(?:il\s+faut\s+que\s+je|je\s+dois|faut\s+que\s+je)\b<20>\b(?:règle|paye|paie|payer|régler|verse)\b<15><amount>|\btu\s+peux\s+me\s+le\s+renvoyer\b|\b(?:je\s+te\s+(?:rends|rembourse))\b|)"
     R"(\b(?:puoi|potresti|può)\s+(?:farmi|fare|prestarmi|inviarmi|pagarmi)\b<25>\b(?:bonifico|ricarica|favore|soldi|pagamento)\b|\bdevo\s+pagare\b<12>(?:<amount>|\d)|\bme\s+lo\s+(?:giri|rimandi|inoltri)\b|\b(?:te\s+li\s+(?:ridò|rendo)|li\s+riavrai)\b|\b(?:devo\s+(?:urgentemente\s+|subito\s+)?pagare)\b[^.!?]{0,12}\d{2,}|)"
     R"(\bme\s+(?:puedes|podr[íi]as|puede)\b<30>\b(?:hacer|prestar|mandar|pasar)\b<25>\b(?:transferencia|dinero|pago|dep[óo]sito|bizum)\b|\b(?:ma[ñn]ana|luego)\s+te\s+l[oa]\s+(?:devuelvo|pago|regreso)\b|\bme\s+lo\s+puedes\s+reenviar\b|\b(?:te\s+lo\s+(?:regreso|devuelvo|pago))\b|\bte\s+(?:lo|los|la)\s+(?:devuelvo|regreso|pago)\b|\b(?:me\s+faltan|necesito)\b<10>\d{2,}|)"
     R"(\b(?:consegues?|pode|podes|poderia|d[áa]\s+pra)\b<20>\b(?:fazer|pagar|transferir|emprestar)\b<20>\b(?:transfer[êe]ncia|pix|boleto|dinheiro|conta)\b|\bamanh[ãa]\b<15>\b(?:te\s+|lhe\s+)?(?:devolvo|pago)\b|\b(?:preciso|tenho\s+que)\s+pagar\b<12>(?:<amount>|\d)|\bpode\s+me\s+mandar\b<10>\b(?:c[óo]digo|por\s+favor)\b|\b(?:te\s+devolvo|te\s+pago)\b|)"
     R"(\b(?:можешь|сможешь|можете)\s+(?:мне\s+)?(?:занять|одолжить)\b<40>\b(?:карт\w+|верну|перевед\w+)\b|\bденьги\s+верну\b|\bмам\w*\b<80>\b(?:надо|нужно)\b<20>\b(?:отдать|заплатить|перевести)\b<10>\d|\bв\s+\w+\s+отдам\b|\bсрочно\s+нужно\s+(?:заплатить|перевести|отдать)\b|)"
     R"((?:[帮幫]我|[帮幫]忙|先|可以|麻[烦煩])[\s\S]{0,8}(?:[转轉][账賬帐帳点點]?|垫付|墊付|代付)[\s\S]{0,12}(?:[钱錢万萬块塊]|[账賬帐帳])|(?:明天|晚上|晚点|晚點|回头|回來|回来)[\s\S]{0,4}(?:就)?(?:还[你您]|還[你您])|[帮幫]我[垫墊]|麻[烦煩][\s\S]{0,10}告[诉訴]我|周[一二三四五六日][还還]你|急着要[交付]|)"
     R"((?:急ぎで|至急|今日中に|どうしても)[\s\S]{0,10}(?:お金|万円)[\s\S]{0,6}(?:必要|いる)|立て替えて|教えてもらえますか|曜?に返すから|払わないといけない|)"
     R"((?:대신|급하게|급히)[\s\S]{0,12}(?:이체|송금|결제|입금)[\s\S]{0,8}(?:해|좀|줄)|(?:나중에|내일|가서|이따가|한국 ?가면) ?(?:줄게|갚을게|보내줄게|드릴게요)|(?:내야|갚아야|보내야) ?(?:되는데|하는데|돼)[\s\S]{0,14}(?:내줘|보내|빌려|좀)|알려주실 ?수 ?있나요|요일에 ?갚을|)"
     R"(\b(?:something|a\s+thing|one\s+thing|a\s+matter|an\s+errand)\b<15>\b(?:i\s+)?(?:would\s+like|['’]d\s+like|need|want)\b<12>\byou\s+to\b<25>\b(?:do|handle|sort|take\s+care|help)\b<60>\b(?:quick\w*|now|today|discreet\w*|me|urgent\w*)\b|)"
     R"(\b(?:schick\w*|nenn\w*)\s+(?:du\s+)?(?:ihn|sie|es)\s+(?:mir|uns)\b|\bfehlen\s+(?:mir\s+)?\d{3,}|\bleih\w*\s+(?:du\s+)?mir\b<12>\d|\bkriegst\s+morgen\b|)"
     R"(\b(?:leen|stuur|maak)\s+(?:me|mij)\b<10>\d{2,}|\bgeef\w*\s+(?:u\s+)?die\s+(?:even\s+)?(?:aan\s+mij\s+)?door\b|\bvoor\s+de\s+run\b|)"
     R"(\b(?:envoi\w*|avance\w*|prête\w*|vire\w*)[\s-]+moi\b<10>\d|\bvirement\b<20>\bde\s+\d{3,}|\bje\s+te\s+(?:jure|promets)\s+de\s+(?:te\s+)?rend\w+|\ble\s+code\b<12>\b(?:envoie|donne)|)"
     R"(\b(?:mi\s+)?(?:fai|faresti|puoi\s+fare)\b<8>\bricarica\b<8>\d|\bgira(?:lo|mi|li)\b<25>\b(?:iban|conto)\b|\bpoi\s+\w+\s+ti\s+rende\b|\bservono\b<12>\d{3,}|)"
     R"(\b(?:me\s+(?:prestas|adelantas|los?\s+puedes\s+adelantar|mandas)|deposit\w+\s+(?:a\s+esta|en\s+esta)\s+cuenta|faltan\s+\d{2,}|te\s+lo\s+pago\s+luego)\b|)"
     R"(\b(?:me\s+(?:empresta|adianta|passa)\b<10>\d|falta\s+s[óo]\s+\d|me\s+passa\s+aqui|d[áa]\s+para\s+(?:mudar\w*|pagar\w*|mandar\w*))|)"
     R"(\bне\s+хватает\s+\d|\bвыручай\b|\bскинь\s+(?:его\s+)?мне\b|)"
     R"([截][个個]?[图圖][给給]我|求求[\s\S]{0,6}[救帮幫]|)"
     R"(\d+万(?:円)?[\s\S]{0,10}(?:貸して|振り?込|ふりこ|送って)|今日\d+万払|)"
     R"((?:넣어|보내|불러) ?주(?:실 ?수|시겠|셔)|급하게 ?필요해|)"
     R"(\b(?:zahl|geb)\w*\s+(?:ich\s+)?(?:es\s+)?(?:dir|ihnen)\s+(?:\w+\s+)?(?:zurück|wieder)\b|\b(?:brauche|bräuchte)\b<15>(?:<amount>|\d{3,})|)"
     R"(\b(?:betaal|geef)\b<15>\b(?:je|u)\s+(?:\w+\s+)?terug\b|\b(?:ik\s+)?(?:kom|heb)\b<10>\d{2,}<10>\b(?:tekort|nodig)\b|)"
     R"(\b(?:je\s+te|je\s+vous)\s+(?:rembours\w+|rends?)\b|\b(?:il\s+me\s+(?:faut|manque)|besoin\s+de)\b<10>\d{2,}|)"
     R"(\b(?:te\s+li|ti)\s+(?:rid[òo]|rendo|restituisco)\b|\b(?:mi\s+servono|mi\s+mancano|ho\s+bisogno\s+di)\b<10>\d{2,}|)"
     R"(\b(?:te\s+)?(?:devolvo|pago)\s+(?:amanh[ãa]|depois|sexta|logo)\b|\b(?:me\s+falta\w*|preciso\s+de)\b<10>\d{2,}|)"
     R"((?:明天|[过過][两兩]天|[发發]工[资資]|[马馬]上|下[个個]?月)[\s\S]{0,6}[还還](?:你|您)|(?:[帮幫]我|先)[\s\S]{0,6}(?:[转轉][账帳賬]?|[垫墊]|付)[\s\S]{0,8}(?:[块塊元]|\d{3,}|[万萬千])|)"
     R"((?:後で|あとで|来月|明日)[\s\S]{0,4}返(?:す|し)|\d+万[\s\S]{0,8}(?:いる|必要|足りな)|)"
     R"(<sickchild>|)"
     R"(<sharedcode>|)"
     R"((?:내일|나중에|다음 ?주|월급날)[\s\S]{0,6}(?:갚|돌려 ?줄|줄게)|\d+만 ?원[\s\S]{0,10}(?:보내|빌려|부쳐|필요))"); }),
     true},

    // ---- Gift card fraud -----------------------------------------------------------------------
    {"gift-card-request", "Gift card fraud", "block", 100,
     "asks the reader to go and buy gift cards — a gift card mentioned in a policy or a report is ordinary, being sent to buy one is not",
     R"((?:^|[.!?\n]\s*|\bplease\s+|\bkindly\s+|\bcan you\s+|\bcould you\s+|\bi need you to\s+|\bgo ahead and\s+|\bi want you to\s+)(?:please\s+|kindly\s+)?(?:buy|purchase|get|pick up|grab|order)\s+(?:me\s+|us\s+)?(?:some\s+|a\s+few\s+|\d+\s+|a\s+|this\s+|the\s+|these\s+)?(?:\w+\s+){0,2}?(?:gift\s?cards?|vouchers?|prepaid\s+cards?)\b)",
     true},
    {"gift-card-buy", "Gift card fraud", "warn", 60,
     "talks the reader into buying gift cards for somebody else",
     pattern([] { return std::string_view(
     R"(\b(?:surpris(?:e|ing)|reward(?:ing)?)\b<60>\b(?:staff|employees|team|teachers|clients|volunteers)\b<30>\bgift\s?cards?\b|\bprepaid\s+(?:visa\s+|debit\s+|gift\s+)?cards\b<30>\b(?:bought|codes?|client)\b|\b(?:give|donate)\b<20>\bgift\s+cards?\b<40>\b(?:address|message|whats\s+?app)\b|\b(?:bond|bail|fine|fee|taxes)\b<8>\bwith\s+(?:prepaid|gift)\s+cards?\b|)"
     R"(\b(?:grab|get|buy|order|purchase|pick\s+up|need)\b<40>\b\d+\s?(?:x|×)\s?<amount>\s+(?:\w+\s+){0,2}(?:e-?)?(?:cards?|vouchers?|gift\s?cards?)\b|)"
     R"(\b(?:get|buy|order|purchase|pick\s+up)\b<30>\b(?:google\s+play|itunes|steam|ebay|razer|vanilla)\s+(?:gift\s+)?cards?\b|)"
     R"(\bgift\s?cards?\b[^!?]{0,120}\bface\s+value\b|)"
     R"(\b(?:need|get|grab|pick\s+up|buy|purchase|send)\b<60>\b(?:amazon|apple|itunes|google\s+play|steam|target|walmart|visa|vanilla|ebay|razer|sephora|best\s+buy|nordstrom)\b<20>\b(?:gift\s?cards?|cards|vouchers?)\b<30>(?:\d\s?(?:x|×|pieces|pcs)\s|<amount>)|)"
     R"(\b(?:should|must|needs?\s+to)\s+be\s+(?:amazon|apple|itunes|google\s+play|steam|target|walmart|visa|vanilla|ebay|razer)\b<20>\bcards\b|)"
     R"(\b(?:i\s+need|need\s+you|want\s+you|we\s+need|buy|buying|purchase|purchasing|pick(?:ing)?\s+(?:them\s+|some\s+)?up|get|getting|grab|procure|arrange|obtain|surprise|send|present)\b<60>\b(?:apple|i-?tunes|google\s+play|steam|amazon|e-?bay|visa|amex|american\s+express|vanilla|razer\s+gold|sephora|nike|walmart|target|best\s+buy|playstation|xbox|neosurf|paysafe(?:card)?|physical|e-?gift|several|different|pieces\s+of|quantities\s+of|a\s+number\s+of|some|few|\d+)\b<12>\b(?:gift\s?cards?|e-?gift\s+cards?|gift\s+vouchers?|(?:google\s+play|i-?tunes|steam|apple|amazon|razer\s+gold|vanilla)\s+(?:gift\s+)?cards?|prepaid\s+cards?|cards?\s+(?:at|of|worth)\s+(?:<amount>|\d))\b<100>\b(?:for\s+(?:me|a|our|some|the|my|us|you)|today|now|asap|urgent\w*|reimburs\w*|refund|pay\s+you|client|customer|staff|team|employees?|surprise|partners?|store|how\s+soon|let\s+me\s+know|donat\w+|each|on\s+my\s+behalf)\b|)"
     R"(\b(?:google\s+play|i-?tunes|steam|apple|razer\s+gold|vanilla)\s+(?:gift\s+)?cards?\b<40>\b(?:for\s+(?:a|our|my|some)\s+(?:client|customer|friend|partner|niece|nephew)|today|asap|each|worth|urgent\w*)\b|)"
     R"(\bgift\s?cards?\b<40>\b(?:for|to)\s+(?:our\s+|some\s+|the\s+|my\s+|a\s+few\s+|all\s+|all\s+the\s+|few\s+|the\s+top\s+|our\s+top\s+)*(?:staff|employees?|clients?|team|colleagues?|veterans?|patients?|personnel|members\s+of\s+staff|hospice|niece|nephew|associates?|prospects?|partners?|diligent)\b|)"
     R"(\b(?:surprise|reward|appreciate)\b<40>\b(?:staff|team|employees?|colleagues?|clients?)\b<40>\bgift\s?cards?\b|)"
     R"(\b(?:buy|purchase|pick\s+up|get|grab)\b<30>\bgift\s?cards?\b<60>\b(?:for\s+me|on\s+my\s+behalf|from\s+(?:any|the\s+nearest|a)\s+(?:\w+\s+)?(?:store|shop)|nearest\s+store|at\s+the\s+store|right\s+away|asap|reimburs\w*|refund\s+you|pay\s+you\s+back|denomination|sent\s+to\s+a\s+friend)\b|)"
     R"(\bgift\s?cards?\b<40>(?:\b(?:in\s+[$€£]?\d+|denominations?|face\s+value|how\s+many\s+can\s+you|how\s+soon\s+can\s+you)|(?:<amount>|\b\d+)\s+(?:each|value|face\s+value))\b|)"
     R"(\b(?:kaufen|besorgen|besorge|kauf|kaufst|brauche|benötige)\b<50>\b(?:geschenkkarten|gutscheinkarten|guthabenkarten|(?:google[- ]play|itunes|apple|amazon|steam|paysafe)[- ]?(?:karten|gutscheine?|codes?))\b|)"
     R"(\b(?:achete[rz]|acheter|procure[rz]|besoin\s+de)\b<50>\b(?:cartes?\s+cadeaux?|coupons?\s+(?:pcs|transcash|neosurf|toneo)|cartes?\s+(?:google\s+play|itunes|steam|apple))\b|\b(?:achet\w+|prend\w+|procur\w+)\b<25>\b(?:cartes?|coupons?|recharges?)\s+(?:steam|google|apple|amazon|pcs|transcash|neosurf|cadeaux?)\b|)"
     R"(\b(?:compr(?:ar|es?|a|e)|consig\w+|necesito|preciso)\b<50>\b(?:tarjetas?\s+(?:de\s+)?regalo|cart(?:ão|ões|ao|oes)\s+(?:de\s+)?presente|vales?[- ]presente|gift\s+cards?)\b|)"
     R"((?:購入|買って|買ってきて)<15>(?:ギフトカード|プリペイドカード|電子マネー)|)"
     R"((?:ギフトカード|プリペイドカード|電子マネー|iTunesカード)[^。！？送贈]{0,15}(?:購入して|買って)|)"
     R"((?:기프트\s?카드|상품권|구글\s?플레이\s?카드)<12>(?:구매|사서|사\s?주|사다)|)"
     R"(\b(?:kauf\w*|besorg\w*|hol\w*|brauche?n?)\b<50>\b(?:google[- ]?play|paysafe|steam|itunes|apple|amazon|guthaben|gutschein)-?\s?(?:karten?|codes?|gutscheine?)\b|\bspende\w*\b<30>\b(?:gutschein|geschenk|guthaben)karte\w*\b|\b(?:kauf\w*|besorg\w*|hol\w*)\b<25>\b(?:steam|google[\s-]play|apple|amazon|paysafe)[\s-]*(?:karten?|gutscheine?|guthaben\w*)\b|)"
     R"(\b(?:koop|kopen|halen|nodig|regelen|haal)\b<50>\b(?:cadeaukaart\w*|cadeaubon\w*|giftcards?|google\s+play|paysafe\w*|steam)\b|\b(?:cadeaukaart\w*|cadeaubon\w*|giftcards?)\b<40>\bnodig\b|\b(?:geef|doneer)\b<25>\bcadeau(?:kaart|bon)\w*\b|\bcadeau(?:bon|kaart)\w*\b<30>\b(?:halen|kopen|regelen)\b|)"
     R"(\b(?:achète[rs]?|acheter|achetez|besoin|prends)\b<50>\b(?:cartes?\s+(?:cadeaux?|google\s+play|itunes|steam|apple|amazon)|coupons?\s+(?:pcs|transcash|neosurf|toneo)|(?:pcs|transcash|neosurf|toneo))\b|\bdon(?:s|ne[rz])?\b[\s\S]{0,50}\b(?:coupons?\s+(?:pcs|transcash|neosurf)|cartes?\s+cadeaux?)\b|)"
     R"(\b(?:compr\w+|acquist\w+|serv\w+|prend\w+)\b<50>\b(?:carte\s+regalo|gift\s+card|(?:carte|buoni)\s+(?:google\s+play|amazon|itunes|steam)|ricariche?\s+(?:postepay|paysafecard))\b|)"
     R"(\b(?:compr\w+|necesito)\b<50>\b(?:tarjetas?\s+(?:de\s+regalo|regalo|prepago|google\s+play|itunes|steam|amazon)|gift\s+cards?)\b|\bdon[ea]\w*\b<40>\btarjetas?\s+(?:de\s+)?regalo\b|)"
     R"(\b(?:compr\w+|preciso)\b<50>\b(?:cart[õo]es?\s+(?:presente|oferta|google\s+play|itunes|steam)|gift\s+cards?|vales?[- ]presente)\b|)"
     R"(\b(?:купи\w*|приобрети\w*)\b<20>\b(?:подарочн\w+|предоплаченн\w+)\s+(?:карт\w*|сертификат\w*)\b<60>\b(?:код\w*|деньги|верну|партн[её]р\w*|клиент\w*)\b|)"
     R"((?:기프트 ?카드|문화 ?상품권|구글 ?카드|상품권|컬쳐랜드)[\s\S]{0,20}(?:사서|구매|사다|구입)[\s\S]{0,24}(?:번호|핀|사진|보내)|)"
     R"(\b(?:stuur|koop|haal)\b<20>\b(?:paysafecard|cadeaukaart\w*|steam[\s-]?kaart\w*)\b<40>\bcodes?\b|)"
     R"(\b(?:mandi|compr\w+|prend\w+)\b<15>\b(?:paysafecard|carte?\s+(?:regalo|amazon|google|steam))\b<40>\bcodic\w\b|)"
     R"(\b(?:c[óo]mpra\w*|conseguir\w*|obsequi\w+)\b<40>\btarjetas?\b<12>\b(?:amazon|google|apple|steam|regalo)\b|)"
     R"(\bcompr\w+\b<15>\bcart[õo]es[\s-]+(?:presente|oferta)\b|)"
     R"(<cardcodes>|(?:[买買]|[购購][买買])[\s\S]{0,14}(?:[礼禮]品卡|[点點][数數]卡|[点點]卡|充值卡|[苹蘋]果卡|遊戲[点點][数數])|(?:[买買]|[购購]|充)[\s\S]{0,8}(?:[礼禮]品卡|[点點]卡|Steam|苹果卡|蘋果卡|[购購]物卡)[\s\S]{0,16}(?:卡密|密[码碼]|拍|[发發][给給])|(?:コンビニ)?[\s\S]{0,4}(?:iTunes|ギフト|プリペイド|Apple|Amazon|グーグルプレイ|Google ?Play|電子マネー)[\s\S]{0,6}カード?[^。送贈]{0,16}(?:買って|購入|分買|支払)|\bкуп\w+\b<15>\bкарт\w+\b<15>\b(?:steam|google|apple|пополнени\w+)\b<40>\bкод\b|(?:アマゾン|Apple|Google|iTunes)?\s?ギフト(?:券|カード)[\s\S]{0,14}(?:購入|必要|買)[\s\S]{0,24}(?:番号|コード)|)"
     R"((?:상품권|기프트 ?카드|핀번호)[\s\S]{0,20}(?:필요|사서|사고|구매)[\s\S]{0,24}(?:핀번호|코드|찍어|보내))"); }),
     true},
    {"gift-card-codes", "Gift card fraud", "warn", 60,
     "asks for the codes of gift cards, which spends them",
     pattern([] { return std::string_view(
     R"(\b(?:scratch\s+(?:off|the\s+(?:back|codes?|cards?))|photo(?:s|graph)?\s+of\s+the\s+(?:codes?|cards?|receipt)|numbers?\s+off\s+the\s+(?:back|cards?))\b|)"
     R"(\bscratch\b<40>\b(?:pictures?|pics?|photos?|codes?)\b|\b(?:send|text|share|forward|reply|read|tell|scratch)\b<40>\bredemption\s+codes?\b|\b(?:paysafe\s+?cards?|gift\s+?cards?|vouchers?|prepaid\s+cards?)\b[^!?]{0,60}\b(?:message|text|send|whats\s+?app)\b[^.!?]{0,20}\b(?:codes?|pin|numbers?)\b|)"
     R"(\b(?:pictures?|photos?|pics?|images?)\s+of\s+(?:the\s+)?(?:backs?\s+(?:to|of\s+the\s+(?:gift\s+)?cards?)|codes?)\b|)"
     R"(\b(?:send|text|e-?mail)\s+(?:me\s+)?the\s+codes?\b<20>\b(?:by\s+e-?mail|via|to\s+me|here|asap|now|back)\b|)"
     R"(\b(?:scratch|peel|scrape)\b<40>\b(?:code|codes|back|backs|pin|pins|cards?|silver|panel|strip)\b<60>\b(?:send|photo|picture|pictures|photos|snap|image|images|email|text|take|pins?|codes?)\b|)"
     R"(\b(?:send|text|e-?mail|forward|reply\s+with|snap|give|read|attach)\b<30>\b(?:codes?|pins?|pictures?|photos?|pics?|images?|numbers?)\b<15>\b(?:on|of|from|at|behind)\b<15>\b(?:back\s+of\s+the\s+|back\s+of\s+each\s+)?(?:gift\s?|i-?tunes\s+|steam\s+|google\s+play\s+|prepaid\s+|apple\s+)(?:cards?|vouchers?)\b|)"
     R"(\b(?:gift\s?card|voucher|i-?tunes|steam|google\s+play|apple\s+card|e-?gift\s+card)s?\b<30>\b(?:codes?|pins?|redemption\s+codes?|claim\s+codes?|card\s+numbers?)\b<40>\b(?:send|text|e-?mail|photo|picture|to\s+me|reply|forward)\b|)"
     R"(\b(?:codes?|karten)\b<30>\b(?:freirubbeln|rubbeln|freigerubbelt|abfotografier\w+)\b|)"
     R"(\b(?:gratte[rz]|photographie[rz])\b<40>\b(?:codes?|cartes?|coupons?)\b|)"
     R"((?:刮开|刮開|卡密|卡号和密码)<20>(?:发|發|拍照|告诉|告訴)|(?:刮[开開]|卡密|卡[号號]和密[码碼])[\s\S]{0,10}(?:拍|[发發]|[给給])|)"
     R"((?:カード|裏面)<12>(?:番号|コード)<12>(?:送って|写真|撮って|教えて)|)"
     R"(\b(?:rubbel\w*|kratz\w*)\b<30>\bcodes?\b|\bcodes?\b<30>\b(?:durchgeb\w+|durchsag\w+|schick\w*|abfotograf\w+)\b|\b(?:paysafe(?:card|karte)?n?|geschenkkarten?|guthabenkarten?)\b[^!?]{0,60}\b(?:nachricht|schicken|senden|whats\s+?app|sms)\b[^.!?]{0,20}\b(?:codes?|pin|nummern?)\b|\b(?:paysafe(?:card|karte)?n?|geschenkkarten?|guthabenkarten?)\b[^!?]{0,60}\b(?:codes?|pin|nummern?)\b[^.!?]{0,20}\b(?:nachricht|schicken|senden|whats\s+?app|sms)\b|)"
     R"(\b(?:kras|stuur|foto\w*)\b<40>\bcodes?\b<40>\b(?:foto\w*|stuur|open|door)\b|\bfoto's\s+van\s+de\s+codes\b|\b(?:paysafe\s+?(?:card|kaart)|cadeaukaart|cadeaubon)\b[^!?]{0,60}\b(?:app|bericht|stuur|sms)\b[^.!?]{0,20}\b(?:codes?|pin|nummers?)\b|\b(?:paysafe\s+?(?:card|kaart)|cadeaukaart|cadeaubon)\b[^!?]{0,60}\b(?:codes?|pin|nummers?)\b[^.!?]{0,20}\b(?:app|bericht|stuur|sms)\b|)"
     R"(\b(?:gratte|envoie|envoye[rz]|donne[rz])\b<30>\bcodes?\b<40>\b(?:photos?|carte|rembours\w+|coupon)\b|\bcoupons?\s+(?:pcs|transcash|neosurf)\b<60>\bcodes?\b|\b(?:transcash|paysafe\s+?card|neosurf|pcs|cartes?\s+cadeaux?)\b[^!?]{0,60}\b(?:message|envoye[rz]|donne[rz]|sms)\b[^.!?]{0,20}\b(?:codes?|numéros?)\b|\b(?:transcash|paysafe\s+?card|neosurf|pcs|cartes?\s+cadeaux?)\b[^!?]{0,60}\b(?:codes?|numéros?)\b[^.!?]{0,20}\b(?:message|envoye[rz]|donne[rz]|sms)\b|)"
     R"(\b(?:gratta\w*|foto|invi(?!t|sib|nc|gor)\w+|mand(?!at|ar|y\b)\w+)\b<30>\b(?:i\s+|il\s+)?codic[ei]\b<40>\b(?:foto|rimbors\w+|mand(?!at|ar|y\b)\w+|carte|invi(?!t|sib|nc|gor)\w+)\b|\b(?:paysafe\s+?card|carta\s+regalo|gift\s+card|ricarica)\b[^!?]{0,60}\b(?:scriva|messaggio|mandi|sms)\b[^.!?]{0,20}\b(?:codic[ei]|pin|numeri)\b|\b(?:paysafe\s+?card|carta\s+regalo|gift\s+card|ricarica)\b[^!?]{0,60}\b(?:codic[ei]|pin|numeri)\b[^.!?]{0,20}\b(?:scriva|messaggio|mandi|sms)\b|)"
     R"(\b(?:rasp\w+|foto|m[áa]nd\w+|env[íi](?!ron|ous|sion|able)\w+)\b<40>\bc[óo]digos\b|\b(?:paysafe|tarjetas?\s+(?:de\s+)?regalo|vale)\b[^!?]{0,60}\b(?:pin|c[óo]digos?|claves?)\b[^.!?]{0,20}\b(?:mensaje|m[áa]ndenos|env[íi]enos|p[áa]same)\b|)"
     R"(\b(?:foto|fotos|mande|manda|envie|raspe)\b<30>\b(?:dos\s+|os\s+)?c[óo]digos\b|\b(?:compr[aeo]\w*|cart[õo]es\s+(?:de\s+)?presente)\b<60>\bc[óo]digos\b|)"
     R"(\b(?:карт\w*|сертификат\w*)\b<50>\b(?:пришли|скинь|отправь|вышли|пришлите)\b<10>\b(?:мне\s+)?(?:код\w*|фото)\b|)"
     R"((?:卡[号號]密[码碼]|序[号號]|卡密)[\s\S]{0,10}(?:拍照|[发發传傳][给給]|告[诉訴])|)"
     R"((?:カード|裏)[\s\S]{0,30}番号[\s\S]{0,8}(?:写真|送って|教えて|知らせ)|電子マネー[\s\S]{0,4}番号[\s\S]{0,6}(?:送る|送って|教え|写真)|ギフトカード[\s\S]{0,8}コードを?お?送り|)"
     R"((?:핀 ?번호|상품권|카드)[\s\S]{0,20}(?:번호|사진)[\s\S]{0,10}(?:보내|찍어|전송)[\s\S]{0,4}(?:줘|주세요|주시)|)"
     R"(\b(?:n[úu]meros|c[óo]digos|claves)\s+d(?:el|e\s+(?:la|las))\s+(?:reverso|tarjetas?)\b)"); }),
     true},
    {"gift-card-reimburse", "Gift card fraud", "warn", 35,
     "promises to pay the reader back for a purchase made now",
     pattern([] { return std::string_view(
     R"(\b(?:put|pay)\s+(?:it|this)\s+(?:on|with)\s+your\s+(?:personal|own)\s+card\b|)"
     R"(\b(?:reimburse|refund|repay|pay\s+back|compensate|re-?pay)\b<12>\byou\b<60>\b(?:later|today|tomorrow|soon|as\s+soon\s+as|when|once|end\s+of|by|after|tonight|immediately|back|in\s+full|personally|purchase|cards?|expense|money|out\s+of)\b|)"
     R"(\b(?:i|we)(?:['’]ll|\s+will|\s+would|\s+shall|\s+can|\s+promise\s+to|\s+am\s+going\s+to|\s+intend\s+to)\b<15>\b(?:reimburse|refund|repay|pay)\s+you(?:\s+back)?\b|)"
     R"(\byou(?:['’]ll|\s+will)\s+(?:be|get)\s+(?:fully\s+|personally\s+|promptly\s+)?(?:reimbursed|refunded|repaid|paid\s+back|compensated)\b|)"
     R"(\b(?:reimbursement|refund)\b<25>\b(?:will\s+be|would\s+be|to\s+you|by\s+me|assured|guaranteed)\b<25>\b(?:later|today|tomorrow|end\s+of|soon|issued|made|processed|purchase|expense)\b|)"
     R"(\b(?:erstatte|erstatten|zurückzahlen|zahle)\b<25>\b(?:ihnen|dir|es|das)\b<15>\b(?:später|heute|zurück|geld|morgen)\b|)"
     R"(\bje\s+(?:te|vous)\s+(?:rembourse|rembourserai)\b|)"
     R"(\b(?:te|le|lhe)\s+(?:reembols\w+|devuelvo|devolver[eé]|pago\s+depois|reembolso)\b|)"
     R"(\b(?:la|ti|vi)\s+rimborso\b)"); }),
     true},

    // ---- Crypto fraud --------------------------------------------------------------------------
    {"crypto-seed", "Crypto fraud", "block", 100,
     "asks for, or discloses, a wallet recovery phrase",
     R"(\b(?:send|share|enter|provide|confirm|type|reveal|paste|give)\b[^.!?]{0,40}\b(?:your |the |my )?(?:seed|recovery|mnemonic|secret)\s*(?:phrase|words)\b|)"
     R"(\b(?:seed|recovery|mnemonic)\s*phrase\s*(?:is|:)\s*(?:\w+\s+){7,})",
     true},
    {"crypto-private-key", "Crypto fraud", "block", 100,
     "appears to contain a private key",
     R"(private key[^.]{0,20}(?:is|:)\s*[a-zA-Z0-9]{20,})",
     true},
    {"crypto-send-to-wallet", "Crypto fraud", "warn", 45,
     "tells the reader to send cryptocurrency to a wallet",
     pattern([] { return std::string_view(
     R"(\bpay\s+(?:it\s+|us\s+|me\s+)?in\s+(?:bitcoin|btc|crypto|usdt|ethereum|eth)\b|\b(?:remitted|paid|sent|settled)\s+in\s+(?:bitcoin|ethereum|usdt|crypto\w*|btc)\b<30>\bwallet\b|)"
     R"(\b(?:send|transfer|deposit|pay|remit|make\s+(?:a|the)\s+(?:payment|transfer))\b<60>\b(?:btc|bitcoins?|eth|ether(?:eum)?|usdt|tether|usdc|sol|solana|xrp|crypto(?:currency|currencies)?|coins?|monero|xmr|litecoin|ltc|trx|bnb)\b<60>\b(?:to|into)\s+(?:the|this|that|my|our|your|below|following|one\s+of|any\s+of)\b<25>\b(?:wallets?|address(?:es)?|account|below|following)\b|\b(?:give|donate)\b<12>\b(?:bitcoins?|btc|crypto\w*|usdt)\b|\b(?:pay|send|transfer|settle|remit)\b<40>\b(?:in|with|using)\s+(?:usdt|btc|bitcoins?|eth|crypto\w*|tether)\b<40>\b(?:wallet|address)\b|)"
     R"(\b(?:my|our|the|this|following)\s+(?:\w+\s+)?(?:btc|bitcoin|eth|ethereum|usdt|tether|crypto|monero|litecoin|ltc)\s+(?:wallet|address|wallet\s+address)\b|)"
     R"(\b(?:wallet|btc|bitcoin|usdt|eth)\s+address\b<12>(?::|\bis\b|\bbelow\b)|)"
     R"(\b(?:send|transfer|pay|deposit)\b<15>(?:<amount>|\d[\d,.]*\s?(?:btc|eth|usdt))<40>\b(?:in|of|worth\s+of|via|using|through)\b<12>\b(?:bitcoins?|btc|crypto\w*|usdt|ethereum|monero)\b|)"
     R"(\b(?:wallet|address)\b<30>\b(?:copy\s+(?:and|&)\s+paste|copy[- ]paste|case[- ]sensitive|send\s+(?:the\s+)?(?:payment|funds|coins))\b|)"
     R"(\b(?:überweis\w+|send\w+|zahl\w+|transferier\w+)\b<60>\b(?:bitcoins?|btc|usdt|krypto\w*)\b<60>\b(?:wallet|adresse|konto)\b|)"
     R"(\b(?:envoye[rz]|transfére[rz]|vire[rz]|verse[rz])\b<60>\b(?:bitcoins?|btc|usdt|crypto\w*)\b<60>\b(?:portefeuille|adresse)\b|)"
     R"(\b(?:env[íi]\w+|transfi?[er]\w+|deposit\w+|pag\w+|mand\w+)\b<60>\b(?:bitcoins?|btc|usdt|cripto\w*)\b<60>\b(?:billetera|carteira|direcci[óo]n|endere[çc]o|cartera)\b|)"
     R"((?:转|轉|汇|匯|发送|發送|充值)<12>(?:USDT|BTC|比特币|比特幣|泰达币|以太)<15>(?:地址|钱包|錢包)|)"
     R"((?:ビットコイン|仮想通貨|暗号資産|USDT)<20>(?:送金|送って|入金)|)"
     R"((?:비트코인|코인|가상화폐|테더)<20>(?:보내|송금|입금)<6>(?:하세요|주세요|주십시오|하십시오)|)"
     R"(\b(?:spend\w+|send\w+|überweis\w+|zahl\w+|schick\w+)\b<40>\b(?:bitcoin|btc|krypto\w*|usdt|eth)\b<40>\b(?:wallet|adresse|konto|an)\b|\bspende\w*\b<30>\b(?:bitcoins?|btc|krypto\w*)\b|)"
     R"(\b(?:doneer|stuur|betaal|maak)\b<30>\b(?:bitcoins?|btc|usdt|crypto\w*)\b<30>\b(?:wallet|adres|op|naar)\b|\b(?:geef|doneer)\b<12>\b(?:bitcoins?|btc|crypto\w*)\b|)"
     R"(\b(?:don|donne[rz]|envoye[rz]|payez|verse[rz])\b<30>\b(?:bitcoins?|btc|crypto\w*|usdt)\b<40>\b(?:adresse|association|portefeuille|coupon|compte)\b|)"
     R"(\b(?:don(?!e\b|t\b|ald|key)\w+|invi(?!t|sib|nc|gor)\w+|vers(?!ion|us|es?\b|atil)\w+|mand(?!at|ar|y\b)\w+)\b<40>\b(?:bitcoins?|btc|usdt|cripto\w*)\b<30>\b(?:wallet|indirizzo|portafoglio|o\s+su|questa)\b|\bdon[ai]\b<30>\b(?:bitcoins?|cripto\w*)\b|)"
     R"(\b(?:don(?!e\b|t\b|ald|key)\w+|env[íi](?!ron|ous|sion|able)\w+|pag(?!e\b|es\b|ed\b|er\b|ing)\w+|transfier\w+)\b<40>\b(?:bitcoins?|btc|usdt|cripto\w*|eth)\b<40>\b(?:billetera|wallet|direcci[óo]n)\b|\bdone\b<12>\b(?:bitcoins?|cripto\w*)\b|)"
     R"(\b(?:doe|envi(?!ron|ous|sion|able)\w+|pag(?!e\b|es\b|ed\b|er\b|ing)\w+|mand(?!at|ar|y\b)\w+)\b<40>\b(?:bitcoins?|btc|usdt|cripto\w*)\b<40>\b(?:carteira|endere[çc]o|wallet)\b|)"
     R"(\b(?:отправ\w+|перевед\w+|заплат\w+)\b<30>\b(?:btc|биткоин\w*|usdt|крипт\w+|эфир\w*)\b<30>\b(?:адрес|кошел[её]к)\b|)"
     R"((?:BTC|比特[币幣]|USDT|泰[达達][币幣])[\s\S]{0,4}捐|(?:[转轉]|打|付|捐)[\s\S]{0,12}(?:BTC|比特[币幣]|USDT|泰[达達][币幣]|ETH)|)"
     R"((?:ビットコイン|BTC|USDT|仮想通貨)[\s\S]{0,6}で?[\s\S]{0,6}(?:寄付|払|お支払い|送る|送って)[\s\S]{0,8}(?:お願い|ないと|ください|と)|)"
     R"((?:비트코인|코인|BTC|USDT|테더)[\s\S]{0,10}(?:으로|를|을)?[\s\S]{0,6}(?:후원|보내|송금|기부)[\s\S]{0,6}(?:하시면|시면|세요|주세요|않으면|지 ?않))"); }),
     true},
    {"crypto-double", "Crypto fraud", "warn", 65,
     "promises to send back more cryptocurrency than was sent",
     pattern([] { return std::string_view(
     R"(\b(?:send|deposit|transfer)\b<25>\b(?:btc|eth|bitcoin|usdt|sol|xrp|crypto\w*|coins?)\b<60>\b(?:back\s+(?:double|twice)|double\s+back|twice\s+(?:as\s+much|back)|doubled|2x|multipl\w+)\b|\b(?:put|deposit(?:ed)?|invest(?:ed)?)\b<15>\d<40>\b(?:came\s+back|withdrew|cashed\s+out|now\s+(?:have|worth))\b|)"
     R"(\b(?:turns?|turned|becomes?|became)\b<8>(?:<amount>|[$€£]?\d[\d,.]*)\s+into\s+(?:<amount>|[$€£]?\d)|)"
     R"(\bdouble\s+(?:their|your|his|the)\s+(?:contribution|deposit|investment|coins?)\b|)"
     R"(\b(?:double|triple|multiply|2x|3x|5x|10x|100x)\b<25>\b(?:your|ur|any|all)\s+(?:\w+\s+)?(?:btc|bitcoins?|eth|ethereum|crypto\w*|usdt|xrp|sol|deposit|investment)\b<60>\b(?:in|within|back|today|now|hours?|days?|send|guarante\w+|instantly|click|platform)\b|\bdoubles?\s+your\s+(?:bitcoins?|crypto|money|coins?|deposit|investment)\b<20>\b(?:every|each|in|within|overnight)\b|\b(?:put\s+in|deposit|invest|pay\s+in)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:take\s+out|withdraw|cash\s+out|receive)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:turns?\s+into|becomes?|grows?\s+to)\b[^!?]{0,20}\d{3,}|\d{2,}[^.!?]{0,12}\b(?:turns?\s+into|becomes?|grows?\s+to)\b[^.!?]{0,25}\b(?:month|week|days?)\b[^!?]{0,12}\d[.\d]{3,}|)"
     R"(\b(?:send|deposit|transfer)\b<60>\b(?:receive|get|sent|return|returned|earn)\b<25>\b(?:double|twice|triple|2x|back\s+double|\d+\s?(?:btc|eth|xrp|usdt)\s+back|(?:two|three|ten)\s+times|x2)\b|)"
     R"(\b(?:will|be|automatically)\s+(?:be\s+)?(?:doubled|tripled|multiplied|returned\s+twice|sent\s+back\s+double)\b<60>\b(?:btc|bitcoins?|eth|crypto\w*|coins?|usdt|xrp|wallet|hours|deposit)\b|)"
     R"(\b(?:btc|bitcoins?|eth|crypto\w*|xrp|usdt)\b<60>\b(?:be|get|gets|is)\s+(?:instantly\s+|automatically\s+)?(?:doubled|tripled|multiplied)\b|)"
     R"(\bverdoppel\w+\b<30>\b(?:bitcoins?|btc|krypto\w*|einzahlung|einsatz|investition)\b|)"
     R"(\b(?:doublez|doubler)\b<30>\b(?:bitcoins?|btc|crypto\w*|dépôt|mise|investissement)\b|)"
     R"((?:翻倍|双倍返还|雙倍返還)<15>(?:币|幣|BTC|USDT|投资|投資)|)"
     R"(\b(?:send\w*|schick\w*|überweis\w*|einzahl\w*)\b<40>\b(?:btc|bitcoin\w*|eth|usdt|krypto\w*)\b<60>\b(?:doppelt\w*|zurück|zweifach\w*|verdoppel\w*)\b|\b(?:einzahlen|einsetzen|investieren)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:auszahlen|abheben|doppelte\s+wert|das\s+doppelte)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:werden|wird)\b[^!?]{0,20}\d{3,}|\d{2,}[^.!?]{0,12}\b(?:werden|wird)\b[^.!?]{0,25}\b(?:monat|woche|tagen?)\b[^!?]{0,12}\d[.\d]{3,}|\b(?:sende\w*|schick\w*|überweis\w*)\b<30>\b(?:btc|eth|bitcoins?|usdt|krypto\w*|coins?)\b<60>\b(?:doppelt\w*|verdoppel\w*|zweifach\w*)\b|)"
     R"(\b(?:stuur|stort)\b<30>\b(?:btc|bitcoins?|eth|usdt|crypto\w*)\b<60>\b(?:dubbele?|verdubbel\w+|tweevoud)\b|\bverdubbel\w*\b<12>\b(?:bitcoins?|geld|inleg)\b<8>\b(?:in\s+een|elke|binnen)\b|\b(?:leg|stort|investeer)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:neem|ontvang|haal)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:wordt|worden)\b[^!?]{0,20}\d{3,}|\d{2,}[^.!?]{0,12}\b(?:wordt|worden)\b[^.!?]{0,25}\b(?:maand|week|dagen?)\b[^!?]{0,12}\d[.\d]{3,}|)"
     R"(\b(?:envoye[rz]|verse[rz]|dépose[rz])\b<30>\b(?:btc|bitcoins?|eth|usdt|crypto\w*)\b<60>\b(?:doubles?|deux\s+fois|triple)\b|\bdouble\w*\b<8>\b(?:bitcoins?|mise|capital)\b<8>\b(?:en\s+une|chaque|par)\b|\b(?:placez|déposez|investissez|versez)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:retirez|recevez|touchez|encaissez)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:deviennent|devient)\b[^!?]{0,20}\d{3,}|\d{2,}[^.!?]{0,12}\b(?:deviennent|devient)\b[^.!?]{0,25}\b(?:mois|semaine|jours?)\b[^!?]{0,12}\d[.\d]{3,}|)"
     R"(\b(?:invi(?!t|sib|nc|gor)\w+|mand(?!at|ar|y\b)\w+|deposit\w+|vers(?!ion|us|es?\b|atil)\w+)\b<30>\b(?:btc|bitcoins?|eth|usdt|cripto\w*)\b<60>\b(?:doppio|raddoppi\w+|triplo)\b|\braddoppi\w*\b<8>\b(?:bitcoin|soldi|capitale|investimento)\b<8>\b(?:in|ogni)\b|\b(?:metta|versi|investa|depositi)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:ritira|riceve|preleva)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:diventano|diventa)\b[^!?]{0,20}\d{3,}|\d{2,}[^.!?]{0,12}\b(?:diventano|diventa)\b[^.!?]{0,25}\b(?:mese|settimana|giorni)\b[^!?]{0,12}\d[.\d]{3,}|)"
     R"(\b(?:env[íi](?!ron|ous|sion|able)\w+|deposit\w+|mand(?!at|ar|y\b)\w+)\b<30>\b(?:btc|bitcoins?|eth|usdt|cripto\w*)\b<60>\b(?:doble|duplic\w+|el\s+triple)\b|\bduplic\w+\b<20>\b(?:inversi[óo]n|dinero|capital|bitcoins?)\b<12>\b(?:cada|en\s+una?|en\s+siete|en\s+pocos)\b|\b(?:ponga|invierta|deposite|ingrese)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:retire|reciba|cobre|saque)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:se\s+convierten\s+en|se\s+convierte\s+en|se\s+vuelven)\b[^!?]{0,20}\d{3,}|\b(?:env[íi]\w+|mand\w+|deposit\w+)\b<30>\b(?:btc|eth|bitcoins?|usdt|criptos?)\b<60>\b(?:doble|duplic\w+|multiplic\w+)\b|)"
     R"(\b(?:envi(?!ron|ous|sion|able)\w+|deposit\w+|mand(?!at|ar|y\b)\w+)\b<30>\b(?:btc|bitcoins?|eth|usdt|cripto\w*)\b<60>\b(?:dobro|dobrado|triplo)\b|\b(?:coloque|invista|deposite|ponha)\b[^.!?]{0,20}\d+[^.!?]{0,40}\b(?:saque|receba|retire|levante)\b[^.!?]{0,12}\d|\d{2,}[^.!?]{0,12}\b(?:viram|tornam-se|se\s+tornam)\b[^!?]{0,20}\d{3,}|\b(?:envi\w+|mand\w+|deposit\w+)\b<30>\b(?:btc|eth|bitcoins?|usdt|criptos?)\b<60>\b(?:dobro|duplic\w+|multiplic\w+|recebe\s+1)\b|)"
     R"(\b(?:отправ\w+|перевед\w+|внес\w+)\b<25>\b(?:btc|биткоин\w*|usdt|eth|крипт\w+)\b<50>\b(?:вдвое|в\s+два\s+раза|удво\w+|двойн\w+)\b|\b(?:положи|вложи|внеси)\b<8>\d+<30>\b(?:забери|получи|сними)\b<6>\d|\bпревращаются\s+в\s+\d|)"
     R"((?:BTC|比特[币幣]|USDT|ETH|[币幣])[\s\S]{0,12}(?:返[还還]|送|得到)?[\s\S]{0,4}(?:[双雙]倍|翻倍|[两兩]倍)|投[\d三五一百千万]+[\s\S]{0,8}(?:能)?(?:提|取|拿)[\d九一百千万]+|[元万萬块塊百千]一?[个個]?月[变變][\d五一百千万]|)"
     R"((?:BTC|ビットコイン|USDT|ETH|仮想通貨)[\s\S]{0,14}(?:2倍|二倍|倍にして|倍返)|(?:仮想通貨|コイン)[\s\S]{0,8}(?:週間|日|ヶ月)[\s\S]{0,4}倍|入れるだけで[\s\S]{0,10}万円|[か一]月で[\s\S]{0,4}万円に|(?:ビットコイン|イーサ|ETH|BTC|仮想通貨|コイン)[\s\S]{0,24}(?:倍|二倍|2倍)[\s\S]{0,8}(?:返|戻|なり|に)|)"
     R"((?:BTC|비트코인|코인|USDT)[\s\S]{0,16}(?:두 ?배|2배|배로)|만 ?원 ?넣으면[\s\S]{0,10}만 ?원|만 ?원이 ?한 ?달에|)"
     R"(\b(?:amount|whatever|any|every|each|one|coin|btc|eth|bitcoin|<amount>)\b<40>\b(?:deposit|send|put\s+in|transfer|invest)\b<40>\b(?:comes?\s+back|come\s+back|returned?|back\s+to\s+you|receive|get\s+back|paid\s+back|sent\s+back)\b<25>\b(?:doubled?|twice|twofold|two|2x|200\s?%|tripled?|times)\b|\b(?:send|deposit|transfer|give)\b<15>\b(?:one|1|<amount>|\d[\d.]*\s?(?:btc|eth))\b<25>\b(?:receive|get|have)\b<12>\b(?:two|2|double|\d[\d.]*\s?(?:btc|eth))\s+(?:\w+\s+)?back\b|)"
     R"(\b(?:eingezahlt|eingelegt|investiert|einzahl\w+)\b<30>\b(?:rausbekommen|zurückbekommen|ausgezahlt|das\s+doppelte)\b|)"
     R"(\benvoyez\b<25>\b(?:eth|btc|usdt|bnb|sol)\b<30>\brecevez\b|\b(?:euros?|€|\$)\s+sont\s+devenus\b|)"
     R"(\bfa(?:r)?\s+fruttare\b<12>\d<25>\d|)"
     R"(\b(?:met[íi]|puse|invert[íi])\b<15>\d<40>\b(?:me\s+devolvieron|recib[íi]|saqu[ée])\b|)"
     R"(\bdevolver\s+em\s+dobro\b|\b(?:meti|coloquei|investi)\b<12>\d<50>\b(?:tinha|recebi|saquei)\b<12>\d|)"
     R"(<doubling>|\b(?:отправь\w*|пришли\w*)\b<50>\b(?:в\s+два\s+раза|вдвое|x2|удво\w+)\b|(?:이더리움|비트코인|코인|지갑)[\s\S]{0,24}(?:두 ?배|2배)[\s\S]{0,6}(?:돌려|드립|지급)|)"
     R"(\b(?:envoy\w+|dépos\w+|transfér\w+)\b<30>\b(?:btc|eth|bitcoins?|usdt|cryptos?)\b<60>\b(?:double\w*|deux\s+fois)\b|\btransform\w+\s+\d+<20>\ben\s+\d+|)"
     R"(\b(?:invi\w+|mand\w+|deposit\w+)\b<30>\b(?:btc|eth|bitcoin|usdt|cripto\w*)\b<60>\b(?:doppi\w+|raddoppi\w+)\b|\bho\s+(?:messo|investito)\b<12>\d<40>\b(?:prelevato|ricevuto|guadagnat\w)\b|)"
     R"((?:[转轉]|打|[发發]送|存|投)[\s\S]{0,12}(?:BTC|ETH|USDT|比特[币幣]|以太|[币幣])[\s\S]{0,24}(?:[双雙]倍|翻倍|两倍|兩倍|返[还還]))"); }),
     true},
    {"crypto-giveaway", "Crypto fraud", "warn", 55,
     "lures with a crypto giveaway, airdrop or bonus to claim",
     pattern([] { return std::string_view(
     R"(\b(?:picked|chosen|selected)\s+for\b<15>\b(?:giveaway|airdrop)\b|)"
     R"(\b(?:claim|grab|collect|get|receive|redeem|take)\b<25>(?:\b(?:free|bonus)\b<12>|\d[\d.,]*\s?)\b(?:btc|bitcoins?|eth|ethereum|crypto\w*|tokens?|coins|usdt|xrp|sol|doge|nfts?)\b|)"
     R"(\b(?:btc|bitcoin|eth|ethereum|crypto\w*|xrp|doge|token|coin|usdt|solana)\s+(?:\w+\s+)?(?:give-?aways?|air-?drops?|bonus(?:es)?|promo(?:tion)?)\b<60>\b(?:claim|join|join|take\s+part|participate|live|ends|now|today|register|connect|open|wallet|for\s+you)\b|)"
     R"(\b(?:give-?away|air-?drop)\b<60>\b(?:btc|bitcoins?|eth|ethereum|crypto\w*|xrp|doge|tokens?|coins|usdt|solana)\b<60>\b(?:claim|join|take\s+part|participate|live|ends|now|today|register|connect|wallet|first)\b|)"
     R"(\b(?:claim|connect)\b<60>\bair-?drop\b|\bair-?drop\b<40>\b(?:live|open|ends|waiting|claim\w*)\b|)"
     R"(\b(?:sign\s?up|register|join|open\s+an\s+account|deposit)\b<40>\b(?:bonus|reward)\b<25>\b(?:in|of)\b<10>\b(?:btc|bitcoins?|eth|crypto\w*|usdt|tokens?)\b|)"
     R"(\b(?:automatic|cloud)\s+(?:cloud\s+)?(?:bitcoin|btc|crypto\w*)\s+(?:mining|collecting|earnings)\b<80>\b(?:days|withdraw|funds|account|balance)\b|)"
     R"(\btokens?\b<60>\bclaim\s+(?:your|now|it|them|rewards?)\b|)"
     R"(\b(?:claim|collect)\s+(?:your\s+|these\s+|the\s+)?rewards?\b<80>\b(?:wallet|tokens?|season|on-?chain)\b|)"
     R"(\b(?:crypto|bitcoin|btc|eth|ethereum|token|xrp|doge|usdt)\s+(?:air-?drop|giveaway)\b<60>\b(?:game|event|participate|claim|join\s+now|win)\b|)"
     R"(\bwin\s+\d[\d,.]*\s+(?:eth|btc|doge|usdt|xrp|sol)\b|)"
     R"(\b(?:withdraw(?:al|als|ing)?|recover(?:y|ed)?|claims?|distribution|repayment)\b<50>\b(?:digital\s+assets?|crypto(?:currency)?|in-kind|assets|funds)\b<60>\b(?:ftx|celsius|voyager|blockfi|mt\.?\s?gox|terraform|creditors?|customers?\s+(?:claim|account)|self-custody|designated\s+wallet|external\s+wallet)\b|)"
     R"(\b(?:ftx|celsius|voyager|blockfi|mt\.?\s?gox)\b<80>\b(?:withdraw\w*|claim|eligible|distribution)\b<60>\b(?:your|account|wallet|now|ready)\b|)"
     R"(\b(?:claim|collect|redeem|withdraw|secure|receive|get|eligible\s+for|qualif\w+\s+for|unlock)\b<30>\b(?:your\s+|ur\s+|the\s+|our\s+|this\s+|an?\s+|free\s+|exclusive\s+|special\s+|\d[\d,.]*\s+)+(?:\w+\s+){0,3}(?:air-?drops?|(?:token|coin|crypto|nft|btc|bitcoin|eth|ethereum|xrp|usdt|sol|bnb|defi|staking|claw|genesis|community|rlusd|algo)\s+(?:rewards?|allocations?|bonus(?:es)?|distributions?|giveaways?|drops?|grants?|incentives?|cash\s?back|benefits?))\b|)"
     R"(\b(?:air-?drop|token\s+(?:distribution|allocation)|reward\s+(?:distribution|program)|allocation|cash\s?back\s+reward)\b<60>\b(?:claim\s+(?:your|now|here)|eligible|eligibility|qualified|connect\s+(?:your\s+)?wallet|link\s+below|wallets?\s+(?:is|are)|selected|exclusive(?:ly)?|tailored|loyal\w*|your\s+wallet)\b|)"
     R"(\b(?:eligible|qualified|selected|chosen|whitelisted)\b<45>(?:\b(?:air-?drop|(?:token|coin|crypto)\s+(?:reward|allocation|distribution|bonus)|claw\s+distribution|free\s+(?:tokens?|coins?|crypto|bitcoin|eth|nft)|(?:btc|eth|usdt|xrp|nft)\s+(?:reward|bonus|giveaway|mint))|\$[A-Z]{3,6}\s+(?:allocation|distribution|tokens?))\b|)"
     R"(\b(?:collect|claim|secure)\s+your\s+(?:\w+\s+)?(?:allocation|tokens?|share|airdrop|crypto|coins?|bitcoins?|btc|usdt|mint|nft)\b|)"
     R"(\b(?:free|bonus|complimentary)\s+(?:bitcoins?|btc|eth|ethereum|crypto\w*|tokens?|usdt|xrp|nfts?)\b<30>\b(?:claim|connect|sign\s?up|limited\s+time)\b|)"
     R"(\b(?:you\s+(?:have|['’]ve)\s+(?:received|earned|been\s+(?:sent|credited|awarded))|your\s+(?:account\s+)?balance|has\s+been\s+(?:sent|credited|transferred))\b<40>(?:\d[\d,.]*\s?(?:btc|eth|usdt|xrp|bitcoins?)\b|\b(?:bitcoins?|btc|usdt|eth)\b)<60>\b(?:claim|withdraw\w*|confirm|log\s?in|click|payout)\b|)"
     R"(\b(?:mining|cloud\s+mining|bitcoin\s+mining|mined\s+bitcoins?)\b<60>\b(?:withdraw\w*|payout|accrued|accumulated|inactive|your\s+account|balance)\b|)"
     R"(\b(?:holders?|xrp|ripple|token|hodl\w*)\s+(?:\w+\s+){0,3}(?:reward|incentive|loyalty|staking|benefit|allocation)\s+(?:program|initiative|event|campaign|distribution)\b|)"
     R"(\b(?:earn|receive|get)\s+(?:up\s+to\s+)?\d+\s?%<20>\b(?:bonus\w*|rewards?|benefits?|apy|yield|returns?)\b<25>\b(?:xrp|btc|bitcoin|eth|crypto|holdings?|staking|tokens?|wallet)\b|)"
     R"(\b(?:early|exclusive|community)\s+(?:allocation|airdrop|access\s+allocation)\b|)"
     R"(\b(?:erhalten|abholen|sichern|beanspruchen|auszahl\w+)\b<60>\b(?:airdrop|(?:gratis|kostenlose)[- ](?:token|coins|bitcoins?))\b|)"
     R"(\b(?:ihr(?:em|es)?|dein(?:em|es)?)\s+(?:bitcoin|krypto)-?kontos?\b|\b(?:bitcoins?|btc)\s+auf\s+ihrem\b|)"
     R"(\b(?:réclame[rz]|récupére[rz]|recevoir|recevez)\b<50>\b(?:airdrop|tokens?\s+gratuits?|bitcoins?\s+gratuits?|récompenses?\s+crypto)\b|)"
     R"(\b(?:reclam\w+|recib\w+|resgat\w+|receb\w+|reivindi\w+)\b<50>\b(?:airdrop|tokens?\s+gratis|tokens?\s+gratuitos?|bitcoins?\s+gr[áa]tis|cripto\w*\s+gr[áa]tis)\b|)"
     R"((?:领取|領取|免费|免費)<15>(?:空投|代币|代幣|USDT|比特币|比特幣)|)"
     R"((?:エアドロップ)<30>(?:受け取|請求|参加)|)"
     R"((?:에어드랍|에어드롭)<30>(?:받으|신청|참여)|)"
     R"(\b(?:handing\s+out|giving\s+(?:away|back|out)|distribut\w+|airdropp\w+|sharing|gifting)\b<25>\b(?:tokens?|free\s+coins|btc|bitcoins?|eth|ethereum|usdt|crypto\w*|nfts?)\b<40>\b(?:early|community|supporters?|holders?|users|everyone|you|first|wallets?|free|followers)\b|\b(?:eligible|selected|whitelisted|qualified?|entitled)\b<20>\b(?:air-?drop|token|coins?|bonus\s+coins)\b)"); }),
     true},
    {"crypto-wallet-validate", "Crypto fraud", "warn", 55,
     "asks the reader to connect, validate or synchronise a crypto wallet",
     pattern([] { return std::string_view(
     R"(\b(?:connect|link|sync\w*|validate|verify|restore|import|rectify)\b<15>\b(?:your|ur|the)\s+(?:\w+\s+)?wallet\b<60>\b(?:claim|avoid|fix|keep|receive|airdrop|error|upgrade|continue|lose)\b|\b(?:connect|validate|verify|synchroni[sz]e|sync|re-?connect|link|import|restore|rectify|migrate|authenticate|upgrade|update|unlock|re-?validate|secure|activate|confirm|whitelist)\b<12>\b(?:your|ur|my)\s+(?:[\w-]+\s+){0,3}(?:wallet|ledger\s+(?:device|live|wallet|account|nano)|metamask|trezor|phantom|trust\s?wallet|exodus|coinbase|recovery\s+phrase|seed\s+phrase|secret\s+phrase)\b|)"
     R"(\bwallet\b[\s\S]{0,40}\b(?:link|connect|pair)\s+(?:it|yours|them)\b<20>\b(?:sync|confirm|approve|validate)\b|)"
     R"(\b(?:verify|validate)\s+(?:their|all)\s+wallets?\b|\b(?:ledger|trezor|electrum|metamask|phantom|exodus)\b[\s\S]{0,160}\b(?:(?:firmware|security|mandatory|required)\s+(?:update|upgrade)|(?:update|upgrade)\s+(?:is\s+|must\s+be\s+)?(?:required|mandatory|completed)|proceed\s+with\s+the\s+update)\b|\bactivate\b<25>\bstaking\b|)"
     R"(\bback\s?up\s+your\s+(?:recovery|seed|secret)\b|)"
     R"(\brecovery\s+phrase\b<60>\b(?:attention|backed\s+up|back\s+(?:it\s+)?up|expir\w+|reassigned|at\s+risk|update)\b|)"
     R"(\bhardware\s+wallet\b<100>\bupdate\b|)"
     R"(\b(?:security|data)\s+breach\b<120>\b(?:wallet\s+associated\s+with\s+your|your\s+(?:\w+\s+){0,2}(?:wallet|crypto\w*|seed|digital\s+assets))\b|)"
     R"(\b(?:wallet|metamask|ledger\s+live|trezor|trust\s?wallet|phantom|coinbase|exodus|kraken|binance)\b<30>\b(?:validation|verification|synchroni[sz]ation|migration|authentication|kyc|security\s+update|firmware\s+(?:update|upgrade)|upgrade|suspension)\b<30>\b(?:required|needed|process|pending|complete|must|mandatory|alert|notice)\b|)"
     R"(\b(?:ledger\s+(?:live|device|wallet|nano|recover|user|customer|security)|your\s+ledger|trezor|metamask|crypto\s+wallet|hardware\s+wallet)\b<80>\b(?:firmware|security|mandatory|critical|important|urgent)\s+(?:update|upgrade|patch|migration|scan|notice|breach|verification)\b|)"
     R"(\bfirmware\s+(?:upgrade|update)\b<60>\b(?:required|mandatory|access)\b<40>\b(?:ledger|trezor|wallet)\b|)"
     R"(\b(?:ledger|wallet|trezor)\b<25>\b(?:scan\s+your\s+device|security\s+scan|identification\s+(?:not|required)|data\s+breach)\b|)"
     R"(\b(?:update|upgrade|activate|patch)\s+(?:your|the)\s+(?:\w+\s+)?firmware\b<80>\b(?:wallet|ledger|trezor|assets|crypto\w*|funds|recovery)\b|)"
     R"(\byour\s+(?:\w+\s+){0,2}(?:wallet|metamask|ledger|trezor)\b<50>\b(?:not\s+(?:yet\s+)?(?:been\s+)?(?:verified|validated|updated|synced)|pending\s+verification|unverified|suspended|restricted|at\s+risk|compromised|deactivated|disabled|limited|locked|due\s+for\s+an\s+update)\b|)"
     R"(\b(?:unverified|unauthenticated|unvalidated)\s+wallets?\b|)"
     R"(\b(?:recovery|seed|secret|mnemonic|backup)\s+phrases?\b<50>\b(?:exposed|compromised|breach|leaked)\b|)"
     R"(\b(?:confirm|verify|check|validate|enter|import|restore)\s+(?:\w+\s+){0,3}(?:recovery|seed|secret|mnemonic|backup)\s+phrase\b|)"
     R"(\b(?:access|log\s?in\s+to|sign\s?in\s+to|open)\s+your\s+(?:\w+\s+)?(?:wallet|metamask)\s+(?:account\s+)?(?:here|below|now|and|to)\b<40>\b(?:verify|verification|confirm|link|claim|complete|secure)\b|)"
     R"(\b(?:verbinden|verifizieren|validieren|synchronisieren|bestätigen|aktualisieren)\s+Sie<30>\b(?:wallet|ledger|metamask|trezor)\b|)"
     R"(\b(?:wallet|ledger|metamask|trezor)\b<30>\b(?:verifizieren|validieren|synchronisieren|bestätigen|aktualisieren|verbinden)\b|)"
     R"(\b(?:connecte[rz]|vérifie[rz]|valide[rz]|synchronise[rz])\b<30>\b(?:portefeuille|wallet|ledger|metamask)\b|)"
     R"(\b(?:conect\w+|verifi\w+|valid\w+|sincroni\w+)\b<30>\b(?:su|tu|sua|a|la)\s+(?:\w+\s+)?(?:billetera|carteira|wallet|metamask|ledger)\b|)"
     R"((?:连接|連接|验证|驗證|同步)<8>(?:钱包|錢包)|)"
     R"((?:ウォレット)<12>(?:接続|認証|検証|同期)|)"
     R"(\b(?:wallet|ledger|trezor|metamask)\b<40>\b(?:verifiziert|bestätigt|validiert|aktualisiert|synchronisiert|überprüft)\b<15>\bwerden\b|\b(?:geben\s+sie|gib|tragen\s+sie)\b<40>\b(?:12|24|zwölf|vierundzwanzig)\b<12>\b(?:wörter|worte|wort)\b|\b(?:wiederherstellungs|seed)-?(?:phrase|wörter)\b<40>\b(?:ein|eingeben|bestätig\w+)\b|)"
     R"(\b(?:herstelzin|herstelwoorden|geheime\s+zin)\b|\b(?:bewaar|voer|typ|stuur|vul|geef)\b<12>\b(?:de|uw|je)\s+(?:12|24)\s+woorden\b|)"
     R"(\b(?:entrez|saisissez|envoyez|communiquez|notez)\b<12>\b(?:les|vos|tes)\s+(?:12|24)\s+mots\b|\b(?:portefeuille|wallet|ledger|metamask)\b<40>\b(?:doit\s+être|vérifiée?|validée?|synchronis\w+)\b|)"
     R"(\binser\w+\b<40>\b(?:12|24)\s+parole\b|)"
     R"(\b(?:escrib[ae]|introdu(?:zca|ce)|ingres[ae]|env[íi][ea])\b<12>\b(?:las|sus|tus)\s+(?:12|24)\s+palabras\b|\b(?:billetera|wallet|metamask|ledger)\b<40>\b(?:ser[áa]|debe)\b<20>\b(?:suspendida|bloqueada|verific\w+)\b|)"
     R"(\bfrase\s+(?:de\s+recupera[çc][ãa]o|secreta|semente)\b(?![^.!?]{0,60}\b(?:nadie|ningu[ée]m|jam[áa]i?s|nunca)\b)|\b(?:digite|insira|informe|envie|escreva)\b<12>\b(?:as|suas|tuas)\s+(?:12|24)\s+palavras\b|)"
     R"(\b(?:сид-?фраз\w+|seed-?фраз\w+|фраз\w+\s+восстановления|мнемоническ\w+\s+фраз\w+)\b<30>\b(?:введ\w+|12|24|слов|подтверд\w+)\b|\b(?:введ\w+|подтверд\w+)\b<20>\b(?:сид-?фраз\w+|фраз\w+\s+восстановления)\b|)"
     R"((?:助[记記][词詞]|恢[复復][词詞]|私[钥鑰])[\s\S]{0,16}(?:[验驗][证證]|[输輸]入|[备備]份|否[则則])|(?:[验驗][证證]|[输輸]入)[\s\S]{0,4}助[记記][词詞]|)"
     R"((?:リカバリーフレーズ|シードフレーズ|秘密鍵|復元フレーズ)[\s\S]{0,14}(?:入力|確認|必要)|)"
     R"((?:복구 ?(?:문구|구문)|니모닉|시드 ?(?:문구|구문)|지갑)[\s\S]{0,16}(?:입력|인증)[\s\S]{0,16}(?:않으면|하세요|필요|단어)|)"
     R"(\b(?:all|every|each|users?|holders?|customers?|members?|you)\b<15>\b(?:must|need\s+to|have\s+to|are\s+(?:asked|required)\s+to|should)\b<15>\b(?:sync\w*|re-?sync\w*|migrat\w+|valid\w+|verif\w+|connect\w*|re-?connect\w*|updat\w+|upgrad\w+|link|import)\b<12>\b(?:their|your|the)\s+(?:\w+\s+)?wallets?\b)"); }),
     true},
    {"crypto-btc-address", "Crypto fraud", "warn", 30,
     "contains a cryptocurrency address, to which a payment cannot be called back",
     R"(\b(?:bc1|tb1)[ac-hj-np-z02-9]{25,87}\b|)"
     R"(\b[13][a-km-zA-HJ-NP-Z1-9]{26,34}\b(?:\s|$|[.,;:!?)\]"'])|)"
     R"(\b0x[a-fA-F0-9]{40}\b|)"
     R"(\bT[a-km-zA-HJ-NP-Z1-9]{33}\b|)"
     R"(\b(?:ltc1[ac-hj-np-z02-9]{25,60}|4[0-9AB][a-km-zA-HJ-NP-Z1-9]{93})\b)",
     true},
    {"crypto-guaranteed", "Crypto fraud", "warn", 50,
     "promises guaranteed returns on an investment",
     pattern([] { return std::string_view(
     R"(\b(?:guaranteed|zero\s+risk|no\s+risk|risk-?free|never\s+lose|can['’]?t\s+lose)\b<60>\b(?:bitcoin|crypto|usdt|trading|platform|withdraw\w*|robot|bot|deposit)\b|)"
     R"(\b(?:put\s+in|invest|deposit)\b<25>\d<40>\b(?:definitely|guaranteed|surely|certain\w*)\b<25>\b(?:get|earn|receive|make|out)\b|\b(?:promise|guarantee)\s+you\b<25>\d+\s?(?:%|percent|per\s+cent)|)"
     R"(\b(?:guaranteed?|assured|certain|fixed|steady|consistent)\b<25>\b(?:returns?|profits?|income|roi|earnings|gains?|payouts?|winnings|daily\s+profit)\b<40>\b(?:(?:invest\w*|trad\w*|daily|weekly|monthly|crypto\w*|bitcoin|forex|percent|capital|deposit|day|week|month)\b|\d+\s?%)|\bpromise\s+(?:you\s+)?(?:a\s+)?(?:steady|fixed|sure)\b<20>\d+\s+?%|\breturns?\s+(?:are|is)\s+(?:assured|certain|secured)\b|\bguaranteed\s+returns?\b|\b\d+\s+?%\s+(?:daily|every\s+day|a\s+day)\b<30>\b(?:paid|return|profit|invest\w*|deposit)\b|\b(?:algori\w+|bots?|robots?|roboter|strateg\w+|stratég\w+|system\w*|sistema)\b[^.!?]{0,30}\b(?:never\s+loses?|cannot\s+lose|without\s+losses)\b|\b(?:success|profit|income)\b[^.!?]{0,4}\b(?:guaranteed|assured)\b|)"
     R"(\b(?:invest\w*|trad\w*|crypto\w*|bitcoin|forex|deposit)\b<60>\b(?:guaranteed?|assured)\b<25>\b(?:returns?|profits?|income|roi|earnings|gains?|payouts?)\b|)"
     R"(\b(?:earn|make|profit|returns?|roi|gain|receive|yield)\b<25>\b(?:up\s+to\s+|over\s+|at\s+least\s+|of\s+)?\d[\d.,]*\s?(?:%|percent)<15>\b(?:daily|per\s+day|a\s+day|every\s+day|weekly|per\s+week|every\s+week|a\s+week|in\s+(?:\d+|24)\s+(?:hours|days)|monthly|per\s+month)\b|)"
     R"(\b(?:earn|make|making|earning|generate|pocket)\b<25><amount><20>\b(?:daily|per\s+day|a\s+day|every\s+day|weekly|per\s+week|a\s+week|every\s+week|in\s+(?:just\s+)?\d+\s+(?:hours?|days?)|per\s+hour|an\s+hour)\b<60>\b(?:invest\w*|trad\w*|crypto\w*|bitcoin|forex|platform|app|bot|system|software|ai|automated)\b|)"
     R"(\b(?:invest\w*|trad\w*|crypto\w*|bitcoin|forex|bot)\b<60>\b(?:earn|make|making|earning|generat\w+|pocket\w*)\b<25><amount><20>\b(?:daily|per\s+day|a\s+day|every\s+day|weekly|per\s+week|a\s+week|every\s+week|in\s+(?:just\s+)?\d+\s+(?:hours?|days?))\b|)"
     R"(\b(?:garantiert\w*|sicher\w*)\b<20>\b(?:rendite\w*|gewinne?|ertr[aä]g\w*|einkommen)\b|)"
     R"(\b(?:rendements?|gains?|bénéfices|revenus?|profits?)\s+(?:\w+\s+)?garantis?\b|)"
     R"(\b(?:ganancias?|rendimientos?|rentabilidad|ingresos|lucros?|ganhos?|retornos?|rendimentos?)\s+(?:\w+\s+)?(?:garantizad[oa]s?|garantid[oa]s?|asegurad[oa]s?)\b|)"
     R"(\bgegarandeerde?\s+(?:rendement|winst|inkomsten|opbrengst)\b|)"
     R"((?<![不没無无未])(?:保证|保證|稳定|穩定|稳赚|穩賺|高额|高額)<6>(?:收益|回报|回報|盈利|利润|利潤|不赔|不賠)|)"
     R"((?:必ず|確実に|絶対に?)<8>(?:儲か|稼げ|利益)|)"
     R"((?:元本保証(?!では|は|され|の\w{0,4}ない)|月利\d|日利\d)|)"
     R"((?:수익|원금)<6>(?:보장(?!하지|되지|이|은|을)|확정)|)"
     R"(\b(?:täglich|pro\s+tag|am\s+tag|monatlich|pro\s+monat|im\s+monat|wöchentlich)\b<25>\b\d+\s?(?:%|prozent)<20>\b(?:gewinn\w*|rendite|zinsen|profit)\b|\b(?:verdien\w+|verdient)\b<20>(?:<amount>|\beuro\b)<20>\b(?:im\s+monat|pro\s+monat|am\s+tag|pro\s+tag|die\s+woche|täglich)\b<50>\b(?:krypto\w*|plattform|trading|bitcoin|invest\w*|system|bot)\b|\b(?:algori\w+|bots?|robots?|roboter|strateg\w+|stratég\w+|system\w*|sistema)\b[^.!?]{0,30}\b(?:ohne\s+verlust\w*|verliert\s+nie|nie\s+verlust)\b|\b(?:erfolg|gewinn|rendite)\b[^.!?]{0,4}\b(?:garantiert|sicher)\b|)"
     R"(\bverdien\b<15>\d+\s?%<10>\bper\s+(?:dag|week|maand)\b|\b(?:winst|rendement|inkomen)\b(?!<12>\b(?:niet|geen)\b)<12>\bgegarandeerd\b|\bvast\s+rendement\b<40>\bgegarandeerd\b|\b(?:krijgt|verdient)\b<12>\d[\d.,]*<12>\bper\s+(?:maand|dag)\b<30>\bsinds\b|\b(?:algori\w+|bots?|robots?|roboter|strateg\w+|stratég\w+|system\w*|sistema)\b[^.!?]{0,30}\b(?:verliest\s+nooit|nooit\s+verlies)\b|\b(?:succes|winst|rendement)\b[^.!?]{0,4}\b(?:gegarandeerd|verzekerd)\b|)"
     R"(\b(?:gagne[rz]?|gains?|rendement|rapporte)\b<20>\d+\s?%<15>\b(?:par\s+(?:jour|mois|semaine)|quotidien\w*|garanti\w*)|\b(?:gains?|profits?|bénéfices?|rendement|capital|placement)\b(?!<25>\b(?:pas|non|ni)\b)<25>\b(?:garantis?|assurée?)\b|\b(?:touche|gagne|perçoit)\b<12><amount><15>\bpar\s+(?:mois|jour|semaine)\b<40>\b(?:depuis|grâce)\b|\b(?:algori\w+|bots?|robots?|roboter|strateg\w+|stratég\w+|system\w*|sistema)\b[^.!?]{0,30}\b(?:ne\s+perd\s+jamais|sans\s+perte)\b|\b(?:succès|gain|profit)\b[^.!?]{0,4}\b(?:garantis?|assurés?)\b|)"
     R"(\bguadagn\w+\b<15>\d+\s?%<10>\b(?:al\s+giorno|al\s+mese|giornalier\w+|a\s+settimana)\b|\b(?:profitti|guadagni|rendita|rendimento|rendimenti)\b(?!<15>\bnon\b)<15>\bgarantit[aioe]\b|\b(?:incassa|guadagna)\b<12>\d[\d.,]*<12>\bal\s+(?:mese|giorno)\b<30>\bda\s+quando\b|\b(?:algori\w+|bots?|robots?|roboter|strateg\w+|stratég\w+|system\w*|sistema)\b[^.!?]{0,30}\b(?:non\s+perde\s+mai|senza\s+perdite)\b|\b(?:successo|guadagno|profitto)\b[^.!?]{0,4}\b(?:garantit[oi]|assicurat[oi])\b|)"
     R"(\b(?:ganancias?|ingresos|rendimientos?|rentabilidad|beneficios)\b<15>\b(?:fij[oa]s\s+)?garantizad[oa]s?\b|\b(?:cobra|gana)\b<12>\d[\d.,]*<10>\bal\s+(?:mes|d[íi]a)\b<30>\bdesde\s+que\b|)"
     R"(\b(?:recebe|ganha)\b<12>\d[\d.,]*<12>\bpor\s+(?:m[êe]s|dia)\b<30>\bdesde\s+que\b|)"
     R"(\b(?:гарантированн\w+\s+(?:доход|прибыль|доходность)|(?:доход|прибыль)\s+гарантирован\w*)\b|\b(?:получай|приносит)\b<10>\d+\s?%|\bалгоритм\b<20>\bне\s+проигрывает\b|\bуспех\s+гарантирован\b|)"
     R"((?:[稳穩][赚賺]不[赔賠]|保[证證][获獲]利|日收益\d|月入百[万萬]|[稳穩][赚賺]的?投[资資])|从不[亏虧]|從不虧|保[证證]成功|)"
     R"((?:必ず儲か|元本保証|確実に稼|月利\d|毎日\d+万円)|負けません|成功を?保証|)"
     R"((?:수익|원금|수익률)[\s\S]{0,10}보장(?!하지|되지|이|은|을)|절대 ?지지 ?않|성공 ?보장|)"
     R"(\b(?:algori\w+|bots?|robots?|roboter|strateg\w+|stratég\w+|system\w*|sistema)\b[^.!?]{0,30}\b(?:nunca\s+perde|sem\s+perdas)\b|)"
     R"(\b(?:sucesso|lucro|ganho)\b[^.!?]{0,4}\b(?:garantid[oa]|assegurad[oa])\b|)"
     R"(\b(?:bot|robot|algorithm|software|system|platform|programme?|ai|we|trader)\b<20>\b(?:earns?|makes?|brings?|pays?|generates?|yields?|delivers?)\b<20>\b\w+\s+(?:percent|per\s+cent|%)|\b(?:bot|robot|algorithm|platform|trader|ai)\b<30>\d[\d.]*\s?(?:%|percent)<25>\b(?:day|daily|week|weekly|month\w*)\b|)"
     R"(\b(?:garantiert\w*|ohne\s+(?:verlust)?risiko|risikofrei)\b<60>\b(?:krypto|bitcoin|rendite|trad\w+|gewinn\w*|einzahl\w+)\b|)"
     R"(\b(?:gains?\s+garantis?|sans\s+(?:aucun\s+)?risque|garanti\w*)\b<60>\b(?:bitcoin|crypto\w*|trading|usdt|rendement|dépôt)\b|)"
     R"(\b(?:rischio\s+zero|senza\s+rischi\w?|guadagni\s+garantiti)\b|)"
     R"(\bmultiplica\s+(?:tu|los|el)\b)"); }),
     true},
    {"crypto-risk-free", "Crypto fraud", "warn", 40,
     "calls an investment free of risk",
     pattern([] { return std::string_view(
     R"(\b(?:risk[- ]?free|no[- ]risk|zero[- ]risk|without\s+(?:any\s+)?risk|100%\s+(?:safe|secure)|cannot\s+lose|can['’]t\s+lose|never\s+lose)\b<60>\b(?:invest\w*|trad(?:e|es|ing)|crypto\w*|bitcoin|forex|profits?|returns?|opportunity|earn\w*|income|bet|betting|business)\b|\bno\s+risk\s+what\s+?so\s+?ever\b|\bzero\s+risk\b|)"
     R"(\b(?:invest(?:ment|ing|or|ors)?|trad(?:e|es|ing)|crypto\w*|bitcoin|forex|profits?|returns?|income|transaction|business|deal)\b<60>\b(?:risk[- ]?free|no\s+risk|zero\s+risk|without\s+(?:any\s+)?risk|100%\s+(?:safe|secure)|hitch[- ]free)\b|)"
     R"(\brisiko(?:los|frei)\w*\b<40>\b(?:invest\w*|anlage\w*|gewinn\w*|rendite\w*|geld\w*|krypto\w*|verdien\w*)\b|)"
     R"((?:零风险|零風險|无风险|無風險|ノーリスク|무위험)|)"
     R"(\bohne\s+(?:jedes\s+)?risiko\b|\brisikofrei\w*\b<40>\b(?:gewinn\w*|anlage|rendite|verdien\w*|invest\w*)\b|)"
     R"(\bzonder\s+(?:enig\s+)?risico\b|)"
     R"(\bsans\s+(?:aucun\s+)?risque\b|\bcapital\s+(?:assuré|garanti)\b|)"
     R"(\bsenza\s+(?:alcun\s+)?risch(?:io|i)\b|)"
     R"(\bsin\s+(?:ning[úu]n\s+)?riesgos?\b|)"
     R"(\bsem\s+(?:nenhum\s+)?riscos?\b|)"
     R"(\bбез\s+(?:всякого\s+)?риска\b|)"
     R"([稳穩][赚賺](?:不[赔賠])?|保本(?:保息)?|零[风風][险險]|)"
     R"((?:元本保証|リスクなし|損しない|絶対に損)|)"
     R"((?:무위험|원금 ?보장|손실 ?없)|)"
     R"(\b(?:cannot|can['’]t|can\s+not|won['’]t|never|impossible\s+to)\b<6>\b(?:lose|fail)\b<30>\b(?:invest\w*|capital|deposit|money|fund|stake)\b|\b(?:capital|deposit|investment|stake|principal)\b<15>\b(?:fully|completely|100\s?%|totally|always)\s+(?:protected|safe|insured|secured|guaranteed|refundable)\b)"); }),
     true},
    {"crypto-insider", "Crypto fraud", "warn", 40,
     "offers inside knowledge or a mentor for quick trading profits",
     pattern([] { return std::string_view(
     R"(\b(?:insider|secret|exclusive|private)\s+(?:tip|group|signal|information|info|knowledge|chat|circle)s?\b<60>\b(?:coin|crypto|stock|trad\w+|invest\w*|profit\w*|earn)\b|\b(?:coach|mentor|teacher|guru)\b<40>\b(?:taught|showed|helped|guides?)\b<40>\b(?:trad\w+|crypto|profit\w*|invest\w*)\b|)"
     R"(\b(?:professor|coach|mentor|guru|expert|teacher)\b<30>\b(?:shares?|gives?|sends?)\b<15>\b(?:signals?|tips|trades)\b|)"
     R"(\b(?:my|our)\s+(?:mentor|trader|broker|coach|expert)\b<60>\b(?:turned|made|doubled|grew|earned)\b|\b(?:mentor|analyst|professor|teacher|coach|uncle)\b<50>\b(?:coins?|stocks?|shares?|signals?|trades?)\b<60>\b(?:before|group|follow|profit\w*|rise)\b|\binsider\s+tip\b|\btrader\b[^.!?]{0,20}\bteach\s+you\b|)"
     R"(\b(?:insider|inside|leaked|secret|exclusive|vip|private)\s+(?:tips?|information|info|signals?|knowledge|trading\s+group|investment\s+group|strategy|trading\s+strategy)\b<60>\b(?:crypto\w*|bitcoin|forex|stocks?|coins?|trad\w*|invest\w*|profits?|market|returns)\b|)"
     R"(\b(?:join|add|enter|scan|contact)\b<30>\b(?:our|my|the|this)\s+(?:\w+\s+)?(?:vip\s+|private\s+|exclusive\s+|free\s+|investment\s+|trading\s+|stock\s+|crypto\s+|signal\s+)+(?:group|channel|community|club|chat|room|signals)\b|)"
     R"(\bearn\b<15>\b(?:\d\s+figures?|six\s+figures?|seven\s+figures?)\b<40>\b(?:crypto\w*|bitcoin|forex|trad\w+|mining)\b|)"
     R"(\b(?:my|our|a|an|the)\s+(?:\w+\s+){0,2}(?:mentor|account\s+manager|broker|trading\s+expert|trader|analyst|professor|uncle|aunt)\b<60>\b(?:crypto\w*|bitcoin|forex|signals?|trad(?:e|es|ing))\b<50>\b(?:profits?|earn\w*|returns?|invest\w*|made|grow|teach|help\w*)\b|)"
     R"(\b(?:trading|crypto|forex|bitcoin|investment|stock)\s+(?:signals?|platform|bot|robot|software|mentor|expert)\b<60>\b(?:profits?|accuracy|win\s+rate|earn\w*|returns?|guarantee\w*|automat\w*|whats\s?app|telegram|join|millionaires?)\b|)"
     R"(\b(?:whats\s?app|telegram)\b<40>\b(?:trading|investment|stock|crypto|signal|vip)\b<12>\b(?:group|channel|community|signals?)\b|)"
     R"(\b(?:insider|geheim)\w*\b<30>\b(?:tipp\w*|börsen\w*|aktien\w*|krypto\w*)\b<40>\b(?:gewinn\w*|rendite\w*|gruppe|kanal)\b|)"
     R"((?:内幕|內幕|导师|導師|老师带单|带单)<15>(?:消息|投资|投資|股票|盈利|收益|群)|)"
     R"((?:加入|加)<8>(?:股票|投资|投資|炒股)<4>(?:群|交流)|)"
     R"((?:投資|株|銘柄)<12>(?:グループ|LINE)<12>(?:参加|登録|招待|追加)|)"
     R"((?:리딩방|주식\s?정보방|급등주|투자\s?(?:방|그룹|리딩))|)"
     R"(\b(?:trading|börsen|aktien|krypto|investment|signal)-?\w*\s?-?gruppe\b<60>\b(?:whats\s?app|telegram|gewinn\w*|täglich|beitreten)\b|\b(?:persönliche[rn]?\s+(?:berater|betreuer|broker))\b<40>\b(?:ruft|anruf\w*|meldet|kontakt\w*)\b|\bstartkapital\b<40>\bver(?:dreifach|zehnfach|zwanzigfach|doppel|viel)\w*|)"
     R"(\btrading-?bot\b|\been\s+adviseur\s+belt\s+u\b|\b(?:onze|mijn)\s+(?:analist|expert|mentor|handelaar|broker)\b|)"
     R"(\b(?:robot|bot)\s+de\s+trading\b|\brejoigne[rz]\b<30>\b(?:groupe|canal)\b<20>\b(?:whats\s?app|telegram|trading|vip|privé)\b|\bun\s+conseiller\s+vous\s+(?:rappelle\w*|contactera|appellera)\b|\b(?:notre|mon)\s+(?:analyste|expert|trader|courtier|conseiller\s+financier)\b|\bgagne\w*\b<40>\bdepuis\s+qu\b<20>\b(?:suit|suis|utilise)|)"
     R"(\bbot\s+di\s+trading\b|\bun\s+consulente\s+(?:ti|la)\s+(?:chiamerà|contatterà)\b|\b(?:nostro|mio)\s+(?:analista|esperto|mentore|trader|consulente\s+finanziario|broker)\b|)"
     R"(\bun\s+asesor\s+(?:le|te)\s+(?:llamar[áa]|contactar[áa])\b|\b(?:nuestro|mi)\s+(?:analista|experto|mentor|br[óo]ker|asesor\s+financiero)\b|)"
     R"(\bentre\s+no\s+grupo\b|\b(?:nosso|meu)\s+(?:analista|especialista|mentor|trader|consultor\s+financeiro)\b|)"
     R"(\b(?:вступайте|заходите|переходи\w*)\b<10>\b(?:закрытый\s+)?(?:канал|чат|группу)\b|\bменеджер\s+перезвонит\b|\b(?:слушает|следует|доверил\w+)\b<20>\bнаш\w+\s+(?:аналитик\w*|трейдер\w*|наставник\w*)\b|)"
     R"((?:老[师師][带帶]|[内內]幕|[飙飆]股|跟[着著]老[师師]|股票交流群|LINE群)|本金翻|)"
     R"((?:投資グループ|自動売買|銘柄を教え|投資家の先生|LINEグループ)|(?:当社|私たちの)[\s\S]{0,4}アナリスト|)"
     R"((?:리딩 ?방|급등주|자동 ?매매|종목 ?추천|오픈 ?채팅)[\s\S]{0,24}(?:수익|입장|추천|무료|들어오)|월 ?\d+만 ?원씩 ?벌|매달[\s\S]{0,8}만 ?원씩? ?벌|)"
     R"(\b(?:friend|cousin|brother|someone|contact|source|insider|uncle|analyst|team)\b<30>\b(?:exchange|coinbase|binance|inside|works?\s+at|trading\s+desk|sends?\s+out|tells?)\b<40>\b(?:coins?|tokens?|list(?:ed|ing)|signals?|buy\s+and\s+sell|before|pump\w*|points)\b|\b(?:everyone|everybody|members?|all)\s+(?:\w+\s+)?(?:in\s+)?(?:the|our|my)\s+(?:group|channel|community|club)\b<25>\b(?:profits?|earns?|makes?\s+(?:\w+\s+)?(?:profits?|money)|gains?)\b)"); }),
     true},
    {"crypto-pump", "Crypto fraud", "warn", 45,
     "hypes a coin or share so that others buy before the fall",
     pattern([] { return std::string_view(
     R"(\b(?:coin|token|stock|share)\b<40>\b(?:explode|100x|10x|skyrocket|moon|pump\w*|take\s+off|go\s+parabolic)\b|\b(?:buy|get\s+in|load\s+up)\b<20>\bbefore\b<20>\b(?:pumps?|explodes?|moons?|takes?\s+off|rises?|listing)\b|(?:\b(?:coin|token|crypto\w*|stock|shares?|ticker)|\$[a-z]{2,6})\b<50>\b(?:about\s+to|going\s+to|will|ready\s+to|set\s+to|poised\s+to)\s+(?:explode|moon|skyrocket|pump|100x|10x|50x|blast\s+off|soar)\b|\bwill\s+do\s+\d+x\b|\bgoing\s+to\s+the\s+moon\b|)"
     R"(\bwhales?\s+(?:are|is)\s+(?:coming|buying|loading)\b|)"
     R"(\b(?:next|guaranteed|easy|potential)\s+(?:100x|1000x|50x|10x|moonshot|gem)\b|)"
     R"(\b(?:pump|pumping|buy|load\s+up|get\s+in)\b<25>\b(?:before|now\s+before)\b<15>\b(?:it|this|the)\b<8>\b(?:moons?|pumps?|explodes?|takes\s+off|skyrockets?|launch(?:es)?|lists?|too\s+late)\b|)"
     R"(\b(?:presale|pre-sale|ico|private\s+sale)\b<60>\b(?:token|coin|crypto\w*|100x|50x|10x|bonus|buy\s+now|don['’]t\s+miss|ends)\b<40>\b(?:100x|50x|10x|1000x|bonus|moon|don['’]t\s+miss|last\s+chance|guaranteed|buy\s+now)\b|)"
     R"(\b(?:coordinated|group|organi[sz]ed|scheduled)\s+pump\b|)"
     R"(\b(?:pump\s+signal|pump\s+group|pump\s+and\s+dump\s+group)\b|)"
     R"((?:百倍币|百倍幣|千倍币|拉盘|拉盤)|)"
     R"(\b(?:coin|token|share|stock|crypto\w*)\b<30>\b(?:explode|rocket|soar|moon|multiply|skyrocket|hundred-?\s?fold|ten-?\s?fold|double|\d+x)\b<30>\b(?:soon|friday|week|days?|before|buy|now|hundred|get\s+in|tomorrow)\b|\bget\s+in\b<15>\b(?:before|early|now)\b<40>\b(?:coin|token|share|stock|crypto\w*)\b)"); }),
     true},

    // ---- Advance fee ---------------------------------------------------------------------------
    {"afee-lottery", "Advance fee", "warn", 55,
     "says the reader has won or been chosen for a prize",
     pattern([] { return std::string_view(
     R"(\b(?:you(?:['’]ve|\s+have|['’]re|\s+are)?)\s+(?:been\s+)?(?:selected|chosen|picked|drawn)?\s?(?:as\s+)?(?:this|the)\s+(?:week|month|day)['’]?s?\s+(?:lucky\s+)?winner\b|\blucky\s+draw\b|)"
     R"(\b(?:preis|geschenk|gewinn|belohnung|prämie)\b<15>\b(?:einlösen|anfordern|abholen|sichern)\b|\b(?:fordern|holen|sichern)\s+Sie\s+(?:sich\s+)?<25>\b(?:geschenk|preis|belohnung|gewinn|prämie)\b|\bje\s+bent\s+geselecteerd\s+om\b|\blucky\s+(?:online\s+)?winner\s+of\b|\byour\s+name\s+came\s+up\b|\bwas\s+selected\s+from\s+the\s+spin\b|)"
     R"(\b(?:claim|unlock|redeem)\s+(?:my\s+|your\s+|the\s+|this\s+)?(?:\w+\s+){0,2}(?:rewards?|gift|prize|surprise|benefit)\b(?![^.!?]{0,60}\b(?:till|counter|stamps?|loyalty|coffee|caf[ée]s?)\b)|)"
     R"(\bget\s+(?:my|your)\s+(?:free\s+|exclusive\s+|special\s+)?(?:reward|gift|prize|gift\s+card|sample)\b|)"
     R"(\bexclusive\s+(?:[\w’\'-]+\s+){0,3}reward\b|)"
     R"(\b(?:reward|gift|prize|special\s+offer|surprise|voucher|gift\s+card)s?\s+(?:is|are)\s+(?:still\s+)?(?:waiting|unclaimed|reserved|ready\s+for\s+you)\b(?!<40>\b(?:school|library|office|desk|class|teacher|club)\b)|)"
     R"(\bspecial\s+(?:gift|reward|surprise)\s+(?:just\s+|only\s+|exclusively\s+)?for\s+you\b|)"
     R"(\b(?:produkttester|produkttest|testpaket)\b<60>\b(?:kostenlos\w*|gratis|chance|erhalten|gesucht|werden)\b|)"
     R"(\bfür\s+eine\s+spende\s+(?:von|in\s+höhe)\b|)"
     R"(\b(?:gewinnen\s+sie|gewinne|gewinn)\s+(?:jetzt\s+|heute\s+|eine[nr]?\s+|ein\s+)<30>\b(?:geschenkkarte|[\w-]*gutschein|iphone|mystery\s+box|[\w-]*set|gratis)\b|)"
     R"(\b(?:unsere[rm]?|an|kurze?|dieser?)\b<25>\b(?:umfrage|fragebogen)\b<90>\b(?:kostenlos\w*|gehört\s+ihnen|gratis)\b|)"
     R"(\b(?:kostenlos\w*|gratis|brandneu\w*)\b<90>\b(?:umfrage|fragebogen)\b|)"
     R"(\bmaakt?\s+kans\s+op\b<40>\b(?:cadeaukaart|prijs|gratis|iphone|tegoed|waardebon)\b|)"
     R"(\b(?:you|u|your\s+(?:e-?mail|number|name|e-?mail\s+address|mobile|ticket|entry|household|ip\s+address))(?:\s+have|['’]ve|\s+has|\s+are|['’]re|\s+were|\s+was)?\b<8>\b(?:won|awarded|emerged|(?:the|a|our|one\s+of\s+(?:the|our))\s+(?:\w+\s+)?(?:lucky\s+)?winners?|been\s+(?:selected|chosen|drawn|picked)\s+(?:as|to\s+(?:win|receive|get)|for\s+(?:a|an|our|the|this)))\b<40>\b(?:(?:lottery|lotto|jackpot|sweepstakes?|cash|gift\s?cards?|i-?phone|samsung|galaxy|vouchers?|mega\s+millions|powerball|winnings|mystery|\d{3}[\d,.]*)\b|(?:prizes?|raffle|rewards?|exclusive|brand\s+new|free|gift|offer)\b[\s\S]{0,200}(?:\b(?:click|tap|link|http\w*|www|call|reply|text\s+(?:us|back|yes)|whats\s?app|telegram|e-?mail\s+us|fees?|full\s+name|bank|claim|redeem|expir\w*|\d{1,2}\s+hours)\b))|)"
     R"(\b(?:won|winner\s+of|winners?\s+(?:in|of)\s+the)\b<30>\b(?:lottery|lotto|jackpot|mega\s+millions|powerball|e-?mail\s+(?:draw|ballot|lottery)|grand\s+prize|cash\s+prize)\b|)"
     R"(\b(?:lottery|lotto|sweepstakes?|draw|promo|raffle|prize)\s+(?:winner|winning\s+(?:number|notification|ticket|notice))\b|)"
     R"(\bcongrat(?:ulation)?s?\b[\s\S]{0,60}\b(?:you(?:['’]ve|\s+have)?\s+(?:\w+\s+)?(?:won|been\s+(?:selected|chosen))|you\s+are\s+(?:\w+\s+){0,4}(?:winner|eligible|qualified)|your\s+(?:\w+\s+)?(?:reward|prize|gift))\b[\s\S]{0,200}(?:\b(?:click|tap|link|http\w*|www|call|reply|text\s+(?:us|back|yes)|whats\s?app|telegram|e-?mail\s+us|fees?|full\s+name|bank|claim|redeem|expir\w*|\d{1,2}\s+hours)\b)|)"
     R"(\b(?:you|u)(?:\s+have\s+been|['’]ve\s+been|\s+were|\s+are)\s+(?:\w+\s+)?(?:selected|chosen|picked)\s+(?:as\s+(?:one\s+of\s+(?:the|our)\s+(?:\w+\s+)?(?:winners?|few|lucky)|a\s+(?:\w+\s+)?winner)|to\s+(?:receive|win|get|claim|try|enjoy|join\s+our|complete)|for\s+(?:a|an|our|the|this)\s+(?:\w+\s+){0,2}(?:prize|reward|gift|chance|exclusive|free|giveaway|loyalty))\b|)"
     R"(\b(?:claim|collect|redeem|unlock)\b\s+(?:your|ur|the)\s+(?:[\w$€£'’.-]+\s+){0,4}(?:prize|winnings?|free\s+gift|gift|jackpot|gift\s?card|mystery\s+box|surprise|giveaway|voucher|sample|set|kit)\b|)"
     R"((?:\b(?:special|exclusive|free|mystery|brand[- ]new|reward|surprise|gift|prize)\b|<amount>)<25>\b(?:is|are)\s+(?:\w+\s+)?(?:waiting\s+for\s+you|reserved\s+for\s+you|yours\s+to\s+claim|ready\s+to\s+(?:be\s+)?claim(?:ed)?|set\s+aside\s+for\s+you)\b|)"
     R"(\byou(?:['’]ve|\s+have)\s+(?:been\s+)?(?:won|win)\s+(?:a|an|the|our|\(?1\)?)\s+(?:[\w-]+\s+){0,2}(?:new|free|brand[- ]new|\$\d|voucher|\(\d\)|(?:prize|gift|reward)[\s\S]{0,200}(?:\b(?:click|tap|link|http\w*|www|call|reply|text\s+(?:us|back|yes)|whats\s?app|telegram|e-?mail\s+us|fees?|full\s+name|bank|claim|redeem|expir\w*|\d{1,2}\s+hours)\b))|)"
     R"(\bmystery\s+box\b<80>\b(?:claim|free|chance|receive|won|win|selected|waiting|yours|unclaimed|lost)\b|)"
     R"(\b(?:Sie|du|ihre\s+e-?mail(?:-adresse)?)\b<50>\b(?:[\w-]*gutschein\w*|gewinn|preis|prämie|geschenk\w*|iphone|exklusive\w*|brandneue\w*|belohnung|gratis\w*|kostenlose\w*)\b<60>\b(?:gewonnen|ausgewählt|auserwählt|ausgelost)\b|)"
     R"(\b(?:ausgewählt|auserwählt|ausgelost|nominiert),?\s+(?:worden,?\s+)?um\b<60>\b(?:erhalten|gewinnen|teilzunehmen|anzufordern)\b|)"
     R"(\b(?:Sie|du)\s+(?:\w+\s+){0,3}(?:gewonnen|ausgewählt)\s?(?:!|worden)[\s\S]{0,200}(?:\b(?:klick\w*|link|https?|hier|bestätig\w*|abholen|anford\w*|einlösen|versandkosten|gebühr\w*|bankdaten|whats\s?app|jetzt)\b)|)"
     R"(\b(?:Sie|du)\s+(?:sind|bist)\s+(?:\w+\s+){0,3}gewinner\w*\b[\s\S]{0,200}(?:\b(?:klick\w*|link|https?|hier|bestätig\w*|abholen|anford\w*|einlösen|versandkosten|gebühr\w*|bankdaten|whats\s?app|jetzt)\b)|)"
     R"(\b(?:glückwunsch|glückwünsche|gratulier\w+|gratulation)\b<90>\b(?:gewonnen|ausgewählt|gewinner\w*|qualifiziert|belohnung|ausgelost|gutschein\w*)\b[\s\S]{0,200}(?:\b(?:klick\w*|link|https?|hier|bestätig\w*|abholen|anford\w*|einlösen|versandkosten|gebühr\w*|bankdaten|whats\s?app|jetzt)\b)|)"
     R"(\b(?:exklusive[nrs]?|kostenlose[nrs]?|gratis|brandneue[nrs]?|ihr(?:e[nr]?)?|dein(?:e[nr]?)?)\b<25>\b(?:gewinn|preis|prämie|belohnung|(?!bücher)[\w-]*gutschein|überraschung|geschenk)\b<25>\b(?:abholen|abzuholen|einlösen|beanspruchen|anfordern|sichern|zu\s+beanspruchen|wartet|zu\s+sichern|anzufordern|abholbereit)\b|)"
     R"(\b(?:einen|ein|eine)\s+(?:brandneue[nsr]?|kostenlose[nsr]?|exklusive[nsr]?)\b<50>\b(?:zu\s+(?:gewinnen|erhalten)|gewinnen|erhalten|anzufordern|beanspruchen|gratis)\b|)"
     R"(\bvous\s+(?:avez|êtes)\s+(?:\w+\s+){0,3}(?:gagné|gagnante?|sélectionnée?|remporté|l['’]heureu(?:x|se)|tirée?\s+au\s+sort)\b<60>(?:\b(?:chèque|carte|iphone|bon\s+d['’]achat|samsung|€|euros?)\b|[\s\S]{0,200}(?:\b(?:clique[rz]|lien|https?|ici|réclame[rz]|récupére[rz]|frais|whats\s?app|coordonnées|bancaires?|expire\w*)\b))|)"
     R"(\b(?:félicitations?|bravo)\b[\s\S]{0,80}\b(?:gagné\w*|sélectionné\w*|gagnant\w*|remporté\w*|récompense\w*)\b[\s\S]{0,200}(?:\b(?:clique[rz]|lien|https?|ici|réclame[rz]|récupére[rz]|frais|whats\s?app|coordonnées|bancaires?|expire\w*)\b)|)"
     R"(\b(?:ha|has|usted\s+ha|voc[êe]|foi|fue)\s+(?:sido\s+)?(?:\w+\s+)?(?:ganado|ganador|seleccionad[oa]|premiad[oa]|contemplad[oa]|sortead[oa]|selecionad[oa]|ganhou|vencedor[a]?)\b<60>(?:\b(?:b[ôo]nus|cart[ãa]o|tarjeta|iphone)\b|(?:!|\b(?:premio|pr[êe]mio|para|sorteo|sorteio|regalo|brinde|gratis|um|uma|un|una)\b)[\s\S]{0,200}(?:\b(?:clic|clique|haga|haz|pulse|enlace|link|https?|aqu[íi]|reclam\w+|resgat\w+|retir\w+|costos?|gastos?|taxas?|frete|whats\s?app|dados|datos|expira\w*|liga\w*|llam\w+)\b))|)"
     R"(\b(?:u\s+hebt|u\s+heeft|u\s+bent|je\s+hebt|je\s+bent)\s+(?:[\w-]+\s+){0,4}(?:gewonnen|geselecteerd|uitgekozen|winnaar|de\s+gelukkige)\b[\s\S]{0,200}(?:\b(?:klik\w*|link|https?|hier|claim\w*|opeisen|ophalen|verzendkosten|kosten|whats\s?app|gegevens|bevestig\w*)\b)|)"
     R"(\bgefeliciteerd\b[\s\S]{0,80}\b(?:gewonnen|geselecteerd|winnaar|gekozen|kans)\b[\s\S]{0,200}(?:\b(?:klik\w*|link|https?|hier|claim\w*|opeisen|ophalen|verzendkosten|kosten|whats\s?app|gegevens|bevestig\w*)\b)|)"
     R"((?:恭喜|您已|你已|您的)<25>(?:中[奖獎]|抽中|[获獲]得?(?:大|一等|二等|三等)?[奖獎])[\s\S]{0,80}(?:点击|點擊|http|领取|領取|兑[奖換换]|兌[獎換]|客服|手[续續][费費]|税|稅|加微信|加LINE|[电電][话話])|)"
     R"((?:おめでとう|ご当選|当選)[^。]{0,40}(?:賞金|当選|プレゼント|獲得|選ばれ)[\s\S]{0,100}(?:http|クリック|タップ|受け取|手数料|振込|LINE|こちら|登録)|)"
     R"((?:축하|당첨)[^.!?]{0,30}(?:당첨|경품|상금|선정되)[\s\S]{0,100}(?:http|클릭|링크|수수료|제세공과금|세금|입금|카톡|연락|수령)|)"
     R"(\b(?:telefonnummer|handynummer|e-?mail-?adresse|los)\b<20>\b(?:gezogen|ausgelost|gewonnen|ausgewählt)\b[\s\S]{0,100}\b(?:euro|lotterie|gewinn|million\w*|€)|\b(?:gewinner|gewonnen|gewinn)\b<local>[\s\S]{0,100}\b(?:abholen|abzuholen|versand|klicken|senden\s+sie\s+uns|kontonummer|anspruch)\b|\b(?:nummer|rufnummer|anschluss)\b[^.!?]{0,15}\b(?:ausgewählt|gezogen|ausgelost)\b[^.!?]{0,60}\b(?:gutschein|preis|gewinn|handy)\b|)"
     R"(\b(?:telefoonnummer|e-?mailadres|nummer|lot)\b<15>\bheeft\b<30>\bgewonnen\b|\bvraag\b<8>\b(?:uw|je)\s+gratis\b<40>\b\w*(?:set|pakket|box)\b|\bmaak(?:t)?\s+(?:dan\s+)?(?:ook\s+)?(?:nog\s+eens\s+)?kans\s+op\b<40>\b\w*(?:bon|kaart|prijs|bike|iphone)\b|\b(?:nummer|lijn)\b[^.!?]{0,15}\b(?:gekozen|geselecteerd|getrokken)\b[^.!?]{0,60}\b(?:bon|prijs|cadeaukaart|telefoon)\b|)"
     R"(\b(?:adresse|numéro|e-?mail|compte)\b<20>\b(?:a\s+(?:été\s+)?(?:gagné|tirée?|sélectionnée?|remporté))\b<60>(?:<amount>|\b(?:euros?|loterie|lot|prix|tirage))\b|\bgagnez\b<40>\b(?:mystery\s+box|boîte\s+mystère|iphone|smart\s+tv|service\s+de\s+table|coffret)\b|\bchance\s+de\s+gagner\b<30>\b(?:boîte|iphone|gratuite?)\b|\bvous\s+êtes\b<8>\b(?:heureu(?:x|se)|grande?)\s+gagnante?\b|\b(?:numéro|ligne)\b[^.!?]{0,15}\b(?:choisie?|sélectionnée?|tirée?)\b[^.!?]{0,60}\b(?:bon\s+d[\'’]achat|cadeau|téléphone|carte)\b|)"
     R"(\b(?:congratulazioni|complimenti)\b[\s\S]{0,80}\b(?:selezionat[oa]|vinto|vincitore|vincitrice|estratt[oa])\b[\s\S]{0,120}\b(?:clicca|link|qui|ritirare|riscuoter\w+|spese|dati|premio\s+al)\b|\b(?:hai|ha|è\s+stat[oa]|sei\s+stat[oa])\b<15>\b(?:vinto|estratt[oa]|selezionat[oa])\b<50>(?:<amount>|\b(?:iphone|euro|lotteria|buono|gift\s+card|smartphone))|\b(?:numero|linea|utenza)\b[^.!?]{0,15}\b(?:scelto|selezionat[oa]|estratt[oa])\b[^.!?]{0,60}\b(?:buono|premio|telefono|carta\s+regalo)\b|)"
     R"(\bhas\s+ganado\s+(?:un|una)\b[\s\S]{0,160}\b(?:encuesta|clic|confirm\w+|reclam\w+|enlace)\b|\bel\s+ganador\s+de\s+hoy\s+es\b|\b(?:n[úu]mero|l[íi]nea)\b[^.!?]{0,15}\b(?:elegid[oa]|seleccionad[oa]|sortead[oa])\b[^.!?]{0,60}\b(?:vale|premio|tarjeta|tel[ée]fono)\b|)"
     R"(\b(?:n[úu]mero|cpf|e-?mail)\b<20>\b(?:sortead[oa]|premiad[oa]|contemplad[oa]|ganhou|selecionad[oa])\b<local>|\b(?:n[úu]mero|linha)\b[^.!?]{0,15}\b(?:escolhid[oa]|selecionad[oa]|sortead[oa])\b[^.!?]{0,60}\b(?:vale|pr[êe]mio|celular|cart[ãa]o)\b|)"
     R"(\b(?:вы|ваш\s+номер|ваш\s+билет)\b<20>\b(?:выиграли|стал\s+победителем|победитель|выиграл)\b[\s\S]{0,80}\b(?:ссылк\w+|забрать|получ\w+|комисси\w+|оплат\w+|доставк\w+|приз)\b(?!<20>\bбиблиотек\w+\b)|\bваш\s+номер\s+выбран\b|)"
     R"((?:手[机機]|微信|QQ)?[号號][码碼]?[\s\S]{0,6}被[\s\S]{0,20}(?:抽[选選取]|[选選][为為中])[\s\S]{0,12}(?:幸[运運]|[观觀][众眾]|[场場]外)|(?:抽中|中[奖獎]|[获獲](?:得(?![\s\S]{0,6}(?:[积積]分|[证證][书書]))|[奖獎](?!者))|一等[奖獎])[\s\S]{0,40}(?:[领領]取|[点點][击擊]|手[续續][费費]|登[录入錄]|[链連][接結]|客服)(?![\s\S]{0,10}(?:[图圖][书書]|[学學]校))|[号號][码碼]被[\s\S]{0,6}[选選]中|)"
     R"(当選[\s\S]{0,30}(?:リンク|こちら|送料|手数料|お振込|受け取|譲渡)(?![\s\S]{0,6}(?:図書|学校))|番号が[\s\S]{0,8}選ばれ|)"
     R"(당첨[\s\S]{0,30}(?:링크|클릭|배송비|제세공과금|입금|수령|신청|결제)|번호가[\s\S]{0,8}선정되|)"
     R"(\b(?:draw|raffle|lottery|lotto|sweepstakes?|ballot|promo(?:tion)?|jackpot|prize\s+wheel)\b<40>\b(?:picked|drew|selected|chose|chosen|pulled|landed\s+on|fell\s+on)\b<15>\b(?:you|your)\b<local>|\b(?:you|your\s+(?:\w+\s+)?(?:number|name|ticket|address|e-?mail|account|entry|order))\b<40>\b(?:came\s+(?:out\s+)?first|picked|drawn|selected|chosen|won)\b<local><15>\b(?:in|by|from|out\s+of|among)\b<40>\b(?:draw|raffle|lottery|lotto|sweepstakes?|promo(?:tion)?|thousands?|entr\w+|customers|participants)\b<local>|\b(?:you|you['’]re|you\s+are)\s+(?:\w+\s+)?one\s+of\s+(?:the\s+|our\s+)?(?:\w+\s+){0,2}(?:lucky|winners?|chosen|selected)\b<local>|)"
     R"(\b(?:millionste[rn]?|glückliche[rn]?)\s+(?:besucher|gewinner|kunde)\w*\b|)"
     R"(\bgelukkige\s+winnaar\b|)"
     R"(\b(?:ha\s+resultado\s+ganador|ganaste\w?\b<20>\b(?:camioneta|coche|auto|premio|moto))\b|)"
     R"(\bв\s+числе\b<8>\bпобедителей\b|)"
     R"(<prizefee>|)"
     R"(抽選で[\s\S]{0,10}当たりました)"); }),
     true},
    {"afee-lottery2", "Advance fee", "warn", 50,
     "holds out a prize, a reward or a stranger's donation to be claimed",
     pattern([] { return std::string_view(
     R"(\b(?:wants?|decided|chose|choose|wish)\b<12>\b(?:to\s+)?(?:hand|give|donate|leave)\b<8>\byou\b<25>(?:<amount>|\b(?:fortune|million))|)"
     R"(\b(?:claim|collect|redeem|pick\s+up)\s+(?:your|ur|this|the)\s+(?:\w+\s+){0,2}(?:reward|prize|donation|grant|award|winnings|bonus|cash)\b<60>\b(?:before|by|within|now|today|here|link|contact|reply|agent|click|expires?)\b|\b(?:reward|prize|gift|voucher)\b<20>\b(?:has|with)\s+your\s+name\s+on\s+it\b|\b(?:credit|points|balance|cash\s+?back|miles)\b[^.!?]{0,40}\b(?:vanish\w*|expires?|disappears?|lapses?|runs?\s+out)\b[^.!?]{0,40}\b(?:pick\s+up|collect|claim|redeem)\b[^.!?]{0,20}\b(?:gift|reward|present)\b|)"
     R"(\b(?:prize|reward|award|donation|grant)\b<40>\b(?:is|are|has\s+been)\s+(?:still\s+)?(?:waiting|reserved|set\s+aside|held|kept|ready|unclaimed|earmarked|allocated)\b<30>\b(?:you|your|claim\w*|collect\w*)\b|)"
     R"(\b(?:wants?|wish(?:es)?|decided|would\s+like|intends?|going|willing)\s+to\s+(?:donate|give\s+away|give|share|hand\s+(?:out|over))\b<60>\b(?:million|thousand|fortune|winnings|jackpot|money|wealth|[\d,.]{5,})\b<60>\b(?:you|strangers?|people|lucky)\b|)"
     R"(\b(?:donat\w+|giv\w+)\s+(?:you|to\s+you|to\s+\w+\s+lucky)\b<60>\b(?:million|thousand|fortune|winnings|jackpot|[\d,.]{5,})\b|)"
     R"(\bdoou\b<30>\bmilhões\b|\bdoação\s+de\b<30>\bmilhões\b|)"
     R"(\b(?:balance|payout|winnings)\s+of\s+<amount><60>\b(?:collect\w*|withdraw\w*|claim\w*|in\s+your\s+name)\b|)"
     R"(\b(?:grant|donation|award|sum|compensation)\s+of\s+(?:[\w-]+\s+){0,4}(?:million|thousand)\s+(?:[\w.]+\s+){0,3}(?:dollars|euros?|pounds|usd)\b|)"
     R"(\b(?:e-?mail|name)\s+(?:address\s+)?(?:was|has\s+been|were)\s+(?:\w+\s+)?(?:selected|chosen|picked|drawn)\b<40>\b(?:spin|random\w*|ballot|draw|donat\w+|grant|million|receive)\b|)"
     R"(\b(?:lottery|lotto|sweepstakes?|award|winning|promo|jackpot)\b<20>\b(?:claims?\s+(?:agent|department|officer|number|code|form|centre|center)|batch\s+(?:number|no)|serial\s+number|winning\s+(?:number|code))\b|)"
     R"(\b(?:i|we|my\s+(?:wife|husband|family|foundation))\b<40>\b(?:donat(?:e|ed|ing|ion)|bequeath\w*|willed)\b<40>(?:\bsum\s+of\b|[$€£]\s?\d[\d,.]{4,}|\b\d[\d.,]*\s?(?:million|m\s+usd)\b|\bmillion\b)<80>\b(?:you|random\w*|individuals?|charity|beneficiary)\b|)"
     R"(\b(?:donat(?:e|ed|ing|ion)|cash\s+(?:grant|aid|donation)|compensation|give\s+you|giving\s+you)\b<30>(?:of\s+|sum\s+of\s+|amount\s+of\s+)?[$€£]?\s?\d[\d,.]*<8>\b(?:million|m|usd|eur|euros?|dollars|pounds|gbp)\b<60>\b(?:you|your|to)\b|)"
     R"(\b(?:donation|compensation)\s+code\b|)"
     R"(\b(?:random(?:ly)?\s+selected\s+(?:individuals?|people|persons|e-?mails?)|selected\s+individuals?\s+(?:worldwide|globally)|lucky\s+(?:individual|beneficiar\w+|recipient))\b|)"
     R"(\b(?:short|quick|brief|simple|30[- ]second|marketing|satisfaction|shopper|loyalty)\b<15>\bsurvey\b<80>(?:\b(?:win|reward\w*|free|receive|gift|prize|claim|exclusive|chance|brand[- ]new)\b|<amount>)|)"
     R"(\b(?:answer|complete|take|fill|participate|respond)\b<25>\b(?:survey|questionnaire|(?:few|\d+|some|simple|short|quick|easy)\s+(?:\w+\s+)?questions)\b<80>\b(?:win|reward|free|receive|gift|prize|claim|exclusive|chance|offer|surprise|bonus)\b|)"
     R"(\b(?:win|receive|get|claim|rewards?|gift|prize|request\s+it|chance)\b<60>\b(?:answer(?:ing)?|complet(?:e|ing)|tak(?:e|ing)|fill(?:ing)?(?:\s+out|\s+in)?|participat(?:e|ing))\b<25>\b(?:(?:marketing\s+|short\s+|quick\s+|our\s+|this\s+|brief\s+|\d+[- ]second\s+)+survey|questionnaire|(?:few|\d+|some|simple|short|quick|easy)\s+(?:\w+\s+)?questions)\b|)"
     R"(\b(?:chance|opportunity|enter)\s+(?:to|of)\s+(?:win|winning|receive|receiving|claim|get|getting)\s+(?:a\s+|an\s+|the\s+|your\s+|our\s+|one\s+of\s+|this\s+)?(?:[\w$€£'’-]+\s+){0,4}(?:brand[- ]?new|free|exclusive|prize|gift\s?card|i-?phone|samsung|voucher|mystery|jackpot|reward|[$€£]\d[\d,.]*|cooler|drill|set|kit|tool)|)"
     R"(\b(?:enter|click|participate|spin)\b<12>\b(?:now\s+|here\s+|today\s+)?(?:to|and)\s+win\b|)"
     R"(\bbrand[- ]new\s+(?:[\w-]+\s+){0,5}(?:drill|i-?phone|galaxy|macbook|playstation|air\s?fryer|cooler|toolbox|tool\s+set|generator|backpack|vacuum|yeti|dewalt|ninja|oral-?b|emergency\s+kit|mystery\s+box|grill|blender|cookware|tumbler)\b|)"
     R"(\b(?:reward|bonus|loyalty|cash\s?back)\b<20>\bpoints\b<40>\b(?:expire\w*|redeem|claim|convert|waiting|available)\b|)"
     R"(\b(?:umfrage|fragebogen|fragen)\b<80>\b(?:gewinn\w*|belohn\w*|geschenk|gutschein\w*|preis|prämie|chance|gratis|anzufordern|sichern)\b|)"
     R"(\b(?:gewinn\w*|belohn\w*|geschenk|gutschein\w*|prämie|anzufordern|anfordern|beanspruchen|gelegenheit)\b<90>\b(?:umfrage|fragebogen|fragen)\b|)"
     R"(\b(?:chance|gelegenheit|möglichkeit|teilnehmen|teilnahme)\b<60>\b(?:zu\s+gewinnen|gewinnen\s+sie|gewinne|brandneue[nsr]?|gutschein\w*)\b|)"
     R"(\b(?:[\w-]*gutschein|geschenkkarte|belohnung|prämie)\b<40>\b(?:im\s+wert\s+von|sichern|gesamtwert|wartet|erhalten|einlösen)\b<20>(?:\d|€|\b(?:jetzt|hier|heute)\b)|)"
     R"(\b(?:sondage|questionnaire|enquête)\b<80>\b(?:gagn\w+|cadeau\w*|récompense\w*|chance|prix)\b|)"
     R"(\b(?:gagn\w+|cadeau\w*|récompense\w*|chance)\b<80>\b(?:sondage|questionnaire|enquête)\b|)"
     R"(\b(?:encuesta|pesquisa|question[áa]rio|cuestionario|vragenlijst|enquête)\b<80>\b(?:ganar|gane|regalo|recompensa|premio|pr[êe]mio|brinde|resgat\w+|kans|winn\w+|ontvang\w+)\b|)"
     R"(\b(?:pontos|puntos|milhas|b[ôo]nus)\b<60>\b(?:resgat\w+|expira\w*|dispon[íi]ve\w+|canje\w+|troca\w*|trocar)\b|)"
     R"(\b(?:resgat\w+|canje\w+)\b<25>\b(?:pontos|puntos|milhas|b[ôo]nus|pr[êe]mio|premio|recompensa)\b|)"
     R"(\b(?:spende|spenden|schenkung)\b<50>\b(?:millionen|mio|million)\b|)"
     R"(\b(?:don|donation|legs)\b<40>\b(?:millions?|\d[\d. ]{5,}\s?(?:€|euros?))|)"
     R"(\b(?:punkte|bonuspunkte|prämienpunkte|payback|meilen|guthaben)\b<40>\b(?:verfallen|verfällt|laufen\s+(?:heute\s+|morgen\s+)?ab|ablaufen|erlöschen)\b|\b(?:guthaben|treueguthaben|punkte|bonus\w*)\b[^.!?]{0,40}\b(?:erlischt|verfällt|verfallen|läuft\s+ab|verschwindet)\b[^.!?]{0,40}\b(?:holen\s+sie|sichern\s+sie|einlösen|abholen)\b[^.!?]{0,20}\b(?:geschenk|prämie|gutschein)\b|)"
     R"(\bpunten\b<15>\b(?:vervallen|verlopen)\b|\b(?:wissel|verzilver)\b<20>\b(?:punten|in)\b<30>\b(?:cadeau|prijs|korting|geschenk)\b|\b(?:tegoed|punten|saldo|spaarpunten)\b[^.!?]{0,40}\b(?:verdwijnt|vervalt|verloopt|vervallen)\b[^.!?]{0,40}\b(?:haal|wissel|pak)\b[^.!?]{0,20}\b(?:cadeau|beloning|prijs)\b|)"
     R"(\bpoints?\b<30>\b(?:fidélité\s+)?(?:expire\w*|arrivent\s+à\s+expiration|perdus)\b|\b(?:droits?|solde|cagnotte)\b<30>\bexpire\w*\b<60>\b(?:récupére[rz]|réclame[rz]|<amount>)|\b(?:cagnotte|points|crédit|solde|bonus)\b[^.!?]{0,40}\b(?:disparaît|expire\w*|périm\w+|sera\s+perdu)\b[^.!?]{0,40}\b(?:récupérez|échangez|retirez|profitez)\b[^.!?]{0,20}\b(?:cadeau|récompense|lot)\b|)"
     R"(\bpunti\b<15>\b(?:scadono|scadranno|in\s+scadenza)\b|\b(?:credito|punti|saldo|bonus)\b[^.!?]{0,40}\b(?:svanisce|scade|scadono|sparisce)\b[^.!?]{0,40}\b(?:ritiri|riscatti|prenda|converta)\b[^.!?]{0,20}\b(?:regalo|premio|buono)\b|)"
     R"(\bpuntos\b<25>\b(?:vencen|caducan|expiran|vencer[áa]n)\b|)"
     R"(\b(?:pontos|milhas)\b<20>\b(?:expiram|vencem|expira|ser[ãa]o)\b|\bresgate\b<20>\b(?:agora|pontos|pr[êe]mio|hoje|j[áa])\b|)"
     R"(\b(?:выиграл\w*|победител\w+|розыгрыш\w*|приз\w*|дарит|дарим|подарочн\w+|поздравля\w+)\b[\s\S]{0,80}\b(?:оплат\w+|комисси\w+|перечисл\w+|внес\w+|внести|пошлин\w+|взнос\w*)\b[\s\S]{0,80}\b(?:\d+\s?(?:руб\w*|₽|р)|карт\w+|доставк\w+|налог\w*)\b|\b(?:бонус\w*|балл\w*|мил\w+)\b<15>\b(?:сгорают|сгорят|аннулиру\w+)\s+(?:сегодня|завтра)\b|\b(?:к[эе]шб[эе]к|баллы|бонусы)\b<25>\b(?:исчезн\w+|сгор\w+)\b<30>\b(?:подарок|заберите|обменя\w+)\b|)"
     R"([积積]分[\s\S]{0,10}(?:[兑兌][换換]|抵扣)[\s\S]{0,8}(?:[现現]金|\d+元)|(?:[积積]分|[点點][数數]|[红紅]利)[\s\S]{0,16}(?:[过過]期|到期|清零|失效|[兑兌][换換])[\s\S]{0,16}(?:[点點][击擊]|[链連]|清零|[现現]金)|(?:[奖獎][励勵]|[积積]分|[话話][费費])[\s\S]{0,10}(?:失效|清零|[过過]期)[\s\S]{0,8}(?:[领領]取|[兑兌][换換])|)"
     R"(ポイント[\s\S]{0,12}(?:失効|期限切れ|消滅)[\s\S]{0,20}(?:下記|交換|こちら|リンク)|ポイント[\s\S]{0,12}(?:期限|失効)[\s\S]{0,24}(?:商品|ギフト|景品)[\s\S]{0,4}(?:交換|引き換え)|(?:特典|ポイント)[\s\S]{0,14}失効[\s\S]{0,16}(?:景品|受け取)|)"
     R"((?:포인트|마일리지)[\s\S]{0,14}(?:소멸|만료)[\s\S]{0,16}(?:링크|교환|http)|환급금[\s\S]{0,20}(?:조회|신청|소멸)[\s\S]{0,10}(?:링크|않으면|하세요|오늘)|(?:혜택|포인트)[\s\S]{0,14}(?:사라|소멸)[\s\S]{0,14}(?:선물|받아|교환)|)"
     R"(\b(?:we|i|my\s+\w+\s+and\s+i)\b<12>\b(?:won|hit)\b<15>\b(?:powerball|lottery|jackpot|euromillions|lotto)\b<60>\b(?:you|strangers?|donat\w+|share|randomly)\b|\b(?:amount|sum|gift|package|bonus|payout|voucher|reward)\s+(?:of\s+)?<amount><30>\b(?:is|are|has\s+been|have\s+been)\s+(?:\w+\s+)?(?:reserved|set\s+aside|credited|waiting|approved|assigned|earmarked)\b<20>\b(?:you|your)\b)"); }),
     true},
    {"afee-inheritance", "Advance fee", "warn", 70,
     "offers a share of an inheritance or of a dead stranger's money",
     pattern([] { return std::string_view(
     R"(\b(?:inherit\w*|estate|fortune|legacy|deceased|late\s+(?:client|customer|husband|father))\b<80>\b(?:next\s+of\s+kin|share|percent|%|heir|beneficiary|your\s+(?:name|surname|help)|split|relative)\b|)"
     R"(\b(?:client|customer|man|gentleman|depositor)\b<25>\b(?:died|passed\s+away|left)\b<60>\b(?:heirs?|surname|relative|next\s+of\s+kin|nobody|family\s+name)\b|)"
     R"(\bmeu\s+(?:falecido\s+)?cliente\s+(?:morreu|faleceu)\b|\bfalecido\b<60>\b(?:depósito|fundos?|herança)\b|\bnamed\s+you\b<12>\bnext\s+of\s+kin\b|)"
     R"(\blate\s+(?:husband|wife|father|client)(?:\'s)?\s+(?:legacy|estate|fund|wealth)\b|)"
     R"(\b(?:dying|death|sick)\s+bed\b<200>\b(?:god|fund\w*|donat\w+|charity|money|million|will)\b|)"
     R"(\b(?:fundos|fondos|dinheiro|dinero)\b<40>\b(?:heran[çc]a|herencia)\b<60>\b(?:falecid[oa]|fallecid[oa]|marido|esposo|difunt[oa])\b|)"
     R"(\b(?:verstorbene[nr]?|verschiedene[nr]?)\s+(?:ehemann\w*|mann\w*|kunden?|klienten?|mandanten?|vater\w*)\b<100>\b(?:million\w*|fonds|geld|erbe|spend\w+|konto|vermögen)\b|)"
     R"(\b(?:late|deceased|dead|died|passed\s+away|demise\s+of)\b<80>\b(?:client|customer|husband|father|relative|depositor|investor|engineer|account\s+holder|owner|national|businessman|contractor|merchant|chief|general|dr|mr)\b<200>\b(?:next\s+of\s+kin|inherit\w*|fund|funds|deposit(?:ed)?|estate|million|unclaimed|beneficiary|account|left\s+behind|safe\s?keeping)\b|)"
     R"(\b(?:next\s+of\s+kin|heir|beneficiary)\b<120>\b(?:deceased|late\s+(?:client|customer|husband|father|mr|engineer|dr)|million|fund|funds|deposit|inherit\w*|unclaimed|transfer|estate)\b|)"
     R"(\b(?:inheritance|inherited|estate)\b<60>(?:\b(?:fund|funds|million|claim|sum|transfer|beneficiary|unclaimed|next\s+of\s+kin)|[$€£]\s?\d[\d,.]{4,})\b<60>\b(?:you|your|me|deceased|bank|transfer\w*|country|late|account|percent|contact|assist\w*)\b|)"
     R"(\b(?:my|the)\s+late\s+(?:father|husband|wife|client|mother|uncle|boss|customer)\b<200>\b(?:deposited|deposit|million|fund|funds|security\s+company|inherit\w*|bank|left)\b<60>(?:[$€£]|\b(?:usd|us|million|bank|sum|security|fund|funds|transfer|abroad|consignment|account))|)"
     R"(\b(?:died|deceased|passed\s+away)\b<40>\b(?:without\s+(?:a\s+|any\s+)?(?:will|heir|next\s+of\s+kin)|intestate|no\s+next\s+of\s+kin|leaving\s+(?:no|nobody|behind))\b|)"
     R"(\b(?:terminally\s+ill|(?:oesophageal|esophageal|breast|lung|brain)\s+cancer|cancer\s+of\s+the|few\s+months\s+to\s+live|doctor\s+(?:told|said))\b<200>\b(?:donate|charity|inherit\w*|fund|funds|million|orphanage|less\s+privileged|god|widow)\b|)"
     R"(\b(?:erbschaft|nachlass|erbe|nächster\s+angehöriger|erbberechtigt\w*)\b<100>\b(?:millionen|mio|verstorben\w*|konto|bank|kunde\w*|überweis\w+|fonds)\b|)"
     R"(\b(?:héritage|succession|défunte?|feue?)\b<100>\b(?:millions?|compte|banque|fonds|bénéficiaire|somme)\b|)"
     R"(\b(?:herencia|heran[çc]a|fallecid[oa]|falecid[oa]|difunt[oa])\b<100>\b(?:millones|milh[õo]es|cuenta|conta|banco|fondos?|fundos?|beneficiari[oa]|benefici[áa]ri[oa])\b|)"
     R"((?:遗产|遺產)<30>(?:万|萬|百万|继承|繼承|银行|銀行|受益)|)"
     R"(\b(?:i|we)\b<15>\b(?:leave|bequeath|pass|entrust)\b<40>\b(?:estate|inheritance|fortune|savings|wealth|money|funds)\b<15>\bto\b<15>\b(?:honest|god-?fearing|trustworthy|stranger|somebody|someone|you)\b|\b(?:dying|terminal\w*|cancer|months\s+to\s+live|sick\s?bed)\b<60>\b(?:estate|inheritance|fortune|wealth|funds|late\s+husband|donat\w+)\b|\b(?:same|your)\s+(?:last\s+name|surname|family\s+name)\b<60>\b(?:died|dead|deceased|heirs?|kin|estate|fortune|deposit)\b|\b(?:died|dead|deceased|perished)\b<40>\b(?:surname|last\s+name|family\s+name)\b<40>\b(?:yours?|you|same)\b)"); }),
     true},
    {"afee-beneficiary", "Advance fee", "warn", 45,
     "says a fund or payment is waiting for the reader as its beneficiary",
     pattern([] { return std::string_view(
     R"(\b(?:your|the)\s+(?:\w+\s+)?(?:fund|payment|compensation|money|sum|draft|atm\s+card)\b<30>\b(?:approved|ready|released|waiting|pending|unclaimed|deposited)\b<60>\b(?:your\s+(?:name|favou?r|account|details)|claim|contact|beneficiary|collect|tell\s+us)\b|)"
     R"(\b(?:payment|sum|fund|money|balance)\b<40>\b(?:is\s+ready|sitting|waiting|lying|held)\b<25>\b(?:in\s+your\s+name|with\s+our\s+bank|for\s+you|at\s+our\s+branch)\b|)"
     R"(\bindeniza(?:ção|r)\b<80>\b(?:vítimas|beneficiários|fundos|golpes?)\b|\bnew\s+incoming\s+transaction\b[^!?]{0,60}\b(?:withdraw\w*|order)\b|\b(?:payment|fund|transfer|sum)\b<20>\b(?:approved|issued|credited|released)\s+in\s+your\s+(?:favou?r|name)\b|(?:<amount>|\b\d[\d.,]*\s+?[$€])<15>\b(?:will\s+be\s+(?:cancel\w+|blocked|lost|burn\w*)|burns?\s+out)(?:\b|!)|[+]\s+?\d[\d.,]*\s+?[$€]<10>\bwill\s+be\b|\baccount\s+(?:already\s+)?has\s+[+]|(?:^|\s)[+][$€]\d[\d.,]*|)"
     R"(\ballocated\s+funds?\b|)"
     R"(\btransfer\b<15>\b(?:sum|fund|funds|money|million\w*)\b<50>\b(?:into|to)\s+your\s+(?:bank\s+)?account\b|)"
     R"(\bas\s+my\s+foreign\s+partner\b|)"
     R"(\b(?:confidential|mutually\s+beneficial|crave\s+your\s+indulgence)\b<60>\b(?:transaction|business|proposal)\b<40>(?:[.!]|\b(?:details|get\s+back|reply|contact)\b)|)"
     R"(\b(?:sum|payment|funds?|transfer|zahlung|summe)\b<60>\b(?:united\s+nations|vereinten\s+nationen|generalsekretär)\b|)"
     R"(\b(?:urgent|important|dringende|wichtige)\s+(?:\w+\s+)?(?:matter|angelegenheit|discussion|discuss[ãa]o)\b<40>\b(?:discuss|besprechen|with\s+you|mit\s+ihnen|share)\b|)"
     R"(\b(?:you|your\s+(?:name|e-?mail))\b<30>\b(?:beneficiary|beneficiaries|next\s+of\s+kin|(?:to\s+be|be|been)\s+compensated)\b<60>(?:\b(?:funds?|payments?|sum|million|usd|atm|release|inherit\w*|donation)|\$)\b|)"
     R"(\b(?:beneficiary|compensation|inheritance|unpaid|abandoned)\s+(?:funds?|payments?|sum)\b<50>\b(?:release\w*|transfer\w*|approved|your|in\s+your\s+(?:name|favou?r)|million|atm|usd|due\s+to\s+you)\b|)"
     R"(\b(?:release|payment|transfer|remittance|delivery|disbursement)\s+of\s+your\s+(?:\w+\s+){0,3}(?:funds?|inheritance|compensation|consignment|atm\s+card|winnings?)\b|)"
     R"(\byour\s+(?:\w+\s+){0,3}(?:compensation|inheritance|consignment|fund|funds|atm\s+(?:visa\s+|master\s?|debit\s+)?card|bank\s+draft|cashier['’]?s?\s+che(?:que|ck)|unpaid\s+(?:fund|payment))\b<40>\b(?:release|released|transferred|approved|deliver\w*|sum|million|valued|worth)\b|)"
     R"(\b(?:atm\s+(?:visa\s+|master\s?|debit\s+)?card|bank\s+draft|cashier['’]?s?\s+che(?:que|ck)|consignment\s+box|trunk\s+box)\b<60>\b(?:your\s+name|worth|loaded|sum|million|valued|courier|diplomat\w*)\b|)"
     R"(\b(?:proposal|proposition|transaction|deal|business|investment)\b<80>\b(?:mutual(?:ly)?\s+(?:benefi\w+|interest)|(?:benefit|beneficial\s+to|interest\s+to)\s+(?:of\s+)?(?:both|us)|(?:\d+|fifty|forty|thirty)\s?(?:%|percent)<30>\b(?:you|share|total))\b|)"
     R"(\bmutual(?:ly)?\s+beneficial\b<40>\b(?:business|investment|proposal|transaction|opportunit\w+|deal|relationship)\b<60>\b(?:reply|receiv\w+|details|discuss\w*|contact|respon\w+|interest\w*|get\s+back)\b|)"
     R"(\b(?:lucrative|profitable|handsome|huge|confidential|important|urgent)\s+(?:\w+\s+)?(?:business\s+(?:proposal|proposition|deal|transaction|offer)|deal|proposal|proposition|transaction)\b<60>\b(?:you|details|discuss|reply|contact|share|with\s+you|get\s+back|interest\w*|million)\b|)"
     R"(\b(?:foreign\s+partner|god[- ]fearing|trustworthy|reputable|reliable)\s+(?:and\s+\w+\s+)?(?:person|partner|individual|foreigner|someone|fellow)\b<80>\b(?:fund|funds|million|entrust|charity|claim|orphanage|transfer|assist\s+me)\b|)"
     R"(\b(?:names?\s+in\s+full|full\s+names?|your\s+names?)\b<40>\b(?:address|phone|telephone|mobile|nationality|country)\b<80>\b(?:occupation|age|sex|gender|marital\s+status|next\s+of\s+kin|passport|identification|nationality|id\s+card)\b|)"
     R"(\b(?:i\s+have|there\s+is|i['’]ve\s+got)\b<12>\b(?:something|an\s+important|a\s+very\s+important|a\s+business|a\s+vital)\b<25>\b(?:disclose|discuss|tell|share|proposal|information|message)\b<10>\b(?:to|with|for)\s+you\b|)"
     R"(\b(?:charity|orphanage|less\s+privileged|humanitarian)\s+(?:work|project|home|foundation|fund|organi[sz]ation)s?\b<60>\b(?:your\s+country|on\s+my\s+behalf|you\s+to|donat\w+|fund|sum|million|entrust|with\s+you)\b|)"
     R"(\b(?:begünstigte[rn]?)\b<60>\b(?:fonds|millionen|summe|auszahlung|entschädigung)\b|)"
     R"(\bbénéficiaire\b<60>\b(?:fonds|millions?|somme|indemnisation)\b|)"
     R"(\b(?:beneficiari[oa]|benefici[áa]ri[oa])\b<60>\b(?:fondos?|fundos?|millones|milh[õo]es|suma|compensaci[óo]n|indeniza[çc][ãa]o)\b|)"
     R"(\bvotre\s+solde\s+est\s+prêt\b<20>\bretiré\b|)"
     R"(\b(?:your|you)\b<20>\b(?:name|e-?mail|file|payment|fund|compensation)\b<40>\b(?:list|beneficiar\w+|batch|payees|approved)\b<60>\b(?:compensat\w+|payout|paid\s+out|fund|funds|million|<amount>|released?|atm\s+card)\b|\b(?:compensation|unpaid|overdue|abandoned|contract)\s+(?:fund|funds|payment|sum)\b<40>\b(?:you|your)\b)"); }),
     true},
    {"afee-processing-fee", "Advance fee", "warn", 50,
     "asks for a fee before money or goods can be released",
     pattern([] { return std::string_view(
     R"(\b(?:deposit|pay|remit|cover|send)\b<30>\b(?:tax|gst|insurance|clearance|stamp|release|handling|registration|processing|customs|legal)\b<20>\b(?:tax|fees?|duty|charges?|costs?|\d[\d,.]*)\b<40>\b(?:releas\w+|claim|transfer\w*|cheque|prize|parcel|funds|in\s+advance|before)\b|)"
     R"(\bnothing\b<12>\b(?:be\s+)?(?:paid|released)\b<12>\buntil\b|\bmust\s+first\s+(?:cover|pay)\b|)"
     R"(\b(?:wire|pay|send|transfer)\b<15>\bdeposit\b<60>\bkeys\b|\bdeposit\b[\s\S]{0,80}\b(?:courier|post|mail|send)\b<10>\bkeys\b|\bpay\b<15><amount><15>\b(?:re-?delivery|shipping|customs|delivery|handling)\s+fee\b|\b(?:courier|driver|agent|delivery\s+company)\b<10>\b(?:needs|requires|asks\s+for|wants)\b<6><amount><40>\b(?:box|parcel|package|consignment|deliver\w*|insurance)\b|\b(?:deposit)\b[\s\S]{0,60}\b(?:keys?)\b<20>\b(?:dhl|post|courier|mail|ups)\b|\b(?:transfer|send|pay|wire)\b[^.!?]{0,20}\b(?:deposit)\b[\s\S]{0,60}\b(?:keys?)\b|)"
     R"(\b(?:pay|send|remit|paid|payment\s+of|settle|cover|require[sd]?|only)\b<30>\b(?:processing|release|clearance|handling|administrative|administration|transfer|activation|legal|registration|insurance|redelivery|re-?delivery|shipping|delivery|customs|courier|unlock|withdrawal|gas|verification|demurrage|security|documentation)\s+(?:fees?|charges?|costs?|tax)\b<60>\b(?:release\w*|receive|before|claim\w*|deliver\w*|funds?|parcel|package|prize|winnings?|withdraw\w*|loan|shipment|item|order|consignment|process|your)\b|)"
     R"(\b(?:processing|release|clearance|handling|administrative|activation|redelivery|re-?delivery|shipping|delivery|customs|courier|withdrawal|unlock|demurrage)\s+(?:fees?|charges?|costs?)\b<40>(?:\b(?:of|is|only|may\s+apply|applies|before|required|must|needs?|unpaid|outstanding|to\s+be\s+paid)\b|:)<40>(?:<amount>|\b(?:release\w*|claim\w*|receive|parcel|package|deliver\w*|funds?|withdraw\w*|paid|apply)\b)|)"
     R"(\b(?:small|nominal|refundable|one[- ]time|minor|upfront|advance|little|token)\s+(?:\w+\s+)?(?:fee|charge|payment|deposit)\b<60>\b(?:release\w*|receive|claim\w*|deliver\w*|funds?|parcel|package|prize|loan|unlock|withdraw\w*|process\w*|shipping)\b|)"
     R"(\b(?:fee|charge|tax|cost)s?\b<30>\b(?:before|in\s+order\s+to|to\s+enable|so\s+that|prior\s+to)\b<30>\b(?:release|receive|claim|deliver\w*|withdraw\w*|your\s+(?:funds?|parcel|package|prize|money|loan))\b|)"
     R"(\b(?:zollgebühr\w*|versandgebühr\w*|versandkosten|bearbeitungsgebühr\w*|liefergebühr\w*|zustellgebühr\w*|zustellungsgebühr\w*|freigabegebühr\w*|gebühr(?:en)?)\b<60>\b(?:bezahlen|zahlen|begleichen|entrichten|zu\s+zahlen|zu\s+bezahlen|fällig|anfallen|beglichen|bezahlt|ausstehend\w*)\b|)"
     R"(\bfrais\s+(?:de\s+)?(?:douane|livraison|dossier|traitement|port|réexpédition|dédouanement|\w+)\b<50>\b(?:payer|régler|réglés?|payés?|acquitter|d['’]un\s+montant|impayés?|non)\b|)"
     R"(\b(?:payer|régler|acquitte[rz])\b<30>\bfrais\s+de\s+(?:douane|livraison|dossier|traitement|port|réexpédition|dédouanement)\b|)"
     R"(\b(?:pag\w+|abon\w+|quit\w+|efetu\w+|regulari\w+)\b<40>\b(?:tasas?|gastos?|tarifas?|costos?|taxas?|imposto|impuestos?|derechos?|frete)\b<25>\b(?:aduan\w+|env[íi]o|entrega|liberaci[óo]n|alfandeg\w+|alf[âa]ndeg\w+|libera[çc][ãa]o|desembara[çc]o|importa\w+)\b|)"
     R"((?:支付|缴纳|繳納|缴|繳)<10>(?:手续费|手續費|关税|關稅|清关费|清關費|运费|運費|保证金|保證金|解冻费)|)"
     R"((?:手数料|関税|保証金)<12>(?:支払|振込|お支払い|送金)|)"
     R"((?:수수료|관세|통관비|보증금)<10>(?:납부|결제|입금|송금|지불)|)"
     R"(\b(?:zollgebühr\w*|zoll|versandkosten|porto|liefergebühr\w*|gebühr\w*|einfuhrabgaben|bearbeitungsgebühr\w*)\b<30>\b(?:von|in\s+höhe\s+von|über|offen|noch\s+offen|ausstehend)\b<40>\b(?:bezahl\w*|zahl\w*|begleich\w*|entricht\w*|ausliefern|zustell\w+|link)\b|\b(?:noch|es\s+sind|sind\s+noch)\b<15><amount><20>\b(?:versandkosten|zoll|gebühr\w*|porto)\b|\b(?:entrichten|zahlen|bezahlen|begleichen|übernehmen)\s+sie\b<25>\b\w*(?:pauschale|gebühr|gebühren|porto|versandkosten)\b|\bkaution\b[\s\S]{0,60}\bschlüssel\b<20>\b(?:per\s+(?:kurier|post)|schicken|zugeschickt|versand\w*)\b|\bzahlen\s+sie<8><amount><20>\b(?:link|zustell\w+|damit\s+wir)\b|\b(?:kaution)\b[\s\S]{0,60}\b(?:schlüssel)\b<20>\b(?:dhl|post|kurier|paket)\b|\b(?:überweisen|zahlen|schicken)\b[^.!?]{0,20}\b(?:kaution)\b[\s\S]{0,60}\b(?:schlüssel)\b|)"
     R"(\b(?:alleen|slechts|enkel)\b<12>\bverzendkosten\b|\bbetaal\b<10><amount><20>\b(?:invoerkosten|verzendkosten|kosten|bezorg\w+)|\b(?:borg|maand\s+huur|aanbetaling|huur)\b[\s\S]{0,80}\b(?:sleutels?|bezichtiging|buitenland)\b<40>\b(?:post|airbnb|stuur|komen|koerier|opsturen)\b|\b(?:voldoe|betaal)\b<12>\b\w*(?:kosten|toeslag|servicekosten)\b|\bborg\b[\s\S]{0,80}\bstuur\b<12>\bsleutels?\b|\b(?:borg)\b[\s\S]{0,60}\b(?:sleutels?)\b<20>\b(?:dhl|post|koerier|pakket)\b|\b(?:betalen|overmaken|maak|stort)\b[^.!?]{0,20}\b(?:borg)\b[\s\S]{0,60}\b(?:sleutels?)\b|)"
     R"(\b(?:frais|droits|taxes?)\b<30>(?:<amount>|\beuros?\b)<30>\b(?:restent|à\s+régler|à\s+payer|impayés?|dus|régl\w+|pay\w+)\b|\b(?:caution|premier\s+mois|acompte|loyer|dépôt\s+de\s+garantie)\b<80>\b(?:mandat|avance|avant|verse\w*|virement|payer)\b[\s\S]{0,100}\b(?:clés|clefs|poste|courrier|visite)\b|\b(?:verse[rz]|payer|payez|envoye[rz]|régler)\b<40>\b(?:caution|premier\s+mois|acompte|loyer)\b[\s\S]{0,100}\b(?:clés|clefs|visite)\b|\b(?:acquitte[rz]|régle[rz]|paye[rz]|verse[rz])\b<15>\bfrais\b|\b(?:caution|loyer)\b[\s\S]{0,80}\b(?:clés|clefs)\s+par\s+(?:la\s+poste|courrier|chronopost|coursier)\b|\b(?:caution)\b[\s\S]{0,60}\b(?:clés|clefs)\b<20>\b(?:chronopost|dhl|poste|courrier|coursier|colissimo)\b|\b(?:versez|virez|payez|envoyez|transférez)\b[^.!?]{0,20}\b(?:caution)\b[\s\S]{0,60}\b(?:clés|clefs)\b|)"
     R"(\b(?:spese|oneri|dazi|tassa|costi|diritti)\b<25>\b(?:doganali|consegna|spedizione|sdoganamento)\b|\b(?:paga|paghi|saldare|saldi|versa|versi)\b<30>\b(?:spese|oneri|dazi|consegna)\b|\b(?:caparra|mensilità\s+anticipata|mensilità|acconto|deposito)\b[\s\S]{0,80}\b(?:chiavi|estero|airbnb|prima\s+di\s+vedere)\b<40>\b(?:corriere|consegna|posta|mando|spedisco|airbnb|invio)\b|\b(?:vers(?!ion|us|es?\b|atil)\w+|pag(?!e\b|es\b|ed\b|er\b|ing)\w+|bonifico)\b<30>\b(?:caparra|mensilità|acconto)\b[\s\S]{0,80}\bchiavi\b|\b(?:versi|versa|paghi|paga)\b<10>\b(?:contributo|tariffa|spese|tassa)\b|\b(?:caparra|deposito)\b[\s\S]{0,60}\b(?:chiavi)\b<20>\b(?:dhl|corriere|posta|raccomandata)\b|\b(?:bonifico|versi|invii|paghi)\b[^.!?]{0,20}\b(?:caparra|deposito)\b[\s\S]{0,60}\b(?:chiavi)\b|)"
     R"(\b(?:tasas?|gastos|aranceles|costos?|cargos?|impuestos)\b<25>\b(?:de\s+)?(?:env[íi]o|aduana\w*|entrega|importaci[óo]n)?<30>\b(?:recibir|entrega|pago|enlace|pague|pendientes?|liberar)\b|\b(?:pag[au]e?|abone)\b<10><amount><20>\b(?:gastos|tasas?|env[íi]o|aduana|recibir)\b|\b(?:fianza|mes\s+por\s+adelantado|dep[óo]sito|anticipo|apartar|reservar)\b<80>\b(?:antes\s+de\s+ver\w*|mensajer[íi]a|airbnb|env[íi]o\s+las\s+llaves|llaves\s+(?:por|las\s+entrega))\b|\b(?:transferencia|pague|pagar|abone|deposite)\b<30>\b(?:fianza|anticipo|dep[óo]sito|un\s+mes)\b[\s\S]{0,100}\b(?:env[íi]\w+|mando|airbnb|mensajer[íi]a)\b|\b(?:abone|pague|paga|cancele)\b<12>\b(?:gastos|tasas?|tarifa|cargo)\s+(?:de\s+)?\w+|\b(?:fianza|dep[óo]sito)\b[\s\S]{0,60}\bllaves\b<20>\b(?:llegan|por\s+mensajer\w+|se\s+env[íi]an)\b|\bfianza\b[\s\S]{0,80}\b(?:mando|env[íi]o|mandar[ée]|enviar[ée])\b<12>\bllaves\b|\b(?:fianza|dep[óo]sito|dos\s+meses)\b[\s\S]{0,60}\b(?:llaves)\b<20>\b(?:mensajero|mensajer[íi]a|correo|dhl|seur)\b|)"
     R"(\b(?:taxa|despesas?|imposto|tarifa)\b<30>\b(?:libera\w+|entrega|receber|alf[âa]ndega|importa[çc][ãa]o|pagamento)\b|\b(?:cau[çc][ãa]o|m[êe]s\s+adiantado|dep[óo]sito|sinal)\b[\s\S]{0,80}\b(?:antes\s+de\s+ver|correio|airbnb|(?:envio|mando)\s+as\s+chaves)\b|\b(?:quite|pague|paga)\b<10>\b(?:tarifa|taxa|despesas)\b|\b(?:cau[çc][ãa]o|dep[óo]sito)\b[\s\S]{0,60}\b(?:chaves)\b<20>\b(?:dhl|correios?|ctt|sedex|courier)\b|)"
     R"(\b(?:оплатите|внесите|оплатить|оплатив)\b<25>\b(?:пошлин\w+|комисси\w+|повторн\w+\s+доставк\w+|страховой\s+взнос)\b|\bвнесите\b<20>\bсервисный\s+сбор\b|\b(?:предоплат\w+|залог)\b[\s\S]{0,60}\bключи\b<12>\b(?:оставлю|у\s+соседки|передам)\b|\bпереведите\s+залог\b[\s\S]{0,40}\bключи\b|)"
     R"((?:派送|配送|投[递遞]|[关關]税|[关關]稅|手[续續]|清[关關]|解[冻凍]|保[证證])[费費金]?[\s\S]{0,16}(?:支付|付款|[缴繳][纳納]?|[点點][击擊]|[链連])|(?:押金|[订訂定]金|[预預]付|[报報]名[费費])[\s\S]{0,30}(?:[钥鑰]匙|看房|保留|[锁鎖]定|入[职職])|(?:先付|先[汇匯转轉]|先交)[\s\S]{0,12}(?:押金|[订訂定]金|[预預]付)|(?:三|双|雙|十|[两兩])倍[赔賠][偿償付]?[\s\S]{0,30}(?:[银銀]行卡|微信|客服)|(?:定金|押金)[\s\S]{0,24}[钥鑰]匙[\s\S]{0,6}(?:快[递遞]|寄)|先交[\s\S]{0,8}[费費]|)"
     R"((?:再配達料|送料|関税|手数料|保証金|敷金|予約金|税金)[\s\S]{0,12}(?:を)?(?:お支払い|振り?込|入金|支払う|だけ)[\s\S]{0,12}(?:ください|必要|だけで|いただけれ)|(?:先に|内見の前に)[\s\S]{0,14}(?:振り?込|入金|送金|お支払い)|敷金[\s\S]{0,16}鍵[\s\S]{0,6}(?:DHL|送り|郵送)|開設費[\s\S]{0,10}入金|円をお支払いください|)"
     R"(먼저 ?(?:입금|상환)[\s\S]{0,14}(?:한도|승인|대출|신용)|(?:배송비|관세|제세공과금|선납금|수수료|보험료)[\s\S]{0,14}(?:납부|결제|입금|송금|내시면|먼저)|(?:서비스|재배송) ?비용을? ?(?:결제|납부|입금)|(?:보증금|월세)[\s\S]{0,16}보내[\s\S]{0,12}(?:열쇠|키)[\s\S]{0,6}(?:택배|보내)|보증금[\s\S]{0,16}열쇠[\s\S]{0,6}(?:DHL|택배|보내)|개설비[\s\S]{0,8}입금|[\d,]+원을? ?결제해 ?주세요|)"
     R"(<sidedeal>|)"
     R"(\b(?:zustell\w*|versuch|lieferung|versand|gewinn\w*|preis|auszahlung)\b<50>\b(?:<amount>|kosten|gebühr|steuer)<25>\b(?:begleich\w*|zahl\w*|überweis\w*)\b|\bnur\s+der\s+versand\s+kostet\b|)"
     R"(\b(?:rit|bezorg\w*|aflevering|prijs|vrij\s+te\s+geven|toeslag)\b<50>\b(?:belasting|kosten|overmaken|betalen|voldoen|administratiekosten|cent)\b|\b(?:eerst|nog)\b<25>\b(?:administratiekosten|kansspelbelasting|verzendkosten|leges)\b|)"
     R"(\b(?:seuls?\s+les\s+frais|vous\s+payez\s+juste|reprogramm\w+|débloqu\w+|libér\w+|(?:re)?livraison)\b<40>(?:\b(?:frais|assurance|enregistrement|à\s+votre\s+charge)\b|<amount>)|)"
     R"(\b(?:fissare|sbloccare|ricevere|ritirare|liberare|svincolare|appuntamento|in\s+aeroporto|vuole)\b<40>\b(?:contributo|tassa|spese|versare|oneri|dogana)\b|\b(?:spese\s+legali|tassa\s+di)\b<20>\b(?:trasferimento|sblocco|sdoganamento)\b|)"
     R"(\b(?:abone|pague|deposit[ae]|consign[ae]|transfiera)\b<40>\b(?:seguro|impuesto|papeles|tr[áa]mite|tasas?|gastos)\b<40>\b(?:liberar|traspaso|premio|entrega|retirar|desbloque\w+|recibir\w*|fondos)\b|)"
     R"(\b(?:antecip\w+|pag\w+|deposit\w+|carreg\w+)\b<30>\b(?:seguro|taxa|imposto|custas|desalfandeg\w+|comiss[ãa]o)\b|\bpara\s+libertar\b|\bpara\s+eu\s+passar\b<25>\bpagar\b|\bcarregas\b<15>\bdevolv\w+|)"
     R"(\b(?:авито|юл[аеу]|объявлени\w+|продавц\w+|покупател\w+|актуал\w+|коляск\w+|вещ\w+)\b[\s\S]{0,80}\b(?:ссылк\w+|qr|оплатил\w*|безопасн\w+\s+сделк\w+|оформил\w*)\b[\s\S]{0,80}\b(?:карт[уы]|cvv|остаток|получ\w+\s+(?:деньги|оплат\w+|средств\w*)|реквизит\w+|зачисл\w+|баланс\w*|ватсап|whats\s?app)\b|\b(?:посылк\w+|доставк\w+|курьер\w*|отправлени\w+|сдэк|почт\w+|таможн\w+|заказ\w*)\b(?![\s\S]{0,140}\b(?:ничего|бесплатн\w+|мошенник\w+|те,\s+кто)\b)[\s\S]{0,80}\b(?:доплат\w+|оплат\w+|внес\w+|внести|пошлин\w+)\b[\s\S]{0,80}\b(?:\d+(?:[.,]\d+)?\s?(?:руб\w*|₽|р)|сбор\w*|пошлин\w+|повторн\w+)\b[\s\S]{0,80}\b(?:ссылк\w+|ссылочк\w+|введите|cvv|реквизит\w+|номер\s+карты|утилиз\w+|вернут|qr)\b|\b(?:доплат\w+|оплат\w+|пополн\w+|внес\w+)\b<25>\d+<25>\b(?:доставк\w+|выплат\w+|заново|приз\w*|задани\w+|карт\w+)\b|\bпополнить\s+баланс\b|)"
     R"((?:先|只需|需)[\s\S]{0,8}(?:交|付|[转轉]|[缴繳]|[汇匯])[\s\S]{0,10}(?:[费費]|[税稅]|金)[\s\S]{0,14}(?:放款|到[账賬帳]|解[冻凍]|[领領]|激活|提[现現])|(?:交|付)[\s\S]{0,6}保[证證]金|)"
     R"((?:再配達|送料|手数料|税金|保険料)[\s\S]{0,10}(?:円|費用)[\s\S]{0,10}(?:だけ|必要|お?支払|払)|)"
     R"(<heldparcel>|)"
     R"(<keysbypost>|)"
     R"(<buyerfraud>|)"
     R"((?:재배송|재배달|보증료|수수료|통관|배송비)[\s\S]{0,16}(?:원)[\s\S]{0,8}(?:결제|입금|납부|먼저)|전체 ?금액[\s\S]{0,4}다시)"); }),
     true},
    {"afee-million", "Advance fee", "warn", 30,
     "mentions millions that a stranger wants to give or move",
     pattern([] { return std::string_view(
     R"(\b(?:million|billion)s?\b<40>\b(?:dollars?|pounds?|euros?|usd)\b<80>\b(?:partner|trust\w*|help\s+me|move|transfer|invest|share|charity|widow|orphans?|god)\b|)"
     R"(\bmillions?\b<60>\b(?:stranger|choose\s+you|chose\s+you|out\s+of\s+(?:my|the)\s+country|account\s+of\s+your|god\s+told)\b|)"
     R"(\b(?:give|giving|donate|donating|offer)\s+(?:\w+\s+){0,3}(?:[$€£]\s?|usd\s?)\d{1,3}(?:[,.]\d{3}){2,}\b|\b(?:give|donate|leave|bequeath)\b<15>\byou\b<15>\d[\d.,]*\s+?(?:m|million|billion)\b|)"
     R"(\b(?:secretly|decided\s+to|willing\s+to)\s+(?:\w+\s+){0,3}(?:give|donate)\b<30>(?:[$€£]\s?|\b(?:usd|sum\s+of)\s?\$?)\d|)"
     R"((?:[$€£]\s?|\b(?:usd|eur|gbp|us)\s?\$?\s?)\d{1,3}(?:[,.]\d{3}){2,}(?:[.,]\d{2})?<100>\b(?:into\s+your|your\s+(?:bank\s+)?account|to\s+you|for\s+you|partner|beneficiary|donat\w+|charity|inherit\w*|fund|funds|deposited|compensat\w+)\b|)"
     R"((?:[$€£]\s?\d[\d,.]*\s?(?:million|m\b|mln)|\b(?:usd|us\$?|eur|gbp|euros?|dollars?)\b\s?\$?\s?\d{1,3}(?:[,.]\d{3}){2,}|[$€£]\s?\d{1,3}(?:,\d{3}){2,})<150>\b(?:you|your|donat\w+|transfer\w*|beneficiary|deposit(?:ed)?|fund|funds|inherit\w*|compensat\w+|claim|bank\s+account)\b<100>\b(?:you|your|assist\w*|partner\w*|contact|late|account|reply|charity|share|percent|transfer\w*|next\s+of\s+kin|deceased)\b|)"
     R"(\b(?:million|millions\s+of)\s+(?:us\s+|u\.s\.\s+|united\s+states\s+|american\s+)?(?:dollars|usd|euros?|pounds(?:\s+sterling)?)\b<150>\b(?:you|your|donat\w+|transfer\w*|beneficiary|deposited|fund|inherit\w*|compensat\w+|claim)\b|)"
     R"(\b(?:sum|amount|total)\s+of\b<60>\b(?:million|[a-z-]+\s+(?:million|thousand)\s+(?:\w+\s+){0,3}(?:dollars|euros?|pounds))\b|)"
     R"(\b(?:million|mio\.?|millionen)\s+(?:us-?)?(?:dollar|euro)\b<100>\b(?:ihnen|sie|spend\w+|überweis\w+|konto)\b|)"
     R"(\bmillions?\s+(?:de\s+|d['’])(?:dollars|euros)\b<100>\b(?:vous|votre|don|fonds)\b|)"
     R"(\b(?:millones|milh[õo]es)\s+de\s+(?:d[óo]lares|euros|reais)\b<100>\b(?:usted|su|voc[êe]|sua|fondos?|fundos?|doa\w+|don\w+)\b|)"
     R"(\bsolde\b<20>\bprêt\s+à\s+être\s+retiré\b|)"
     R"(\b(?:million|millions|billion)\s+(?:\w+\s+)?(?:dollars|usd|euros?|pounds)\b<40>\b(?:vault|safe|box|trunk|security\s+company|deposit|account|chest)\b|\b(?:vault|trunk|security\s+company|metal\s+box|safe\s?keeping)\b<40>\b(?:million|millions)\b|\b(?:need|look\w*\s+for|seek\w*)\b<20>\b(?:someone|somebody|partner|person)\b<30>\b(?:abroad|foreign|overseas|your\s+country)\b<40>\b(?:receive|invest|transfer|move)\b|)"
     R"(\bmillionen\b<60>\b(?:armen|bedürftige\w*|wohltätig\w*|spenden|waisen\w*|ihnen\s+(?:überlassen|vermachen))\b|)"
     R"(\bmillions?\b<60>\b(?:pauvres|démunis|œuvres|charité|orphelin\w*|vous\s+(?:léguer|confier))\b|)"
     R"(\bmilioni\b<60>\b(?:poveri|bisognosi|beneficenza|orfani)\b|)"
     R"(\bmillones\b<60>\b(?:pobres|necesitados|caridad|hu[ée]rfanos)\b|)"
     R"(\bmilh[õo]es\b<60>\b(?:pobres|necessitados|caridade|[óo]rf[ãa]os)\b)"); }),
     true},
    {"afee-barrister", "Advance fee", "warn", 35,
     "speaks as a lawyer, banker or official of a faraway estate",
     pattern([] { return std::string_view(
     R"(\b(?:barrister|solicitor|attorney|lawyer|bank\s+(?:manager|director|officer)|auditor)\b<60>\b(?:late\s+(?:client|customer|engineer|mr)|deceased|died|estate|client|inheritance|widow|abandoned|dormant)\b|\b(?:i\s+am|i['’]m|my\s+name\s+is|this\s+is|write\s+to\s+you\s+as|writing\s+as)\b<50>\b(?:barrister|solicitor|attorney|lawyer|advocate|notary|executor|legal\s+adviser|bank(?:er|\s+manager|\s+official|\s+officer|\s+director)|auditor|account\s+officer|minister(?:ial)?|government\s+official)\b[\s\S]{0,140}\b(?:late|deceased|estate|inherit\w*|died|next\s+of\s+kin|will\s+of|left\s+behind|unclaimed|dormant|abandoned|of\s+the\s+same\s+name|your\s+relative|your\s+namesake|overseas|your\s+surname|last\s+name|fund)\b|\bof\s+blessed\s+memory\b|\bgood\s+recommendation\b<20>\bcontact\s+you\b|\b(?:barrister|solicitor|attorney|lawyer|advocate|notary|executor)\s+(?:to|of|for|handling|representing)\b<25>\b(?:late|deceased|estate|client\s+who\s+died|foreign|will)\b|)"
     R"(\b(?:law\s+(?:firm|office|chambers?)|chambers)\b<50>\b(?:estate|late|deceased|inherit\w*|next\s+of\s+kin)\b|)"
     R"(\b(?:bank\s+manager|director|manager|auditor)\s+(?:of|at|in|with)\b<30>\bbank\s+(?:of|in|plc)\b<25>\b(?:nigeria|ghana|benin|togo|burkina|africa|lagos|abidjan|accra|lome|cotonou|london|dubai|hong\s+kong|malaysia)\b|)"
     R"(\b(?:i\s+am|i\'m|am)\s+(?:a\s+|an\s+|the\s+|mr\.?\s+|mrs\.?\s+|dr\.?\s+)?(?:\w+\s+){0,4}(?:banker|bank\s+manager|regional\s+manager|branch\s+manager|auditor|account\s+officer|director)\b<60>\bbank\b|)"
     R"(\b(?:barrister|solicitor|attorney|advocate|lawyer|notary)\b<60>\b(?:late|deceased|client|estate|inherit\w*|next\s+of\s+kin|fund|funds|beneficiary|claim)\b<80>\b(?:million|died|next\s+of\s+kin|fund|funds|inherit\w*|transfer|same\s+(?:last\s+name|surname)|nationality|claim|contact|proposal|beneficiary)\b|)"
     R"(\b(?:director|manager|head|officer|auditor|accountant|chairman|staff|secretary)\b<30>\b(?:of|in|with|at|for)\b<30>\b(?:bank|audit|credit|foreign\s+(?:operations?|remittance|exchange)|auditing|remittance|ministry|petroleum|security\s+company|eco\s?bank|central\s+bank)\b<150>\b(?:abandoned|deceased|next\s+of\s+kin|million|dormant|unclaimed|transfer\s+(?:of\s+)?(?:the\s+|this\s+)?(?:fund|money|sum)|inherit\w*)\b|)"
     R"(\b(?:nigeria|lagos|abidjan|ivory\s+coast|cote\s+d['’]ivoire|burkina\s+faso|benin\s+republic|republic\s+of\s+benin|togo|ghana|sierra\s+leone|zimbabwe|senegal|liberia|angola|congo|accra|ouagadougou|south\s+africa)\b<120>\b(?:inherit\w*|deposited|beneficiary|security\s+company|business\s+proposal|my\s+late|next\s+of\s+kin|consignment|foreign\s+partner)\b|)"
     R"(\b(?:rechtsanwalt|notar|anwalt)\b<80>\b(?:verstorben\w*|erbschaft|nachlass|erbe)\b<80>\b(?:millionen|mio|mandant\w*|angehörige\w*|klient\w*)\b|)"
     R"(\b(?:maître|notaire|avocat)\b<80>\b(?:défunt|succession|héritage|feu)\b<80>\b(?:millions?|fonds|bénéficiaire|client)\b|)"
     R"(\b(?:abogado|advogado|notario|not[áa]rio)\b<80>\b(?:fallecid[oa]|falecid[oa]|herencia|heran[çc]a)\b|)"
     R"(\b(?:i|me)\b<30>\b(?:attorney|lawyer|solicitor|barrister|accountant|banker|manager|secretary|adviser|advisor)\b<15>\b(?:of|to|for)\b<15>\b(?:deceased|late|dead|former)\b<40>\b(?:contractor|client|businessman|president|minister|general|farmer|merchant|oil|politician|investor|customer)\b|\b(?:attorney|lawyer|barrister|solicitor|advocate)\b<60>\b(?:togo|benin|ghana|nigeria|lom[eé]|accra|abidjan|burkina|senegal|gambia|hong\s+kong|malaysia|dubai)\b<40>\b(?:client|fund|money|estate|matter|you)\b)"); }),
     true},
    {"afee-un-imf", "Advance fee", "warn", 40,
     "invokes a world body, a central bank or an anti-fraud office that pays out money",
     pattern([] { return std::string_view(
     R"(\b(?:united\s+nations|world\s+bank|imf|monetary\s+fund|central\s+bank|federal\s+reserve|interpol|efcc|fbi)\b<80>\b(?:your\s+(?:fund|payment|name)|victims|scam|compensation|inheritance|owed|funds?\s+(?:release|transfer))\b|)"
     R"(\b(?:financial\s+crimes?\s+commission|efcc|world\s+bank|united\s+nations|imf|interpol)\b<60>\b(?:settle|pay|compensat\w+|debts?|approved|release\w*)\b|)"
     R"(\b(?:united\s+nations|world\s+bank|imf|international\s+monetary\s+fund|federal\s+reserve(?:\s+bank)?|central\s+bank\s+of\s+\w+|european\s+union|efcc|ecowas|fbi|interpol|homeland\s+security|us\s+treasury|treasury\s+department|western\s+union|money\s?gram|federal\s+ministry\s+of\s+finance|reserve\s+bank\s+of\s+\w+|world\s+health\s+organi[sz]ation|federal\s+government)\b<150>\b(?:compensat\w+|beneficiary|your\s+(?:fund|funds|payment|inheritance|money)|scam\s+victims?|grant|atm\s+(?:card|visa)|overdue\s+payment|unpaid|release\s+of|outstanding\s+payment|million|contract\s+payment)\b|)"
     R"(\b(?:compensat\w+|beneficiary|fund|funds|payment|grant|lottery|donation|inheritance)\b<120>\b(?:united\s+nations|world\s+bank|imf|international\s+monetary\s+fund|federal\s+reserve\s+bank|central\s+bank\s+of\s+\w+|efcc|ecowas|western\s+union|money\s?gram|federal\s+ministry\s+of\s+finance|reserve\s+bank\s+of\s+\w+)\b<60>\b(?:you|your|approved|release\w*|transfer\w*|agreed|mandate\w*|pay|send|instructed)\b|)"
     R"(\b(?:scam|fraud)\s+victims?\b<80>\b(?:compensat\w+|refund\w*|paid|payment|fund|funds)\b|)"
     R"(\b(?:vereinte\s+nationen|weltbank|iwf)\b<80>\b(?:entschädigung|auszahlung|fonds|millionen)\b|)"
     R"(\b(?:nations\s+unies|banque\s+mondiale|fmi)\b<80>\b(?:indemnis\w+|fonds|compensation|millions?)\b|)"
     R"(\b(?:naciones\s+unidas|na[çc][õo]es\s+unidas|banco\s+mundial|fmi)\b<80>\b(?:compensaci[óo]n|indeniza\w+|fondos?|fundos?|millones|milh[õo]es)\b|)"
     R"(\bvereinten\s+nationen\b<100>\b(?:zahlung|entschädigung\w*|freigabe|dollar|fonds|million\w*)\b)"); }),
     true},

    // ---- Impersonation -------------------------------------------------------------------------
    {"imp-irs", "Impersonation", "warn", 50,
     "poses as the tax office with a refund or a debt",
     pattern([] { return std::string_view(
     R"(\b(?:toll|parking|congestion|dart\s+charge|e-?zpass|sunpass)\b<25>\b(?:unpaid|outstanding|not\s+(?:been\s+)?paid|overdue|penalty)\b|\b(?:tax|rebate|refund)\b<40>\b(?:card\s+details|debit\s+card|bank\s+details|claim\s+it|portal)\b|)"
     R"(\b(?:rebate|refund)\b<40>\b(?:approved|ready|owed)\b<40>\bcard\b|)"
     R"(\b(?:hmrc|irs|tax\s+office|ato|revenue|cra)\b[\s\S]{0,60}\b(?:owed|refund|rebate|overpaid)\b|\b(?:owed|due\s+back)\b<25><amount><20>\b(?:by|from)\s+the\s+tax\b|\b(?:vehicle|car)\b<20>\b(?:crossed|passed)\b<40>\bno\s+payment\b|)"
     R"(\b(?:unpaid|outstanding|overdue)\s+(?:toll|e-?zpass|parking|congestion|traffic)\b[\s\S]{0,60}\b(?:late\s+fee|penalt\w+|settle|pay|avoid|fine|license|licence|suspen\w+)\b|\b(?:owed|due)\s+a\s+(?:tax\s+)?(?:refund|rebate)\b<12><amount>|\b(?:social\s+security|ministry|council|pension\s+office)\b[\s\S]{0,30}\b(?:benefit|grant|allowance|payment)\b[\s\S]{0,80}\b(?:with\s+your\s+(?:bank\s+)?card|card\s+number)\b|)"
     R"(\b(?:irs|lrs|internal\s+revenue\s+service|hmrc|hm\s+revenue|inland\s+revenue|ato|australian\s+taxation\s+office|cra|canada\s+revenue\s+agency|tax\s+(?:office|authority|department|authorities|bureau|administration)|gov\.uk|mygov|revenue\s+commissioners|service\s+canada)\b<100>\b(?:refund|rebate|eligible|owed?|owing|overpa\w+|penalt\w+|arrest|warrant|lawsuit|final\s+notice|unpaid|stimulus|outstanding|claim\s+your|submit|legal\s+action|audit|verify|irregularit\w+|entitled)\b|)"
     R"(\b(?:tax|fiscal)\s+(?:refund|rebate|return|relief|overpayment|benefit)s?\b<60>\b(?:eligible|entitled|claim|click|submit|pending|of\s+[$€£]|approved|waiting|receive|notification|link|you\s+are\s+due|processed|due\s+to\s+you|application)\b|)"
     R"(\b(?:eligible|entitled|due|qualify|claim|receive|awaiting)\b<40>\b(?:tax|stimulus|council\s+tax|energy|cost\s+of\s+living)\s+(?:refund|rebate|payment|check|cheque|support|relief)\b|)"
     R"(\b(?:unpaid|outstanding|overdue|owe|back)\b<20>\btax(?:es)?\b<60>\b(?:arrest|warrant|lawsuit|legal\s+action|police|immediately|seiz\w+|penalt\w+|sheriff|jail)\b|)"
     R"(\b(?:finanzamt|bundeszentralamt\s+für\s+steuern|elster|steuerverwaltung|finanzministerium|finanzonline|bundesministerium\s+der\s+finanzen)\b<100>\b(?:rückerstattung|erstattung|nachzahlung|anspruch|mahnung|pfändung|guthaben|auszahlung|überprüf\w+|frist|letzte)\b|)"
     R"(\bsteuer(?:rück)?erstattung\b<60>\b(?:anspruch|beantragen|klick\w*|auszahl\w*|formular|link|berechtigt|erhalten)\b|)"
     R"(\b(?:impôts?|direction\s+générale\s+des\s+finances\s+publiques|dgfip|trésor\s+public|caf|assurance\s+maladie|ameli)\b<100>\b(?:remboursement|trop-perçu|éligible|régularis\w+|impayée?s?|carte\s+vitale|bénéficie[rz]|dernier\s+rappel)\b|\b(?:amende|antai|télépéage|stationnement|contravention)\b<40>\b(?:impayée?|non\s+(?:réglée?|payée?)|retard|majorée?)\b|\b(?:caf|ameli|urssaf)\b<60>\b(?:rembours\w+|trop-perçu|indemnité)\b|)"
     R"(\b(?:agencia\s+tributaria|hacienda|sat|receita\s+federal|fazenda|dian|afip|sunat|sefaz|darf|malha\s+fina|imposto\s+de\s+renda|seguridad\s+social|dgt|detran|senatran|ipva)\b<100>\b(?:reembolso|devoluci[óo]n|restitui[çc][ãa]o|multas?|deuda|pend[êe]nci\w+|irregularidade\w*|regulariz\w+|cpf|d[ée]bitos?|notifica\w+|embargo|bloque\w+|suspens\w+|apreens\w+)\b|)"
     R"(\b(?:cpf|cnpj|cnh|mei|malha\s+fina|restitui[çc][ãa]o)\b<60>\b(?:irregular\w*|suspens\w+|bloquead\w+|cancelad\w+|pend[êe]ncia\w*|pendente\w*|restri[çc]\w+|regulariz\w+|receita\s+federal|d[íi]vida\s+ativa|inscri[çc][ãa]o|dispon[íi]vel)\b|)"
     R"(\b(?:belastingdienst|mijnoverheid|digid|cjib)\b<100>\b(?:teruggave|terugbetaling|openstaande?|schuld|boete|aanmaning|bevestig\w*|beslag\w*|verlop\w+|dwangbevel|deurwaarder)\b|\b(?:boete|tol|cjib|parkeer\w+|belasting\w*)\b<40>\b(?:openstaand\w*|niet\s+betaald|onbetaald|teruggaaf|terugbetaling|teruggave)\b|)"
     R"((?:税务局|稅務局|国税|國稅|税务机关)<20>(?:退税|退稅|欠税|欠稅|补缴|領取|领取)|)"
     R"((?:国税庁|税務署|e-Tax)<30>(?:未払|未納|還付|差押|滞納|お支払い)|)"
     R"((?:국세청|세무서)<25>(?:환급|미납|체납|압류)|)"
     R"(\b(?:maut\w*|bußgeld\w*|strafzettel|parkgebühr\w*)\b<50>\b(?:offen|unbezahlt\w*|ausstehend\w*|nicht\s+bezahlt|begleichen)\b|\b(?:bzst|finanzamt|steuer\w*)\b[\s\S]{0,60}\b(?:rückzahlung|erstattung|auszahlung)\b[\s\S]{0,80}\b(?:bankdaten|beantragen|bankverbindung|kartendaten)\b|\b(?:elster|finanzamt)\b<60>\b(?:zurück|erstattung|gutschrift)\b[\s\S]{0,60}\b(?:karte|formular|link)\b|\b(?:bundeszentralamt|familienkasse|rentenversicherung|krankenkasse)\b[\s\S]{0,30}\b(?:rückzahlung|zuschuss|erstattung|bonus)\b[\s\S]{0,80}\b(?:mit\s+ihre[nr]\s+(?:bankdaten|karte|kartendaten))\b|)"
     R"(\b(?:belastingdienst|toeslagen)\b[\s\S]{0,100}\b(?:teruggave|recht\s+op|schuld|aanmaning)\b[\s\S]{0,100}\b(?:formulier|link|betaal|deurwaarder|beslag|gegevens)\b|\b(?:boete|cjib|tol|parkeerboete|verkeersboete)\b<40>\b(?:openstaande?|onbetaalde?|verhoging|niet\s+betaald)\b|\bopenstaande\s+(?:boete|tol)\b(?![\s\S]{0,80}\b(?:boek|balie|bibliotheek)\b)|\bbelastingdienst\b<20>\bu\s+krijgt\b<12><amount>|\b(?:svb|uwv|gemeente|toeslagen)\b[\s\S]{0,30}\b(?:toeslag|uitkering|bonus|teruggave)\b[\s\S]{0,80}\b(?:met\s+uw\s+(?:bankpas|pas|kaart))\b|)"
     R"(\b(?:amende|contravention|péage|antai|stationnement|trajet)\b<60>\b(?:impayée?|non\s+réglée?|pas\s+(?:été\s+)?(?:réglée?|payée?)|en\s+attente|majoration)\b|\bfinances\s+publiques\b[\s\S]{0,60}\b(?:vous\s+est\s+due?|remboursement|trop-perçu)\b|\b(?:impôts?|dgfip)\b<40>\bnous\s+vous\s+devons\b<12><amount>|\b(?:caf|ameli|assurance\s+maladie|cpam)\b[\s\S]{0,30}\b(?:prime|aide|remboursement|allocation)\b[\s\S]{0,80}\b(?:avec\s+votre\s+carte|numéro\s+de\s+carte)\b|)"
     R"(\b(?:agenzia\s+delle\s+entrate|inps|fisco|agenzia\s+entrate|equitalia)\b[\s\S]{0,100}\b(?:rimborso|bonus|credito|debito|cartella)\b[\s\S]{0,120}\b(?:modulo|carta|link|dati|compil\w+|iban|clicc\w+)\b|\b(?:multa|pedaggio|sanzione|pagopa|verbale)\b<40>\b(?:in\s+sospeso|non\s+pagat[oa]|maggiorazion\w+|da\s+saldare|insolut[oa])\b|\b(?:agenzia\s+delle\s+entrate|inps)\b<60>\b(?:rimborso|accredito|bonus|debito|arretrat\w)\b|\b(?:multa|pedaggio|autostrada)\b<30>\b(?:non\s+pagat\w|insolut\w|arretrat\w|sospes\w)\b|)"
     R"(\b(?:agencia\s+tributaria|hacienda|sat|dian|sunat|afip|sii)\b[\s\S]{0,100}\b(?:reembolso|devoluci[óo]n|saldo\s+a\s+favor|deuda)\b[\s\S]{0,100}\b(?:formulario|tarjeta|enlace|cuenta|datos|complete|clic)\b|\b(?:multa|dgt|peaje|tag)\b<40>\b(?:pendiente|impagad\w+|sin\s+pagar|vencid\w+|recargo|recargos)\b|\b(?:multa|peaje|autopista|tr[áa]fico|dgt)\b<30>\b(?:pendiente|impag\w|sin\s+pagar|vencid\w)\b|)"
     R"(\b(?:receita\s+federal|autoridade\s+tribut[áa]ria|finan[çc]as|inss)\b[\s\S]{0,100}\b(?:restitui[çc][ãa]o|reembolso|saldo)\b[\s\S]{0,100}\b(?:formul[áa]rio|cart[ãa]o|link|dados\s+banc[áa]rios|informe|preench\w+)\b|\b(?:multas?|detran|ped[áa]gio|portagem|portagens|free\s+flow|passagem)\b<40>\b(?:vencid\w+|n[ãa]o\s+pag(?!e\b|es\b|ed\b|er\b|ing)\w+|em\s+aberto|pendentes?|em\s+d[íi]vida)\b|\bpara\s+evitar\s+coima\b|)"
     R"(\b(?:фнс|налогов\w+|соцфонд|пфр|госуслуги)\b[\s\S]{0,60}\b(?:положен\w?|вычет|выплат\w+|компенсаци\w+|задолженност\w+)\b[\s\S]{0,80}\b(?:форм\w+|данные\s+карты|ссылк\w+|иначе|арест\w+|в\s+течение\s+(?:24|48|72|суток))\b|\bсоцфонд\b[\s\S]{0,80}\b(?:карты|заявку)\b|)"
     R"((?:税[务務]|稅務|社保|医保|醫保|人社|财政|勞保|健保)[\s\S]{0,20}(?:退[税稅]|[补補][贴貼助]|[领領]取|津[贴貼])[\s\S]{0,30}(?:[点點][击擊]|[链連]|[银銀]行卡|二[维維][码碼]|填|逾期)|(?:[违違]章|交管|通行[费費]|罚款|罰款|[欠缴繳][费費]|ETC)[\s\S]{0,24}(?:[点點][击擊]|[链連][接結]|[处處]罚|滞[纳納]|滯納|[罚罰][锾鍰])|)"
     R"((?:国税庁|税務署|年金事務所|市役所|医療費|保険料)[\s\S]{0,20}(?:未払|滞納|差し押さえ|還付)[\s\S]{0,40}(?:ATM|電話|執行|期限|お支払い|下記|本日中)|(?:還付金)[\s\S]{0,14}(?:ATM|本日|電話)|(?:通行料金|ETC|反則金|違反金)[\s\S]{0,14}(?:未払|未納|滞納)|(?:未払い|未納)[\s\S]{0,6}(?:通行料金|反則金)|(?:厚生労働省|市役所)[\s\S]{0,10}給付金|)"
     R"((?:국세청|세무서|건강 ?보험 ?공단|국민연금|정부)[\s\S]{0,16}(?:환급|지원금|미수령|보조금)[\s\S]{0,30}(?:링크|신청|조회|입력|소멸)|(?:과태료|통행료|범칙금|하이패스|교통법규)[\s\S]{0,16}(?:미납|위반)|건강보험[\s\S]{0,8}환급금|(?:국세청|건강보험|국민연금|하이패스|교통 ?벌금)[\s\S]{0,20}(?:환급|미납|체납|과납)|)"
     R"(\b(?:liens?|levy|garnish\w*|bailiffs?)\b<30>\byour\s+(?:property|wages|bank|account|house|assets|salary)\b|)"
     R"(\b(?:steuererstattung|steuerrückzahlung|steuerguthaben)\b<40>\b(?:bereit|steht|genehmigt|geben\s+sie)\b|\b(?:offene|unbezahlte)\s+(?:maut\w*|bußgeld\w*|parkgebühr\w*)\b|)"
     R"(\brecht\s+op\b<25>\b(?:toeslag|energietoeslag|teruggave)\b|)"
     R"(\b(?:trésor\s+public|impôts|dgfip)\b<60>\b(?:erreur\s+en\s+votre\s+faveur|trop[\s-]perçu|percevoir|rembours\w+)\b|\bpassage\s+non\s+payé\b|\bpéage\s+(?:impayé|non\s+réglé)\b|)"
     R"(\b(?:percorso|transit\w+)\b<40>\bsenza\s+pagare\b|\bpedaggi\w\s+non\s+(?:saldat|pagat)\w\b|)"
     R"(\b(?:hacienda|agencia\s+tributaria|sat|dian)\b<80>\b(?:devoluci\w+|reembolso|ingreso)\b|\bdeuda\s+impaga\b|\bpeaje\s+(?:sin\s+(?:pagar|abonar)|impago)\b|)"
     R"(\bpassagem\b<20>\bsem\s+(?:identificador|pagamento)\b|)"
     R"(\b(?:одобрен\w*|положен\w*|начислен\w*)\b[\s\S]{0,110}\b(?:возврат\w*|выплат\w+|компенсаци\w+|вычет\w*|пособи\w+)\b[\s\S]{0,110}\b(?:ссылк\w+|реквизит\w+|номер\s+карты|cvv|код\s+из|данные\s+карт\w*)\b|\b(?:фнс|налог\w*|вычет\w*|возврат\w*|выплат\w+|компенсаци\w+|пособи\w+|субсиди\w+|соцфонд\w*|госуслуг\w*)\b[\s\S]{0,70}\b(?:одобрен\w*|положен\w*|начислен\w*|доступн\w*|можете\s+получить|вправе|не\s+получен\w*)\b[\s\S]{0,70}\b(?:ссылк\w+|реквизит\w+|номер\s+карты|cvv|код\s+из|данные\s+карт\w*|парол\w+|паспорт\w*)\b|\b(?:не\s+оплачен\w*|неоплаченн\w+)\b<12>\b(?:проезд\w*|штраф\w*)\b|)"
     R"((?:通行[费費]|[过過]路[费費]|[罚罰][单單款])[\s\S]{0,12}(?:未|尚未|逾期)|普[发發]|)"
     R"((?:과태료|통행료|범칙금)[\s\S]{0,14}(?:발송|미납|고지)|(?:환급팀|더 ?내신)[\s\S]{0,20}(?:환급|돌려)|)"
     R"(\b(?:finanzamt|elster|bundeszentralamt|rentenversicherung|krankenkasse)\b<80>\b(?:erstattung|rückzahlung|guthaben|nachzahlung|zu\s+viel)\b|)"
     R"(\b(?:expediente|declaraci[óo]n)\s+de\s+la\s+renta\b|\bdevoluciones\s+de\s+hacienda\b|)"
     R"((?:ETC|高速|停[车車]|交通[违違][法章]|[罚罰][单單款])[\s\S]{0,14}(?:未[缴繳处處]|欠[费費]|逾期|失效|[异異]常)|)"
     R"(<officialrefund>|)"
     R"((?:ETC|高速料金|税金|国税|年金|保険料)[\s\S]{0,16}(?:未払|未納|還付|滞納|差し?押))"); }),
     true},
    {"imp-police", "Impersonation", "warn", 50,
     "poses as police, a court or a prosecutor threatening consequences",
     pattern([] { return std::string_view(
     R"(\bsummoned\s+to\s+appear\b|\bwarrant\s+against\s+you\b|\bwithdraw\b<20>\b(?:without\s+telling|as\s+evidence)\b|)"
     R"(\bpolice\s+(?:dept|department)\s+here\b|)"
     R"(\b(?:this\s+is|i\s+am|i['’]m)\s+(?:officer|sergeant|detective|deputy|sheriff|agent)\b[\s\S]{0,120}\b(?:warrant|arrest|case|fine|jury|account|drug)\b|\b(?:police|sheriff|prosecutor)\b[\s\S]{0,40}\b(?:daughter|son|grandson|husband)\b<20>\b(?:hit|accident|crash|ran\s+over|killed)\b|\b(?:interpol|europol|police|fbi|court)\b[^.!?]{0,12}\bwarrant\s+against\s+you\b|)"
     R"(\b(?:fbi|police|interpol|europol|federal\s+bureau|federal\s+agents?|homeland\s+security|dea|cbi|cyber\s?crime|law\s+enforcement|sheriff|county\s+court|federal\s+court|high\s+court|prosecutor|attorney\s+general|customs\s+and\s+border\s+protection|immigration\s+(?:office|department)|ministry\s+of\s+(?:justice|public\s+security)|narcotics)\b<120>\b(?:arrest\s+warrant|warrant\s+(?:for|has\s+been)|your\s+arrest|arrest\s+you|case\s+against\s+you|charges\s+against\s+you|legal\s+proceedings\s+against|your\s+(?:identity|name|account|passport|social\s+security)\b<30>\b(?:used|involved|linked|connected|suspended)|money\s+laundering|child\s+pornography|summons|digital\s+arrest|under\s+investigation|pay\s+(?:a\s+|the\s+)?(?:fine|bail|bond))|)"
     R"(\b(?:arrest\s+warrant|warrant\s+(?:for\s+your\s+arrest|has\s+been\s+issued)|warrant\s+out\s+for)\b|)"
     R"(\b(?:you|your\s+name|your\s+identity|your\s+account|your\s+passport|your\s+parcel)\b<50>\b(?:money\s+laundering|drug\s+trafficking|criminal\s+(?:case|investigation|activity|proceedings)|illegal\s+(?:parcel|package|substances))\b<60>\b(?:case|police|investigat\w+|arrest|court|officer|account|involved|number|contact|custom\w*)\b|)"
     R"(\b(?:notice|summons|subpoena|hearing|complaint)\b<30>\b(?:to\s+appear|in\s+court|court|has\s+been\s+filed|case\s+(?:no|number|id))\b<60>\b(?:you|your|failure|download|attached|arrest|absence|copy|click)\b|)"
     R"(\b(?:bundeskriminalamt|bka|europol|interpol|polizei|staatsanwaltschaft|zollfahndung)\b<100>\b(?:haftbefehl|ermittlung\w*|strafverfahren|anzeige\s+gegen|vorladung|kinderpornogra\w+|geldwäsche|ihre\s+identität|ihre\s+daten)\b|)"
     R"(\b(?:police|gendarmerie|interpol|europol|procureur|brigade|tribunal|commissaire)\b<100>\b(?:convocation|mandat\s+d['’]arrêt|poursuites?|pédopornograph\w+|infractions?|blanchiment|enquête\s+(?:judiciaire|contre))\b|)"
     R"(\b(?:polic[íi]a|fiscal[íi]a|interpol|europol|juzgado|guardia\s+civil|pol[íi]cia\s+federal|minist[ée]rio\s+p[úu]blico|tribunal|delegacia|oficial\s+de\s+justi[çc]a)\b<100>\b(?:orden\s+de\s+(?:arresto|captura|detenci[óo]n)|mandado|citaci[óo]n|intima[çc][ãa]o|investigaci[óo]n|investiga[çc][ãa]o|blanqueo|lavagem|processo\s+(?:judicial|n)|denuncia|execu[çc][ãa]o)\b|)"
     R"(\bpolitie\b<80>\b(?:arrestatiebevel|dagvaarding|strafbaar|verdacht\w*|onderzoek\s+tegen)\b|)"
     R"((?:公安|警察|检察院|檢察署|法院|刑警|网警)<30>(?:涉嫌|洗钱|洗錢|逮捕|通缉|通緝|立案|案件|拘捕|配合调查|配合調查|冻结)|)"
     R"((?:涉嫌)<12>(?:洗钱|洗錢|诈骗案|詐騙案|犯罪)|)"
     R"((?:警察|検察|警視庁|裁判所|検事|県警)<30>(?:逮捕状|容疑|資金洗浄|マネーロンダリング|差し押さえ|出頭|捜査対象|口座が(?:犯罪|悪用))|)"
     R"((?:경찰|검찰|법원|금융감독원|금감원|검사|수사관)<30>(?:연루|명의\s?도용|체포|출석|수사|대포통장|구속|자금\s?세탁|범죄)|)"
     R"(\b(?:hier\s+spricht|mein\s+name\s+ist|ich\s+bin|hier\s+ist)\b<30>\b(?:kommissar\w*|kriminal\w+|hauptkommissar\w*|polizei|staatsanwalt\w*|lka|bka|oberkommissar\w*)\b|\b(?:einbrecher|täter|bande|eingebrochen)\b[\s\S]{0,100}\b(?:ihr(?:e[nm]?)?\s+(?:name|adresse|wohnung|haus|geld|schmuck)|zettel)\b|\b(?:polizei\w*|staatsanwalt\w*|kripo)\b[\s\S]{0,40}\b(?:tochter|sohn|enkel\w*|mann)\b<20>\b(?:unfall|überfahren|verursacht)\b|)"
     R"(\b(?:politie|justitie|openbaar\s+ministerie|europol|interpol|rechtbank)\b[\s\S]{0,100}\b(?:verdachte|witwassen|arrestatiebevel|inbrekers|sieraden|onderzoek\s+naar|aanhouding)\b|\b(?:politie|justitie)\b[\s\S]{0,40}\b(?:dochter|zoon|kleinzoon|man)\b<20>\b(?:aangereden|ongeluk|doodgereden)\b|)"
     R"(\b(?:gendarmerie|commissariat|police|brigade|europol|interpol|procureur)\b[\s\S]{0,120}\b(?:poursuites?|mandat|pédopornograph\w+|malfaiteurs?|cambrioleurs?|bijoux|convocation|blanchiment|infractions?)\b|\b(?:vous\s+faites|faites)\s+l['’]objet\s+(?:de\s+poursuites|d['’]une\s+(?:enquête|plainte|procédure))\b|)"
     R"(\b(?:polizia|carabinieri|maresciallo|guardia\s+di\s+finanza|procura|interpol|europol|tribunale)\b[\s\S]{0,100}\b(?:indagat[oa]|pedopornografia|mandato|arresto|cauzione|riciclaggio|incidente|gioielli|contanti|denuncia)\b|\b(?:carabinieri|polizia|procura|maresciallo)\b[\s\S]{0,40}\b(?:figli[ao]|nipote|marito)\b<20>\b(?:investito|incidente|ucciso)\b|)"
     R"(\b(?:polic[íi]a|guardia\s+civil|fiscal[íi]a|interpol|ministerio\s+p[úu]blico|juzgado|carabineros)\b[\s\S]{0,120}\b(?:orden\s+de|arresto|detenci[óo]n|blanqueo|lavado|delincuentes|cuenta\s+segura|investigad\w+|denuncia)\b|)"
     R"(\b(?:pol[íi]cia\s+(?:federal|civil|judici[áa]ria)|pj|gnr|minist[ée]rio\s+p[úu]blico|tribunal|justi[çc]a)\b[\s\S]{0,100}\b(?:mandado|pris[ãa]o|lavagem|r[ée]u|intima[çc][ãa]o|investigad\w+)\b|\bvoc[êe]\s+[ée]\s+r[ée]u\b|)"
     R"(\b(?:(?:майор|капитан|следовател\w+|лейтенант|полковник|фсб|мвд|полици\w+|прокурат\w+|росфинмониторинг\w*|центробанк\w*|служб\w+\s+безопасности|центральн\w+\s+банк\w*)\b(?![\s\S]{0,160}\b(?:мошенники|бдительн\w+|осторожн\w+|трубку|никогда\s+не|обман\w+)\b))\b[\s\S]{0,110}\b(?:уголовн\w+|мошенническ\w+|разглашени\w+|подозрева\w+|дел[оау]|доверенност\w+|финансировани\w+|утечк\w+|кредит\w*|предупрежд\w+|сбил\w?|авари\w+|дтп)\b[\s\S]{0,110}\b(?:безопасн\w+\s+сч[её]т\w*|резервн\w+\s+сч[её]т\w*|переведите|снимите|наличны\w+|инкассатор\w*|курьер\w*|никому\s+не|не\s+(?:кладите|говорите|рассказывайте)|тайн\w+\s+следствия|спецсч[её]т\w*|назовите|оформите)\b|\b(?:это|говорит|беспокоит|вас\s+беспокоит|меня\s+зовут)\b<25>\b(?:майор|капитан|следователь|лейтенант|полковник|сотрудник)\b<15>\b(?:фсб|мвд|полиции|прокуратуры|следственного\s+комитета|росфинмониторинга|скр?)\b|\bкуратор\s+из\b|\bследственн\w+\s+комитет\b<60>\b(?:доверенност\w+|снять\s+деньги|на\s+линии|сч[её]т)\b|\b(?:дочь|сын|внук)\b<12>\b(?:сбил\w?|попал\w?)\b[\s\S]{0,60}\b(?:дел[оа]|тысяч|помощник)\b|)"
     R"((?:法院|法庭)[\s\S]{0,6}[传傳]票[\s\S]{0,40}(?:[拨撥]打|致[电電]|逾期|[领領]取|[强強]制)|(?:检察官|檢察官|警官|公安局|刑警|派出所|[监監]管局|[银銀]保[监監])[\s\S]{0,30}(?:涉[嫌及]|[诈詐][骗騙]案|洗[钱錢]|[冻凍][结結]|保全|[监監]管[账賬帐帳]|逮捕|拘)|(?:你|您)的?[\s\S]{0,8}(?:身[份分][证證]|[账賬帐帳][户戶]|[银銀]行卡)[\s\S]{0,6}涉[嫌及]|公安局[\s\S]{0,30}(?:[电電][话話]卡|身份[证證]|保持通[话話]|不要挂[断斷])|(?:刑[侦偵]|支[队隊]|公安)[\s\S]{0,12}(?:女[儿兒]|[儿兒]子)[\s\S]{0,16}(?:保[释釋]|放人)|)"
     R"((?:警視庁|検察庁|警察|県警|検事|刑事)[\s\S]{0,8}(?:の|です|と申)[\s\S]{0,40}(?:名義の口座|逮捕状|マネーロンダリング|捜査に協力|資産を調査|預金|送金)|保釈金[\s\S]{0,12}釈放|)"
     R"((?:명의 ?도용|대포 ?통장|자금 ?세탁|불법 ?(?:자금|계좌))[\s\S]{0,30}(?:사건|연루|접수|개설|발견|압수|조사|수사)|통장[\s\S]{0,16}(?:압수|발견)[\s\S]{0,20}(?:개설|본인|직접)|(?:검찰|지검|검사|수사관|경찰청|경찰|금융감독원|금감원|사이버 ?수사)[\s\S]{0,50}(?:대포 ?통장|범죄|연루|명의|자금 ?세탁|영장|구속|과태료|벌점|협조)|(?:검찰청|지검)[\s\S]{0,14}검사(?:입니다|이고|인데)|경찰[\s\S]{0,24}보석금|)"
     R"(<policecall>|)"
     R"(\b(?:warrant|summons|subpoena|indictment|case|file|charges?)\b<25>\b(?:out\s+for|against|for|in\s+the\s+name\s+of)\s+(?:you|your\s+\w+)\b<60>\b(?:arrest\w*|jury|missed|failed|court|officer|sheriff|fine|bail|prison|jail|offen[cs]es?|police|interpol)\b|\b(?:officer|sergeant|deputy|sheriff|inspector|detective|marshal)\b<40>\b(?:warrant|bail|jury\s+duty|arrest\s+you|fine\s+(?:is|must))\b<40>\b(?:you|your|pay)\b|)"
     R"(\b(?:identité\s+est\s+utilisée|votre\s+(?:fils|fille)\s+a\s+(?:eu|renversé))\b|)"
     R"(\bsuo\s+figlio\b<40>\b(?:investito|incidente|arrestato)\b|\b(?:maresciallo|carabinieri)\b<60>\b(?:cauzione|contanti)\b|)"
     R"(\b(?:tenemos\s+a\s+su\s+hij[oa]|ministerio\s+p[úu]blico|usada\s+para\s+blanqueo|no\s+ser\s+detenid[oa])\b)"); }),
     true},
    {"imp-social-security", "Impersonation", "warn", 45,
     "says a social security or national insurance number is suspended or misused",
     pattern([] { return std::string_view(
     R"(\byour\s+(?:new\s+|updated\s+)?social\s+security\s+(?:statement|benefit\s+statement|letter)\b<60>\b(?:available|review|download|view|ready|access|streamlined|open)\b|)"
     R"(\b(?:social\s+security|ssn|ssa|social\s+insurance|national\s+insurance|medicare|aadhaa?r|nin)\s+(?:\w+\s+){0,3}(?:number|benefits?|account|card|administration|no)?\b<50>\b(?:suspend\w*|block\w*|compromis\w*|suspicious|fraud\w*|illegal\w*|terminat\w*|deactivat\w*|misus\w*|on\s+hold|legal\s+action|expire[sd]?|criminal|verify|warrant)\b|)"
     R"(\b(?:suspend\w*|compromis\w*|block\w*|misus\w*|suspicious\s+activit\w+|fraudulent\w*)\b<40>\b(?:your\s+|ur\s+)(?:social\s+security|ssn|social\s+insurance|national\s+insurance|medicare|aadhaa?r)\b|)"
     R"(\b(?:give|confirm|provide|verify|send|update|need|enter)\b<20>\b(?:your|ur|the\s+last\s+(?:four|4)(?:\s+digits)?\s+of\s+your)\s+(?:social\s+security|ssn|social\s+insurance|national\s+insurance|medicare)(?:\s+(?:number|no|card))?\b|)"
     R"(\b(?:sozialversicherungs|renten(?:versicherungs)?)(?:nummer|ausweis)\b<50>\b(?:gesperrt|missbrauch\w*|ausgesetzt|bestätigen|verdächtig\w*)\b|)"
     R"(\bnuméro\s+de\s+sécurité\s+sociale\b<50>\b(?:suspendu|bloqué|utilisé|frauduleu\w+|confirme[rz])\b|)"
     R"((?:社保|社会保险|医保|醫保|健保)<10>(?:停用|冻结|凍結|异常|異常|暂停|暫停|失效)|)"
     R"(\b(?:your)\s+(?:social(?:\s+security)?(?:\s+number)?|ssn|national\s+insurance(?:\s+number)?|ni\s+number|medicare(?:\s+\w+)?)\b<40>\b(?:crime|used|misused|suspicious|drugs?|laundering|frozen?|suspend\w*|revoked|block\w*|cancel\w*|terminated|criminal|texas|illegal)\b)"); }),
     true},
    {"imp-support", "Impersonation", "warn", 40,
     "poses as the technical support of a well-known company",
     pattern([] { return std::string_view(
     R"(\b(?:microsoft|windows|apple|google|amazon|paypal|netflix|norton|mcafee)\b<15>\b(?:support|help\s?desk|technician|engineer|security\s+team|service\s+team|tech\s+team)\b|\b(?:this\s+is|i\s+am|i['’]m|my\s+name\s+is|we\s+are|calling|call(?:ing)?\s+you|writing|here\s+is|on\s+behalf\s+of|speaking|hello|hi)\b<40>\b(?:microsoft|windows|apple|google|amazon|norton|mcafee|geek\s?squad|dell|hp|paypal|facebook|meta|netflix|icloud|outlook|office\s?365|telekom|vodafone|bt|comcast|verizon)(?:['’]s)?\s+(?:\w+\s+)?(?:technical|tech|customer|computer|security|it)?\s?(?:support|help\s?desk|service|care|technician|engineer|security)\b|\b(?:norton|mcafee|geek\s+squad|windows\s+defender|avast)\b[\s\S]{0,90}\b(?:renewed|auto[-\s+]?renew\w*|charged|debited)\b|)"
     R"(\b(?:mcafee|norton|antivirus|defender|geek\s+squad|kaspersky)\b<60>\b(?:renew\w*|charged|debited|auto-?pay)\b|)"
     R"(\b(?:technician|engineer|agent|specialist|support|expert|representative)\s+(?:from|at|with|of)\s+(?:microsoft|windows|apple|google|amazon|norton|mcafee|geek\s?squad|dell|hp|paypal|facebook|meta|icloud)\b|)"
     R"(\b(?:norton|mcafee|geek\s?squad|paypal|lifelock|totalav|microsoft|windows|quickbooks|best\s+buy|amazon|apple|netflix|premium|maxsecure)\b<80>\b(?:membership|subscription|renewal|protection\s+plan|auto-?renew\w*|order|renew)\b<100>(?:<amount>|\b(?:charged|debited|debit|help\s?line|help\s?desk|toll[- ]?free)\b)|)"
     R"(\b(?:membership|subscription|renewal|plan)\b<60>\b(?:norton|mcafee|geek\s?squad|paypal|lifelock|totalav|microsoft|windows|quickbooks|maxsecure)\b<100>(?:<amount>|\b(?:charged|debited|debit|set\s+to\s+renew|scheduled)\b)|)"
     R"(\b(?:microsoft|windows|apple|google|amazon|paypal|netflix|facebook|meta|instagram|whats\s?app|coinbase|metamask|ledger|binance|norton|mcafee|geek\s?squad|icloud|outlook|office\s?365|yahoo|dhl|ups|fedex|usps|docusign|trust\s?wallet|blockchain|kraken|exodus|opensea|trezor|linkedin|spotify|webmail|e-?mail|mail|helpdesk|it)\b<5>\b(?:technical\s+|customer\s+|account\s+|security\s+|online\s+|wallet\s+|live\s+|e-?mail\s+|help\s+|it\s+|admin\s+)*(?:support|help\s?desk|service\s+desk|security|care|services?|administrator|admin|assistance|account|verification|protection|billing)(?:\s+team|\s+department|\s+center|\s+centre|\s+desk|\s+staff|\s+agent)\b|)"
     R"(\b(?:this\s+is|i\s+am|i['’]m|we\s+are|calling|writing)\b<15>\b(?:from|with)\b<15>\b(?:the\s+)?(?:it\s+(?:support|department|help\s?desk|team)|microsoft|windows|apple|amazon|help\s?desk|tech(?:nical)?\s+support|paypal|google|coinbase|your\s+internet\s+provider)\b<60>\b(?:support|account|computer|device|noticed|detected|virus|password|verify|migrat\w*|issue|problem|security)\b|)"
     R"(\b(?:it|system|mail|e-?mail|server|webmail|network|exchange|mailbox)\s+(?:help\s?desk|administrators?|admin|service\s+desk|support(?:\s+team)?)\b<100>\b(?:password|mailbox|verify|validate|upgrade|migrat\w+|quota|click|link|credential\w*|update\s+your|log\s?in|deactivat\w*|expire\w*)\b|)"
     R"(\b(?:dear|hello|hi|attention)\b<20>\b(?:valued\s+|esteemed\s+)?(?:microsoft|apple|amazon|paypal|netflix|google|e-?mail|mail|webmail|mailbox|wallet|coinbase|metamask|ledger|binance|trust\s?wallet|tether|blockchain|outlook|office\s?365|icloud|account|domain|facebook|instagram|opensea|uniswap|xrp|crypto|defi)\b<12>\b(?:user|customer|client|member|owner|holder|account\s+holder|subscriber|supporter|community|administrator)\b|)"
     R"(\b(?:apple|microsoft|amazon|paypal|netflix|google|metamask|ledger)[- ](?:support|kundendienst|kundenservice|sicherheitsteam|team|support-team)\b<80>\b(?:konto|gesperrt|bestätig\w+|sicherheit\w*|verdächtig\w*)\b|)"
     R"(\b(?:support\s+technique|service\s+client|soporte\s+t[ée]cnico|suporte\s+t[ée]cnico|servicio\s+al\s+cliente|central\s+de\s+atendimento)\b<60>\b(?:microsoft|apple|amazon|paypal|netflix|compte|cuenta|conta)\b|)"
     R"(\b(?:windows|microsoft|apple|google|amazon|telekom|norton|mcafee)[- ](?:support|kundendienst|technik\w*|kundenservice|sicherheit\w*)\b|\b(?:technische[rn]?\s+(?:dienst|support|kundendienst)|support|mitarbeiter\w*|techniker\w*)\b<12>\b(?:von|bei|der)\s+(?:microsoft|windows|apple|google|amazon|paypal)\b|)"
     R"(\b(?:helpdesk|klantenservice|ondersteuning|support)\s+(?:van\s+)?(?:microsoft|windows|apple|google|amazon|kpn|ziggo)\b|\b(?:windows|microsoft)[- ](?:waarschuwing|helpdesk|support)\b|)"
     R"(\b(?:support|assistance|service)(?:\s+technique)?\s+(?:de\s+)?(?:microsoft|windows|apple|google|orange|amazon)\b|\balerte\s+(?:windows|microsoft|sécurité)\b|)"
     R"(\b(?:supporto|assistenza)(?:\s+tecnic[oa])?\s+(?:di\s+|della\s+)?(?:microsoft|windows|apple|google|amazon|tim)\b|\bavviso\s+(?:di\s+)?(?:windows|microsoft)\b|)"
     R"(\b(?:soporte|servicio|asistencia)(?:\s+t[ée]cnic[oa])?\s+(?:de\s+)?(?:microsoft|windows|apple|google|amazon)\b|\balerta\s+de\s+(?:windows|microsoft)\b|)"
     R"(\b(?:suporte|assist[êe]ncia)(?:\s+t[ée]cnic[oa])?\s+(?:da\s+|do\s+)?(?:microsoft|windows|apple|google|amazon)\b|)"
     R"(\b(?:техподдержк\w+|техническ\w+\s+поддержк\w+|служба\s+поддержки)\s+(?:microsoft|windows|apple|google|телеграм\w*|госуслуг)\b|)"
     R"(航班[\s\S]{0,20}(?:取消|故障)[\s\S]{0,30}(?:改[签簽]|退票|客服)[\s\S]{0,30}(?:[补補][偿償]|工本[费費]|[赔賠])|我是?(?:微[软軟]|[苹蘋]果|谷歌|京[东東]|淘[宝寶]|支付[宝寶]|[银銀]行|圆通|[顺順][丰豐]|[电電]商)[\s\S]{0,4}(?:客服|技[术術]支持|[专專][员員])|)"
     R"((?:マイクロソフト|Microsoft|ウィンドウズ|アップル|アマゾン|Amazon)の?(?:サポート|カスタマー|セキュリティ)|)"
     R"((?:마이크로소프트|윈도우|애플|구글|네이버|카카오)[\s\S]{0,4}(?:기술 ?지원|고객 ?센터|보안|상담)|)"
     R"(\b(?:calling|call|writing|contact\w*|reach\w*)\b<15>\b(?:from|on\s+behalf\s+of|for)\s+(?:the\s+)?(?:microsoft|windows|apple|amazon|google|norton|mcafee|dell|hp|facebook|meta|paypal|netflix|geek\s+squad)\b(?!\s+(?:shop|store))<60>\b(?:your|you)\b<25>\b(?:computer|device|pc|laptop|account|order|licen[cs]e|subscription|phone)\b|)"
     R"(\b(?:antivirus|mcafee|norton)\b<40>\b(?:reconduit\w?|renouvelée?|prélevé|débité)\b|)"
     R"(\brinnovo\s+di\s+(?:mcafee|norton)\b|)"
     R"(\b(?:antivirus|mcafee|norton)\b<60>\b(?:renovad\w|cobrar\w*|cargo|licencia|\d+\s*€)\b|\brenovado\s+su\s+antivirus\b|\bt[ée]cnico\s+certificado\b|)"
     R"(ウイルス対策ソフト[\s\S]{0,24}(?:引き落と|円)|)"
     R"(<sickpc>|)"
     R"((?:백신|노턴|맥아피)[\s\S]{0,16}(?:연장|결제|갱신))"); }),
     true},
    {"imp-bank-security", "Impersonation", "warn", 35,
     "poses as a bank's security department",
     pattern([] { return std::string_view(
     R"(\bmove\s+(?:your|ur)\s+savings\b|\b(?:barclays|hsbc|lloyds|chase|natwest|santander)\b<8>\b(?:alert|fraud|security)\b|)"
     R"(\b(?:bank|chase|wells\s+fargo|bank\s+of\s+america|citi(?:bank)?|hsbc|barclays|lloyds|natwest|santander|halifax|nationwide|capital\s+one|td\s+bank|rbc|scotiabank|commonwealth\s+bank|anz|westpac|nab|revolut|n26|monzo|american\s+express|amex|visa|mastercard|paypal|venmo|zelle|cash\s?app|wise|usaa|truist|navy\s+federal)\b<unasked><40>\b(?:fraud\s+(?:department|team|prevention|alert|protection|detection)|security\s+(?:department|team|alert|notice|centre|center|update|system|upgrade)|alerts?|verification\s+(?:team|department)|customer\s+protection|online\s+banking|card\s+services|account\s+(?:services|alert|notification|review))\b<100>\b(?:suspicious|verify|confirm|unusual|locked|blocked|suspended|restricted|transaction|transfer|payment|declined|log\s?in|click|call|update|unauthori[sz]ed|access|secure|limited)\b|\bfraud\s+(?:team|department|unit|desk)\s+(?:at|of)\s+your\s+bank\b|\b(?:security)\b<12>\b(?:(?:at|of|from)\s+your\s+bank)\b|)"
     R"(\b(?:fraud\s+(?:department|team|prevention|protection|detection)|security\s+department|anti-?fraud)\b<80>\b(?:your\s+(?:account|card|bank)|suspicious|transaction|verify|call\s+(?:us|back)|transfer|unauthori[sz]ed|we\s+(?:have\s+)?(?:noticed|detected))\b|)"
     R"(\b(?:your|ur)\s+(?:\w+\s+){0,2}(?:bank\s+account|debit\s+card|credit\s+card|online\s+banking|bank\s+card|cash\s?app|zelle|paypal\s+account|bank)\b<unasked><60>\b(?:suspended|locked|blocked|restricted|limited|compromised|suspicious|unusual|on\s+hold|frozen|deactivated|verify|fraudulent)\b|)"
     R"(\b(?:sparkasse|volksbank|commerzbank|deutsche\s+bank|postbank|dkb|ing(?:-diba)?|comdirect|targobank|santander|hypovereinsbank|raiffeisen\w*|n26|consorsbank|advanzia|barclays|norisbank|klarna|paypal|mastercard|visa|push-?tan|photo-?tan|s-id-check)\b<unasked><100>\b(?:bestätig\w+|gesperrt|einschränk\w+|eingeschränkt|aktualisier\w+|sicherheits\w+|verifizier\w+|legitimation\w*|legitimier\w+|freischalt\w+|abgelaufen|läuft\s+ab|abläuft|reaktivier\w+|überprüf\w+)\b|)"
     R"(\b(?:crédit\s+agricole|bnp\s+paribas|société\s+générale|la\s+banque\s+postale|caisse\s+d['’]épargne|crédit\s+mutuel|lcl|boursorama|cic|ing|fortuneo|bred|certicode)\b<unasked><100>\b(?:suspend\w+|bloqu\w+|sécurit\w+|confirm\w+|vérifi\w+|activ\w+|mise\s+à\s+jour|authentifi\w+)\b|)"
     R"(\b(?:bbva|santander|caixabank|sabadell|bankia|ing|itau|itaú|bradesco|banco\s+do\s+brasil|caixa|nubank|mercado\s+pago|picpay|sicredi|sicoob|banrisul|pagbank|banco\s+inter|livelo|esfera|unicaja|ibercaja|bancolombia|banorte|banamex)\b<unasked><100>\b(?:suspend\w+|bloque\w+|seguran[çc]a|seguridad|confirm\w+|verifi\w+|ativ[ae]\w*|activ[ae]\w*|atualiz\w+|actuali\w+|desativad\w+|expira\w*|resgat\w+|acesso|dispositivo|token|m[óo]dulo|pontos)\b|)"
     R"(\b(?:ing|rabobank|abn\s+amro|sns|asn|knab|bunq|ics|regiobank)\b<unasked><100>\b(?:geblokkeerd|bevestig\w*|verifi\w+|beveilig\w*|verlop\w+|activeer\w*|activeren|bijwerken|identific\w+)\b|)"
     R"((?:银行|銀行)<12>(?:风控|風控|安全中心|反诈|客服)<25>(?:账户|帳戶|交易|转账|轉帳|异常|異常)|)"
     R"((?:銀行|カード会社|三井住友|楽天|三菱UFJ|みずほ|ゆうちょ|えきねっと|JCB|アメックス)<30>(?:不正利用|利用制限|本人確認|一時停止|セキュリティ強化)|)"
     R"((?:은행|카드사)<15>(?:보안팀|사고\s?예방|이상\s?거래|부정\s?사용)|)"
     R"(\b(?:sicherheitsabteilung|sicherheitsteam|betrugsabteilung|sperrabteilung|kundensicherheit|sicherheitsdienst)\b<30>\b(?:ihrer|der|deiner|von)\b<15>(?:bank|sparkasse|volksbank|\w*bank)\b|\b(?:übergeben|überreichen|aushändigen|deponieren)\s+sie\b<60>\b(?:geld|bargeld|schmuck|wertsachen|ersparte\w*|gold)\b|\b(?:kollege|kollegin|beamter)\b<12>\bholt\b<30>\b(?:schmuck|bargeld|wertsachen)\b|)"
     R"(\b(?:fraude-?afdeling|fraudehelpdesk|afdeling\s+(?:fraude|veiligheid)|beveiligingsafdeling|afdeling\s+fraudebestrijding)\b<30>\b(?:bank|uw|ing|rabo\w*|abn)\b|\b(?:veilig ?te ?stellen|veiligstellen|kluisrekening|veilige\s+rekening)\b|\b(?:leg|geef|overhandig)\b<25>\b(?:sieraden|geld|contant\w*|goud|bankpas)\b<40>\b(?:klaar|collega|agent|mee|af)\b|\b(?:beveiliging|veiligheid)\b<12>\b(?:(?:van\s+)?(?:uw|de)\s+bank)\b|)"
     R"(\b(?:service|département|cellule|équipe|conseiller)\b<10>\b(?:fraudes?|anti-?fraude|sécurité|opposition)\b<30>\b(?:banque|bancaire|carte|crédit|bnp|postale|lcl|société\s+générale|compte)\b|\b(?:valide[rz]|approuve[rz]|accepte[rz])\b<25>\b(?:opération|notification|demande|paiement)\b<60>\b(?:annuler|annulation|stopper|bloquer|frauduleu\w+)\b|\b(?:bijoux|argent|espèces|économies|objets\s+de\s+valeur)\b<80>\b(?:en\s+sécurité|mettre\s+à\s+l['’]abri|sécuriser|collègue|agent)\b<30>\b(?:pass\w+|récupér\w+|mettre|viendra)\b|\b(?:vire[rz]|virement|transfére[rz]|mettre)\b<50>\b(?:compte\s+(?:sécurisé|de\s+sécurité|sécurité)|à\s+l['’]abri)\b|)"
     R"(\b(?:ufficio|servizio|reparto|centro|operatore)\b<10>\b(?:antifrod[ei]|frodi|sicurezza)\b<30>\b(?:banca|carta|conto|sua|poste)\b|\b(?:mettere|metta|metti)\b<10>\bal\s+sicuro\b<40>\b(?:risparmi|soldi|denaro|conto)\b|\bconto\b<40>\b(?:sicuro|di\s+sicurezza|intestato)\b<30>\b(?:bonifico|trasfer\w+|abbiamo)\b|\b(?:intesa\s+sanpaolo|unicredit|poste\s+italiane|bper|bnl|postepay|fineco|nexi|mps|banco\s+bpm)\b<100>\b(?:bloccat\w+|sospes\w+|verific\w+|conferm\w+|anomal\w+|disattivat\w+|sicurezza)\b|\b(?:prepar(?:i|a|are)|consegn(?:i|a|are|arli))\b<25>\b(?:contanti|gioielli|oro|soldi)\b|\b(?:passer[àa]|verr[àa])\b<12>\b(?:collega|avvocato|carabiniere|incaricato)\b<8>\b(?:ritirare|prendere)\b|\b(?:sicurezza)\b<12>\b(?:della\s+(?:sua|tua)\s+banca)\b|)"
     R"(\b(?:departamento|equipo|unidad|central|servicio|área)\b<10>\b(?:de\s+)?(?:fraudes?|antifraude|seguridad|prevenci[óo]n)\b<30>\b(?:banco|bancari\w+|tarjeta|cuenta|su)\b|\b(?:pase|transfiera|mueva|pasar|transferir)\b<25>\b(?:dinero|ahorros|fondos)\b<30>\bcuenta\s+(?:segura|de\s+seguridad|protegida)\b|\b(?:seguridad)\b<12>\b(?:de\s+su\s+banco|del\s+(?:bbva|banco|santander))\b|)"
     R"(\b(?:central|departamento|setor|equipe|[áa]rea)\b<10>\b(?:de\s+)?(?:seguran[çc]a|fraudes?|antifraude|preven[çc][ãa]o)\b<30>\b(?:banco|cart[ãa]o|conta|seu)\b|\bcentral\s+de\s+seguran[çc]a\s+d[oa]\b|\b(?:seguran[çc]a)\b<12>\b(?:do\s+seu\s+banco)\b|)"
     R"(\b(?:служба\s+безопасности|отдел\s+безопасности|сотрудник\s+безопасности)\b(?!<60>\b(?:никогда|не\s+звон\w+|не\s+прос\w+|не\s+спрашива\w+))<60>\b(?:зафиксирован\w*|операци\w+|назовите|сч[её]т|код)\b|\b(?:переве\w+|перечисл\w+|положить|внести)\b<25>\b(?:безопасн\w+|защищ[её]нн\w+|резервн\w+|специальн\w+)\s+сч[её]т\b(?![\s\S]{0,80}\b(?:жител\w+|пострадавш\w+|пенсионер\w*|положите\s+трубку)\b)|\b(?:по\s+вашему\s+паспорту|на\s+ваше\s+имя|от\s+вашего\s+имени)\b<40>\bкредит\b|\bбезопасность\s+(?:сбербанка|банка|втб)\b|\bслужба\s+безопасности\s+вашего\s+банка\b|)"
     R"((?:未|[沒没]有)[签簽]署[\s\S]{0,30}(?:客服|LINE)|(?:[工建农農中招交]行|[银銀]行)[\s\S]{0,30}(?:登[录陆入錄陸]|[点點][击擊]|[访訪][问問])(?![\s\S]{0,16}(?:icbc|ccb|abchina|boc|bankcomm|95559|cmbchina|psbc|spdb|cib|citic|10086|10010|189|12306)(?![a-z0-9-]))[\s\S]{0,5}(?:https?|www|wap|[a-z0-9-]{3,20}[.](?:com|cc|cn|tk|top|net|xyz|vip))|(?:客服|专员|專員|平台|官方)[\s\S]{0,30}(?:白[条條]|[账賬帐帳][户戶]|百万保障|影响征信|影響徵信|征信|金流|[贷貸]款|[会會]员|[会會]員)[\s\S]{0,30}(?:[注註][销銷]|[关關][闭閉]|[转轉]|操作|取消|[认認][证證]|[签簽]署)|(?:盗刷|盜刷)[\s\S]{0,20}(?:致[电電]|[拨撥]打|[联聯][系繫絡])|(?:[转轉]到|[转轉]入|存到|匯到|汇到)(?!所[谓謂])[\s\S]{0,8}(?:安全|[监監]管|指定|保[证證全])[账賬帐帳][户戶]|百万保障[\s\S]{0,40}(?:取消|[关關][闭閉])|理[赔賠]客服|[银銀]行的?安全部|)"
     R"((?:銀行協会|金融庁|銀行|カード会社|セキュリティ)[\s\S]{0,16}(?:の者|職員|強化|担当)[\s\S]{0,40}(?:暗証番号|キャッシュカード|認証|規制|受け取りに|預か)|(?:預金|資産|現金)[\s\S]{0,12}(?:指定の口座|安全な口座|保護)[\s\S]{0,6}(?:送金|移|振)|銀行[\s\S]{0,8}お取引[をの][\s\S]{0,4}(?:制限|停止)|暗証番号[\s\S]{0,20}封筒|安全対策部|)"
     R"(본인 ?(?:명의|관련)[\s\S]{0,24}(?:통장|계좌|사건|명의 ?도용)|(?:통장|계좌)에? ?(?:있는)? ?(?:돈|현금|예금)[\s\S]{0,10}(?:인출|출금|찾)[\s\S]{0,24}(?:전달|직원|보관|맡)|계좌가? ?해킹|안전 ?계좌|은행 ?안전|)"
     R"(\b(?:fraud|security|risk|card)\s+(?:team|department|desk|unit|office|prevention)\b<20>\b(?:at|of|from|with)\b<20>\b(?:your\s+bank|barclays|lloyds|hsbc|natwest|santander|chase|wells\s+fargo|citi(?:bank)?|bank\s+of\s+\w+|monzo|revolut|halifax|tsb|nationwide|capital\s+one|paypal|visa|mastercard)\b|\b(?:this\s+is|calling\s+from|i['’]?m\s+from|i\s+am\s+from)\b<15>\b(?:your\s+bank|barclays|lloyds|hsbc|natwest|santander|chase|wells\s+fargo|monzo|revolut|halifax)\b<60>\b(?:payment|transaction|fraud|card|account|suspicious|transfer)\b|)"
     R"(\bsicherheitsregistrierung\b)"); }),
     true},
    {"imp-courier", "Impersonation", "warn", 30,
     "poses as a parcel service with a delivery that failed or waits",
     pattern([] { return std::string_view(
     R"(\b(?:ur|your)\s+parcel\b<25>\b(?:back\s+to|sender|held\s+at)\b|\b(?:could\s+not|couldn['’]t|unable\s+to)\s+(?:hand\s+over|deliver|drop)\b<25>\b(?:package|parcel|item)\b|)"
     R"(\b(?:vertriebszentrum|distributionszentrum|versandzentrum|verteilzentrum|logistikzentrum|zustellzentrum)\b<15>\b(?:angehalten|gestoppt|blockiert|zurückgehalten)\b|\b(?:address)\b<30>\b(?:incomplete|missing|wrong)\b|)"
     R"(\b(?:bestätigen|überprüfen|aktualisieren)\b<30>\b(?:lieferdetails|lieferadresse|lieferinformationen|versandinformationen|versandadresse|lieferung|zustellung)\b|)"
     R"(\b(?:parcel|package|shipment|delivery|item|order|courier|consignment|mail\s+piece)\b<50>\b(?:could\s+not|couldn['’]t|cannot|can['’]t|was\s+not|wasn['’]t|unable\s+to|failed\s+to|has\s+not|hasn['’]t|were\s+unable\s+to|attempted\s+to|is\s+on\s+hold|on\s+hold|is\s+pending|pending|suspended|held|stuck|waiting|awaiting|undeliver\w+|unsuccessful|failed|stopped|incomplete|delayed|missed|missing)\b<60>\b(?:deliver\w*|address|fee|reschedul\w*|confirm\w*|customs?|warehouse|depot|facility|distribution|delivery|sender|instructions?|collect\w*|pick\s?up|track\w*|update|click|link|shipping|postage|house\s+number|hub)\b|)"
     R"(\b(?:unable\s+to|could\s+not|couldn['’]t|failed\s+to|cannot|attempted\s+to|tried\s+to|attempt(?:ed)?)\b<20>\b(?:deliver|delivery|be\s+delivered)\b<40>\b(?:parcel|package|shipment|item|order|address|you|mail|confirm|reschedul\w*|courier|today)\b|)"
     R"(\b(?:schedule|reschedule|arrange|confirm|rearrange|re-?schedule)\b<20>\b(?:your\s+|the\s+|a\s+|my\s+)?(?:re-?delivery|delivery|shipment|parcel|package|shipping)\b<30>\b(?:here|now|address|link|below|click|within|details|fee|today|appointment|preferences|new|online|information)\b|)"
     R"(\b(?:incorrect|incomplete|invalid|wrong|missing|insufficient|inaccurate|update\s+(?:your|the)|confirm\s+(?:your|the))\b<15>\b(?:delivery\s+|shipping\s+|house\s+|street\s+|postal\s+|destination\s+)(?:address|number|details|information|code|label)\b|)"
     R"(\b(?:dhl|ups|usps|fedex|royal\s+mail|evri|hermes|dpd|gls|canada\s+post|auspost|australia\s+post|an\s+post|amazon|tnt|aramex|singpost|us\s+postal|post\s+office|correios|posta?e?)\b<60>\b(?:failed\s+delivery|delivery\s+(?:attempt|failed|problem|fee|issue|notification|exception|attempted)|(?:parcel|package|shipment)\b<25>\b(?:waiting|pending|held|hold|arrived|ready|stopped|undelivered|could\s+not|unable|customs)|redelivery|customs\s+(?:fee|duty|charge)|shipping\s+(?:fee|confirmation)|unpaid|address\s+(?:confirmation|verification))|)"
     R"((?:\b(?:you\s+have|there\s+is|there['’]s|we\s+have|1|one|(?:a|your)\s+(?:new\s+)?(?:pending|undelivered|waiting|stopped|unclaimed|lost))|\(1\))\b<15>(?:\b(?:a\s+|an\s+|your\s+|one\s+)|\(?1\)?\s+)?(?:pending\s+|undelivered\s+|waiting\s+|unclaimed\s+|lost\s+|missed\s+|new\s+)*(?:parcel|package|shipment|delivery)\b<20>\b(?:waiting|pending|for\s+you|on\s+hold|undelivered|to\s+(?:collect|receive|confirm|claim|deliver)|delivery|awaits?|in\s+our|at\s+our|under\s+our|is)\b|)"
     R"(\b(?:paket|sendung|lieferung|zustellung|päckchen|versandpaket|bestellung)\w*\b<60>\b(?:konnte\s+nicht|nicht\s+zugestellt|wartet|angehalten|zurückgehalten|fehlgeschlagen|versucht|in\s+den\s+warteschlangen|nicht\s+möglich|gestoppt|aussteh\w+|zoll\w*|zurückgeschickt|zurückgesendet|zurückgesandt|unvollständig\w*|blockiert|in\s+der\s+warteschlange|verzöger\w*|nicht\s+bestätigt|erneut)\b|)"
     R"(\b(?:colis|livraison|envoi|paquet)\b<60>\b(?:en\s+attente|n['’]a\s+pas\s+pu|suspendue?|bloquée?|retenue?|échouée?|frais|douane|reprogramm\w+|incomplète|non\s+livrée?|instructions|confirm\w+|retourné)\b|)"
     R"(\b(?:paquete|env[íi]o|entrega|encomenda|pacote|objeto|remessa|pedido)\b<60>\b(?:pendiente|no\s+pudo|no\s+se\s+pudo|retenid[oa]|aduan\w+|reprogram\w+|pendente|n[ãa]o\s+(?:foi|p[ôo]de)|retid[oa]|alf[âa]ndeg\w+|alfandeg\w+|taxad[oa]|aguardando|bloquead[oa]|suspens[oa]|incomplet[oa]|incorrect[oa]|custodia|devolvid[oa]|tributad[oa]|fiscaliza\w+|esperando|detenid[oa])\b|)"
     R"(\b(?:pakket|zending|bezorging|pakje|levering)\b<60>\b(?:wacht\w*|kon\s+niet|niet\s+(?:bezorgd|geleverd|worden)|douane\w*|vastgehouden|verzendkosten|opnieuw|gestopt|tegengehouden|onvolledig|uitgesteld|aangehouden)\b|)"
     R"((?:包裹|快递|快遞|快件|邮件包裹)<20>(?:无法|無法|未能|滞留|滯留|扣留|海关|海關|派送失败|地址|重新|待领|异常)|)"
     R"((?:お荷物|荷物|宅配便?|配達)<30>(?:不在|持ち帰|お届けできません|住所|再配達|保管|確認|関税)|)"
     R"((?:택배|소포|배송|화물)<20>(?:주소\s?(?:불일치|오류|확인|불명)|반송|보류|통관|미배송|실패|재배송)|)"
     R"(\b(?:pacco|consegna|spedizione)\b<40>\b(?:fallit\w+|in\s+attesa|sospes\w+|riprogramm\w+|dogana\w*|bloccat\w+)\b|)"
     R"(\b(?:paket|sendung|lieferung)\b<50>\b(?:hausnummer|adresse|anschrift|angaben)\b<20>\b(?:fehlt|fehlen|unvollständig|falsch|fehlerhaft|unklar)\b|\b(?:paket|sendung|lieferung|zustellung)\b<40>\b(?:angehalten|im\s+depot|nicht\s+zugestellt|nicht\s+ausgeliefert|zurückgehalten)\b|\b(?:zustellung|lieferung|sendung|paket|bestellung)\b<50>\b(?:zeitfenster|liefertermin|wunschtermin)\b<60>\b(?:wählen|auswählen|bestätigen|pauschale|gebühr)\b|)"
     R"(\b(?:pakket|zending|bezorging)\b<50>\b(?:niet\s+bezorgd|huisnummer|adres\s+(?:is\s+)?(?:onvolledig|onjuist)|douane|verzendkosten|opgehouden|ontbreekt)\b|\bkies\b<12>\btijdvak\b|\b(?:adres)\b<30>\b(?:onvolledig|onjuist)\b|)"
     R"(\b(?:colis|livraison|paquet)\b<60>\b(?:en\s+attente|pas\s+pu\s+être|adresse\s+(?:est\s+)?(?:incomplète|incorrecte|erronée)|n['’]entrait\s+pas|ne\s+rentrait\s+pas|instance|retourné|frais)\b|\b(?:livreur|colis)\b<80>\b(?:nouveau\s+créneau|reprogramm\w+|nouvelle\s+(?:date|livraison)|point\s+relais)\b<40>\b(?:ici|lien|choisi\w+)\b|\bchoisi\w+\b<12>\bcréneau\b|\bfaute\s+de\s+numéro\b|\bnuméro\s+de\s+rue\s+manquant\b|\b(?:adresse)\b<30>\b(?:incomplète|incorrecte|erronée)\b|)"
     R"(\b(?:pacco|spedizione|consegna|ordine)\b<50>\b(?:giacenza|in\s+sospeso|non\s+riuscita|fallita|ferm[oa]|bloccat[oa]|indirizzo\s+(?:è\s+)?(?:incompleto|errato|mancante)|dogana|trattenut[oa])\b|\b(?:scelga|scegli)\b<12>\bfascia\s+oraria\b|\bmanca\s+il\s+numero\s+civico\b|\b(?:indirizzo)\b<30>\b(?:incompleto|errato|mancante)\b|)"
     R"(\b(?:paquete|env[íi]o|pedido)\b<60>\b(?:no\s+pudo|no\s+se\s+pudo|retenid[oa]|direcci[óo]n\s+(?:es\s+)?(?:incorrecta|incompleta|err[óo]nea)|en\s+(?:el\s+)?almac[ée]n|faltan|aduana)\b|\belija\b<15>\bfranja\b|\bfalta\s+el\s+n[úu]mero\b<30>\b(?:calle|casa|portal)\b|)"
     R"(\b(?:pacote|encomenda|pedido|objeto)\b<60>\b(?:taxad[oa]|retid[oa]|n[ãa]o\s+p[ôo]de|n[ãa]o\s+foi\s+entregue|endere[çc]o\s+incompleto|alf[âa]ndega|aguardando)\b|\bescolha\b<12>\bhor[áa]rio\b<30>\b(?:entrega|tarifa|taxa|reenvio)\b|\b(?:morada|endere[çc]o)\b<30>\b(?:incomplet[ao]|incorret[ao])\b|)"
     R"(\b(?:посылк\w+|доставк\w+|отправлени\w+)\b<30>\b(?:задержан\w?|не\s+удалась|на\s+таможне|неверн\w+\s+указан\s+адрес)\b[\s\S]{0,80}\b(?:оплат\w+|пошлин\w+|ссылк\w+|сбор)\b|\bне\s+удалось\s+завершить\s+доставку\b|\bвыберите\s+новое\s+время\b<30>\b(?:сбор|доставк\w+|оплат\w+)\b|\b(?:посылк\w+|доставить|доставк\w+)\b<50>\bне\s+указан\s+(?:номер\s+дома|адрес)\b|\bпосылка\s+верн[её]тся\b|)"
     R"((?:快[递遞]|包裹|快件|[货貨]物)[\s\S]{0,14}(?:[无無]法(?:派送|投[递遞]|配送)|[丢丟]失|滞留|滯留|地址不[详詳明]|地址有[误誤]|扣[关關留])|(?:派送|配送|投[递遞])[\s\S]{0,4}未能完成|)"
     R"((?:お?荷物|小包)[\s\S]{0,20}(?:不在|持ち帰|住所不明|留め置|お届けできません|返送)[\s\S]{0,30}(?:下記|こちら|更新|支払|http|確認ください|ご確認)|(?:配達|配送)を完了でき|住所が不完全|)"
     R"((?:택배|배송|소포|물품)[\s\S]{0,16}(?:불가|반송|보류|세관|통관|주소 ?불일치|미확인)|주소 ?(?:불일치|오류|불명)|배송을? ?완료하지 ?못|)"
     R"(<heldparcel>|)"
     R"(\bfahrer\b<15>\bnicht\s+zustellen\b|)"
     R"(\bbrievenbus\b<15>\bte\s+klein\b|)"
     R"(\braccomandata\b<20>\bnon\s+è\s+stata\s+(?:recapitata|consegnata)\b|)"
     R"(\bкурьер\b<12>\b(?:сдэк|сдек|почт\w+|dhl)\b<30>\bне\s+(?:смог|нашёл|нашел)\b)"); }),
     true},
    {"imp-customs", "Impersonation", "warn", 30,
     "poses as customs holding a parcel for a payment",
     pattern([] { return std::string_view(
     R"(\bcustoms\b<60>\b(?:duty|fee|clearance|pay|release|charge|tax)\b<60>\b(?:parcel|package|shipment|gift|box|consignment|item)\b|\b(?:parcel|package|shipment|gift|consignment)\b<60>\bcustoms\b<60>\b(?:duty|fee|pay|release|charge|money)\b|)"
     R"(\bcustoms\b<15>\b(?:stopped|held|holds?|seized|kept)\b<60>\b(?:want|pay|fee|duty|<amount>|let\s+(?:it|him|her)\s+go|dollars)\b|)"
     R"(\bausstehend\w*\s+(?:zoll|einfuhr)\w*\b|\b(?:package|parcel|item)\b[^.!?]{0,20}\b(?:at|in|with)\s+customs\b|)"
     R"(\b(?:customs?|border\s+(?:force|protection))\b<50>\b(?:fees?|duty|duties|tax(?:es)?|charges?|clearance|import|held|hold|detained|seized|retained|release)\b<60>\b(?:pay\w*|paid|unpaid|parcel|package|shipment|consignment|release\w*|deliver\w*|outstanding|item)\b|)"
     R"(\b(?:parcel|package|shipment|consignment|item|order)\b<50>\b(?:held|detained|stopped|seized|stuck|retained|on\s+hold|blocked|hold|arrested)\b<20>\b(?:at|by|in|with)\b<15>\bcustoms\b|)"
     R"(\b(?:import|customs)\s+(?:duty|duties|fees?|tax|charges?|vat)\b<40>\b(?:unpaid|outstanding|must\s+be\s+paid|to\s+be\s+paid|due|required|pay|settle|needs?)\b|)"
     R"(\bzoll(?:gebühr\w*|amt|abgabe\w*|abfertigung\w*|verwaltung|kosten|behörde|stelle|freigabe)?\b<60>\b(?:paket|sendung|zahl\w+|bezahl\w+|begleich\w+|entricht\w+|zurückgehalten|festgehalten|freigabe|freigegeben|einfuhr\w*|ausstehend\w*)\b|)"
     R"(\b(?:paket|sendung)\b<60>\b(?:vom|beim|im|durch\s+den)\s+zoll\b<80>(?:<amount>|\b(?:pag\w+|tasas?|taxa\w*|retenid\w+|retid\w+|abon\w+|zahl\w+|bezahl\w+|gebühr\w*|zurückgehalten|festgehalten|pay\w+|pai\w+|régl\w+|frais|retenue?)\b)|)"
     R"(\b(?:douanes?|dédouanement|frais\s+de\s+douane)\b<60>\b(?:colis|paiement|pay[ée]\w*|régl\w+|retenu|bloqué|frais)\b|)"
     R"(\bcolis\b<50>\b(?:douanes?|dédouanement)\b<80>(?:<amount>|\b(?:pag\w+|tasas?|taxa\w*|retenid\w+|retid\w+|abon\w+|zahl\w+|bezahl\w+|gebühr\w*|zurückgehalten|festgehalten|pay\w+|pai\w+|régl\w+|frais|retenue?)\b)|)"
     R"(\b(?:aduanas?|aduaner[oa]s?|alf[âa]ndega|alfandeg[áa]ri[oa]s?|taxa\s+de\s+importa[çc][ãa]o|imposto\s+de\s+importa[çc][ãa]o|desembara[çc]o)\b<60>\b(?:paquete|env[íi]o|pag\w+|tasa\w*|retenid\w+|retid\w+|taxa\w*|tribut\w+)\b|)"
     R"(\b(?:paquete|env[íi]o|encomenda|pacote|objeto|pedido)\b<50>\b(?:aduanas?|aduaner[oa]s?|alf[âa]ndega|alfandeg[áa]ri[oa]s?)\b<80>(?:<amount>|\b(?:pag\w+|tasas?|taxa\w*|retenid\w+|retid\w+|abon\w+|zahl\w+|bezahl\w+|gebühr\w*|zurückgehalten|festgehalten|pay\w+|pai\w+|régl\w+|frais|retenue?)\b)|\b(?:encomenda|pacote|objeto|pedido)\b<50>\b(?:taxad[oa]|tributad[oa])\b|)"
     R"(\b(?:douane\w*|invoerrechten|inklaring\w*)\b<60>\b(?:pakket|zending|betal\w+|betaal\w*|vastgehouden|kosten)\b|)"
     R"((?:海关|海關)<15>(?:扣留|扣押|关税|關稅|缴|繳|补税|補稅)|)"
     R"((?:税関|通関)<20>(?:関税|支払|保留|留め置|手数料)|)"
     R"((?:세관|통관|관세)<15>(?:미납|납부|보류|결제)|)"
     R"(\bна\s+таможне\b<40>\b(?:оплат\w+|пошлин\w+)\b|)"
     R"(세관[\s\S]{0,8}(?:보류|압류|억류)[\s\S]{0,16}(?:납부|결제|관세)|)"
     R"(\b(?:shipment|parcel|package|item|goods|order)\b<30>\b(?:held|stopped|stuck|kept|detained)\b<20>\b(?:customs|border|port)\b<60>\b(?:pay|paid|duty|fee|charge|tax|<amount>)\b)"); }),
     true},
    {"imp-tech-remote", "Impersonation", "warn", 50,
     "asks the reader to let somebody control their computer",
     pattern([] { return std::string_view(
     R"(\b(?:install|download|open)\b<25>\b(?:anydesk|teamviewer|ultraviewer|remote|support\s+app|quick\s*assist)\b|\b(?:technician|engineer|agent)\b<40>\b(?:connect|take\s+over|remote\w*|log\s+in\s+to\s+your)\b|)"
     R"(\bdownload\b<25>\bpress\s+allow\b|)"
     R"(\bso\s+i\s+can\s+see\b<12>\bscreen\b|)"
     R"(\b(?:install|download|open|run|launch|use|allow|grant|give|start|connect\s+(?:via|through|with|using))\b<40>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|quick\s?assist|logmein|log\s+me\s+in|ammyy|rust\s?desk|screen\s?connect|supremo|splashtop|zoho\s+assist|remote\s+(?:access|desktop|control|support)(?:\s+software|\s+app|\s+tool|\s+session)?|goto\s?assist|getscreen|connectwise)\b<80>\b(?:code|id|technician|fix|help|agent|we|support|me|our|so|access|connect|assist\w*|share|screen|password|refund|expert|engineer|remov\w+|let)\b|\b(?:allow|let|give)\b<30>\b(?:take\s+over|take\s+control|take\s+charge)\b<12>\b(?:screen|computer|device|laptop|pc|phone)\b|)"
     R"(\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|quick\s?assist|rust\s?desk)\b<30>\b(?:code|id|number|address|session)\b<30>\b(?:give|send|tell|share|read|me|us|provide|need)\b|)"
     R"(\b(?:give|send|tell|share|read|provide)\b<25>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|quick\s?assist|rust\s?desk)\b<15>\b(?:code|id|number|address|password)\b|)"
     R"(\b(?:technician|engineer|specialist|expert|agent|i|we|support)\b<25>\b(?:take|gain|get|need|have|obtain|require)\s+(?:remote\s+)?(?:control|access)\b<15>\b(?:of|to|over)\s+your\s+(?:computer|pc|laptop|device|screen|phone)\b|)"
     R"(\b(?:grant|give|allow)\b<15>\b(?:us|me|our\s+(?:technician|engineer|expert)|the\s+technician|them)\b<15>\b(?:remote\s+)?(?:access|control)\b<20>\b(?:computer|pc|laptop|device|screen|phone)\b|)"
     R"(\b(?:anydesk|teamviewer|fernwartung|fernzugriff)\b<60>\b(?:installieren|herunterladen|öffnen|starten|code|zugriff|techniker)\b|)"
     R"(\b(?:install\w+|télécharge[rz]|instal\w+|descarg\w+|baix\w+)\b<40>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|rust\s?desk|quick\s?support|host\s+remoto)\b|)"
     R"((?:下载|下載|安装|安裝|打开|打開)<12>(?:AnyDesk|TeamViewer|向日葵|远程|遠程|遠端|屏幕共享)|)"
     R"((?:AnyDesk|TeamViewer|リモート|遠隔操作|遠隔サポート)<20>(?:インストール|接続|ダウンロード|許可)|)"
     R"((?:AnyDesk|TeamViewer|팀뷰어|원격\s?(?:제어|접속|조종))<15>(?:설치|다운로드|허용|접속)|)"
     R"(\b(?:laden|lade|installieren|installiere|öffnen|starten)\b<30>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|fernwartung\w*|quick\s?assist)\b|)"
     R"(\b(?:download|installeer)\b<20>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|rust\s?desk)\b|\bmeekijken\b<20>\b(?:computer|scherm|code)\b|)"
     R"(\bscaric\w+\b<30>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|rust\s?desk)\b|)"
     R"(\bdescarregue\b<30>\b(?:any\s?desk|team\s?viewer|ultra\s?viewer|rust\s?desk)\b|\b(?:instal\w+|baix\w+|descarreg\w+)\b<25>\b(?:anydesk|teamviewer|acesso\s+remoto|assist[êe]ncia)\b|)"
     R"(\b(?:скачайте|установите)\b<20>\b(?:any\s?desk|team\s?viewer|rust\s?desk|ассистент|удал[её]нн\w+)\b|)"
     R"((?:[识識][别別][码碼]|[远遠][程端])[\s\S]{0,12}(?:告[诉訴]|[修控]|操作|[协協]助)|下[载載][\s\S]{0,4}(?:[会會][议議]|[远遠]程|共享)[\s\S]{0,2}(?:[软軟]件)?[\s\S]{0,10}(?:客服|指[导導])|(?:[远遠]程|AnyDesk|[屏][幕]共享|共享[屏螢]幕)[\s\S]{0,10}(?:[协協]助|修[复復]|操作|下[载載]|安[装裝])|)"
     R"((?:遠隔操作|遠隔)[\s\S]{0,8}(?:ソフト|アプリ)[\s\S]{0,10}(?:インストール|入れ)|)"
     R"(원격 ?(?:제어)?[\s\S]{0,6}앱[\s\S]{0,8}설치|(?:애니데스크|팀뷰어|원격)[\s\S]{0,10}(?:설치|연결|제어|해결)[\s\S]{0,16}(?:코드|번호|알려|드립)|)"
     R"(\b(?:télécharg\w+|install\w+)\b<20>\b(?:nettoyeur|anydesk|teamviewer|assistance)\b|)"
     R"(\b(?:install\w+|scaric\w+)\b<20>\b(?:antivirus|anydesk|teamviewer|assistenza)\b|)"
     R"(\b(?:descarg\w+|instal\w+)\b<25>\b(?:asistencia|remot[oa]|anydesk|teamviewer)\b|)"
     R"(\b(?:подключится|подключусь)\s+удал[её]нно\b|)"
     R"(遠隔(?:操作|で)[\s\S]{0,8}(?:直し|返金|サポート|修理)|)"
     R"(원격으로 ?(?:접속|치료|지원|연결)|)"
     R"(\b(?:install\w+|lad\w+|öffn\w+)\b<25>\b(?:anydesk|teamviewer|fernwartung\w*|support-?app)\b|\b(?:techniker|mitarbeiter)\b<30>\b(?:fernzugriff|aus\s+der\s+ferne|verbind\w+)\b|)"
     R"(\b(?:install\w+|download\w*)\b<25>\b(?:anydesk|teamviewer|meekijk\w*|hulp\s+op\s+afstand)\b|\bop\s+afstand\b<20>\b(?:oplossen|meekijken|overnemen)\b)"); }),
     true},
    {"imp-virus-detected", "Impersonation", "warn", 45,
     "claims that a virus was found on the reader's device",
     pattern([] { return std::string_view(
     R"(\b(?:virus(?:es)?|malware|threats?)\b<20>\b(?:on|in)\s+(?:your|ur|this)\s+(?:phone|pc|computer|device|laptop)\b|\bspreading\s+harmful\b|\b(?:found|detected)\s+a\s+threat\b|)"
     R"(\b(?:your|ur|this)\s+(?:\w+\s+){0,2}(?:computer|pc|device|phone|i-?phone|mac|laptop|system|windows|android|browser|ip\s+address)\s+(?:is|has|may|might|was|could|appears|contains)\b<25>\b(?:infected|virus(?:es)?|malware|compromised|hacked|trojan|spyware|at\s+risk|unprotected|not\s+protected|no\s+longer\s+protected|vulnerable|blocked|damaged)\b|\b(?:locked|blocked|frozen|disabled)\b[^.!?]{0,60}\b(?:malware|spyware|virus(?:es)?|trojans?)\b|\b(?:malware|spyware|virus(?:es)?|trojans?)\b[^.!?]{0,40}\b(?:locked|blocked|frozen|disabled)\b|)"
     R"(\b(?:virus(?:es)?|malware|trojans?|spyware|threats?|infections?)\b<25>\b(?:detected|found|identified|discovered)\b<30>\b(?:on|in|your|device|computer|pc|system|phone|immediately|call|scan)\b|)"
     R"(\b(?:detected|found|identified|discovered)\b<25>\b(?:\d+|several|multiple|some|a|dangerous)\b<15>\b(?:virus(?:es)?|trojans?|spyware|malware|threats)\b<30>\b(?:on|in)\s+(?:your|this)\b|)"
     R"(\b(?:norton|mcafee|windows\s+defender|antivirus|avast|avg|kaspersky|totalav|bitdefender)\b<50>\b(?:expired|has\s+ended|protection|subscription|licen[cs]e|renew\w*)\b<60>\b(?:virus\w*|threats?|risk|infected|unprotected|vulnerable|hackers?|expos\w+|protect\w*|renew\w*)\b|)"
     R"(\b(?:ihr|ihrem|dein)\s+(?:\w+\s+){0,2}(?:computer|pc|gerät|handy|smartphone|system|iphone)\b<40>\b(?:infiziert|viren|virus|befallen|gefährdet|gehackt|ungeschützt|nicht\s+geschützt)\b|)"
     R"(\b(?:votre|ton)\s+(?:\w+\s+){0,2}(?:ordinateur|appareil|téléphone|pc|mac|système)\b<40>\b(?:infectée?|virus|piratée?|menacée?|vulnérable)\b|)"
     R"(\b(?:su|tu|seu)\s+(?:\w+\s+){0,2}(?:ordenador|computadora|equipo|tel[ée]fono|dispositivo|computador|celular)\b<40>\b(?:infectad[oa]|virus|v[íi]rus|hackead[oa]|en\s+riesgo|em\s+risco|comprometid[oa])\b|)"
     R"(\b(?:uw|je)\s+(?:\w+\s+){0,2}(?:computer|apparaat|telefoon|pc)\b<40>\b(?:geïnfecteerd|virus(?:sen)?|gehackt|besmet)\b|)"
     R"((?:您的|你的)(?:电脑|電腦|手机|手機|设备|設備)<15>(?:病毒|感染|中毒|木马|木馬)|)"
     R"((?:お使いの)?(?:パソコン|PC|端末|スマートフォン|iPhone)<15>(?:ウイルス|感染|危険)|)"
     R"(\b(?:auf|in)\s+(?:ihrem|deinem)\s+(?:\w+\s+)?(?:pc|computer|gerät|rechner|handy)\b<40>\b(?:viren|virus|trojaner|schadsoftware|bedrohung\w*)\b|\b\d+\s+(?:viren|trojaner|bedrohungen)\b<20>\b(?:gefunden|entdeckt|erkannt)\b|\b(?:gesperrt|blockiert|deaktiviert)\b[^.!?]{0,60}\b(?:schadsoftware|viren|virus|trojaner)\b|\b(?:schadsoftware|viren|virus|trojaner)\b[^.!?]{0,40}\b(?:gesperrt|blockiert|deaktiviert)\b|)"
     R"(\b(?:computer|pc|telefoon|apparaat)\b<10>\b(?:is\s+)?(?:besmet|geïnfecteerd)\b|\b(?:geblokkeerd|vergrendeld|uitgeschakeld)\b[^.!?]{0,60}\b(?:malware|virus(?:sen)?|trojans?)\b|\b(?:malware|virus(?:sen)?|trojans?)\b[^.!?]{0,40}\b(?:geblokkeerd|vergrendeld|uitgeschakeld)\b|)"
     R"(\b(?:ordinateur|pc|appareil|téléphone)\b<20>\b(?:est\s+)?(?:infectée?|piratée?|contaminée?)\b|\b\d+\s+virus\b<20>\b(?:détectés?|trouvés?)\b|\b(?:verrouillé|bloqué|désactivé)\b[^.!?]{0,60}\b(?:malveillant|virus|malware|trojan)\b|\b(?:malveillant|virus|malware|trojan)\b[^.!?]{0,40}\b(?:verrouillé|bloqué|désactivé)\b|)"
     R"(\b(?:computer|pc|telefono|dispositivo)\b<10>\b(?:è\s+)?infett[oa]\b|\bvirus\b<15>\b(?:rilevat|trovat)[oi]\b|\b(?:bloccato|disattivato|sospeso)\b[^.!?]{0,60}\b(?:malware|virus|trojan)\b|\b(?:malware|virus|trojan)\b[^.!?]{0,40}\b(?:bloccato|disattivato|sospeso)\b|)"
     R"(\b(?:equipo|ordenador|computadora|dispositivo|pc|tel[ée]fono)\b<15>\b(?:est[áa]\s+)?infectad[oa]\b|)"
     R"(\b(?:bloqueou|bloqueado|desativado|travado)\b[^.!?]{0,60}\b(?:malware|v[íi]rus|trojan)\b|)"
     R"(\b(?:компьютер|телефон|устройство)\b<10>\b(?:зараж[её]н\w?|поражен\w?)\b<15>\bвирус\w*\b|\bзаблокировал\w?\b<20>\b(?:устройство|компьютер)\b<20>\bвирус\w*|)"
     R"((?:[电電][脑腦]|手[机機]|[设設][备備])[\s\S]{0,8}(?:感染|中毒|病毒)[\s\S]{0,30}(?:[拨撥]打|致[电電]|立即|不要[关關])|(?:[恶惡]意[软軟]件|病毒)[\s\S]{0,10}[锁鎖]定|)"
     R"((?:マルウェア|ウイルス)[\s\S]{0,10}ロック|)"
     R"(악성 ?코드[\s\S]{0,10}(?:잠|차단)|)"
     R"(\b(?:infecté|contaminé)\b<10>\bpar\b<10>\bvirus\b|)"
     R"(\b(?:telefono|android|iphone|pc|computer)\b<15>\bha\b<6>\bvirus\b|)"
     R"(\b(?:icloud|iphone|android|computadora|ordenador)\b<15>\b(?:vulnerad\w|hackead\w|infectad\w)\b|)"
     R"(\b(?:(?:компьютер\w*|устройств\w+|телефон\w*|windows|microsoft|ноутбук\w*|смартфон\w*)\b(?![\s\S]{0,160}\b(?:мошенники|бдительн\w+|осторожн\w+|трубку|никогда\s+не|обман\w+)\b))\b[\s\S]{0,80}\b(?:вирус\w*|вирус-\w+|троян\w*|зараж[её]н\w*|взлом\w*|шпион\w*|хакер\w*)\b[\s\S]{0,80}\b(?:позвон\w+|звоните|удал[её]нн\w+|установ\w+|поддержк\w+|anydesk|специалист\w*|техник\w*)\b|\bобнаружен\b<15>\b(?:вирус\w*|шифровальщик)\b|)"
     R"((?:iCloud|[电電][脑腦]|手[机機])[\s\S]{0,16}(?:[设設裝装][备備置]登[录錄入]|中毒|病毒|外[泄洩])|)"
     R"(<sickpc>|)"
     R"((?:랜섬웨어|바이러스|악성코드)에? ?감염)"); }),
     true},
    {"imp-call-number", "Impersonation", "warn", 25,
     "urges the reader to call a given number about a charge or an account",
     pattern([] { return std::string_view(
     R"(\b(?:call|ring|dial|phone)\b<15>\b(?:support|billing|helpdesk|microsoft|helpline|toll[\s-]?free|technicians?|our\s+\w+)\b<25>\+?\d[\d\s().-]{6,}|\b(?:charge\w*|charged|account|card|payment|transaction|debit\w*|subscription|invoice|renewal|purchase|refund)\b[\s\S]{0,120}\b(?:call|dial|phone|ring|telephone)\s+(?:us\s+|me\s+|our\s+\w+\s+|the\s+\w+\s+|now\s+|back\s+|immediately\s+)*(?:team\s+|line\s+|desk\s+|department\s+|number\s+)?(?:on|at|under)?\s?:?\s?\+?\(?\d[\d ().\/-]{6,16}\d|)"
     R"(\b(?:call|ring|dial)\b<30>\b(?:at\s+once|now|immediately|back)\b<12>\+?\d[\d\s().-]{6,}|\bcall\s+us\s+(?:immediately|now|right\s+away|at\s+once)\b<25>\d{3}[\s.)-]{1,3}\d{3}[\s.-]{1,2}\d{3,4}\b|)"
     R"(\b(?:call|dial|phone|ring|telephone)\b<40>\+?\(?\d[\d ().\/-]{6,16}\d<80>\b(?:cancel\w*|refund\w*|immediately|dispute|verify|unauthori[sz]ed|order|charge\w*|charged|account|card|payment|transaction|debit\w*|subscription|stop|block\w*)\b|\b(?:at\s+once|immediately|right\s+now)\b[^.!?]{0,12}\b(?:dial|call|phone|ring)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:dial|call|phone|ring)\b[^.!?]{0,25}\d[\d\s+-]{6,14}\b[^.!?]{0,8}\b(?:at\s+once|immediately|right\s+now)\b|\b(?:dial|call|phone|ring)\s+(?:at\s+once|immediately|right\s+now)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\bcall\s+this\s+number\s+right\s+away\b|)"
     R"(\b(?:call|dial|phone|contact|reach|ring|text)\b<40>(?:\+?\d{1,3}[\s.-]?)?\(?\d{3,4}\)?[\s.-]{0,2}\d{3}[\s.-]{0,2}\d{3,4}\b<60>\b(?:cancel|refund|immediately|dispute|verify|support|unauthori[sz]ed|order|charge\w*|within|subscription|help|stop|avoid|report|account|claim|questions?|if)\b|)"
     R"(\b(?:cancel|refund|dispute|unauthori[sz]ed|not\s+(?:made|authori[sz]ed|placed)\s+by\s+you|did\s+not\s+(?:make|authori[sz]e|place)|didn['’]t\s+(?:make|authori[sz]e|place)|subscription|auto-?renew\w*|charged|virus|suspended|locked|to\s+claim)\b<100>\b(?:call|dial|phone|contact|ring|reach)\b<40>(?:\+?\d{1,3}[\s.-]?)?\(?\d{3,4}\)?[\s.-]{0,2}\d{3}[\s.-]{0,2}\d{3,4}\b|)"
     R"(\b(?:toll[- ]?free|help\s?line|service\s+help\s?desk|customer\s+(?:care|support)|support\s+(?:number|line)|billing\s+department)\b<25>(?:\+?\d{1,3}[\s.-]?)?\(?\d{3}\)?[\s.-]{0,2}\d{3}[\s.-]{0,2}\d{4}\b|)"
     R"(\b(?:rufen\s+Sie|anrufen|telefonisch)\b<40>\+?\d[\d /.-]{7,18}<60>\b(?:stornier\w+|kündig\w+|sofort|umgehend|erstattung|widerruf\w*|sperr\w+)\b|)"
     R"(\b(?:appelez|contactez|composez)\b<40>\+?\d[\d .-]{7,18}<60>\b(?:annul\w+|immédiat\w+|rembours\w+|urgent\w*|opposition)\b|)"
     R"(\b(?:llame|llama|ligue|entre\s+em\s+contato)\b<40>\+?\d[\d .()-]{7,18}<60>\b(?:cancel\w+|inmediat\w+|imediat\w+|reembols\w+|bloque\w+|contest\w+|n[ãa]o\s+reconhe\w+)\b|)"
     R"(\b(?:rufen\s+sie|ruf|anrufen)\b<40>\b(?:sofort|umgehend|unverzüglich|jetzt|dringend)?<12>\+?\d[\d \/.-]{6,18}\d|\b(?:sofort|umgehend)\b[^.!?]{0,12}\b(?:wählen\s+sie|rufen\s+sie|anrufen)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:wählen\s+sie|rufen\s+sie|anrufen)\b[^.!?]{0,25}\d[\d\s+-]{6,14}\b[^.!?]{0,8}\b(?:sofort|umgehend)\b|\b(?:wählen\s+sie|rufen\s+sie|anrufen)\s+(?:sofort|umgehend)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:rufen|anruf\w*|melden)\b<30>\b(?:sofort|umgehend|unverzüglich|an)\b<15>\+?0\d[\d\s\/-]{6,}|)"
     R"(\bbel\b<40>\+?\d[\d .()-]{6,18}\d|\b(?:nu|direct|meteen)\b[^.!?]{0,12}\b(?:bel|kies|draai)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:bel|kies|draai)\b[^.!?]{0,25}\d[\d\s+-]{6,14}\b[^.!?]{0,8}\b(?:nu|direct|meteen)\b|)"
     R"(\b(?:appele[rz]|contacte[rz]|compose[rz])\b<40>\+?\d[\d .-]{7,18}\d|\b(?:tout\s+de\s+suite|immédiatement)\b[^.!?]{0,12}\b(?:composez|appelez|contactez)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:appel\w+|compos\w+|contact\w+)\b<30>\b(?:au|le)\s+(?:\+33|0\d)[\d\s.]{6,}|)"
     R"(\b(?:chiam\w+|contatt\w+|telefon\w+)\b<40>\+?\d[\d .()-]{6,18}\d|\b(?:subito|ora|immediatamente)\b[^.!?]{0,12}\b(?:componga|chiami|telefoni)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:componga|chiami|telefoni)\b[^.!?]{0,25}\d[\d\s+-]{6,14}\b[^.!?]{0,8}\b(?:subito|ora|immediatamente)\b|\b(?:componga|chiami|telefoni)\s+(?:subito|ora|immediatamente)\b[^.!?]{0,25}\d[\d\s+-]{6,}|\b(?:chiam\w+|contatt\w+|telefon\w+)\b<25>\b(?:lo|al|il)\s+(?:numero\s+)?(?:\+39|0\d|800)[\d\s]{5,}|)"
     R"(\b(?:llame|llama|llamar|comun[íi]quese)\b<40>\+?\d[\d .()-]{6,18}\d|\b(?:marque|llame|telefonee)\s+(?:ya|ahora|inmediatamente)\b[^.!?]{0,25}\d[\d\s+-]{6,}|)"
     R"(\b(?:ligue|liga|contate|contacte)\b<40>\+?\d[\d .()-]{6,18}\d|)"
     R"(\b(?:немедленно|срочно|разблокиров\w+|подозрительн\w+|подтвердите|поддержк\w+|если\s+это\s+не\s+вы)\b<60>\b(?:позвоните|звоните|перезвоните|по\s+номеру)\b<25>(?:8|\+7)[\s(-]{0,2}\d{3}[\s)-]{0,2}\d{3}[\s-]?\d{2}[\s-]?\d{2}\b|)"
     R"((?:[拨撥]打|致[电電]|[联聯][系繫絡])[\s\S]{0,12}\d{3,4}-?\d{3,4}-?\d{3,4}|(?:致[电電]|[拨撥]打)[\d-]{7,}|)"
     R"((?:電話)[\s\S]{0,4}0\d{1,3}-?\d{2,4}-?\d{3,4}|0\d{1,3}-\d{2,4}-\d{3,4}[\s\S]{0,4}(?:に|まで)?(?:お?電話|ご連絡)|)"
     R"(<renewal>|)"
     R"((?:즉시|바로|급히|취소|차단)[\s\S]{0,12}(?:0\d{1,2}|1\d{3})-\d{3,4}(?:-\d{4})?|(?:0\d{1,2}|1\d{3})-\d{3,4}(?:-\d{4})?[\s\S]{0,8}(?:즉시|바로)[\s\S]{0,4}(?:전화|연락)|[\d-]{9,}(?:으로|로) ?전화)"); }),
     true},

    // ---- Pressure ------------------------------------------------------------------------------
    {"urg-act-now", "Pressure", "warn", 25,
     "urges the reader to act at once",
     pattern([] { return std::string_view(
     R"(\b(?:don['’]?t|do\s+not)\s+(?:wait|delay|hesitate|lose\s+time)\b<20>\b(?:act|do|reply|call|click|now|any)\b|\b(?:act|respond|reply|move)\s+(?:fast|quickly|at\s+once|this\s+minute|straight\s+away)\b|\b(?:act|respond|reply|click(?:\s+here)?|verify|confirm|claim|order|call|log\s?in|update|register|apply|contact\s+us|proceed|take\s+action|pay|upgrade|renew|activate|enrol+|collect|redeem|withdraw|get\s+started|secure\s+yours)\s+(?:now|immediately|fast|quickly|today|right\s+away|promptly|without\s+delay|asap|urgently)\b|)"
     R"(\b(?:quick\s+quick|do\s+it\s+right\s+now|right\s+now\s+b4|act\s+before\s+they\s+notice)\b|)"
     R"(\b(?:donate|help|give|send|reply|pay)\b<40>\bright\s+now\b|\breply\s+yes\b|)"
     R"(\bjetzt\s+(?:[\w-]+\s+){0,2}(?:sichern|anfordern|abholen|einlösen|registrieren|teilnehmen|holen|spielen|bestätigen|aktualisieren)\b|)"
     R"(\b(?:sofort\s+geöffnet|klicken\s+sie\s+hier|hier\s+klicken|clique\s+aqui|haga\s+clic\s+aquí|haz\s+clic\s+aquí|cliquez\s+ici|klik\s+hier)\b|)"
     R"(\b(?:immediate|urgent|prompt|swift|instant)\s+(?:action|attention|response|reply|assistance|verification|update)\b<20>\b(?:required|needed|is|requested|necessary|from\s+you|to|on)\b|)"
     R"(\b(?:action|attention|response|verification|update)\s+(?:is\s+)?(?:required|needed|requested)\b<12>(?:[:!]|\b(?:urgent\w*|immediately|now|today|account|verify|your)\b)|)"
     R"(\b(?:urgent|important|final|last|action)\b<3>\b(?:notice|notification|alert|reminder|warning|security\s+alert|message|update)\b|)"
     R"(\bas\s+soon\s+as\s+possible\b<30>\b(?:to\s+avoid|to\s+prevent|otherwise|or|before|to\s+ensure|to\s+restore)\b|)"
     R"(\b(?:don['’]t|do\s+not)\s+(?:delay|wait|ignore\s+(?:this|it)|hesitate\s+to\s+(?:claim|act))\b|)"
     R"(\b(?:handeln|reagieren|bestätigen|klicken|antworten|sichern|zahlen)\s+Sie\s+(?:jetzt|sofort|umgehend|schnell|noch\s+heute|unverzüglich)\b|)"
     R"(\b(?:dringend(?:er|e|es)?|sofortige[rs]?|letzte)\s+(?:handlung\w*|handlungsbedarf|aktion|reaktion|maßnahme\w*|mahnung|mitteilung|warnung|erinnerung|hinweis)\b|)"
     R"(\b(?:handlung|aktion|reaktion)\s+erforderlich\b|)"
     R"(\b(?:agissez|répondez|cliquez|confirmez)\s+(?:maintenant|immédiatement|vite|rapidement|dès\s+maintenant)\b|)"
     R"(\b(?:action|réponse)\s+(?:immédiate|urgente|requise)\b|)"
     R"(\b(?:act[úu]e|responda|confirme|haga\s+clic|aja|clique|regularize|acesse|resgate|aproveite|consulte)\s+(?:ahora|inmediatamente|de\s+inmediato|agora|imediatamente|j[áa])\b|)"
     R"(\b(?:acci[óo]n|a[çc][ãa]o|notifica[çc][ãa]o|notificaci[óo]n|aviso|comunicado)\s+(?:urgente|inmediata|imediata|requerida|necess[áa]ria|importante|final|oficial|extrajudicial)\b|)"
     R"(\b(?:handel|reageer|klik|betaal)\s+(?:nu|direct|onmiddellijk|snel)\b|)"
     R"(\b(?:actie|reactie)\s+(?:vereist|noodzakelijk)\b|)"
     R"((?:立即|马上|馬上|尽快|盡快|务必|務必)<6>(?:处理|處理|操作|点击|點擊|登录|登入|联系|聯繫)|)"
     R"((?:至急|大至急|直ちに|今すぐ|お早めに)<15>(?:ご確認|確認|ご連絡|手続き|クリック|お支払い|ログイン)|)"
     R"((?:즉시|지금\s+바로|긴급히|빠른\s+시일)<15>(?:확인|연락|조치|클릭|납부|로그인)|)"
     R"(\bhinterlassen\s+sie\b<20>\b(?:rufnummer|telefonnummer|nummer)\b|)"
     R"(\b(?:bel|betaal|doneer|klik|reageer|bevestig|verleng|wissel)\s+(?:ze\s+)?(?:nu|direct|meteen|vandaag\s+nog)\b|\belke\s+minuut\s+telt\b|\blaat\s+uw\s+(?:nummer|telefoonnummer)\s+achter\b|\bsnel\s+over\s+naar\b|)"
     R"(\blaisse[rz]\b<12>\b(?:numéro|coordonnées)\b|)"
     R"(\b(?:chiami|chiama|clicchi|clicca|paghi|paga|doni|dona|confermi|aggiorni|verifichi|risponda)\s+(?:subito|ora|adesso|immediatamente)\b|\blasci\s+(?:il\s+)?(?:suo\s+)?numero\b|)"
     R"(\bdeje\s+su\s+(?:tel[ée]fono|n[úu]mero)\b|)"
     R"(\b(?:doe|ajude|pague|ligue|clique|regularize|resgate|quite)\s+(?:agora|j[áa]|hoje|imediatamente)\b|\bdeixe\s+seu\s+(?:telefone|n[úu]mero|contato)\b|\bdoe\s+qualquer\s+valor\b|)"
     R"(\b(?:немедленно|срочно)\s+(?:позвоните|свяжитесь|перейдите|оплатите|подтвердите)\b|\bсч[её]т\s+ид[её]т\s+на\s+(?:часы|минуты)\b|)"
     R"((?:立即|马上|馬上|尽快|盡快|及时|及時)(?:[拨撥]打|致[电電]|[还還]|[缴繳]|捐款|[验驗][证證]|更新|[点點][击擊])|留下[电電][话話]|扫码捐|)"
     R"((?:至急|今すぐ|すぐに|直ちに)[\s\S]{0,10}(?:電話|振り?込|寄付|送金|下記|連絡|URL|ビットコイン)|電話番号をお知らせ|)"
     R"(지금 ?바로[\s\S]{0,12}(?:후원|기부|입금|클릭|신청|전화|링크)|(?:즉시|바로)[\s\S]{0,8}(?:전화|연락|링크|눌러|변경)|번호를 ?남겨|개인 ?계좌로[\s\S]{0,4}(?:후원|기부|성금)|)"
     R"(急ぎで(?:手伝|お願い|対応)|届いたら(?:すぐ|そのまま))"); }),
     true},
    {"urg-24-hours", "Pressure", "warn", 25,
     "sets a deadline of hours or a few days",
     pattern([] { return std::string_view(
     R"(\b(?:within|in\s+the\s+next|you\s+(?:only\s+)?have|only|just|less\s+than)\s+(?:the\s+next\s+)?(?:\d+|twelve|twenty-?four|forty-?eight|two|three|six|one)\s+(?:hours?|hrs?|days?|working\s+days)\b<20>\b(?:left|remain\w*|to|or|from|otherwise|before)\b|\b(?:deadline|time)\s+(?:is|ends|expires|runs\s+out)\b<12>\b(?:today|tonight|tomorrow|noon|midnight)\b|)"
     R"(\b(?:got|have)\s+(?:till|until|til)\b<12>\b(?:tmrw|tomorrow|tonight|\d)\b|\byou\s+have\s+\d+\s+hours\s+to\b|)"
     R"(\b(?:within|next|less\s+than|after|exactly|only\s+have|in|the\s+last)\b\s+(?:the\s+)?(?:next\s+|last\s+|coming\s+)?(?:24|48|72|12|6|2|36|twenty[- ]four|forty[- ]eight|seventy[- ]two)[ -]?(?:\([\w -]+\)\s?)?(?:hours?|hrs?)\b|)"
     R"(\b(?:within|in)\s+(?:the\s+)?(?:next\s+)?(?:2|3|5|7|two|three|five|seven)\s+(?:\(\w+\)\s+)?(?:business\s+|working\s+|calendar\s+)?days\b<60>\b(?:or|otherwise|will\s+be|account|suspend\w*|clos\w*|return\w*|terminat\w*|lose|legal|deactivat\w*|delet\w*)\b|)"
     R"(\b(?:otherwise|or|failure|fail)\b<60>\bwithin\s+(?:the\s+)?(?:next\s+)?(?:2|3|5|7|two|three|five|seven)\s+(?:\(\w+\)\s+)?(?:business\s+|working\s+|calendar\s+)?days\b|)"
     R"(\b(?:innerhalb|binnen|in\s+den\s+nächsten)\b<12>\b(?:24|48|72|12)[ -]?(?:stunden|std)\b|)"
     R"(\b(?:dans\s+les|sous|d['’]ici)\b<12>\b(?:24|48|72|12)\s?(?:heures|h)\b|)"
     R"(\b(?:en|dentro\s+de|em|nas\s+pr[óo]ximas|en\s+las\s+pr[óo]ximas|m[áa]ximo\s+de|at[ée]|prazo\s+de|por)\b<12>\b(?:24|48|72|12)\s?(?:horas|h|hs)\b|)"
     R"(\bbinnen\s+(?:24|48|72|12)\s+uur\b|)"
     R"((?:24|48|72|12|二十四|四十八)\s?(?:小时|小時)(?:内|內|之内)|)"
     R"((?:24|48|72|12)\s?時間以内|)"
     R"((?:24|48|72|12)\s?시간\s?(?:이내|안에|내에)|)"
     R"(\binnerhalb\s+von\s+(?:24|48|72)\s+stunden\b|\binnerhalb\s+von\s+(?:2|3|zwei|drei|5|fünf)\s+(?:werk)?tagen\b<60>\b(?:sonst|gesperrt|pfändung|gekündigt|gelöscht|erfolgt)\b|)"
     R"(\bbinnen\s+(?:24|48|72)\s?(?:uur|u)\b|)"
     R"(\bentro\s+(?:le\s+)?(?:24|48|72)\s?(?:ore|h)\b|)"
     R"(\bв\s+течение\s+(?:24|48|72)\s+часов\b<40>\b(?:иначе|арест\w*|заблокир\w+|коллектор\w*)\b)"); }),
     true},
    {"urg-expires-today", "Pressure", "warn", 25,
     "says an offer or a chance ends today or very soon",
     pattern([] { return std::string_view(
     R"(\b(?:first|whoever)\b<12>\b(?:pays?|sends?|transfers?)\b|\b(?:ppl|people|buyers|others)\s+(?:\w+\s+)?(?:keen|asking|waiting|want\s+it)\b|\bsomeone\s+else\s+(?:is\s+)?(?:ready|interested|waiting)\b|\bgone\s+today\b|\bwithin\s+the\s+(?:next\s+)?hour\b|\bbefore\s+it\s+(?:runs?\s+out|expires|closes)\b|\bb4\s+midnight\b|)"
     R"(\b(?:expires?|expiring|ends?|ending|closes?|closing|valid|available|deadline|good)\b<20>\b(?:today|tonight|at\s+midnight|in\s+(?:\d+|a\s+few)\s+(?:hours?|minutes|hrs)|soon|only\s+today|this\s+(?:evening|weekend)|tomorrow)\b|)"
     R"(\b(?:today|tonight)\s+only\b|)"
     R"(\b(?:limited[- ]time|time[- ]limited|for\s+a\s+limited\s+time)\b|)"
     R"(\b(?:offer|promotion|deal|reward|prize|link|code|bonus|points|claim|discount|voucher|opportunity|spot)\b<25>\b(?:expires?|will\s+expire|ends|is\s+expiring|about\s+to\s+expire|expiring)\b|)"
     R"(\b(?:before|until)\s+(?:it['’]s\s+too\s+late|it\s+is\s+too\s+late|midnight|it\s+expires|they['’]re\s+gone|stocks?\s+(?:run|last))\b|)"
     R"(\b(?:läuft|endet|gültig)\b<20>\b(?:heute|bald|in\s+kürze|nur\s+heute|um\s+mitternacht|morgen)\b|)"
     R"(\b(?:nur\s+heute|nur\s+noch\s+heute|nur\s+für\s+kurze\s+zeit|zeitlich\s+begrenzt\w*|begrenzte\s+zeit|solange\s+der\s+vorrat\s+reicht|nur\s+solange)\b|)"
     R"(\b(?:expire|se\s+termine|valable)\b<20>\b(?:aujourd['’]hui|ce\s+soir|bientôt|minuit|demain)\b|)"
     R"(\b(?:expira|vence|termina|v[áa]lid[oa])\b<20>\b(?:hoy|hoje|esta\s+noche|medianoche|meia-noite|amanh[ãa]|mañana|em\s+breve|pronto|somente)\b|)"
     R"(\b(?:pontos|puntos|milhas|benef[íi]cio)\b<20>\b(?:expira\w*|vence\w*|caduca\w*)\b|)"
     R"(\b(?:por\s+tempo\s+limitado|tiempo\s+limitado|s[óo]\s+hoje|somente\s+hoje|solo\s+hoy|[úu]ltimo\s+dia|[úu]ltimo\s+d[íi]a|durée\s+limitée|beperkte\s+tijd|alleen\s+vandaag|nog\s+maar\s+even)\b|)"
     R"((?:本日限り|本日まで|まもなく終了|期間限定)|)"
     R"((?:오늘만|오늘까지|금일\s?마감|한정\s?기간)|)"
     R"(\b(?:verfallen|verfällt|läuft|endet|erlischt)\b<12>\b(?:heute|morgen|in\s+kürze|um\s+mitternacht)\b|)"
     R"(\b(?:vervallen|vervalt|verlopen|verloopt)\b<10>\b(?:vandaag|morgen|binnenkort|vanavond)\b|)"
     R"(\bexpire\w*\b<15>\b(?:aujourd['’]hui|ce\s+soir|bientôt|demain|minuit|dans\s+\d+)\b|)"
     R"(\b(?:scadono|scade|scadrà)\b<10>\b(?:oggi|domani|stasera|a\s+breve)\b|\bsolo\s+(?:per\s+)?oggi\b|)"
     R"(\b(?:vencen?|caducan?|expiran?)\b<12>\b(?:hoy|ma[ñn]ana|esta\s+noche)\b|\bs[óo]lo\s+por\s+hoy\b|)"
     R"(\b(?:expiram|vencem|expira|vence)\b<12>\b(?:hoje|amanh[ãa])\b|)"
     R"(\b(?:сгорают|сгорят)\b<10>\b(?:сегодня|завтра)\b|)"
     R"((?:今日|今天|[将將][于於]今日)[\s\S]{0,4}(?:[内內])?(?:[过過]期|停用|失效|[办辦]理|清零|作[废廢]|[缴繳])|[仅僅]限今[天日]|逾期作[废廢]|)"
     R"(本日[\s\S]{0,2}(?:失効|中に|限り|まで)[\s\S]{0,10}(?:支払|振|交換|キャンペーン|連絡|下記|ATM)|(?:期限|失効)[はが]?本日|期限までに|)"
     R"((?:오늘|금일)[\s\S]{0,4}(?:소멸|까지|중으로|마감)[\s\S]{0,12}(?:납부|신청|않으면|링크|안 ?보내|보내)|오늘[\s\S]{0,4}(?:소멸|만료|종료)|)"
     R"(\b(?:wer\s+(?:mir\s+)?zuerst|\d+\s+anfragen|viele\s+(?:anfragen|interessenten)|nur\s+noch\s+bis\s+\w+tag|frist\s+\d+\s+(?:std|stunden)|bis\s+\d+\s+uhr\s+oder|endet\s+heute)\b|)"
     R"(\b(?:wie\s+(?:het\s+)?eerst|veel\s+(?:aanvragen|interesse)|liefst\s+(?:vandaag|voor)|loopt\s+alleen\s+vandaag|nu\s+betalen|stopt\s+vanavond)\b|)"
     R"(\b(?:plusieurs\s+personnes\s+(?:sont\s+)?intéressées|premier\s+(?:qui\s+pay\w+|arrivé)|faites\s+vite|dans\s+l['’]?heure|(?:avant|d['’]ici)\s+(?:ce\s+soir|\d+\s?h|minuit)|de\s+suite|reste\s+que\s+\d+)\b|)"
     R"(\b(?:entro\s+(?:stasera|oggi|le\s+\d+)|o\s+la\s+do\s+ad\s+altri|ultima\s+settimana|in\s+un['’]ora|tra\s+(?:mezz['’]ora|\d+\s+minuti)|già\s+da\s+questo\s+mese)\b|)"
     R"(\b(?:primero\s+que\s+pag\w+|varios\s+interesados|mucha\s+gente\s+(?:preguntando|interesada)|en\s+la\s+pr[óo]xima\s+hora|solo\s+guardamos\b<20>\bhasta|ap[úu]rate|antes\s+de\s+(?:medianoche|que\s+caduque)|cada\s+minuto\s+cuenta)\b|)"
     R"(\b(?:at[ée]\s+(?:amanh[ãa]|hoje)|antes\s+que\s+feche|v[áa]rios\s+interessados|primeiro\s+que\s+pag\w+|neste\s+instante|ainda\s+hoje)\b|)"
     R"(\b(?:кто\s+первый|только\s+сегодня|через\s+час|в\s+тот\s+же\s+день|до\s+\d+[:.]\d\d\s+необходимо|успей)\b|)"
     R"((?:今[天日晚]|[马馬]上|[赶趕][快紧緊]|快[点點])[\s\S]{0,8}(?:[截]?止|[转轉]|付|交|最[后後]|凑|湊)|名[额額]有限|先到先得|我急用|)"
     R"(次の人|早い者勝ち|他に\d+人|(?:今日|本日)中に[\s\S]{0,12}(?:振り?込|送金|払|購入|\d万)|)"
     R"((?:오늘|금일)[\s\S]{0,6}(?:지나면|마감|까지|안에)|선착순|보러 ?오겠다는|\d+분 ?지나면)"); }),
     true},
    {"urg-last-chance", "Pressure", "warn", 20,
     "speaks of a last chance or a final notice",
     pattern([] { return std::string_view(
     R"(\b(?:spots|places|seats|slots)\s+(?:are|is)\s+(?:limited|filling)\b|)"
     R"(\b(?:last|final)\s+(?:chance|opportunity|warning|reminder|notice|call|attempt|notification|day|hours)\b|)"
     R"(\b(?:don['’]t|do\s+not)\s+(?:miss\s+(?:out|this|your|the\s+chance)|let\s+(?:this|it)\s+(?:\w+\s+)?(?:slip|pass|expire))\b|)"
     R"(\b(?:only|just)\s+(?:\d+|a\s+few|one|two|three|limited)\b<15>\b(?:left|remaining|spots?|places?|seats?|items?|pieces?|units?|available)\b|)"
     R"(\b(?:while|as)\s+(?:supplies|stocks?)\s+lasts?\b|)"
     R"(\b(?:hurry\s+up|be\s+quick|before\s+it['’]s\s+gone|once\s+in\s+a\s+lifetime|one[- ]time\s+(?:offer|opportunity|chance))\b|)"
     R"(\bletzte\s+(?:chance|warnung|mahnung|erinnerung|gelegenheit|möglichkeit|aufforderung)\b|)"
     R"(\b(?:verpassen|versäumen)\s+Sie\b<25>\b(?:nicht|keine)\b|)"
     R"(\b(?:beeilen\s+sie\s+sich|beeil\s+dich|schnell\s+sein|nur\s+noch\s+wenige)\b|)"
     R"(\b(?:dernière|ultime)\s+(?:chance|relance|opportunité|mise\s+en\s+demeure)\b|)"
     R"(\bdernier\s+(?:rappel|avertissement|avis|délai)\b|)"
     R"(\b(?:[úu]ltim[oa])\s+(?:oportunidad|aviso|oportunidade|chamada|chance|recordatorio|advertencia|notifica[çc][ãa]o|notificaci[óo]n)\b|)"
     R"(\b(?:n[ãa]o\s+perca|no\s+pierda|no\s+te\s+pierdas|aproveite|corra|mis\s+(?:het|deze)\s+niet)\b|)"
     R"(\blaatste\s+(?:kans|waarschuwing|herinnering|aanmaning|oproep)\b|)"
     R"((?:最后机会|最後機會|最后通知|最後通知|最終通知|最終警告|最後の(?:チャンス|機会)|마지막\s?(?:기회|통보|경고|안내)|최종\s?(?:통보|경고))|)"
     R"(\b(?:letzten|nur\s+noch|noch)\s+(?:\w+\s+)?(?:freien?\s+)?plätze\b|)"
     R"(\blaatste\s+(?:aanmaning|sommatie|waarschuwing)\b|\bnog\b<8>\bplaatsen\b|)"
     R"(\b(?:reste|restent)\b<10>\bplaces\b|)"
     R"(\bultimo\s+(?:sollecito|avviso|promemoria|avvertimento)\b|\brestano\b<10>\bposti\b|)"
     R"(\bquedan\b<10>\b(?:plazas|lugares|cupos)\b|)"
     R"(\brestam\b<10>\bvagas\b|)"
     R"(\bпоследнее\s+предупреждение\b|\bпоследний\s+шанс\b|)"
     R"(名[额額][仅只]?剩|)"
     R"(最終(?:通告|警告|通知)|残り[\s\S]{0,2}枠|)"
     R"(자리 ?남았)"); }),
     true},
    {"urg-do-not-tell", "Pressure", "warn", 55,
     "tells the reader to keep a request from family, bank or colleagues",
     pattern([] { return std::string_view(
     R"(\b(?:keep|stays?|remains?)\b<12>\b(?:between\s+(?:you\s+and\s+me|us|the\s+two)|to\s+yourself|secret|quiet)\b<60>\b(?:bank|family|wife|husband|money|payment|transfer|colleagues?|police)\b|\b(?:don['’]?t|do\s+not|never)\s+(?:mention|tell|say)\b<25>\b(?:bank|teller|family|wife|husband|colleagues?|police)\b|\b(?:do\s+not|don['’]t|never|without|must\s+not|cannot|should\s+not|shouldn['’]t)\b<12>\b(?:tell|telling|inform|informing|mention|discuss|discussing|share|disclose|speak|talk|reveal)\b<25>\b(?:your\s+(?:family|wife|husband|spouse|parents|bank|colleagues|friends|boss)|the\s+(?:bank|police|teller)|other\s+(?:staff|employees|colleagues)|anyone\s+(?:else\s+)?(?:in|at)\s+the\s+(?:office|company|bank))\b|)"
     R"(\bif\s+the\s+(?:bank|cashier|clerk|teller)\b<20>\basks?\b<40>\bsay\b|\b(?:without\s+telling|do(?:n['’]?t|\s+not)\s+tell)\s+the\s+(?:cashier|bank|teller|clerk)\b|\bsay\s+nothing\s+to\s+the\s+others\b|)"
     R"(\b(?:please\s+)?(?:don['’]t|do\s+not)\s+tell\s+(?:mom|mum|dad|my\s+(?:parents|wife|husband|family)|your\s+(?:parents|family)|grandpa|grandma)\b<party>|\bstay\s+on\s+the\s+line\b<30>\b(?:do\s+not|don['’]t)\s+(?:tell|hang\s+up|call)\b|\b(?:don[\'’]?t|dont|do\s+not)\s+say\s+anything\s+to\b|\btell\s+nobody\b(?!,?\s+but\b)|)"
     R"(\bkeep\s+it\s+off\s+the\s+(?:usual|normal)\b|)"
     R"(\bonly\s+communicate\s+with\s+me\b|\bspeak\s+(?:with|to)\s+anyone\s+by\b|\b(?:nobody|no\s+one)\s+else\s+needs\s+to\s+be\s+made\s+aware\b|)"
     R"(\bkein\s+wort\s+zu\b|\bn['’]en\s+parle[rz]?\s+à\s+personne\b<party>|\bnot\s+raise\s+(?:it|this)\s+with\b|\bdon['’]t\s+tell\s+\w+\s+i\s+asked\b|)"
     R"(\b(?:don['’]t|do\s+not)\s+want\s+(?:\w+\s+){1,3}(?:team|staff|office|department|colleagues)\s+to\s+know\b|\bausschließlich\s+über\s+diese\s+e-?mail\b|)"
     R"(\b(?:do\s+not|don['’]t|may\s+not|must\s+not|not\s+to)\s+(?:discuss|mention|speak\s+of|talk\s+about)\b<25>\b(?:colleagues?|head\s+office|the\s+others|anyone\s+(?:in|at)\s+the\s+office|in\s+person)\b|)"
     R"(\b(?:do\s+not|don['’]t)\s+tell\s+the\s+(?:cashier|clerk|shop|store|teller)\b|)"
     R"(\bkeep\b<20>\b(?:with\s+me\s+only|off\s+the\s+(?:normal\s+|usual\s+)?(?:system|books))\b|\b(?:communicate|correspond)\s+(?:only|solely|exclusively)\s+(?:through|via|by|with)\b|\bjust\s+deal\s+with\s+me\b|)"
     R"(\b(?:keep|keeping)\s+(?:this|it|the\s+(?:matter|transaction|deal|whole\s+thing|purchase|request)|everything)\s+(?:\w+\s+){0,3}(?:secret|between\s+(?:us|you\s+and\s+me|the\s+two\s+of\s+us)|top\s+secret|to\s+yourself)\b<40>(?:\b(?:until|as|because|surprise|transaction|payment|money|deal|transfer|now|fund|process\w*|conclu\w+)\b|[.!])|)"
     R"(\b(?:strictly|only|solely)\s+between\s+(?:us|you\s+and\s+me|the\s+two\s+of\s+us)\b|)"
     R"(\b(?:speak|tell|mention|say)\b<12>\b(?:of\s+)?(?:this\s+|it\s+)?to\s+(?:no\s+one|nobody|anyone\s+in\s+the\s+office)\b|)"
     R"(\b(?:nobody|no\s+one)\s+(?:else\s+)?(?:should|must|may|can|needs\s+to|is\s+to)\s+(?:be\s+informed|know|find\s+out|hear)\b|)"
     R"(\b(?:erzählen|sagen|sprechen|informieren)\s+Sie\b<25>\b(?:niemand\w*|keinem|ihrer\s+bank|ihrer\s+familie)\b|)"
     R"(\b(?:sag|erzähl|sprich)\b<15>\b(?:niemand\w*|keinem)\b<25>\b(?:davon|darüber|etwas)\b|)"
     R"(\b(?:n['’]en\s+parlez|ne\s+(?:le\s+)?dites|ne\s+parlez)\b<party><25>\b(?:personne|à\s+quiconque|votre\s+banque)\b|)"
     R"(\b(?:no\s+(?:le\s+)?(?:diga|cuente|digas|cuentes|comente)|n[ãa]o\s+(?:conte|diga|fale|comente))\b<25>\b(?:nadie|ningu[ée]m|seu\s+banco|su\s+banco)\b|)"
     R"(\bvertel\b<20>\b(?:niemand|aan\s+niemand)\b|)"
     R"(\b(?:sag|erzähl|verrat)\w*\b<20>\b(?:mama|papa|niemand\w*|keinem|keiner|den\s+eltern|der\s+familie)\b<20>\b(?:nichts|davon|darüber|etwas)\b<party>|\b(?:vertraulich|geheim|verschwiegen)\b<20>\b(?:behandel\w+|bleiben|halten)\b|\b(?:reden|sprechen)\s+sie\s+mit\s+niemand\w*\b|\b(?:sprechen|reden)\s+sie\s+mit\s+(?:keinem|niemand\w*)\b|)"
     R"(\b(?:zeg|vertel)\b<20>\b(?:niks|niets|niemand|niet)\b<20>\b(?:tegen|aan)?\b<8>\b(?:papa|mama|pap|mam|niemand|bank|familie)\b<party>|\bhoud\s+dit\s+(?:vertrouwelijk|geheim|onder\s+ons|tussen\s+ons)\b|\b(?:praat|spreek)\b<10>\bmet\s+niemand\b|)"
     R"(\bn['’]en\s+parle[rz]?\s+(?:surtout\s+)?(?:à|pas)\b<party>|\bne\s+(?:le\s+)?d(?:is|ites)\s+(?:rien\s+)?(?:à\s+)?(?:personne|papa|maman)\b<party>|\bgarde[rz]?\s+(?:cela|ça|ceci)\s+(?:secret|entre\s+nous|pour\s+(?:toi|vous))\b|\bdis\s+rien\s+(?:à|a)\b<party>|)"
     R"(\bnon\s+(?:dirlo|lo\s+dica|dica|parlarne|ne\s+parli|raccontare|dire)\b<25>\b(?:nessuno|niente|nulla|mamma|papà|banca|famiglia)\b<party>|)"
     R"(\bno\s+(?:le|les|se\s+lo|lo)\s+(?:digas|diga|cuentes|cuente|comentes|comente)\b<25>\b(?:nada|nadie|padres|mam[áa]|pap[áa]|banco|familia)\b<party>|)"
     R"(\bn[ãa]o\s+(?:conta|conte|diga|fala|fale|comente)\b<20>\b(?:pra|para|a|com|nada)\b<12>\b(?:ningu[ée]m|m[ãa]e|pai|fam[íi]lia|banco|meus\s+pais)\b|)"
     R"(\b(?:никому|маме|папе|родителям|родным)\s+(?:пока\s+)?(?:ничего\s+)?не\s+(?:говори\w*|рассказывай\w*|сообщай\w*)(?![\s\S]{0,40}(?:код|пин|парол|смс|данны|реквизит))|\b(?:оставайтесь\s+на\s+линии|не\s+кладите\s+трубку)\b<30>\bникуда\s+не\s+звоните\b|\b(?:маме|папе|никому)\b<6>\bне\s+звони\w*\b|\bтрубку\s+не\s+(?:кладите|вешайте)\b|)"
     R"((?:先)?(?:别|別|不要|不得|勿)(?:让|讓)?(?:告诉|告訴)(?:我|你|任何|家|别|別|爸|妈|媽|銀行|银行|他)[\s\S]{0,4}(?:爸妈|爸媽|妈|媽|爸|家里|家人)|(?:偵查不公開|侦查不公开|案件保密|不能公[开開])|保持通[话話]|(?:不许|不許|不准|不要|不能|别|別)(?:跟|和|向|对|對)任何人(?:讲|講|说|說|提|透露)|不要告[诉訴]家人|不能告[诉訴]任何人|)"
     R"((?:誰にも|家族にも|警察には|他の人に)[\s\S]{0,4}(?:言わないで|話さないで|知られない|内緒)|他言(?:しない|無用)|警察沙汰に(?:したく|し(?:て|ない)|する)|口外(?:する|しない)|誰にも言わず|(?:父|母)さんには言わないで|)"
     R"(제 ?(?:3|삼)자[\s\S]{0,12}(?:목소리|개입|들어|없|알리)|(?:엄마|아빠|가족|아무|누구|은행|주변)[\s\S]{0,6}(?:한테|에게)[\s\S]{0,6}(?:말하지|알리지|얘기하지)|비밀로 ?(?:해|하|부탁)<party>|전화[\s\S]{0,4}끊으시면|(?:계좌|예금|인출|명의|수사|보안팀)[\s\S]{0,80}(?:통화|전화)[\s\S]{0,4}끊지 ?(?:마|말)|(?:주변|가족|누구)에?게?[\s\S]{0,4}알리지 ?(?:말|마)|(?:아빠|엄마|아무)[\s\S]{0,3}(?:한테|에게)[\s\S]{0,3}말하지)"); }),
     true},
    {"urg-no-questions", "Pressure", "warn", 40,
     "wants a request carried out without questions or calls",
     pattern([] { return std::string_view(
     R"(\b(?:no|without)\s+(?:calls?|phone\s+calls?|back\s+and\s+forth|discussion|fuss)\b<15>\b(?:please|just|needed)\b|\bjust\s+(?:do|send|pay)\s+(?:it|as\s+i)\b<20>\b(?:ask|explain|later|say)\b|\bexplain\s+(?:everything\s+)?(?:later|afterwards)\b|)"
     R"(\b(?:do\s+not|don['’]?t|please\s+do\s+not|pls\s+dont)\s+(?:call|ring|contact|phone)\s+(?:the|their)\s+(?:hospital|school|bank|charity|family)\b|)"
     R"(\bjust\s+get\s+it\s+done\b|)"
     R"(\bjust\s+push\s+it\s+through\b|\bno\s+need\s+for\s+a\s+po\b|)"
     R"(\bi(?:['’]ll|\s+will)\s+sign\s+the\s+paperwork\b|)"
     R"(\bi(?:['’]ll|\s+will)\s+square\s+it\b|\bi(?:['’]ve|\s+have)\s+(?:already\s+)?(?:cleared|signed)\s+(?:it|this|everything)\s+(?:with|off)\b|\btake\s+this\s+as\s+mine\b|)"
     R"(\bif\s+the\s+bank\s+(?:calls|rings|asks)\b<40>\b(?:tell|say)\b|\bdo\s+as\s+(?:he|she|they)\s+says?\b|)"
     R"(\b(?:override|bypass)\b<20>\b(?:portal|approvals?|signatures?|procedure|dual\s+control)\b|\bskip\s+(?:the\s+)?(?:approvals?|dual\s+control)\b|)"
     R"(\b(?:don['’]t|do\s+not|no\s+need\s+to)\s+(?:need\s+to\s+go\s+through|go\s+through|worry\s+about\s+the\s+(?:two\s+)?(?:signatures?|approvals?|paperwork))\b|)"
     R"(\b(?:no|without|don['’]t|do\s+not)\b<8>\b(?:questions?\s+asked|ask(?:ing)?\s+(?:any\s+|too\s+many\s+|me\s+)?questions?|any\s+questions|further\s+questions)\b|)"
     R"(\b(?:do\s+not|don['’]t|can['’]t|cannot|unable\s+to|not\s+able\s+to|won['’]t\s+be\s+able\s+to)\b<12>\b(?:call|phone|ring|take\s+calls?|talk\s+on\s+the\s+phone|speak\s+on\s+the\s+phone|receive\s+calls?|pick\s+up|make\s+calls?|answer\s+calls?)\b<60>\b(?:e-?mail|text|reply|respond|message|meeting|conference|here|only|right\s+now|at\s+the\s+moment|moment|just)\b|)"
     R"(\b(?:only|just)\s+(?:reply|respond|communicate|correspond|contact\s+me|reach\s+me)\b<12>\b(?:by|via|through|to)\b<10>\b(?:this\s+)?(?:e-?mail|text|whats\s?app|message)\b|)"
     R"(\bno\s+(?:phone\s+)?calls?\b<25>\b(?:e-?mail|text|reply|message)\b|)"
     R"(\b(?:keine\s+fragen|ohne\s+rückfragen|ohne\s+nachfragen|keine\s+rückfragen|nicht\s+telefonisch)\b|)"
     R"(\b(?:sans\s+poser\s+de\s+questions?|ne\s+m['’]appele[rz]\s+pas|pas\s+joignable\s+par\s+téléphone)\b|)"
     R"(\b(?:sin\s+(?:hacer\s+)?preguntas|sem\s+(?:fazer\s+)?perguntas|no\s+(?:me\s+)?llames?|n[ãa]o\s+me\s+ligue)\b|)"
     R"(\bno\s+llamen?\s+al?\b<10>\b(?:hospital|colegio|banco)\b|\bsecreto\s+de\s+sumario\b|\bsin\s+decirle?\s+nada\b|)"
     R"((?:理由|原因)[\s\S]{0,4}(?:晚[点點]|回[头頭家])[\s\S]{0,3}[说說]|[别別][问問]|)"
     R"((?:理由|病院名|詳細)は[\s\S]{0,16}(?:言えません|後で|あとで)|)"
     R"(이유는[\s\S]{0,6}(?:이따|나중|집에서)|양해 ?바랍니다[\s\S]{0,6}영수증|영수증은[\s\S]{0,16}안 ?(?:되|돼))"); }),
     true},
    {"urg-in-a-meeting", "Pressure", "warn", 30,
     "says the sender is in a meeting or cannot be called, a ruse to prevent checking",
     pattern([] { return std::string_view(
     R"(\bon\s+a\s+flight\b|\bno\s+phone\s+(?:out\s+)?here\b|\be-?mail['’]?s?\s+(?:is\s+)?(?:best|playing\s+up)\b|\bjust\s+reply\s+here\b|\bi['’]?m\s+interstate\b|\bdo\s+(?:collections?|viewings?|inspections?)\b|\binspections?\s+after\b|\b(?:don['’]?t|do\s+not)\s+(?:ring|bother|phone)\s+(?:the|me|them|us|back)\b|\bapp\s+is\s+locked\b|\bcannot\s+(?:talk\s+now|show)\b|\bi(?:['’]m|\s+am)\s+(?:boarding|at\s+sea|on\s+a\s+ship|offshore)\b|)"
     R"(\b(?:phone|mobile|cell)\b<25>\b(?:broke|broken|lost|stolen|smashed|dead|in\s+the\s+toilet|in\s+the\s+water)\b[\s\S]{0,80}\b(?:number|text\s+me|whats\s?app|message\s+me|save\s+(?:it|this))\b|\b(?:dropped|lost|broke|smashed)\s+my\s+(?:phone|mobile|cell)\b[\s\S]{0,60}\bnumber\b|)"
     R"(\b(?:unable\s+to|can['’]?t|cannot|(?:don['’]t\s+have|no)\s+access\s+to)\b<20>\b(?:portal|work\s+e-?mail|approvals?\s+system)\b|\bfrom\s+my\s+private\s+(?:one|e-?mail|address)\b|\bmy\s+phone\s+(?:is\s+)?off\b|\bdon['’]t\s+try\s+to\s+call\b|)"
     R"(\b(?:can['’]?t|cannot)\s+be\s+reached\s+(?:until|by|on|today|right\s+now)\b|\bwon['’]t\s+have\s+(?:reception|signal)\b|)"
     R"(\bcan(?:['’]?t|not)\s+(?:talk|get\s+to\s+a\s+phone)\b|\b(?:don['’]t|do\s+not)\s+(?:bother\s+calling|ring\b)|\bno\s+(?:phone\s+)?signal\b|\bno\s+calls\b|)"
     R"(\b(?:telephone\s+|phone\s+)?lines\s+(?:will\s+be|are)\s+(?:currently\s+)?down\b|\bunable\s+to\s+reach\s+you\s+by\s+phone\b|\bfrom\s+my\s+(?:own|personal)\s+(?:e-?mail|mailbox)\b|\baccount\s+is(?:n['’]t|\s+not)?\s+(?:acting\s+up|syncing|active\s+yet)\b|)"
     R"(\b(?:can['’]?t|cannot|won['’]t\s+be\s+able\s+to|unable\s+to|not\s+able\s+to)\s+(?:take|pick(?:\s+up)?|answer|receive|make)\s+(?:\w+\s+)?(?:calls?|the\s+phone)\b|\bwon['’]t\s+be\s+able\s+to\s+(?:speak|talk)\b|)"
     R"(\b(?:bad|poor|patchy)\s+(?:reception|signal)\b|)"
     R"(\b(?:boarding\s+(?:in|now|a\s+flight)|about\s+to\s+board|before\s+i\s+(?:board|land|fly|take\s+off))\b|)"
     R"(\b(?:only|just)\s+(?:reachable|available|contactable)\s+(?:by|via|on|through)\s+e-?mail\b|)"
     R"(\bno\s+need\s+to\s+(?:ring|call|phone)\b|\breply\s+here\s+(?:and\s+)?not\s+(?:on|by)\b|\b(?:our|the)\s+(?:office\s+)?(?:phones|switchboard)\s+(?:are|is|has|have)\s+(?:being\s+|been\s+)?(?:switched|moved|down)\b|)"
     R"(\b(?:i['’]m|i\s+am|im|am|currently|presently|now|going|heading|be|stuck|will\s+be|busy|tied\s+up)\b<20>\b(?:in|into|at)\s+(?:a|an|the|back[- ]to[- ]back|several|some|another|meetings?)\b\s?(?:\w+\s+){0,3}?(?:meetings?|conference(?:\s+call|\s+meeting)?|board\s?room|seminar|session|presentation)\b<80>\b(?:call|calls|phone|talk|e-?mail|text|reply|need|available|until|urgent\w*|reach|favou?r|handle|can['’]t|cannot|limited|respond|right\s+now|task|number)\b|)"
     R"(\b(?:can['’]t|cannot|can\s+not|unable\s+to|won['’]t\s+be\s+able\s+to|not\s+able\s+to|couldn['’]t)\b<10>\b(?:talk|call|speak|take\s+calls?|answer|receive\s+calls?|be\s+reached|pick\s+up)\b<40>\b(?:right\s+now|at\s+the\s+moment|now|meeting|moment|phone|but|so|reply|text|e-?mail)\b|)"
     R"(\b(?:limited|no|poor|bad)\s+(?:access\s+to\s+(?:my\s+)?(?:phone|calls?|e-?mails?)|phone\s+(?:access|service|signal|reception|calls?))\b|)"
     R"(\b(?:my|the)\s+phone\b<15>\b(?:is|got|has|was)\b<10>\b(?:broken|lost|stolen|damaged|not\s+working|dead|faulty|smashed|bad)\b<60>\b(?:text|whats\s?app|number|e-?mail|new|this|reply|message)\b|)"
     R"(\b(?:bin|sitze|befinde\s+mich)\s+(?:gerade\s+|momentan\s+|derzeit\s+|jetzt\s+)?(?:in|auf)\s+(?:einer|einem)\s+(?:\w+\s+)?(?:besprechung|meeting|sitzung|konferenz|termin)\b<80>\b(?:nicht|anrufen|telefon\w*|e-?mail|brauche|erreichbar|bitte|kannst|können)\b|)"
     R"(\b(?:en\s+réunion|en\s+conférence)\b<60>\b(?:appel\w*|téléphone|e-?mail|mail|répond\w*|besoin)\b|)"
     R"(\b(?:en\s+una\s+reuni[óo]n|em\s+(?:uma\s+)?reuni[ãa]o)\b<60>\b(?:llam\w+|tel[ée]fono|correo|e-?mail|lig\w+|preciso|necesito)\b|)"
     R"(\b(?:mijn|meine?|mon|mi|meu)\s+(?:telefoon|telefon|handy|téléphone|tel[ée]fono|celular|móvil)\b<25>\b(?:kapot|kaputt|verloren|cassé|perdu|roto|rompió|quebrou|estragou|perdí|perdi)\b<60>\b(?:whats\s?app|nummer|numéro|n[úu]mero|sms)\b|)"
     R"(\b(?:handy|telefon|smartphone)\b<50>\b(?:kaputt|hin|defekt|verloren|gestohlen|geklaut|ins\s+(?:klo|wasser)|runtergefallen|in\s+reparatur)\b[\s\S]{0,100}\b(?:nummer|whats\s?app|schreib\w*|sms)\b|\b(?:das|dies)\s+ist\s+(?:jetzt\s+)?meine\s+neue\s+(?:handy)?nummer\b<newnumber><60>\b(?:speicher\w*|schreib\w*|whats\s?app|alte)\b|\b(?:handy|smartphone|telefon)\b<40>\b(?:geist\s+aufgegeben|im\s+eimer|funktioniert\s+nicht\s+mehr)\b|\b(?:schlecht|kaum|nicht)\s+(?:zu\s+)?erreichbar\b|\bden\s+ganzen\s+tag\s+(?:in|unterwegs|auf)\b|\bschreib\w*\s+(?:mir|mich)\s+(?:bitte\s+|jetzt\s+|nur\s+)*(?:hier|auf\s+dieser\s+nummer)\b|)"
     R"(\b(?:telefoon|mobiel|gsm)\b<40>\b(?:kapot|kwijt|gestolen|stuk|gevallen)\b[\s\S]{0,100}\b(?:nummer|whats\s?app|app\s+me|sms)\b|\bdit\s+is\s+mijn\s+nieuwe?\s+nummer\b<newnumber>|\bnieuw\s+nummer\s+want\b|\bslecht\s+bereikbaar\b|\b(?:tel|telefoon|mobiel)\b<8>\bdoet\s+het\s+niet\b|\bgooi\s+het\s+oude\s+weg\b|)"
     R"(\b(?:portable|téléphone|tel|mobile)\b<50>\b(?:cassé|tombé|perdu|volé|panne|fichu|réparation)\b[\s\S]{0,100}\b(?:numéro|whats\s?app|écris|message|sms)\b|\bvoici\s+mon\s+nouveau\s+numéro\b<newnumber>|\b(?:plus|pas)\s+accès\s+à\s+(?:ma|mon)\s+(?:banque|compte|application)\b|\b(?:en\s+réunion|en\s+conférence|en\s+rendez-vous)\b<60>\b(?:ne\s+(?:m['’])?(?:appelle[rz]?|téléphone)|pas\s+(?:parler|répondre|téléphoner))\b|\b(?:peu|pas|difficilement)\s+joignable\b|\bl['’]ancien\s+(?:tel|téléphone|portable|numéro)?\s?(?:est|a)\b<12>\b(?:mort|lâché|cassé|hs)\b|\b(?:perdu|cassé|volé)\b<20>\b(?:téléphone|portable)\b[\s\S]{0,60}\b(?:nouvelle\s+carte|nouvelle\s+sim|supprime)\b|)"
     R"(\b(?:telefono|cellulare)\b<40>\b(?:rotto|perso|rubato|caduto|guasto)\b[\s\S]{0,100}\b(?:numero|whats\s?app|scrivimi|salva\w*)\b|\b(?:rotto|perso|rubato)\b<20>\b(?:telefono|cellulare)\b<80>\bnumero\b|\bquesto\s+è\s+il\s+mio\s+nuovo\s+numero\b<newnumber>|\bsono\s+in\s+riunione\b<40>\bnon\s+posso\s+(?:parlare|rispondere|telefonare)\b|\b(?:senza\s+campo|sono\s+in\s+viaggio\s+e)\b|\b(?:cell|cellulare|telefono)\s+è\s+morto\b|\b(?:perso|rubato|rotto)\b<20>\b(?:telefono|cellulare)\b[\s\S]{0,60}\b(?:sim\s+nuova|cancella)\b|)"
     R"(\b(?:roto|rompi[óo]|perd[íi]|robaron)\b<20>\b(?:m[óo]vil|celular|tel[ée]fono)\b<80>\bn[úu]mero\b|\b(?:sin\s+cobertura|sin\s+se[ñn]al|estoy\s+de\s+viaje\s+y)\b|\bmuri[óo]\s+el\s+(?:celu|celular|m[óo]vil|tel[ée]fono)\b|\b(?:perd[íi]|robaron|rompi[óo])\b<20>\b(?:tel[ée]fono|m[óo]vil|celular)\b[\s\S]{0,60}\b(?:tarjeta\s+nueva|chip\s+nuevo|sim|borra)\b|\bmi\s+banco\s+no\s+me\s+deja\b|\bn[úu]mero\s+(?:provisional|temporal)\b|)"
     R"(\b(?:celular|telem[óo]vel|telefone)\b<40>\b(?:quebrou|estragou|caiu|partiu|perdi|roubaram)\b[\s\S]{0,100}\b(?:n[úu]mero|whats\s?app|chama|salva)\b|\b(?:sem\s+sinal|estou\s+viajando\s+e)\b|\b(?:celular|telefone|telem[óo]vel)\b<12>\bpifou\b|\b(?:perdi|roubaram|quebrou)\b<20>\b(?:celular|telefone|telem[óo]vel)\b[\s\S]{0,60}\b(?:chip\s+novo|apaga|sim\s+novo)\b|\bapaga\s+o\s+(?:antigo|velho|outro)\b|)"
     R"(\b(?:сломался|разбился|утонул|украли)\s+(?:мой\s+)?телефон\b[\s\S]{0,80}\b(?:номер|в(?:о|а)т[сц]ап|напиши|whats\s?app)\b|\b(?:на\s+совещании|на\s+переговорах|в\s+командировке)\b[\s\S]{0,80}\b(?:срочно|оплати\w*|проведите|перевед\w+)\s+(?:плат[её]ж|сч[её]т|деньги|сумму|пожалуйста)\b|\b(?:потерял|украли|разбил)\w?\b<12>\bтелефон\b[\s\S]{0,60}\b(?:симк\w+|удали|старый\s+номер)\b|\b(?:скинь|переведи|кинь|займи|одолжи)\b[\s\S]{0,100}\bне\s+могу\s+(?:сейчас\s+)?(?:говорить|разговаривать|позвонить)\b|)"
     R"((?:手[机機]).{0,8}(?:坏|壞|丢|丟|掉|摔|修)[\s\S]{0,30}(?:[号號][码碼](?![没沒不][变變])|加.{0,3}微信|LINE)|(?:新号码|新號碼|換號碼了|换号码了|换号了|換號了)<newnumber>|(?:开会|開會|会议|會議)[\s\S]{0,10}(?:不方便|不能|沒辦法|没法)|信[号號]不好|[旧舊]手[机機]|)"
     R"((?:携帯|スマホ|電話)[がを]?(?:壊れ|落とし|なくし|水没)[\s\S]{0,30}(?:番号|連絡|LINE)|会議中[\s\S]{0,14}(?:電話に出られ|出られない|メールで)|(?:スマホ|携帯)がだめ|出張中で電話が|)"
     R"((?:폰|핸드폰|휴대폰|액정)[\s\S]{0,10}(?:깨졌|깨져|고장|망가|수리|잃어)[\s\S]{0,40}(?:번호(?!는 ?그대로)|문자|카톡|연락)|회의 ?중[\s\S]{0,12}(?:통화|전화)[\s\S]{0,8}(?:안|못|어렵|하지)|(?:인증이|인증) ?(?:이)? ?안 ?(?:돼|되)|(?:폰|핸드폰|휴대폰)[\s\S]{0,4}고장|이체 ?한도[\s\S]{0,8}(?:걸|초과|막)|(?:앱|은행)[\s\S]{0,6}(?:안 ?들어가|접속이 ?안)|)"
     R"(\b(?:auf\s+montage|(?:abholung|besichtigung)\b<12>\b(?:geht\s+(?:leider\s+)?nicht|nicht\s+möglich|nächste\s+woche|erst)|nicht\s+(?:anrufen|telefonieren)|nur\s+per\s+(?:mail|e-mail|whatsapp)|im\s+flugzeug)\b|)"
     R"(\b(?:zonder\s+bereik|in\s+het\s+buitenland|(?:ophalen|bezichtigen)\s+kan\s+niet|niet\s+(?:bellen|bereikbaar)|mailen\s+is\s+het\s+handigst|alleen\s+(?:via\s+)?(?:mail|app)|kan\s+nu\s+niet\s+(?:bellen|praten))\b|)"
     R"(\b(?:à\s+l['’]étranger|(?:pas|plus)\s+(?:dispo\w*|joignable)|ne\s+(?:m['’]appelez|m['’]appelle)\s+pas|par\s+(?:mail|courriel)\s+uniquement|répond\w*\s+uniquement|envoi\s+uniquement|remise\s+en\s+main\s+propre\s+impossible|pas\s+de\s+visite\w*|mon\s+autre\s+(?:boîte|adresse|mail)|ma\s+puce\s+marche\s+plus)\b|)"
     R"(\b(?:all['’]estero|senza\s+telefonate|non\s+(?:mi\s+)?(?:chiam\w+|telefon\w+)|risponder\w*\s+solo|solo\s+(?:via\s+)?mail|non\s+riesco\s+a\s+(?:entrare|accedere|chiamare)|niente\s+visite|non\s+mi\s+riconosc\w+)\b|)"
     R"(\b(?:no\s+cuelgue|por\s+favor\s+no\s+llamar|no\s+hay\s+visitas|no\s+puedo\s+(?:hablar|enseñ\w+|mostrar\w*)|solo\s+env[íi]o|no\s+dan\s+informes|fuera\s+de\s+(?:españa|la\s+ciudad|m[ée]xico))\b|)"
     R"(\b(?:n[ãa]o\s+me\s+(?:telefon\w+|lig\w+)|estou\s+(?:em\s+(?:forma[çc][ãa]o|viagem|reuni[ãa]o)|fora|no\s+estrangeiro)|n[ãa]o\s+posso\s+(?:falar|atender|mostrar)|s[óo]\s+por\s+(?:e-?mail|mensagem)|mud[áa]mos\s+de\s+e-?mail)\b|)"
     R"(\b(?:телефон\w*\s+(?:\w+\s+)?(?:временно\s+)?не\s+работа\w+|вопросы\s+[—-]\s+только|только\s+ответом|не\s+звони\w*|сам[аи]?\s+(?:сейчас\s+)?(?:уехал[аи]?|за\s+границей|в\s+отъезде)|связи\s+(?:тут\s+)?нет)\b|)"
     R"((?:先|[别別]|不要|[请請]勿)[\s\S]{0,3}打[电電][话話]|只回[复覆]?此?[邮郵]件|在(?:[国國]外|外地)|)"
     R"((?:電話|通話)[\s\S]{0,8}(?:できな|出られ|つながら)|メールのみ|海外(?:出張|赴任)中|)"
     R"(<kinneeds>|)"
     R"((?:통화|전화)[\s\S]{0,10}(?:어렵|안 ?돼|못 ?받|연결되지|불가)|메일로만|해외라|휴가 ?중|출장 ?중|직거래[\s\S]{0,8}(?:힘들|안 ?돼|어렵))"); }),
     true},
    {"urg-consequences", "Pressure", "warn", 30,
     "threatens a loss or legal steps if the reader does not comply",
     pattern([] { return std::string_view(
     R"(\b(?:or\s+(?:we|i|my|you|u|they|else)|otherwise|unless\s+you|failure\s+to|if\s+you\s+(?:do\s+not|don['’]?t)\s+(?:pay|answer|reply|respond|act))\b<50>\b(?:penalty|fined|to\s+court|lawyer|bailiffs?|legal\s+action|close\s+the|termination\s+of\s+(?:your|the)|officers|collections)\b|\b(?:penalty|fine)\s+(?:rises|doubles|goes\s+up|increases)\b|\blawyer\s+comes?\s+for\s+(?:u|you)\w*\b|)"
     R"(\bpay\s+(?:the|your|a)\s+fine\b<20>\b(?:today|now|to\s+clear|to\s+avoid|immediately)\b|\b(?:passed|handed|sent)\s+to\s+(?:our\s+)?(?:bailiffs|debt\s+collectors|collections|the\s+court)\b|)"
     R"(\b(?:failure|fail|failing|refusal|neglect)\b<8>\bto\b<60>\b(?:will|may|shall|could)\b<8>\b(?:result\s+(?:in|to)|lead\s+to|be\s+(?:suspended|closed|considered|charged|terminated|deactivated|disconnected|reported)|cause\s+(?:your|the|an?)|force\s+us|leave\s+us|incur|trigger|mean)\b|)"
     R"(\b(?:legal|criminal|court|enforcement|collection)\s+(?:action|proceedings|consequences|measures|prosecution|steps)\b<25>\b(?:will\s+be|against\s+you|taken|initiated|unless|commence\w*)\b|)"
     R"(\b(?:avoid|prevent|escape)\b<15>\b(?:legal\s+action|penalt\w+|late\s+fees?|arrest|prosecution|additional\s+(?:fees|charges|penalties)|further\s+(?:fees|charges|action|penalties)|being\s+returned|(?:the\s+)?return\s+of\s+(?:your|the)\s+(?:parcel|package|item)|permanent\s+(?:loss|lock\w*|closure|deletion|suspension))\b|)"
     R"(\bif\s+(?:you|we|no|payment|it|the)\b<8>\b(?:do\s+not|don['’]t|fail\s+to|ignore|refuse|does\s+not|have\s+not|is\s+not|are\s+not|action\s+is|not)\b<60>\b(?:will\s+be|you\s+will|shall\s+be|will|be\s+forced\s+to|may\s+be)\b<25>\b(?:closed|suspended|terminated|deleted|lost|blocked|locked|restricted|disabled|returned|deactivated|lose\s+(?:access|your)|legal|arrest\w*|penalt\w+|destroyed|forfeit\w*)\b|)"
     R"(\byou\s+(?:will|['’]ll|may|could)\s+(?:permanently\s+)?(?:lose\s+(?:access|your|all)|forfeit|be\s+(?:fined|arrested|prosecuted|sued|locked\s+out))\b|)"
     R"(\bunable\s+to\b<40>\band\s+will\s+be\b<20>\b(?:lost|deleted|suspended|locked|disabled|incompatible|inaccessible)\b|)"
     R"(\b(?:andernfalls|ansonsten|sonst)\b<60>\b(?:gesperrt|gelöscht|geschlossen|inkasso|zurückgesen\w+|zurückgeschickt|eingeschränkt|deaktiviert|verfallen|verfällt)\b|)"
     R"(\b(?:rechtliche|gerichtliche)\s+(?:schritte|maßnahmen|folgen|konsequenzen)\b|)"
     R"(\b(?:inkasso(?:verfahren|büro|unternehmen)|zwangsvollstreckung)\b|)"
     R"(\b(?:einschränkungen|unterbrechung|sperrung|zusätzliche\s+(?:kosten|gebühren)|rücksendung|mahngebühren)\b<25>\b(?:zu\s+)?vermeiden\b|)"
     R"(\b(?:à\s+défaut|sinon|faute\s+de|sans\s+(?:réponse|régularisation|action)\s+de\s+votre\s+part)\b<60>\b(?:suspen\w+|ferm\w+|supprim\w+|poursuites?|pénalité\w*|majoration|bloqu\w+|résili\w+|désactiv\w+|retourné)\b|)"
     R"(\b(?:de\s+lo\s+contrario|caso\s+contr[áa]rio|caso\s+n[ãa]o|a\s+falta\s+de|el\s+incumplimiento|o\s+n[ãa]o\s+pagamento|sob\s+pena|evitar|evite)\b<60>\b(?:suspen\w+|bloque\w+|cancel\w+|legales|judicia\w+|multas?|penhora|embargo|protesto|negativa\w+|devol\w+|penalidade\w*|restri\w+|serasa|spc|apreens\w+|d[íi]vida\s+ativa|encargos|juros)\b|)"
     R"(\b(?:indien\s+u\s+(?:niet|geen)|voorkom)\b<60>\b(?:geblokkeerd|deurwaarder|incasso\w*|boete|opgeschort|afgesloten|teruggestuurd|extra\s+kosten|blokkering|verhoging)\b|)"
     R"((?:否则|否則|逾期)<20>(?:冻结|凍結|法律|起诉|起訴|逮捕|停用|注销|罚款|罰款|关闭|關閉)|)"
     R"((?:ない場合|期限を過ぎ)<25>(?:停止|法的|解約|失効|差し押さえ|制限|無効|没収)|)"
     R"((?:않을\s?경우|않으면|미납\s?시|불응\s?시)<25>(?:정지|법적|압류|해지|고소|제한|삭제)|)"
     R"(\b(?:sonst|andernfalls|ansonsten|bei\s+nichtzahlung|bei\s+nichtbeachtung)\b<50>\b(?:droht|drohen|bußgeld|pfändung|mahngebühr\w*|inkasso|gekündigt|verliert|verlieren|haftbefehl|sperrung|strafe|gerichts\w+)\b|)"
     R"(\b(?:of|anders|om|leggen\s+wij)\b<25>\b(?:deurwaarder|beslag|arrestatiebevel|verhoging|incasso|blokkering|stopgezet|boete)\b|)"
     R"(\b(?:sinon|sans\s+paiement|à\s+défaut|pour\s+éviter|avant)\b<40>\b(?:majoration|saisie|huissier|frais\s+supplémentaires|poursuites|mandat|résili\w+|suspen\w+|pénalités?|blocage)\b|)"
     R"(\b(?:per\s+evitare|o\s+sarà|altrimenti|avvieremo|pena)\b<25>\b(?:sanzion\w+|maggiorazion\w+|pignoramento|arresto|sospensione|mandato|blocco|recupero)\b|)"
     R"(\b(?:para\s+evitar|o\s+procederemos|iniciaremos|de\s+lo\s+contrario|se\s+proceder[áa])\b<30>\b(?:recargo|embargo|arresto|suspensi[óo]n|multa|cancelad\w+|bloqueo|acciones)\b|)"
     R"(\b(?:evite|evitar|ou|sob\s+pena|ser[áa])\b<20>\b(?:multa|protestad[oa]|negativad[oa]|bloqueio|suspens\w+|cancelad[oa]|penhora|cart[óo]rio)\b|\bnome\s+(?:negativado|no\s+spc|no\s+serasa|sujo)\b|)"
     R"(\bиначе\b<30>\b(?:арест\w*|заблокир\w+|доступ\s+будет\s+закрыт|выезд|коллектор\w+)\b|\bиначе\b<15>\b(?:сгор\w+|пропад\w+|аннулир\w+)\b|)"
     R"((?:逾期|否[则則]|不[还還]清)[\s\S]{0,10}(?:加收|[处處][罚罰]|起[诉訴]|永久|影[响響]|[联聯][系繫]|[处處])|)"
     R"((?:お支払い|ご連絡|更新|払わ|入力)[\s\S]{0,4}(?:が)?(?:ない場合|なき場合|しないと|しない場合|ないと|なければ)[\s\S]{0,20}(?:差し押さえ|法的|停止|失い|延滞|執行|拡散)|)"
     R"((?:않으면|않을 ?경우|미납 ?시)[\s\S]{0,16}(?:부과|압류|동결|소멸|정지|구속|유포)|영장 ?발부|)"
     R"(\b(?:sonst|andernfalls|ansonsten|vor)\b<30>\b(?:lösch\w+|inkasso|pfändung|gebühr|fällig|sperr\w+|mahnung|strafe)\b|\bpfändung\b<25>\bvermeiden\b|)"
     R"(\b(?:anders|zo\s+niet|om|voordat|tot\s+die\s+tijd)\b<40>\b(?:boete|incasso|gewist|slot|deurwaarder|geblokkeerd|verhoging)\b|\bworden\s+gewist\b|)"
     R"(\b(?:sinon|sous\s+peine|faute\s+de|avant)\b<40>\b(?:amende|majoration|supprim\w+|effac\w+|huissier|poursuites|suspen\w+)\b|)"
     R"(\b(?:altrimenti|poi\s+scatta|oppure|per\s+non)\b<40>\b(?:sanzion\w*|multa|fermo|recupero\s+crediti|bloccat\w+|perdere|chius\w+|cancellat\w+)\b|)"
     R"(\b(?:para\s+evitar|o\s+se|si\s+no|de\s+lo\s+contrario|despu[ée]s\s+se)\b<40>\b(?:sanci[óo]n|multa|recargo|pierdes|bloque\w+|embargo|juzgado|detenid[oa])\b|)"
     R"(\b(?:para\s+evitar|sen[ãa]o|caso\s+contr[áa]rio|antes\s+d[ae])\b<40>\b(?:coima|multa|execu[çc][ãa]o|bloque\w+|penhora|armaz[ée]m|cancel\w+)\b|)"
     R"(\b(?:а\s+то|иначе|у\s+тех,?\s+кто\s+не)\b<40>\b(?:штраф\w*|заблокир\w+|отключ\w+|на\s+склад|выплачена|спис\w+|удал\w+)\b|)"
     R"((?:否[则則]|不然|逾期|未完成)[\s\S]{0,16}(?:[裁]?[罚罰]|[扣凍冻][结結]?|[关關][闭閉]|延[后後]|失效|作[废廢])|不[再]?[凑湊]齐|)"
     R"((?:場合|ないと|なき場合|過ぎ(?:る|たら)と?)[\s\S]{0,14}(?:削除|停止|法的|支給され|止ま|失効|権利)|)"
     R"(<policecall>|)"
     R"((?:않으면|않을 ?시|지나면|미확인 ?시|안 ?보내면|미납 ?시)[\s\S]{0,14}(?:폐쇄|반송|삭제|벌점|추가|취소가 ?안|중단))"); }),
     true},

    // ---- Extortion -----------------------------------------------------------------------------
    {"ext-webcam", "Extortion", "warn", 70,
     "claims to have filmed the reader through the webcam",
     pattern([] { return std::string_view(
     R"(\b(?:web\s?cam|camera)\b<40>\b(?:record\w*|film\w*|footage|captur\w+|taped|video\s+of\s+you|switched\s+on|turned\s+on)\b<40>\b(?:you|your|porn|adult|sites?|yourself|watch\w*)\b|\b(?:footage|recording|clip)\s+of\s+you\b|\b(?:video|footage|recording|clip|film|pictures)\b<15>\bof\s+you\b<40>\b(?:web\s?cam(?:era)?|camera)\b|)"
     R"(\b(?:half|split)\b<20>\b(?:what\s+you\s+watched|what\s+your\s+camera|your\s+(?:camera|webcam))\b|\b(?:camera|webcam)\b<12>\b(?:was\s+recording|recorded|filmed|saw|caught)\b<25>\b(?:you|every\s+minute|it\s+all|everything)?\b|\bvideo\s+of\s+you\b<40>\bcamera\b|)"
     R"(\b(?:record\w*|film\w*|video\w*|tap(?:ed|ing)|captur\w*|watch(?:ed|ing))\b<20>\byou\b<60>\b(?:through|via|with|by|using|from|on)\b<12>\b(?:your|the)\s+(?:\w+\s+){0,2}(?:web\s?cam(?:era)?|camera|cam|microphone)\b|\b(?:enjoying|pleasuring|satisfying|touching)\s+yourself\b|\bsplit[-\s+]screen\b<40>\b(?:site|watch\w*|porn\w*)\b|)"
     R"(\b(?:your|the)\s+(?:\w+\s+){0,2}(?:web\s?cam(?:era)?|camera|cam)\b<30>\b(?:record\w*|film\w*|captur\w*|tap(?:ed|ing)|show(?:s|ed)|caught)\b<15>\b(?:you|everything|what\s+you|your)\b|)"
     R"(\b(?:web\s?cam(?:era)?|camera|front\s+camera|your\s+screen|microphone)\b<120>\b(?:record\w*|video\w*|footage|filmed|captured|watch(?:ed|ing)|screenshots?)\b<120>\b(?:you|yourself)\b<80>\b(?:masturbat\w+|pleasur\w+\s+yourself|porn\w*|intimate|jerk\w*|sexual\w*|naked|nude|wank\w*|onanis\w+|dirty|perver\w+|relieving)\b|)"
     R"(\b(?:record\w*|video|footage|filmed|captured|screenshots?)\b<80>\b(?:you|yourself)\b<60>\b(?:masturbat\w+|pleasuring\s+yourself|satisfying\s+yourself|jerking|wanking|watching\s+(?:porn\w*|adult)|onanis\w+|self[- ]satisf\w+)\b|)"
     R"(\b(?:masturbat\w+|pleasuring\s+yourself|satisfying\s+yourself|jerking\s+off|onanis\w+)\b<120>\b(?:video|footage|record\w*|web\s?cam|camera|contacts|publish|screen|clip)\b|)"
     R"(\b(?:turned\s+on|switched\s+on|activated|hijacked|accessed|took\s+control\s+of|gained\s+access\s+to|have\s+access\s+to|access\s+to)\s+your\s+(?:\w+\s+)?(?:web\s?cam(?:era)?|camera|microphone)\b|)"
     R"(\b(?:split|double)[- ]screen\s+(?:video|recording)\b|)"
     R"(\b(?:web\s?cam|kamera)\b<100>\b(?:aufgenommen|gefilmt|aufgezeichnet|aufnahme\w*|mitgeschnitten)\b<100>\b(?:masturb\w+|selbstbefried\w+|porno\w*|intim\w*|befriedig\w+|nackt)\b|)"
     R"(\b(?:masturb\w+|selbstbefriedig\w+|selbst\s+befriedig\w+)\b<100>\b(?:video\w*|aufgenommen|gefilmt|kamera|web\s?cam|aufgezeichnet|kontakte\w*)\b|)"
     R"(\b(?:filmé|enregistré|vidéo|web\s?cam)\b<100>\b(?:masturb\w+|plaisir\s+solitaire|porno\w*|site\s+pour\s+adultes)\b|)"
     R"(\b(?:grabad[oa]|gravei|v[íi]deo|c[áa]mara|c[âa]mera|web\s?cam|filmad[oa])\b<100>\b(?:masturb\w+|porno\w*|sitios?\s+(?:para\s+)?adultos?|sites?\s+adultos?)\b|)"
     R"(\b(?:masturbe\w+|gefilmd|opgenomen)\b<100>\b(?:web\s?cam|camera|porno\w*)\b|)"
     R"(\b(?:gefilmt|aufgenommen|aufgezeichnet|beobachtet)\b<60>\b(?:web\s?cam|kamera|pornoseite\w*|porno\w*)\b|\b(?:web\s?cam|kamera)\b<60>\b(?:gefilmt|aufgenommen|aufgezeichnet|porno\w*)\b|\b(?:kamera|web\s?cam)\b[\s\S]{0,100}\b(?:nackt\w*|porno\w*|erwachsene\w*|sexseite\w*|mitgeschnitten)\b|)"
     R"(\b(?:gefilmd|opgenomen)\b<60>\b(?:web\s?cam|camera|porno\w*)\b|\b(?:web\s?cam|camera)\b<60>\b(?:gefilmd|opgenomen|porno\w*)\b|\b(?:camera|web\s?cam)\b[\s\S]{0,100}\b(?:porno\w*|pikante|voor\s+volwassenen|naakt\w*|masturb\w+)\b|)"
     R"(\b(?:filmée?|enregistrée?)\b<60>\b(?:web\s?cam|caméra|adultes|porno\w*)\b|\b(?:web\s?cam|caméra)\b<60>\b(?:filmée?|enregistr\w+|adultes|porno\w*)\b|\b(?:caméra|web\s?cam)\b[\s\S]{0,100}\b(?:porno\w*|adultes?|coquins?|nue?s?|masturb\w+)\b|\b(?:porno\w*|pour\s+adultes|coquins?)\b[\s\S]{0,100}\b(?:caméra|web\s?cam)\b|)"
     R"(\b(?:filmat[oa]|registrat[oa]|ripres[oa])\b<60>\b(?:web\s?cam|telecamera|porno\w*)\b|\b(?:web\s?cam|telecamera)\b<60>\b(?:filmat[oa]|registrat[oa]|porno\w*)\b|\b(?:fotocamera|telecamera|web\s?cam)\b[\s\S]{0,100}\b(?:porno\w*|luci\s+rosse|per\s+adulti|nud[oai]|masturb\w+)\b|\b(?:porno\w*|luci\s+rosse|per\s+adulti)\b[\s\S]{0,100}\b(?:fotocamera|telecamera|web\s?cam)\b|)"
     R"(\b(?:grab\w+|film\w+)\b<60>\b(?:web\s?cam|c[áa]mara|porno\w*|adultos)\b|\b(?:web\s?cam|c[áa]mara)\b<60>\b(?:grab\w+|film\w+|porno\w*)\b|\b(?:c[áa]mara|web\s?cam)\b[\s\S]{0,100}\b(?:porno\w*|adultos|subidas\s+de\s+tono|desnud\w+|masturb\w+)\b|\b(?:porno\w*|para\s+adultos)\b[\s\S]{0,100}\b(?:c[áa]mara|web\s?cam)\b|\bs[ée]\s+lo\s+que\s+(?:hiciste|haces|has\s+hecho)\b<30>\bc[áa]mara\b|)"
     R"(\b(?:gravei|filmei|gravad[oa])\b<60>\b(?:web\s?cam|c[âa]mera|porn\w+|adult\w+)\b|\b(?:web\s?cam|c[âa]mera)\b<60>\b(?:gravei|filmei|porn\w+)\b|\b(?:c[âa]mera|c[âa]mara|web\s?cam)\b[\s\S]{0,100}\b(?:porn\w+|sites?\s+adultos?|nu[as]?|masturb\w+)\b|)"
     R"(\b(?:записал\w?|снял\w?|заснял\w?)\b<20>\b(?:вас|тебя)\b<40>\b(?:веб-?камер\w+|камер\w+|порно\w*)\b|\b(?:веб-?)?камер\w+\b[\s\S]{0,80}\b(?:порно\w*|для\s+взрослых|голым|мастурб\w+)\b|\b(?:порно\w*|для\s+взрослых)\b[\s\S]{0,80}\bкамер\w+\b|)"
     R"((?:[摄攝][像影][头頭]|[视視][频頻]|裸聊)[\s\S]{0,20}(?:色情|自慰|裸|不雅|[录錄]下)[\s\S]{0,40}(?:比特[币幣]|[发發][给給送]|[转轉]|群[发發]|通[讯訊][录錄])|(?:成人|色情|裸)[\s\S]{0,40}(?:[摄攝][像影][头頭])|)"
     R"((?:ウェブカメラ|カメラ|録画|ハッキング)[\s\S]{0,40}(?:アダルト|自慰|録画|裸)[\s\S]{0,40}(?:ビットコイン|拡散|連絡先|動画|払)|アダルト[\s\S]{0,40}カメラ|(?:端末|パソコン|スマホ|カメラ)[\s\S]{0,16}(?:侵入|乗っ取)[\s\S]{0,24}(?:動画|映像|録画)|)"
     R"((?:웹 ?캠|카메라|해킹)[\s\S]{0,30}(?:영상|녹화|촬영|음란)[\s\S]{0,40}(?:비트코인|유포|지인|보내)|(?:야한|음란|성인)[\s\S]{0,24}(?:카메라|웹 ?캠)|)"
     R"(\b(?:your|the|front|laptop|phone)\s+(?:\w+\s+)?(?:camera|webcam|cam|microphone)\b<40>\b(?:record\w*|film\w*|captur\w*|video\w*|watch\w*|on\s+and|clip|saw|stream\w*)\b<60>\b(?:everything|you|yourself|pleas\w+|masturbat\w+|porn\w*|adult|naked|undress\w*)\b|\b(?:record\w*|film\w*|captur\w*|taped|clip|video|split\s?-?\s?screen)\b<60>\b(?:you|your|yourself)\b<30>\b(?:pleas(?:e|ed|ing|uring)\s+yourself|masturbat\w+|undress\w*|naked|jerk\w*|watch(?:ed|ing)?\s+(?:porn\w*|adult|dirty))\b)"); }),
     true},
    {"ext-pay-or-release", "Extortion", "warn", 75,
     "demands money to keep something from being published",
     pattern([] { return std::string_view(
     R"(\b(?:friends|family|boss|wife|husband|girlfriend|gf|contacts|followers|school|everyone)\b<40>\b(?:will\s+(?:see|get|receive|know)|gets?\s+(?:it|them))\b<40>\b(?:pay|unless|if|send|hour|tonight)\b|)"
     R"(\bnude\b<25>\b(?:video|call|recording|pics?)\b|\bi\s+will\s+(?:upload|leak)\b<30>\b(?:youtube|whatsapp|facebook|groups?|everywhere)\b|)"
     R"(\b(?:nudes?|video|pics?|pictures|photos|clip|recording|secret)\b[\s\S]{0,60}\b(?:or\s+(?:i|your|ur|they|else)|get\s+them\s+first|i\s+(?:will\s+)?(?:upload|send|post)|hit\s+send)\b|\bor\s+i\s+(?:post|send|upload|leak|share)\b|\b(?:pay\s+up|send\s+\d+)\s+or\b|\bif\s+i\s+do\s+not\s+get\b<25><amount>|)"
     R"(\b(?:pay|send|transfer|payment|deposit|give\s+me)\b<80>(?:\b(?:bitcoins?|btc|usd|eur|money|amount|crypto\w*|monero|dollars)\b|<amount>)<150>\b(?:delete|erase|destroy|remove|won['’]t\s+(?:release|send|share|publish)|will\s+not\s+(?:release|send|share|publish)|keep\s+(?:quiet|silent|your\s+secret)|your\s+secret|forget\s+about|never\s+hear|or\s+(?:else\s+)?(?:i|we)\s+will|otherwise|disappear)\b<80>\b(?:video|photos?|footage|recording|files?|data|evidence|secret|contacts|everything|everyone|information|material|you|me|publish|release|all)\b|\bor\s+the\s+(?:pictures|photos|video|clip)s?\s+goe?s?\s+(?:online|out)\b|)"
     R"(\b(?:if\s+you\s+(?:do\s+not|don['’]t|refuse|fail|ignore)|unless\s+you|if\s+i\s+(?:do\s+not|don['’]t)|otherwise|or\s+else|if\s+(?:the\s+)?payment\s+is\s+not|if\s+no\s+payment)\b<100>\b(?:send|publish|release|share|leak|forward|expose|upload|distribut\w+|post|go\s+public|made\s+public|sold|sell|auction)\b<60>\b(?:video|photos?|footage|recording|all\s+(?:of\s+)?your\s+(?:contacts|friends|family)|your\s+(?:contacts|friends|family|relatives|colleagues|coworkers|wife|husband|employer|customers|clients|data|files|secrets?|documents)|everyone|data|files|documents|information|internet|dark\s?web)\b|)"
     R"(\b(?:send|publish|release|share|leak|forward|distribut\w+)\b<50>\b(?:video|photos?|footage|recording|clip|screenshots?)\b<60>\b(?:all\s+(?:of\s+)?your|your)\s+(?:\w+\s+){0,3}(?:contacts|friends|family|relatives|colleagues|co-?workers|loved\s+ones|address\s+book|acquaintances|followers|social)\b|)"
     R"(\b(?:i|we)(?:['’]ll|\s+will)\s+(?:immediately\s+|permanently\s+)?(?:delete|erase|destroy|remove)\s+(?:the\s+|all\s+|your\s+|this\s+|every\s+)+(?:\w+\s+)?(?:video|photos?|footage|recording|files?|data|evidence|material|information|records?)\b<60>\b(?:pay\w*|once|after|receive\w*|bitcoin|btc|transfer\w*|money|as\s+soon\s+as|immediately|from)\b|)"
     R"(\b(?:veröffentlich\w+|verschick\w+|verbreit\w+|weiterleit\w+|send\w+)\b<60>\b(?:video\w*|aufnahme\w*|fotos?|daten)\b<80>\b(?:kontakte\w*|freunde\w*|familie|kollegen|bekannte\w*|bitcoin\w*|zahl\w+)\b|)"
     R"(\b(?:video\w*|aufnahme\w*|fotos?)\b<60>\b(?:an\s+(?:alle\s+)?(?:ihre|deine))\b<40>\b(?:kontakte\w*|freunde\w*|familie|kollegen|bekannte\w*|verwandte\w*)\b|)"
     R"(\b(?:paye[rz]|verse[rz]|virement|envoye[rz])\b<80>(?:\b(?:bitcoins?|btc|euros?)\b|€)<100>\b(?:vidéo|photos?|publie\w*|diffuse\w*|supprime\w*|contacts)\b|)"
     R"(\b(?:pag\w+|transfi?[er]\w+|envi\w+)\b<80>\b(?:bitcoins?|btc|d[óo]lares|euros?)\b<100>\b(?:v[íi]deo|fotos?|public\w+|divulg\w+|borr\w+|apag\w+|contactos|contatos)\b|)"
     R"(\b(?:zahl\w*|überweis\w*|send\w*)\b<60>(?:<amount>|\b(?:bitcoin|btc|euro)\b)<40>\b(?:oder|sonst|andernfalls)\b<60>\b(?:video|bilder|fotos|kontakte|veröffentlich\w*|schick\w*|verschick\w*|verbreit\w*)\b|\bwenn\s+(?:du|sie)\b<40>\b(?:nicht|kein)\b<40>\b(?:überweis\w*|zahl\w*|schick\w*|send\w*)\b<60>\b(?:veröffentlich\w*|verschick\w*|schicke|verbreit\w*|online)\b<60>\b(?:bilder|nacktbilder|fotos|video|familie|kontakte|freunde|instagram)\b|\bbitcoins?\b<30>\b(?:sonst|oder|andernfalls|ansonsten)\b<60>\b(?:sehen|seh\w*|kolleg\w+|familie|freunde|alle|kontakte|chef)\b|\bbitcoins?\b[\s\S]{0,60}\b(?:schicke|sende|verschicke|veröffentliche|poste)\b<30>\b(?:video|videos|fotos?|bilder|aufnahmen)\b|\b(?:\d{2,}|btc|bitcoins?)\b<50>\b(?:film\w*|video|aufnahme\w*|bilder)\b<30>\b(?:kontakte\w*|familie|freunde\w*|kollegen)\b|)"
     R"(\b(?:betaal|stuur|maak)\b<60>(?:<amount>|\b(?:bitcoins?|euro)\b)<40>\b(?:of|anders)\b<40>\b(?:video|foto['’]?s|contacten|stuur|publiceer)\b|\bals\s+je\b<50>(?:<amount>|\beuro\b)<40>\b(?:online|publiceer|stuur|zet)\b<60>\b(?:foto['’]?s|naaktfoto\w*|video['’]?s|familie|contacten)\b|\bbitcoins?\b<30>\b(?:of|anders)\b<40>\b(?:zien|collega['’]?s|familie|contacten|iedereen)\b|\b(?:\d{2,}|btc|bitcoins?)\b<50>\b(?:video|filmpje|beelden)\b<30>\b(?:contacten|familie|vrienden|collega)\b|)"
     R"(\b(?:pay\w+|verse[rz]|envoi\w*|envoye[rz])\b<60>(?:<amount>|\b(?:bitcoins?|euros?)\b)<40>\b(?:ou|sinon)\b<60>\b(?:vidéo|photos?|contacts|publi\w+|diffus\w+)\b|\bbitcoins?\b<30>\b(?:sinon|ou)\b<50>\b(?:verr\w+|recevr\w+|collègues|famille|proches|contacts|tout\s+le\s+monde)\b|\bbitcoins?\b[\s\S]{0,60}\b(?:j['’]envoie|j['’]enverrai|je\s+publie|je\s+diffuse)\b<30>\b(?:vidéos?|photos?|images)\b|\b(?:\d{2,}|btc|bitcoins?)\b<50>\b(?:vidéo|film|images|enregistrement)\b<30>\b(?:contacts|famille|proches|collègues)\b|)"
     R"(\b(?:pag(?!e\b|es\b|ed\b|er\b|ing)\w+|mand(?!at|ar|y\b)\w+|invi(?!t|sib|nc|gor)\w+)\b<60>(?:<amount>|\b(?:bitcoins?|euro)\b)<40>\b(?:o|altrimenti)\b<40>\b(?:video|foto|contatti|pubblic\w+|invio|diffond\w+)\b|\bse\s+non\b<50>(?:<amount>|\beuro\b)<40>\b(?:pubblic\w+|invio|diffond\w+|mando)\b<50>\b(?:foto|video|famiglia|contatti|intime)\b|\bbitcoins?\b<30>\b(?:o|oppure|altrimenti)\b<40>\b(?:vedranno|colleghi|famiglia|contatti|tutti)\b|\b(?:\d{2,}|btc|bitcoins?)\b<50>\b(?:video|filmato|immagini)\b<30>\b(?:contatti|famiglia|amici|colleghi)\b|)"
     R"(\b(?:pag(?!e\b|es\b|ed\b|er\b|ing)\w+|m[áa]nd\w+|env[íi](?!ron|ous|sion|able)\w+|transfier\w+)\b<60>(?:<amount>|\b(?:bitcoins?|euros?|d[óo]lares|pesos)\b)<40>\b(?:o|si\s+no|de\s+lo\s+contrario)\b<40>\b(?:v[íi]deo|fotos?|contactos|public\w+|difund\w+|enviar[ée])\b|\bbitcoins?\b<30>\b(?:o|si\s+no)\b<40>\b(?:ver[áa]n|vean|compa[ñn]eros|familia|contactos|todos)\b|\bbitcoins?\b[\s\S]{0,60}\b(?:mando|mandar[ée]|env[íi]o|enviar[ée]|publico|publicar[ée]|subo)\b<30>\b(?:v[íi]deos?|fotos?|im[áa]genes)\b|\b(?:\d{2,}|btc|bitcoins?)\b<50>\b(?:v[íi]deo|grabaci[óo]n|im[áa]genes)\b<30>\b(?:contactos|familia|mujer|amigos|compa[ñn]eros)\b|)"
     R"(\bse\s+(?:voc[êe]\s+)?n[ãa]o\b<50>(?:<amount>|\b(?:reais|euros|d[óo]lares|pix)\b)<40>\b(?:divulg\w+|public\w+|envi(?!ron|ous|sion|able)\w+|mando|posto|espalho)\b<50>\b(?:fotos?|v[íi]deos?|fam[íi]lia|contatos|[íi]ntimas?|nudes)\b|\bbitcoins?\b<30>\b(?:ou|sen[ãa]o)\b<40>\b(?:v[ãa]o\s+ver|ver[ãa]o|colegas|fam[íi]lia|contatos|todos)\b|\bbitcoins?\b[\s\S]{0,60}\b(?:mando|mandarei|envio|enviarei|publico|posto)\b<30>\b(?:v[íi]deos?|fotos?|imagens)\b|\b(?:\d{2,}|btc|bitcoins?)\b<50>\b(?:v[íi]deo|grava[çc][ãa]o|imagens)\b<30>\b(?:contac?tos|fam[íi]lia|amigos|colegas)\b|)"
     R"(\b(?:заплат\w+|перевед\w+|отправ\w+)\b<60>\b(?:или|иначе)\b<40>\b(?:видео|фото|контакт\w+|увидят|друзь\w+)\b|\bесли\b<30>\bне\s+(?:перевед\w+|заплат\w+|скин\w+)\b<40>\b(?:вылож\w+|отправлю|солью|разошлю|опубликую)\b|\bбиткоин\w*\b<30>\b(?:или|иначе)\b<40>\b(?:увид\w+|коллег\w+|родн\w+|друзь\w+|все)\b|)"
     R"((?:付|[转轉]|打)[\s\S]{0,16}(?:比特[币幣]|元|[块塊]|[万萬千])[\s\S]{0,20}(?:否[则則]|不然|就)[\s\S]{0,20}(?:[发發][给給送]|群[发發]|公[开開]|曝光|通[讯訊][录錄])|比特[币幣][\s\S]{0,8}(?:不然|否[则則])|)"
     R"((?:万円|ビットコイン)[\s\S]{0,12}払わ(?:ないと|なければ)[\s\S]{0,30}(?:拡散|ばらま|公開|送りつけ|動画|写真)|さもない?と[\s\S]{0,16}(?:見せ|ばらま|拡散|公開|送)|(?:ビットコイン|万円)[\s\S]{0,10}(?:送ら|支払わ)(?:ない|なけれ)[\s\S]{0,16}(?:公開|ばらま|送信|拡散)|(?:BTC|ビットコイン)を送らないと|)"
     R"((?:만 ?원|비트코인|돈|입금)[\s\S]{0,16}(?:안 ?보내|않으면|안 ?하면)[\s\S]{0,30}(?:유포|뿌린|뿌릴|보낸다|공개|퍼뜨)|(?:비트코인|달러|만 ?원)[\s\S]{0,12}안 ?보내면[\s\S]{0,16}(?:보게|알게|퍼|뿌|올)|비트코인을 ?안 ?보내면|)"
     R"(\b(?:pay|send|transfer|money|bitcoins?|btc|amount|<amount>)\b<60>\b(?:or|otherwise|else|if\s+not|unless)\b<40>\b(?:everyone|everybody|family|friends|colleagues|contacts|followers|boss|wife|husband|parents|whole\s+\w+|address\s+book|publish|post|leak|upload|public)\b<60>\b(?:see|sees|get|gets|receive|receives|video|clip|photos?|pictures?|nudes?|it|know|online|file)\b|\bif\b<40>\b(?:money|payment|bitcoins?|btc|amount|sum|coins|pay)\b<40>\b(?:video|clip|photos?|pictures?|nudes?|recording|files?)\b<25>\b(?:goes|go|sent|will\s+be|public|online|everyone|everybody|all\s+your)\b|)"
     R"(\b(?:nacktvideo|nacktbilder|video|fotos?|aufnahmen?)\b[\s\S]{0,60}\b(?:sonst|oder\s+(?:deine|ich|alle)|paysafecard|nicht\s+blockieren)\b|)"
     R"(\b(?:video|foto['’]?s|naakt\w*)\b[\s\S]{0,60}\b(?:anders\s+stuur|of\s+(?:ik|iedereen|je\s+(?:moeder|familie)))\b|)"
     R"(\b(?:vidéo|photos?|capture)\b[\s\S]{0,60}\b(?:je\s+(?:leur\s+|te\s+|les\s+)?(?:partage|envoie|balance|publie)|pcs|transcash|bloque\s+pas|ou\s+je)\b|\bou\s+je\s+leur\s+(?:partage|envoie)\b|)"
     R"(\boppure\s+lo\s+mando\b|)"
     R"(\b(?:v[íi]deo|fotos?|desnud\w+)\b[\s\S]{0,60}\b(?:o\s+(?:se\s+)?l[oa]s?\s+(?:mando|env[íi]o|publico)|a\s+tu\s+(?:mujer|novia|familia)|a\s+tus\s+contactos)\b|)"
     R"(\b(?:видео|фото|переписк\w+)\b[\s\S]{0,60}\b(?:иначе|или\s+(?:все|я|твои)|разошл\w+|твоим\s+(?:друзьям|родным|подписчик\w*))\b|)"
     R"((?:영상|사진|동영상)[\s\S]{0,40}(?:뿌린다|뿌리겠|유포|퍼뜨)|)"
     R"(\b(?:freunde|familie|chef|frau|mann|freundin|kontakte|follower|mutter)\b<40>\b(?:sehen|bekommen|kriegen|erfahren)\b<40>\b(?:zahl\w*|sonst|wenn|stunde\w*|euro)\b|)"
     R"(\b(?:vrienden|familie|baas|vrouw|vriendin|contacten)\b<30>\b(?:zien|krijgen|te\s+zien)\b<40>\b(?:betaal\w*|euro|anders|uur)\b|)"
     R"(\b(?:amis|famille|patron|femme|mari|copine|contacts|abonnés)\b<40>\b(?:verr\w+|recev\w+|saur\w+)\b|)"
     R"(\b(?:amici|famiglia|capo|moglie|ragazza|contatti)\b<40>\b(?:vedr\w+|ricever\w+|sapr\w+)\b|)"
     R"(\b(?:amigos|fam[íi]lia|chefe|mulher|namorada|contatos|contactos)\b<30>\b(?:v[ãa]o\s+(?:ver|receber|saber)|ver[ãa]o)\b|\b(?:v[íi]deo|nudes?|fotos?)\b[\s\S]{0,60}\b(?:ou\s+(?:mando|envio|publico|posto)|sen[ãa]o)\b|)"
     R"((?:裸照|[视視][频頻]|不雅|私密)[\s\S]{0,24}(?:[发發][给給]|群[发發]|曝光|公[开開]|散播)[\s\S]{0,12}(?:[亲親]友|通[讯訊][录錄]|家人|同事|[网網])|)"
     R"(<nudethreat>|(?:裸|動画|写真)[\s\S]{0,20}(?:ばらま|拡散|送信)[\s\S]{0,20}(?:くなかったら|されたく|振り?込|万)|)"
     R"((?:知人|家族|友達|会社|連絡先)[\s\S]{0,8}(?:に)[\s\S]{0,8}(?:ばらまく|送る|送信|公開|晒))"); }),
     true},
    {"ext-i-know-password", "Extortion", "warn", 70,
     "shows the reader an old password to frighten them",
     pattern([] { return std::string_view(
     R"(\bi\s+(?:have|know|got|found)\b<12>\b(?:your|ur)\s+pass(?:word)?s?\b|\brecogni[sz]e\s+this\s+pass\w*|)"
     R"(\b(?:your|ur)\s+pass(?:word)?\b<25>\b(?:i\s+(?:got|have|know)|look\s+familiar)\b|\blook\s+familiar\b<20>\bpass\b|\bpassword\s+with\s+which\s+you\b|\bwhat\s+you\s+type\s+to\s+log\s+in\b|\b(?:prove|proof)\b<30>\byour\s+password\b|)"
     R"(\b(?:i|we)\s+(?:do\s+)?(?:know|have|got|obtained|am\s+aware|hacked|cracked|am\s+in\s+possession\s+of)\b<20>\b(?:that\s+)?<25>\b(?:is\s+)?(?:one\s+of\s+)?your\s+(?:\w+\s+)?(?:passwords?|pass\s?word)\b|\b(?:is|was)\s+(?:one\s+of\s+)?your\s+(?:old\s+)?passwords?\b<40>\b(?:know|joking|access|serious|hacked|proof)\b|\byou\s+used\s+(?:the\s+|this\s+)?password\b<60>\b(?:access|hacked|proof)\b|)"
     R"(\b(?:is|was)\s+(?:one\s+of\s+)?your\s+(?:\w+\s+){0,2}(?:password|pass\s?word|pass\s?phrase)\b<80>\b(?:i|we|hack\w*|know|account|infect\w*|malware|changed|right)\b|)"
     R"(\byour\s+(?:\w+\s+)?password\s+(?:is|was|at\s+the\s+(?:time|moment)|from)\b<60>\b(?:hack\w*|infect\w*|know|compromis\w*|malware|account|access\w*)\b<60>\b(?:i|my|me|we|device|you)\b|)"
     R"(\b(?:ich\s+kenne|wir\s+kennen|ich\s+habe)\b<25>\b(?:ihr|dein)(?:e[ns]?)?\s+(?:\w+\s+)?(?:passwor\w*|kennwort)\b|)"
     R"(\b(?:je\s+connais|j['’]ai)\b<20>\bvotre\s+mot\s+de\s+passe\b|)"
     R"(\b(?:one\s+of\s+)?your\s+(?:\w+\s+)?(?:passwords?|passwort|pass\s?word|pin|login|secret\s+word)\s+(?:is|was|reads)\b<30>\b(?:joke|proof|prove\w*|serious|bluff\w*|hacked|trojan|so\s+(?:you|now\s+you)\s+(?:can\s+)?(?:see|know))\b|\b(?:is|was)\s+(?:the|your)\s+(?:\w+\s+)?(?:secret\s+word|password|pin|pass\s?phrase)\b<40>\b(?:isn['’]t\s+it|right|correct|not\s+true|surprised|familiar|no\s+joke)\b)"); }),
     true},
    {"ext-compromising", "Extortion", "warn", 60,
     "threatens with compromising pictures or secrets",
     pattern([] { return std::string_view(
     R"(\b(?:i|we)\s+(?:have|hold|got|kept)\b<15>\b(?:pictures|photos|screenshots|proof|evidence|nudes|images)\b<25>\b(?:affair|naked|cheat\w*|you\s+and|dirty|secret|intimate)\b|\b(?:wife|husband|family|boss|employer|parents)\b<20>\b(?:would|will|might)\s+(?:love|like|be\s+(?:interested|shocked)|hate|find\s+out)\b|)"
     R"(\b(?:screenshots?|naked|nude|dirty|photos?|pictures?)\b<40>\b(?:gf|bf|girlfriend|boyfriend|wife|husband|boss|parents)\b<30>\b(?:says?|sees?|look\s+at|love\s+to|learn\w*|know)\b|\b(?:shame|pity)\s+if\b<25>\b(?:boss|wife|husband|family|colleagues)\b|)"
     R"(\b(?:i|we)(?:['’]ve|\s+have|\s+got|\s+do\s+have|\s+also\s+have|\s+collected|\s+obtained|\s+possess|\s+hold)\b<40>\b(?:compromising|embarrassing|incriminating|explicit|intimate|nude|naked|dirty|sensitive|shameful|private|sexual)\b<15>\b(?:videos?|photos?|pictures?|footage|images?|materials?|recordings?|information|evidence|content|details|messages|secrets?)\b<80>\b(?:you|your)\b|\b(?:pictures?|photos?|videos?|screenshots)\s+of\s+you\b<12>\b(?:wife|husband|boss|employer|partner)\b<8>\b(?:would\s+not|wouldn[\'’]t|won[\'’]t|should\s+not|shouldn[\'’]t|must\s+not)\b|\b(?:dirty|shameful)\b<8>\bsecret\b<60>\b(?:pay|i\s+say|unless|or\s+else|as\s+long\s+as)\b|\bi\s+know\s+what\s+you\s+did\b[^.!?]{0,50}\b(?:family|wife|husband|boss)\b|)"
     R"(\b(?:i|we)(?:['’]ll|\s+will|\s+am\s+going\s+to|\s+can)\b<15>\b(?:send|share|publish|release|leak|show|expose|forward|tell)\b<40>\b(?:your\s+)?(?:wife|husband|family|employer|boss|friends|contacts|colleagues|everyone|partner|relatives)\b<80>\b(?:secret|affair|video|photos?|pictures?|footage|perver\w*|porn\w*|everything|dirty|what\s+you|nude|intimate|cheat\w*)\b|)"
     R"(\b(?:ruin|destroy)\b<10>\b(?:your|ur)\s+(?:\w+\s+)?(?:life|reputation|marriage|career|image|name|relationship|family)\b<80>\b(?:unless|if|pay|video|photos?|send|bitcoin\w*|money|release|publish|contacts)\b|)"
     R"(\b(?:dirty|little|nasty|shameful|dark)\s+secrets?\b<60>\b(?:pay|send|family|wife|husband|contacts|exposed?|know|bitcoin\w*|video)\b|)"
     R"(\b(?:kompromittierend\w*|peinlich\w*|intim\w*)\b<20>\b(?:videos?|fotos?|aufnahmen?|bilder|material\w*)\b<60>\b(?:von\s+(?:ihnen|dir)|ihre|deine|kontakte\w*|veröffentlich\w+|familie)\b|)"
     R"(\b(?:vidéos?|photos?|images)\b<12>\b(?:compromettantes?|intimes?)\b<60>\b(?:vous|vos|publi\w+|diffus\w+|contacts)\b|)"
     R"(\b(?:v[íi]deos?|fotos?|im[áa]gen[es]*|imagens)\b<12>\b(?:comprometedor[ae]?s?|[íi]ntim[oa]s?)\b<60>\b(?:contactos|contatos|public\w+|divulg\w+|familia\w*|suyas?|suas)\b|)"
     R"(\b(?:pictures?|photos?|videos?|recording|chats?|screenshots?|messages|proof|evidence)\b<30>\b(?:ruin|destroy|wreck|end|cost|finish)\b<20>\byour?\b<20>\b(?:marriage|career|life|reputation|family|job|wife|husband|name)\b|\b(?:your|you)\b<20>\b(?:dirty|little|filthy|dark)\s+(?:little\s+)?secrets?\b<60>\b(?:everyone|everybody|all\s+over|wife|husband|boss|public|pay|know|town|out)\b|\b(?:affair|secret|fantas\w+|fetish)\b<40>\b(?:tell|show|send|find\s+out|hear)\b<20>\byour\s+(?:wife|husband|boss|partner|family|parents)\b)"); }),
     true},
    {"ext-ransom-deadline", "Extortion", "warn", 60,
     "demands a ransom by a deadline",
     pattern([] { return std::string_view(
     R"(\b(?:files|data|documents|server|disk|network)\b<25>\b(?:encrypted|locked|scrambled)\b<80>\b(?:pay|bitcoin|btc|key|hours|days|deadline|ransom)\b|\b(?:decryption\s+key|ransom)\b<60>\b(?:hours|days|deadline|by|before|until)\b|\b(?:your\s+)?(?:files|data|network|servers?|documents|computers?|systems?|databases?)\b<25>\b(?:have\s+been|has\s+been|are|were|was)\s+(?:\w+\s+)?(?:encrypted|locked|stolen|exfiltrated)\b<150>\b(?:pay|decrypt\w*|ransom|bitcoins?|btc|recover\w*|contact\s+us|key|payment|restore)\b|)"
     R"(\b(?:get|send|transfer|pay)\b<20>\b(?:the\s+)?(?:money|bitcoin|ransom|amount)\b<40>\b(?:or|otherwise)\b<20>\b(?:price|files|data|double\w*|gone)\b|\b(?:price|ransom)\b<25>\b(?:files|documents|data|key)\b<40>\b(?:clock|deadline|stops|until|by)\b|)"
     R"(\b(?:you\s+have|you['’]ve\s+got|i\s+(?:give|am\s+giving)\s+you|we\s+(?:give|are\s+giving)\s+you|deadline|within)\b<25>\b(?:24|48|50|72|\d+|two|three|five|seven)\s?(?:hours?|hrs?|days)\b<80>\b(?:pay|send|transfer|payment|deposit)\b<60>(?:\b(?:bitcoins?|btc|ransom|monero|wallet|crypto\w*|usd)\b|<amount>)|\b(?:hours|days)\s+to\s+pay\b<40>\b(?:doubles?|gone|destroyed|deleted|published|leaked)\b|\bwithin\s+\d+\s+hours\s+or\s+(?:your\s+)?(?:data|files)\b|\bdays\s+left\s+to\s+pay\b|)"
     R"(\b(?:pay|send|transfer|payment)\b<60>\b(?:bitcoins?|btc|ransom|monero|wallet|crypto\w*)\b<80>\b(?:you\s+have|you['’]ve\s+got|deadline|within|only|in\s+the\s+next)\b<15>\b(?:24|48|50|72|\d+|two|three|five|seven)\s?(?:hours?|hrs?|days)\b|)"
     R"(\b(?:timer|countdown|clock|time)\b<25>\b(?:start(?:ed|s)?|begin[s]?|began|ticking|run(?:s|ning)?)\b<60>\b(?:open(?:ed)?|read|letter|e-?mail|message|hours|pay|now)\b|)"
     R"(\b(?:pay|send)\b<15>\b(?:a\s+|the\s+)?ransom\b|)"
     R"(\bsie\s+haben\b<20>\b(?:24|48|50|72|\d+)\s?(?:stunden|tage)\b<80>\b(?:zahl\w+|überweis\w+|bitcoins?|btc|lösegeld)\b|)"
     R"(\bvous\s+avez\b<20>\b(?:24|48|50|72|\d+)\s?(?:heures|jours|h)\b<80>\b(?:pay\w+|bitcoins?|btc|rançon|virement)\b)"); }),
     true},
    {"ext-hacked-device", "Extortion", "warn", 50,
     "claims to have hacked the reader's device or account",
     pattern([] { return std::string_view(
     R"(\b(?:hacked|cracked|breached|infected|compromised|broke\s+into|taken\s+over)\b<15>\b(?:your|ur)\s+(?:\w+\s+)?(?:phone|laptop|computer|pc|device|e-?mail|mailbox|account|router|system|accounts|webcam)\b|\bi\s+(?:have\s+)?(?:had\s+)?access\s+to\s+(?:all\s+)?(?:your|ur)\b<20>\b(?:files|messages|device|contacts|accounts|mails?|photos|phone)\b|)"
     R"(\b(?:got|broke|let\s+me|came)\s+in(?:to)?\b<15>\b(?:your|ur)\s+(?:laptop|phone|computer|router|mail\w*|device)\b|\b(?:router|camera|phone|mailbox)\s+let\s+me\s+in\b|)"
     R"(\b(?:i|we|my\s+team|our\s+team|hackers?)\b(?:['’]ve|\s+have|\s+had|\s+am|\s+was)?<25>\b(?:hacked|infected|gained\s+(?:full\s+|complete\s+|unlimited\s+)?access|got\s+(?:full\s+|complete\s+)?access|obtained\s+(?:full\s+)?access|compromised|cracked|broke\s+into|full\s+access|complete\s+access|complete\s+control|full\s+control|installed\s+(?:a\s+|my\s+)?(?:\w+\s+)?(?:trojan|malware|virus|spyware|rat|software))\b<12>\b(?:your|all\s+(?:of\s+)?your|all)\b<30>\b(?:devices?|computers?|accounts?|phones?|e-?mails?|system|operating\s+system|router|pc|network|laptop|gadgets?|browser|website|site|databases?|camera)\b|\b(?:control\s+of\s+your|watching\s+your|inside\s+your)\b<25>\b(?:computer|phone|laptop|device)\b<25>\b(?:weeks?|months?|semaines|mois|settimane|mesi|semanas|meses)\b|)"
     R"(\b(?:your\s+)(?:\w+\s+){0,2}(?:device|computer|account|operating\s+system|phone|pc|system|e-?mail|website|laptop)\b<20>\b(?:has\s+been|was|is|got|were|have\s+been)\s+(?:\w+\s+)?(?:hacked|infected|compromised|cracked|breached)\b<60>\b(?:by\s+(?:me|us)|my|i|trojan|malware|virus|we|full\s+access)\b|)"
     R"(\b(?:i\s+am|i['’]m|we\s+are|am)\s+(?:a\s+|an\s+|the\s+|professional\s+|group\s+of\s+|known\s+)*(?:hacker|hackers|programmer\s+who|cyber\s?criminal)\b|)"
     R"(\b(?:sent|sending|written|writing|mailed)\b<20>\bfrom\s+your\s+(?:own\s+)?(?:e-?mail\s+)?(?:account|address|device|mailbox)\b<60>\b(?:hack\w*|access|control|means|notice\w*|see|as\s+you)\b|)"
     R"(\b(?:trojan|malware|spyware|keylogger|rat|virus|exploit)\b<80>\b(?:full\s+access|gave\s+me|gives\s+me|access\s+to\s+(?:all\s+)?your|control\s+(?:of|over)\s+your|your\s+(?:device|screen|camera|contacts|messenger))\b|)"
     R"(\b(?:ich\s+habe|wir\s+haben|habe\s+ich|ich\s+bin)\b<50>\b(?:gehackt|infiziert|zugriff\s+(?:auf|zu)|hacker)\b<50>\b(?:gerät\w*|computer\w*|konto|konten|system|account|betriebssystem|e-?mail\w*|programmierer)\b|)"
     R"(\b(?:ihr|dein|ihre|deine)\s+(?:\w+\s+)?(?:gerät\w*|computer\w*|konto|system|account|betriebssystem)\b<30>\b(?:gehackt|infiziert|kompromittiert)\b|)"
     R"(\b(?:j['’]ai|nous\s+avons)\b<30>\b(?:piraté|infecté|accès\s+(?:à|complet))\b<40>\b(?:appareil|ordinateur|compte|système|téléphone)\b|)"
     R"(\b(?:he|hemos|tengo|eu|n[óo]s)\b<30>\b(?:hackead[oa]|infectad[oa]|invadi|hackeei|acceso\s+(?:a|completo)|acesso\s+(?:a|ao|total|completo))\b<40>\b(?:dispositivo|computadora?|ordenador|cuenta|conta|sistema|tel[ée]fono|celular)\b|)"
     R"(\bzugriff\s+auf\s+(?:alle\s+)?(?:deine|ihre)\s+(?:geräte|konten)\b|\b(?:gehört\s+(?:seit|jetzt)|kontrolle\s+über|überwache)\b<25>\b(?:rechner|computer|handy|gerät)\b<20>\b(?:weeks?|wochen|weken|semaines|settimane|semanas)\b|)"
     R"(\btoegang\s+tot\s+al\s+je\s+(?:apparaten|accounts)\b|\btoegang\s+tot\s+(?:je|uw)\s+(?:telefoon|computer|apparaten)\b|\b(?:(?:al\s+)?weken\s+in\s+je|controle\s+over\s+je|bekijk\s+je)\b<25>\b(?:computer|telefoon|laptop)\b<20>\b(?:weeks?|wochen|weken|semaines|settimane|semanas)\b|\b(?:weeks?|wochen|weken|semaines|settimane|semanas)\b<25>\b(?:computer|telefoon|laptop)\b|)"
     R"(\baccès\s+à\s+tous\s+tes\s+appareils\b|\baccès\s+à\s+(?:tes|vos)\s+(?:appareils|comptes)\b|\b(?:je\s+contrôle|accès\s+à|surveille)\b<25>\b(?:ordinateur|téléphone|pc|portable)\b<25>\b(?:weeks?|months?|semaines|mois|settimane|mesi|semanas|meses)\b|)"
     R"(\baccesso\s+a(?:i|\s+tutti\s+i)?\s+tuoi\s+(?:dispositivi|account)\b|)"
     R"(\b(?:tengo\s+)?acceso\s+a\s+(?:todos\s+)?tus\s+(?:dispositivos|equipos|cuentas)\b|)"
     R"(\bacesso\s+a\s+todos\s+os\s+seus\s+(?:aparelhos|dispositivos)\b|)"
     R"(\b(?:controllo\s+il|ho\s+accesso\s+a|sorveglio)\b<25>\b(?:computer|telefono|pc|cellulare)\b<25>\b(?:weeks?|months?|semaines|mois|settimane|mesi|semanas|meses)\b|)"
     R"(\b(?:controlo\s+o|acesso\s+ao|vigio\s+o)\b<25>\b(?:computador|celular|telem[óo]vel)\b<25>\b(?:weeks?|months?|semaines|mois|settimane|mesi|semanas|meses)\b|)"
     R"(\bслежу\s+за\s+тобой\b|)"
     R"(控制[了]?你的?(?:[电電][脑腦]|手[机機])|)"
     R"(あなたの(?:パソコン|スマホ)を(?:操作|監視)|)"
     R"(네 ?(?:컴퓨터|폰)를? ?(?:보고|감시|해킹)|)"
     R"(\b(?:your|the)\s+(?:\w+\s+){0,2}(?:system|device|computer|phone|router|network|pc|laptop|accounts?|browser)\b<40>\b(?:infected|compromised|hacked|under\s+my\s+control|taken\s+over|trojan|malware|virus)\b<40>\b(?:my|i|we)\b<40>\b(?:access|trojan|malware|control|copied|downloaded|months|watch\w*|virus|everything)\b|\b(?:i|we)\b<15>\b(?:placed|installed|planted|put|injected|uploaded|hid|dropped)\b<20>\b(?:malware|trojan|virus|spyware|keylogger|rootkit|backdoor|exploit)\b<40>\b(?:you|your)\b)"); }),
     true},

    // ---- Threats -------------------------------------------------------------------------------
    {"thr-violence", "Threats", "warn", 80,
     "threatens physical violence",
     pattern([] { return std::string_view(
     R"(\b(?:i|we)(?:['’]ll|\s+will|\s+am\s+going\s+to|['’]m\s+going\s+to|\s+are\s+going\s+to|['’]re\s+going\s+to|['’]m\s+gonna|\s+swear\s+i(?:['’]ll|\s+will))\b<12>\b(?:kill|murder|shoot|stab|beat\s+(?:the|you|your)|strangle|break\s+(?:your|ur)|smash\s+(?:your|ur)|slit|skin|hunt\s+you|bury|cut\s+(?:your|you)|hang\s+you|gut\s+you)\b<12>\b(?:you|your|ur|him|her|them|throat|legs?|neck|face|skull|alive)\b|)"
     R"(\b(?:you|u)(?:['’]re|\s+are|\s+r|['’]ll|\s+will)\s+(?:a\s+|gonna\s+|going\s+to\s+)?(?:dead\s+(?:man|meat|woman)|be\s+killed|die\s+(?:for\s+this|slowly|screaming|tonight|tomorrow)|be\s+sorry\s+you\s+were\s+born|pay\s+(?:for\s+(?:this|it)\s+)?with\s+your\s+life)\b|)"
     R"(\b(?:your\s+days\s+are\s+numbered|you\s+deserve\s+to\s+die|i['’]ll\s+make\s+you\s+(?:suffer|bleed)|i\s+hope\s+you\s+die|put\s+a\s+bullet\s+in\s+(?:you|your)|bullet\s+(?:in|through|with)\s+your\s+(?:head|name))\b|)"
     R"(\b(?:hired|paid)\s+(?:someone\s+|a\s+man\s+|a\s+hitman\s+|me\s+|us\s+)?to\s+(?:kill|assassinate|terminate|eliminate)\s+you\b|)"
     R"(\bcontract\b<20>\bto\s+(?:kill|assassinate|terminate|eliminate)\s+you\b|)"
     R"(\bich\s+(?:werde|bringe?)\b<20>\b(?:dich|euch|sie|ihn)\s+(?:\w+\s+)?(?:umbringen|töten|abstechen|erschießen|totschlagen|umlegen|zusammenschlagen|um)\b|)"
     R"(\bje\s+vais\s+(?:te|vous|le|la)\s+(?:tuer|buter|crever|frapper|massacrer)\b|)"
     R"(\b(?:te\s+voy\s+a\s+matar|vamos\s+a\s+matarte|voy\s+a\s+matarte|vou\s+te\s+matar|te\s+matarei|vamos\s+te\s+matar|te\s+vamos\s+a\s+matar)\b|)"
     R"((?:杀了你|殺了你|弄死你|要你的命|殺すぞ|殺してやる|ぶっ殺|죽여\s?버릴|죽일\s?거|죽이겠))"); }),
     true},
    {"thr-know-where", "Threats", "warn", 70,
     "warns that the sender knows where the reader lives or works",
     pattern([] { return std::string_view(
     R"(\b(?:i|we)\s+(?:know|have\s+found|found|figured\s+out|['’]ve\s+found|have)\b<12>\b(?:exactly\s+)?(?:where\s+(?:you|u|your\s+(?:family|kids|children|wife|mother|parents))\b<8>\b(?:live|lives|work|works|sleep|park|go|stay|are|go\s+to\s+school|study)|your\s+(?:home\s+)?address\s+and)\b|)"
     R"(\b(?:i|we)(?:['’]ll|\s+will|['’]m|\s+am|\s+are)\b<15>\b(?:show(?:ing)?\s+up|pay(?:ing)?\s+you\s+a\s+visit|find(?:ing)?\s+you|hunt(?:ing)?\s+you\s+down|come\s+for\s+you|be\s+waiting)\b<15>\b(?:to|at|outside|for|you\s+at|in)\s+(?:your|ur)\s+(?:house|home|door|place|work|office|school|address)\b|)"
     R"(\b(?:i|we)\s+know\s+(?:your|what)\s+(?:car\s+you\s+drive|route|routine|school\s+your)\b|)"
     R"(\bich\s+weiß,?<8>\bwo\s+(?:du|sie|deine|ihre)\b<20>\b(?:wohn\w+|arbeit\w+|leb\w+|schläf\w+)\b|)"
     R"(\b(?:je\s+sais|on\s+sait)\s+où\s+(?:tu|vous)\b<10>\b(?:habit\w+|viv\w+|travaill\w+)\b|)"
     R"(\b(?:s[ée]|sabemos|sei)\s+d?[óo]nde\s+(?:vives?|viven|trabajas?|mora[s]?|trabalha[s]?|voc[êe]\s+mora)\b|)"
     R"((?:知道你(?:住|家)在?|我知道你住|家は知って|住所は知って|어디\s?사는지\s?알))"); }),
     true},
    {"thr-family", "Threats", "warn", 75,
     "threatens the reader's family",
     pattern([] { return std::string_view(
     R"(\b(?:kill|hurt|harm|touch|visit|get|come\s+for|go\s+after|take|find|burn|happen(?:s)?\s+to|lose|bury|target)\b<12>\b(?:your|ur)\s+(?:\w+\s+)?(?:family|kids?|children|child|wife|husband|daughter|son|mother|mom|mum|parents|sister|brother|loved\s+ones)\b<50>\b(?:if|unless|or|first|too|suffer|die|pay|one\s+by\s+one|next|bleed|will|dead)\b|)"
     R"(\b(?:your|ur)\s+(?:\w+\s+)?(?:family|kids?|children|wife|husband|daughter|son|mother|parents|loved\s+ones)\b<20>\b(?:will|is\s+going\s+to|are\s+going\s+to|gonna|should)\b<12>\b(?:die|suffer|be\s+(?:killed|hurt|harmed|next|dead|in\s+danger)|pay\s+for|burn|bleed|regret)\b|)"
     R"(\b(?:if\s+you\s+(?:care\s+about|love|value|want\s+to\s+see)|for\s+the\s+(?:safety|sake)\s+of)\s+(?:your\s+|ur\s+)(?:\w+\s+)?(?:family|kids?|children|wife|husband|daughter|son|life|loved\s+ones)\b<60>\b(?:pay|do|will|stop|you['’]ll|send|keep|again|alive|leave|comply|cooperate)\b|)"
     R"(\b(?:deine|deiner|ihre|ihrer)\s+(?:familie|kinder|frau|tochter|mutter)\b<30>\b(?:umbring\w+|töt\w+|sterben|büßen|leid\w+|passier\w+|stirbt)\b|)"
     R"(\b(?:ta|votre)\s+(?:famille|femme|fille|mère)\b<25>\b(?:tuer|mourir|mourra|souffrir|paiera)\b|)"
     R"(\b(?:tu|su|sua)\s+(?:familia|fam[íi]lia|hij[oa]s?|filh[oa]s?|mujer|esposa)\b<25>\b(?:matar|morir\w*|morrer|sufrir\w*|sofrer|pagar[áa])\b)"); }),
     true},
    {"thr-watching", "Threats", "warn", 45,
     "says the sender is watching or following the reader",
     pattern([] { return std::string_view(
     R"(\b(?:i|we)(?:['’]m|\s+am|['’]re|\s+are|['’]ve\s+been|\s+have\s+been|['’]ll\s+be|\s+will\s+be)\b<10>\b(?:watching|following|tracking|stalking|monitoring|observing|spying\s+on)\s+(?:you|your\s+(?:every|house|home|family|kids|wife|activit\w+|move|steps|device|internet))\b<60>\b(?:long\s+time|every|know|see|always|closely|for\s+(?:a\s+|several\s+|some\s+|\d+\s+)|right\s+now|don['’]t|do\s+not|careful|house|move|home|weeks?|months?|street|stop|everywhere|pay|police|week)\b|)"
     R"(\b(?:watching|following|tracking)\b<5>\byour\s+every\s+(?:move|step)\b|)"
     R"(\b(?:i|we)\s+(?:can\s+|could\s+)?(?:see|saw)\s+you\s+(?:through|from|in|at|last|leaving|every|undress|sleep)\b<40>\b(?:window|house|home|window|alone|camera|night|bedroom|car|street|across)\b|)"
     R"(\b(?:don['’]t|do\s+not)\s+(?:even\s+)?(?:try|think)\s+(?:of\s+|about\s+|to\s+)?(?:call|calling|contact|contacting|go|going|report|reporting)\b<12>\b(?:the\s+)?(?:police|cops|fbi|authorities)\b|)"
     R"(\bich\s+(?:beobachte|verfolge|überwache)\s+(?:dich|sie|euch)\b|)"
     R"(\bje\s+(?:te|vous)\s+(?:surveille|observe|suis\s+partout)\b|)"
     R"(\b(?:te|lo|la)\s+(?:estoy|estamos|estou)\s+(?:vigilando|observando|siguiendo|vigiando|seguindo)\b)"); }),
     true},
    {"thr-self-harm-urge", "Threats", "warn", 80,
     "urges the reader to harm themselves",
     pattern([] { return std::string_view(
     R"(\b(?:go|just|please|should|u\s+should|you\s+should|why\s+don['’]t\s+you|do\s+(?:everyone|us|the\s+world)\s+a\s+favou?r\s+and)\s+(?:and\s+)?(?:kill\s+yourself|kill\s+urself|hang\s+yourself|off\s+yourself|die\s+in\s+a\s+(?:fire|hole|ditch)|end\s+(?:your|ur)\s+life|jump\s+off|slit\s+your\s+wrists|drink\s+bleach|end\s+it\s+all|neck\s+yourself)\b|)"
     R"(\b(?:kys|kill\s+your\s?self|kill\s+ur\s?self|go\s+hang\s+yourself|go\s+die)\b<20>(?:$|[.!,]|\b(?:now|already|please|loser|you|nobody|no\s+one|everyone|worthless)\b)|)"
     R"(\b(?:nobody|no\s+one|world)\b<25>\b(?:would\s+(?:miss|care)|better\s+(?:off|place))\b<20>\b(?:if\s+you\s+(?:died|were\s+dead|killed|die|were\s+gone)|without\s+you|you\s+were\s+(?:dead|gone))\b|)"
     R"(\b(?:bring\s+dich\s+(?:doch\s+)?um|häng\s+dich\s+auf|geh\s+sterben|tue?\s+(?:uns|der\s+welt)\s+einen\s+gefallen\s+und\s+stirb)\b|)"
     R"(\b(?:va\s+(?:te\s+(?:tuer|pendre|suicider)|mourir|crever)|suicide-toi)\b|)"
     R"(\b(?:m[áa]tate|suic[íi]date|se\s+mata|vai\s+morrer|vete\s+a\s+morir|deber[íi]as\s+morirte)\b|)"
     R"((?:去死吧|你怎么不去死|死んでしまえ|自殺しろ|死ねばいい|나가\s?죽어|자살해라))"); }),
     true},

    // ---- Exposed secrets -----------------------------------------------------------------------
    {"pii-ssn", "Exposed secrets", "block", 100,
     "contains something formatted as a Social Security number",
     R"(\b\d{3}-\d{2}-\d{4}\b)",
     true},
    {"pii-card-number", "Exposed secrets", "block", 100,
     "contains something formatted as a payment card number",
     R"(\b(?:4\d{3}|5[1-5]\d{2}|3[47]\d{2}|6(?:011|5\d{2}))[ -]?\d{4}[ -]?\d{4}[ -]?\d{4}\b)",
     true},
    {"pii-cvv", "Exposed secrets", "warn", 60,
     "contains a card security code",
     pattern([] { return std::string_view(
     R"(\b(?:cvv2?|cvc2?|cvn|card\s+(?:security|verification)\s+(?:code|number|value)|security\s+code\s+(?:on|of)\s+(?:the\s+|my\s+)?(?:back|card))\b<12>(?::|=|#|\bis\b|\bcode\b|\s+)<3>\b\d{3,4}\b|)"
     R"(\b\d{3,4}\b<6>\b(?:cvv2?|cvc2?)\b|)"
     R"(\b(?:kartenprüfnummer|prüfziffer|cryptogramme(?:\s+visuel)?|c[óo]digo\s+de\s+(?:seguridad|segurança))\b<10>\b\d{3,4}\b)"); }),
     true},
    {"pii-api-key", "Exposed secrets", "block", 100,
     "contains what looks like a live API key or access token",
     R"((?:sk_live_|sk-[a-zA-Z0-9]{20,}|AKIA[0-9A-Z]{16}|ghp_[a-zA-Z0-9]{20,}|xox[baprs]-[a-zA-Z0-9-]{10,}))",
     true},
    {"pii-private-key-block", "Exposed secrets", "block", 100,
     "contains a private key block",
     R"(-----BEGIN (?:RSA |EC |OPENSSH |PGP )?PRIVATE KEY)",
     true},
    {"pii-password-literal", "Exposed secrets", "warn", 45,
     "writes out a password",
     R"(\b(?:password|passwd|pwd|passphrase|pass\s?code|passwort|kennwort|mot\s+de\s+passe|contraseña|senha|wachtwoord)(?:\s+is|\s+ist|\s+est|\s+es|\s+é|)?[ \t]?[:=][ \t]?["'“]?(?:[^\s"'“”:=,;]{4,20}[0-9!@#$%^&*_+]|[^\s"'“”:=,;]{0,12}[0-9!@#$%^&*_+][^\s"'“”,;]{4,30})|)"
     R"(\b(?:my|the|your|our|temporary|new|login|root|admin|wifi|wi-fi)\s+(?:\w+\s+)?(?:password|passwd|pwd|passphrase|passcode|pin)\s+(?:is|=|was\s+set\s+to|will\s+be|has\s+been\s+set\s+to):?\s?["'“]?(?:[^\s"'“”:=,;]{4,20}[0-9!@#$%^&*_+]|[^\s"'“”:=,;]{0,12}[0-9!@#$%^&*_+][^\s"'“”,;]{4,30})|)"
     R"(\b(?:pin|pin\s+code|pin\s+number)\b\s?(?:is|:|=)\s?\d{4,8}\b|)"
     R"((?:密码|密碼|パスワード|비밀번호)(?:是|为|為|は|는|:|：)\s?[A-Za-z0-9!@#$%^&*_+-]{4,30})",
     true},
    {"pii-passport", "Exposed secrets", "warn", 35,
     "contains a passport or identity document number",
     pattern([] { return std::string_view(
     R"(\b(?:passport|travel\s+document|identity\s+card|national\s+id|id\s+card|driver['’]?s?\s+licen[cs]e|driving\s+licen[cs]e)\b(?:\s?(?:number|no|nr|num|id|#))?\.?\s?(?:is|:|#|=)?\s?[A-Z]{0,3}\s?\d{6,10}\b|)"
     R"(\b(?:passnummer|reisepass(?:nummer|-nr)?|ausweisnummer|personalausweis(?:nummer|-nr)?|numéro\s+de\s+passeport|pasaporte|passaporte|dni|nie|rg|paspoort(?:nummer)?)\b\.?<10>\b[A-Z]{0,3}\s?\d[\dA-Z]{6,9}\b|)"
     R"((?:护照号?|護照號?|身份证号?|身分證字號|パスポート番号|旅券番号|여권\s?번호|주민등록번호)[^。！？.!?A-Za-z0-9]{0,6}[A-Za-z]{0,2}\d{6,18})"); }),
     true},
    {"pii-dob-full", "Exposed secrets", "warn", 20,
     "contains a full date of birth",
     R"(\b(?:d\.?o\.?b\.?|date\s+of\s+birth|birth\s?date|born(?:\s+on)?|birthday)\b\s?(?:is|:|-|=|was)?\s?(?:the\s+)?(?:\d{1,2}[./-]\d{1,2}[./-](?:19|20)?\d{2}|(?:19|20)\d{2}[./-]\d{1,2}[./-]\d{1,2}|\d{1,2}(?:st|nd|rd|th)?\s+(?:of\s+)?(?:jan|feb|mar|apr|may|jun|jul|aug|sep|oct|nov|dec)[a-z]{0,6},?\s+(?:19|20)\d{2}|(?:jan|feb|mar|apr|may|jun|jul|aug|sep|oct|nov|dec)[a-z]{0,6}\s+\d{1,2}(?:st|nd|rd|th)?,?\s+(?:19|20)\d{2})\b|)"
     R"(\b(?:geburtsdatum|geboren(?:\s+am)?|geb\.|né(?:e)?\s+le|date\s+de\s+naissance|fecha\s+de\s+nacimiento|nacid[oa]\s+el|data\s+de\s+nascimento|nascid[oa]\s+em|geboortedatum|geboren\s+op)[ :]{1,3}\d{1,2}[./ -]{1,2}(?:\d{1,2}|[a-zä]{3,9})\.?[./ -]{1,2}(?:19|20)?\d{2}\b|)"
     R"((?:出生日期|生年月日|생년월일)[：: ]{0,3}(?:19|20)?\d{2}[年./\- 년]{1,2}\d{1,2})",
     true},

    // ---- Hidden content ------------------------------------------------------------------------
    {"obf-zero-width", "Hidden content", "block", 100,
     "contains a run of invisible characters — text a reader cannot see must not be signed as if they had read it",
     R"([\u200B\u200C\u200D\u2060\uFEFF]{6,})",
     true},
    {"obf-rtl-override", "Hidden content", "block", 100,
     "contains bidirectional override characters, which can display text in a different order from what is signed",
     R"([\u202A-\u202E\u2066-\u2069])",
     true},
    {"obf-many-confusable", "Hidden content", "warn", 45,
     "contains Cyrillic letters that look identical to Latin ones, used to fake domain and brand names",
     R"([\u0430\u0435\u043E\u0440\u0441\u0445\u0410\u0415\u041E\u0420\u0421\u0425]{3,})",
     true},
    {"obf-tag-chars", "Hidden content", "block", 100,
     "contains Unicode tag characters, which are invisible and can carry a hidden payload",
     R"([\x{E0000}-\x{E007F}])",
     true},
    {"obf-excess-spacing", "Hidden content", "warn", 20,
     "letters spaced apart to defeat text matching",
     R"((?:\w ){12,}\w)",
     true},

    // ---- Deceptive links -----------------------------------------------------------------------
    {"url-ip-literal", "Deceptive links", "warn", 45,
     "links to a bare numeric address, which hides who runs the site",
     R"(https?://(?:[^\s/@]{1,60}@)?\d{1,3}\.\d{1,3}\.\d{1,3}\.\d{1,3}(?:[:/?#\s]|$)|)"
     R"(https?://(?:0x[0-9a-f]{6,8}|\d{8,10})(?:[:/?#\s]|$)|)"
     R"(https?://\[[0-9a-f:.]{4,45}\])",
     true},
    {"url-punycode", "Deceptive links", "warn", 50,
     "links to an encoded internationalised domain, a common disguise for a brand name",
     R"(\bhttps?://(?:[a-z0-9-]{1,40}\.){0,4}xn--[a-z0-9-]{2,60}|)"
     R"(\bwww\.(?:[a-z0-9-]{1,40}\.){0,3}xn--[a-z0-9-]{2,60})",
     true},
    {"url-at-sign", "Deceptive links", "warn", 55,
     "contains a link with an @ before the host, so that it leads somewhere else than it seems",
     R"(https?://[a-z0-9._-]{1,80}\.[a-z]{2,6}(?:%40|@)[a-z0-9.-]{3,80}|)"
     R"(https?://[^\s/@?#<>:]{1,60}@[a-z0-9-]{1,60}\.[a-z]{2,})",
     true},
    {"url-shortener", "Deceptive links", "warn", 30,
     "hides a destination behind a link shortener",
     pattern([] { return std::string_view(
     R"(\b(?:bit\.ly|tinyurl\.com|goo\.gl|is\.gd|ow\.ly|cutt\.ly|rebrand\.ly|rb\.gy|shorturl\.at|t\.ly|tiny\.cc|v\.gd|bl\.ink|s\.id|shorte\.st|adf\.ly|bc\.vc|soo\.gd|clck\.ru|qr\.ae|u\.to|urlz\.fr|lnkd\.in|buff\.ly|short\.io|n9\.cl|me2\.do|han\.gl|x\.gd|00m\.in|surl\.li|l\.ead\.me|gg\.gg|shrtco\.de|tr\.ee|linktr\.ee|encurtador\.com\.br|acesse\.one|dub\.sh|t\.cn|url\.cn|dwz\.cn|share\.google|qrco\.de|qr\.link|kutt\.it|snip\.ly|t2m\.io|wa\.link|shorturl\.asia|urlr\.me|2u\.pw|tiny\.one|me-qr\.com)/[\w-]{2,}|)"
     R"(https?://(?:bit\.do|me2\.kr|han\.gl|vo\.la|url\.kr|c11\.kr)/)"); }),
     true},
    {"url-lookalike-tld", "Deceptive links", "warn", 35,
     "links to a domain ending that is cheap and much abused",
     R"re(\b[\w-]{1,40}\.(?:duckdns|ddns|hopto|zapto|servehttp)\.(?:org|net|com)\b|)re"
     R"re(\bhttps?://(?:[a-z0-9-]{1,60}\.){1,5}(?:xyz|top|click|icu|cfd|sbs|tk|ml|ga|cf|gq|buzz|rest|zip|mov|cam|monster|quest|cyou|bond|lol|vip|win|bid|loan|live|shop|online|site|website|space|fun|store|pw|beauty|hair|skin|makeup|autos|boats|homes|yachts|pics|mom|lat)(?:[/:?#\s>)"']|$))re",
     true},
    {"url-brand-subdomain", "Deceptive links", "warn", 45,
     "puts a well-known brand into a domain that is not the brand's",
     R"(\b(?:paypal|apple|icloud|microsoft|office365|outlook|amazon|netflix|google|facebook|instagram|whatsapp|chase|wellsfargo|bankofamerica|citibank|hsbc|barclays|santander|coinbase|binance|metamask|ledger|trezor|trustwallet|blockchain|dhl|fedex|usps|royalmail|evri|correios|docusign|dropbox|sharepoint|onedrive|linkedin|ebay|walmart|costco|irs|hmrc|sparkasse|volksbank|postbank|commerzbank|itau|bradesco|nubank|mercadopago|mercadolivre|livelo|rabobank|abnamro)-[a-z0-9-]{2,40}\.(?:com|net|org|info|xyz|top|online|site|club|shop|live|support|icu|click|co|us|cc|me|io|app|dev|eu|link|website)\b|)"
     R"(https?://(?:www\.)?(?:paypal|apple|icloud|microsoft|office365|outlook|amazon|netflix|google|facebook|instagram|whatsapp|chase|wellsfargo|bankofamerica|citibank|hsbc|barclays|santander|coinbase|binance|metamask|ledger|trezor|trustwallet|dhl|fedex|usps|royalmail|evri|correios|docusign|dropbox|linkedin|ebay|irs|hmrc|sparkasse|itau|bradesco|nubank|mercadopago|livelo|rabobank)\.(?:com|de|net|org|gov|co\.uk|com\.br)(?:-[a-z0-9-]{2,40}|\.[a-z0-9-]{3,40})\.[a-z]{2,}|)"
     R"(\b(?:secure|login|signin|verify|verification|account|update|support|service|security|auth|my|id|web|wallet)-?(?:paypal|apple|icloud|microsoft|office365|amazon|netflix|facebook|instagram|chase|wellsfargo|bankofamerica|citibank|hsbc|barclays|coinbase|binance|metamask|ledger|trezor|trustwallet|dhl|fedex|usps|royalmail|docusign|dropbox|linkedin|ebay|irs|hmrc|itau|bradesco|nubank)(?:-[a-z0-9-]{2,40})?\.(?:com|net|org|info|xyz|top|online|site|club|shop|live|support|icu|click|co|us|cc|me|io|app|dev|eu|link|website)\b)",
     true},
    {"url-credential-in-url", "Deceptive links", "warn", 40,
     "contains a link that carries a user name, a password or a recipient's address",
     R"(\bhttps?://[^\s/:@]{1,60}:[^\s/@]{1,60}@[^\s/]{3,}|)"
     R"(\bhttps?://[^\s?#]{3,200}#(?:[\w=&/-]{0,20}[=/])?[\w.+-]{1,60}(?:@|%40)[\w-]{1,60}\.[a-z]{2,10}|)"
     R"(\bhttps?://[^\s?#]{3,200}[?&](?:[^\s#]{0,100}&)?(?:password|passwd|pwd)=[^\s&#]{4,})",
     true},
    {"url-data-uri", "Deceptive links", "warn", 45,
     "contains a data: link, which carries a whole page inside itself",
     R"(\bdata:(?:text/html|text/javascript|application/[\w.+-]{2,40}|image/svg\+xml)\b|)"
     R"(\bdata:[\w/+.-]{3,40};base64,)",
     true},
    {"url-javascript", "Deceptive links", "block", 100,
     "contains a javascript: link, which runs code rather than opening a page",
     R"(javascript:)",
     true},
    {"url-many-redirects", "Deceptive links", "warn", 25,
     "contains a link that passes through another site's redirect",
     R"(\bhttps?://[^\s?#]{3,200}\?[^\s]{0,200}?(?:url|u|q|redirect|redirect_uri|redir|next|goto|target|dest|destination|continue|return|returnurl|link|to|adurl|out)=https?(?:://|%3a%2f%2f)|)"
     R"(\bhttps?://(?:www\.)?google\.[a-z.]{2,6}/(?:url|amp|interstitial)\b|)"
     R"(\bhttps?://[^\s]{4,300}https?(?:://|%3a%2f%2f)[^\s]{4,300}https?(?:://|%3a%2f%2f)|)"
     R"(\bhttps?://(?:l\.facebook\.com/l\.php|www\.youtube\.com/redirect|lnkd\.in|t\.umblr\.com/redirect|[a-z0-9-]{1,30}\.safelinks\.protection\.outlook\.com|googleads\.g\.doubleclick\.net|ad\.doubleclick\.net|www\.bing\.com/ck/a|duckduckgo\.com/l/))",
     true},

    // ---- Malware lure --------------------------------------------------------------------------
    {"mal-enable-macros", "Malware lure", "warn", 60,
     "asks the reader to enable macros or editing in a document",
     pattern([] { return std::string_view(
     R"(\b(?:enable|allow|turn\s+on|activate|click|press|select)\b<20>\b(?:macros?|enable\s+content|enable\s+editing|active\s+content|editing\s+and\s+content|content\s+and\s+editing)\b<60>\b(?:view|document|open|file|see|content|display|read|invoice|continue|spreadsheet|button|bar|protected|when)\b|)"
     R"(\b(?:document|file|spreadsheet|invoice|protected|view|see|content)\b<60>\b(?:enable|allow|activate)\s+(?:the\s+)?(?:macros?|content|editing)\b|)"
     R"(\b(?:makros?|inhalt|bearbeitung)\b<12>\b(?:aktivieren|zulassen|einschalten)\b|)"
     R"(\bactive[rz]\s+(?:les\s+macros|le\s+contenu|la\s+modification)\b|)"
     R"(\b(?:habilit\w+|activ\w+|ativ\w+)\s+(?:las?|as?|os?|el)?\s?(?:macros|contenido|conte[úu]do|edici[óo]n|edi[çc][ãa]o)\b|)"
     R"((?:启用宏|啟用巨集|启用内容|マクロを有効|コンテンツの有効化|매크로(?:를)?\s?(?:사용|활성화)))"); }),
     true},
    {"mal-disable-av", "Malware lure", "warn", 65,
     "asks the reader to switch off their antivirus or firewall",
     pattern([] { return std::string_view(
     R"(\b(?:disable|turn(?:ing)?\s+off|switch(?:ing)?\s+off|deactivate|disabling|uninstall|pause|whitelist\s+(?:it\s+|this\s+)?(?:in|from)|add\s+an\s+exception\s+(?:to|in)|ignore)\b<25>\b(?:anti-?virus|windows\s+defender|defender|firewall|real-?time\s+protection|anti-?malware|smart\s?screen|security\s+software|virus\s+(?:protection|scanner|warnings?)|gatekeeper)\b<80>\b(?:before|install\w*|run\w*|download\w*|open\w*|first|otherwise|false\s+positive|work\w*|so|temporarily|to|because|and|while|then)\b|)"
     R"(\b(?:antivirus|virenscanner|virenschutz|firewall|defender)\b<25>\b(?:deaktivieren|ausschalten|abschalten)\b|)"
     R"(\bdésactive[rz]\b<20>\b(?:antivirus|pare-feu|defender)\b|)"
     R"(\b(?:desactiv\w+|desativ\w+|deshabilit\w+|desabilit\w+)\b<20>\b(?:antivirus|antiv[íi]rus|firewall|cortafuegos|defender)\b|)"
     R"((?:关闭|關閉|禁用|停用)<8>(?:杀毒软件|防毒軟體|防火墙|防火牆|Defender)|)"
     R"((?:ウイルス対策|セキュリティ)ソフト<8>(?:無効|停止|オフ))"); }),
     true},
    {"mal-run-command", "Malware lure", "warn", 65,
     "tells the reader to paste and run a command",
     pattern([] { return std::string_view(
     R"(\b(?:press|hit|hold|open|use)\b<15>\b(?:win(?:dows)?(?:\s+key|\s+button)?\s?\+\s?r|windows\s+key\s+and\s+r|run\s+dialog|terminal|command\s+prompt|spotlight)\b<80>\b(?:paste|ctrl\s?\+\s?v|cmd\s?\+\s?v|type|enter|run|copy)\b|)"
     R"(\b(?:paste|copy\s+and\s+paste|copy)\b<40>\b(?:into|in|to)\b<15>\b(?:run\s+(?:box|dialog|window)|terminal|command\s+(?:prompt|line)|powershell|console|cmd|address\s+bar|developer\s+tools)\b<60>\b(?:press|hit|enter|run|verify|fix|human|robot|execute|continue)\b|)"
     R"(\bctrl\s?\+\s?v\b<30>\b(?:press|hit|enter|run)\b<40>\b(?:verif\w+|robot|human|captcha|run|windows|fix)\b|)"
     R"(\b(?:curl|wget)\b(?:\s+-[\w-]{1,20}){0,4}\s+["']?https?://[^\s|]{4,200}\s?\|\s?(?:sudo\s+)?(?:ba|z|da)?sh\b|)"
     R"(\b(?:mshta|certutil|bitsadmin|regsvr32|rundll32)\b(?:\.exe)?\b<20>(?:https?:|-urlcache|/transfer|javascript|scrobj)|)"
     R"(\b(?:win(?:dows)?-?taste|windows-taste)\s?\+\s?r\b<80>\b(?:einfügen|strg\s?\+\s?v|eingabe)\b|)"
     R"(\b(?:ba|z)?sh\s+<\(curl\b)"); }),
     true},
    {"mal-powershell", "Malware lure", "warn", 60,
     "contains an obfuscated or downloading PowerShell command",
     pattern([] { return std::string_view(
     R"(\bpowershell(?:\.exe)?\b[^\n]{0,60}?(?:-e(?:nc|ncodedcommand|c)?\b|-w(?:indowstyle)?\s?h(?:idden)?|-nop\b|-noprofile|-ep?\s+bypass|-exec(?:utionpolicy)?\s?bypass|iex\b|invoke-expression|downloadstring|downloadfile|frombase64string|invoke-webrequest|iwr\b|irm\b|start-bitstransfer)|)"
     R"(\b(?:iex|invoke-expression)\b\s?\(<20>\b(?:new-object|iwr|irm|invoke-webrequest|invoke-restmethod|net\.webclient)\b|)"
     R"(\b(?:irm|iwr|invoke-webrequest|invoke-restmethod)\b[^\n|]{0,200}?\|\s?(?:iex|invoke-expression)\b|)"
     R"(\bnew-object\s+(?:system\.)?net\.webclient\b)"); }),
     true},
    {"mal-password-archive", "Malware lure", "warn", 40,
     "sends a password-protected archive together with its password",
     pattern([] { return std::string_view(
     R"(\bsenha\s+(?:do\s+)?(?:pdf|anexo|arquivo)\b|)"
     R"(\b(?:zip|rar|7z|archive|iso|attachment|attached\s+(?:file|document)|file|download)\b<60>\b(?:password|passcode|pass|pwd)\b<15>(?:\bis\b|:|=|\bto\s+(?:open|extract|unzip)\b)<20>[A-Za-z0-9]{3,}|)"
     R"(\b(?:password|passcode|pwd)\b<25>\b(?:to|for)\b<8>\b(?:open|extract|unzip|unlock|access|the)\b<15>\b(?:zip|rar|7z|archive|attachment|attached\s+file|attached\s+document|iso)\b|)"
     R"(\b(?:archivkennwort|archivpasswort|zip-?passwort|passwort\s+(?:für|zum)\s+(?:das|den|die|öffnen)\b<20>\b(?:archiv|zip|anhang|datei))\b|)"
     R"(\bmot\s+de\s+passe\s+(?:de\s+l['’]archive|du\s+zip|pour\s+(?:ouvrir|extraire))\b|)"
     R"(\b(?:contraseña|senha)\s+(?:del?|do|para\s+(?:abrir|extraer|extrair))\s+(?:el\s+|o\s+)?(?:archivo|arquivo|zip|rar|anexo|adjunto)\b)"); }),
     true},
    {"mal-double-ext", "Malware lure", "warn", 45,
     "names a program disguised as a document",
     R"(\b[\w-]{1,80}\.(?:pdf|docx?|xlsx?|jpe?g|png|gif|txt|zip|mp4|html?|csv|pptx?|rtf)[._ ]{1,3}(?:exe|scr|js|vbs|bat|cmd|com|pif|jar|msi|lnk|hta|ps1|iso|img|wsf|apk|dll)\b|)"
     R"(\b[\w-]{1,80}\.(?:pdf|docx?|xlsx?|jpe?g)\.html?\b)",
     true},

    // ---- Job & goods fraud ---------------------------------------------------------------------
    {"job-overpayment", "Job & goods fraud", "warn", 50,
     "sends too much money and asks for the rest back",
     pattern([] { return std::string_view(
     R"(\b(?:sent|paid|transferred)\b<15>\btoo\s+much\b[\s\S]{0,60}\b(?:back|extra|difference|refund)\b|)"
     R"(\b(?:overpa(?:id|yment|y)|excess|extra\s+(?:money|funds|amount)|surplus|more\s+than\s+(?:the\s+)?(?:agreed|asking)|balance|remaining\s+(?:funds|money|balance)|remainder|difference)\b<80>\b(?:send|wire|refund|return|forward|transfer|pay|give|western\s+union|money\s?gram|zelle)\b<50>\b(?:back|difference|remaining|rest|balance|shipper|mover|agent|driver|vendor|courier|shipping\s+(?:company|agent))\b<60>\b(?:che(?:que|ck)|deposit|deducted?|bank|payment|pick\s?up|item|car|cash|western\s+union|money\s?gram|zelle|cashed|cleared?|you)\b|)"
     R"(\b(?:che(?:que|ck)|money\s+order|payment|cashier['’]?s\s+che(?:que|ck))\b<80>\b(?:deposit\w*|cash(?:ed)?|clear\w*)\b<80>\b(?:send|wire|refund|return|forward|transfer|western\s+union|zelle)\b<30>\b(?:back|difference|remaining|rest|balance|excess|shipper|mover|agent|remainder)\b|)"
     R"(\b(?:deduct|keep|take)\b<40>\b(?:your|the)\b<15>\b(?:(?:commission|salary|pay|wage|money|percentage|cost)\b|\d+\s?%)<60>\b(?:and|then)\b<15>\b(?:send|wire|transfer|forward|deposit|remit|western\s+union)\b|)"
     R"(\b(?:accidentally|mistakenly|by\s+mistake|in\s+error)\b<40>\b(?:sent|paid|transferred|deposited|refunded)\b<60>\b(?:back|return|refund|send|too\s+much|extra|difference)\b<30>\b(?:zelle|cash\s?app|venmo|gift|bitcoin|wire|western\s+union|paypal|transfer)\b|)"
     R"(\b(?:zu\s+viel|überzahl\w+|zuviel)\b<60>\b(?:überwiesen|bezahlt|scheck)\b<60>\b(?:zurück|differenz|rest|spediteur)\b|)"
     R"(\b(?:überweise?|zahle?|schicke?|scheck)\b<30>\b(?:mehr|zu\s+viel|zuviel)\b<60>\b(?:rest|differenz|überschuss)\b|)"
     R"(\b1\s+cent\b<40>\blink\b|)"
     R"(\bchèque\b<60>\b(?:gardez|part|reste|différence|reverse[rz])\b|)"
     R"(\bassegno\b<60>\b(?:maggiore|resto|differenza)\b|)"
     R"(\bcheque\b<60>\b(?:qu[ée]dese|resto|diferencia|m[áa]s\s+del\s+precio)\b|)"
     R"(\b(?:paguei|mandei|transferi|depositei)\b<25>\b(?:a\s+mais|por\s+engano|errado|valor\s+maior)\b<50>\b(?:devolv\w+|diferen[çc]a|estorn\w+)\b|)"
     R"(\b(?:перев[её]л\w?|отправил\w?)\b<15>\b(?:по\s+ошибке|случайно|лишн\w+)\b<30>\b(?:верните|вернуть|переведите)\b|)"
     R"((?:多[转轉付打]|[误誤][转轉]|[转轉][错錯])[\s\S]{0,16}(?:退|[还還]|差[额額])|)"
     R"((?:多く|間違えて)[\s\S]{0,6}(?:送金|振り?込)[\s\S]{0,16}(?:差額|返して|返金)|)"
     R"(인출[\s\S]{0,24}(?:직원|수사관)[\s\S]{0,6}전달|(?:실수로|잘못)[\s\S]{0,8}(?:더 ?보냈|송금했|입금했)[\s\S]{0,20}(?:차액|돌려|다시))"); }),
     true},
    {"job-no-interview", "Job & goods fraud", "warn", 35,
     "offers a job without any interview",
     pattern([] { return std::string_view(
     R"(\b(?:message|contact|add|text)\b<12>\b(?:my|our|the)\s+(?:manager|hr|assistant|recruiter|mentor)\b<15>\b(?:whatsapp|telegram|line)\b|)"
     R"(\b(?:no|without\s+(?:an?|any)|don['’]t\s+need\s+an?)\s+(?:\w+\s+)?(?:interview|experience|resume|cv|qualifications?|skills?)(?:s)?\s+(?:is\s+|are\s+)?(?:required|needed|necessary|necessary|process)\b|\bno\s+experience\b<40>\b(?:whats\s+?app|telegram)\b|\b(?:text|message|contact|write\s+to)\b<12>\b(?:manager|recruiter)\b<12>\b(?:whats\s+?app|telegram)\b|\b(?:wanted|hiring|looking\s+for|vacanc\w+|part-time|home\s+workers?|remote|side\s+job|work\s+from\s+home)\b[\s\S]{0,160}\b(?:whats\s+?app|telegram|zap)\b|)"
     R"(\b(?:hired|job|position|start)\b<40>\b(?:without|no)\b<10>\b(?:an?\s+)?(?:interview|experience|background\s+check)\b|)"
     R"(\b(?:interview|hiring|onboarding)\b<30>\b(?:via|through|on|over|conducted)\b<15>\b(?:whats\s?app|telegram|signal|google\s+(?:chat|hangouts)|hangouts|text\s+message|wire\s+app|skype\s+chat)\b|)"
     R"(\b(?:reviewed|found|received|saw|recommended)\b<20>\byour\s+(?:resume|cv|profile)\b<100>\b(?:part[- ]time|remote|online|flexible|whats\s?app|telegram|per\s+day|daily|salary|hour|work\s+from\s+home|earn)\b|)"
     R"(\b(?:hiring|recruit(?:er|ing|ment)|hr)\b<60>\b(?:whats\s?app|telegram)\b|)"
     R"(\b(?:keine\s+(?:erfahrung|vorkenntnisse|bewerbung|vorstellungsgespräch)|ohne\s+(?:erfahrung|vorkenntnisse|vorstellungsgespräch))\b<25>\b(?:nötig|erforderlich|notwendig|job|arbeit|verdien\w+)\b|)"
     R"(\bsans\s+(?:expérience|entretien|diplôme)\b<30>\b(?:emploi|travail|gagn\w+|job|requis\w*|poste)\b|)"
     R"(\b(?:suchen|gesucht|mitarbeiter|job|stelle|personalabteilung|recruiter|verdien\w+|nebenjob)\b[\s\S]{0,120}\b(?:whats\s?app|telegram|signal)\b|\bohne\s+(?:vor)?(?:erfahrung|kenntnisse)\b<40>\b(?:handy|smartphone|interesse|verdien\w+|euro)\b|\b(?:lebenslauf|profil|bewerbung)\b[\s\S]{0,160}\b(?:whats\s?app|telegram)\b|)"
     R"(\b(?:zoeken|thuiswerk\w*|werk|baan|verdien|vacature|personeel)\b[\s\S]{0,120}\b(?:whats\s?app|telegram)\b|\bgeen\s+ervaring\b<12>\b(?:nodig|vereist)\b|\b(?:profiel|cv)\b[\s\S]{0,160}\b(?:whats\s?app|telegram)\b|)"
     R"(\b(?:recrut\w+|emploi|travail|poste|agence|gagne[rz]|job)\b[\s\S]{0,120}\b(?:whats\s?app|telegram|signal)\b|)"
     R"(\b(?:cerchiamo|lavoro|collaboratori|guadagna|curriculum|assumiamo|personale|selezione)\b[\s\S]{0,120}\b(?:whats\s?app|telegram)\b|\bsenza\s+esperienza\b|\b(?:profilo|curriculum|cv)\b[\s\S]{0,160}\b(?:whats\s?app|telegram)\b|\b(?:risorse\s+umane|agenzia|selezione)\b[\s\S]{0,140}\b(?:whats\s+?app|telegram|signal)\b|)"
     R"(\b(?:buscamos|empleo|trabajo|trabajar|personal|vacante|gana|recursos\s+humanos|contratando)\b[\s\S]{0,120}\b(?:whats\s?app|telegram)\b|\bsin\s+experiencia\b|\b(?:perfil|curr[íi]culum|cv)\b[\s\S]{0,160}\b(?:whats\s?app|telegram)\b|)"
     R"(\b(?:vaga|vagas|emprego|trabalho|rh|ganhe|contratamos|contratando|renda\s+extra|recrut\w+)\b[\s\S]{0,120}\b(?:whats\s?app|telegram)\b|\bsem\s+experi[êe]ncia\b|\b(?:perfil|curr[íi]culo)\b[\s\S]{0,160}\b(?:whats\s?app|telegram)\b|\b(?:rh|recursos\s+humanos|ag[êe]ncia)\b[\s\S]{0,140}\b(?:whats\s+?app|telegram|signal)\b|)"
     R"(\b(?:подработк\w+|удал[её]нк\w+|удал[её]нн\w+|работа\s+(?:на\s+дому|онлайн)|дополнительн\w+\s+(?:доход\w*|заработ\w+)|набира\w+|ищем)\b[\s\S]{0,80}\b(?:лайк\w*|отзыв\w*|задани\w+|подписк\w+|wildberries|вайлдберриз|озон|маркетплейс\w*|с\s+телефона|без\s+опыта|просмотр\w*)\b[\s\S]{0,80}\b(?:руб\w*|\d+\s?р|₽|плат\w+|выплат\w+|заработ\w+|доход\w*)\b[\s\S]{0,80}\b(?:телеграм\w*|ватсап\w*|whats\s?app|telegram|напиш\w+|куратор\w*|в\s+лс|пополн\w+)\b|\b(?:подработка|вакансия|удал[её]нк\w+|сотрудник\w+)\b[\s\S]{0,100}\bпишите\s+в\s+(?:телеграм\w*|в(?:о|а)т[сц]ап\w*)\b|\bбез\s+опыта\b<30>\b(?:нужен\s+только\s+телефон|удал[её]нк\w+)\b|\b(?:отдела\s+кадров|hr)\b[\s\S]{0,100}\b(?:whats\s+?app|ватсап|телеграм\w*)\b|\b(?:нужны\s+люди|требуются)\b[\s\S]{0,80}\b(?:whats\s+?app|телеграм\w*|ватсап)\b|)"
     R"((?:招聘|兼[职職]|[诚誠]徵|急聘|招募)[\s\S]{0,40}(?:微信|QQ|LINE|Telegram|[电電]报|飛機|飞机)|(?:[无無]需|不需|免)[经經][验驗]|(?:[简簡][历歷]|履歷)[\s\S]{0,40}(?:加微信|加LINE|加QQ)|)"
     R"((?:副業|バイト|募集|仕事|作業|高収入)[\s\S]{0,50}(?:LINE|Telegram|テレグラム|シグナル)|(?:未経験OK|未経験可|経験不問)|履歴書[\s\S]{0,60}LINE|LINEを?追加|)"
     R"((?:알바|모집|구인|부업|채용)[\s\S]{0,50}(?:카톡|텔레그램|오픈 ?채팅|라인)|(?:경력|경험|학력) ?(?:무관|없이|필요 ?없)|이력서[\s\S]{0,60}(?:카톡|텔레그램|라인)|인사팀[\s\S]{0,50}카톡|급구[\s\S]{0,30}(?:카톡|라인|텔레)|)"
     R"(<taskjob>|)"
     R"(\bgeen\s+(?:ervaring|sollicitatie|diploma)\b<30>\b(?:nodig|vereist)\b|)"
     R"(\b(?:contact\w+|ajout\w+|écri\w+)\b<25>\b(?:whatsapp|telegram)\b|\baucune\s+expérience\b|)"
     R"(\b(?:contatt\w+|scriv\w+|aggiung\w+)\b<25>\b(?:whatsapp|telegram)\b<40>\b(?:lavor\w+|guadagn\w+|iniziare)\b|)"
     R"(\b(?:manda|chama|fala|envia)\b<15>\b(?:no|pelo)\s+(?:telegram|zap)\b|)"
     R"((?:加|添加)\s?(?:LINE|微信|V|TG)[\s\S]{0,8}(?:[报報]名|了解|[说說])|有[兴興]趣[\s\S]{0,6}(?:LINE|加)|)"
     R"(<chatjob>|)"
     R"(アシスタントに)"); }),
     true},
    {"job-work-from-home", "Job & goods fraud", "warn", 30,
     "promises easy money for work from home",
     pattern([] { return std::string_view(
     R"(\b(?:\d+\s+min\w*|an\s+hour|one\s+hour)\b<8>\b(?:a|per|each)\s+day\b|\b(?:like|rate|review|optimi[sz]\w+)\b<20>\b(?:videos?|hotels?|listings?|apps|restaurants|products)\b<50>(?:<amount>|\bper\s+day\b)|)"
     R"(\b(?:work(?:ing)?|jobs?|earn|income|business|position)\b<25>\b(?:from|at)\s+home\b<80>(?:\b(?:earn|income|per\s+(?:hour|day|week|month)|weekly|daily|easy|extra|money|guaranteed|no\s+experience)\b|<amount>)|\b(?:minutes|hours?|half\s+an\s+hour)\s+(?:a|per)\s+day\b<30>\b\d{2,}|\b(?:wanted|hiring|looking\s+for|vacanc\w+|part-time|home\s+workers?|remote|side\s+job|work\s+from\s+home)\b[^!?]{0,70}\b(?:up\s+to|earn\w*|salary|income|paid)\b[^!?]{0,8}\d[^!?]{0,15}\b(?:a\s+month|a\s+week|a\s+day|per\s+month|per\s+day|monthly|daily)\b|)"
     R"(\b(?:earn|make|making|earning|income\s+of|salary|get\s+paid)\b<25><amount><15>\b(?:per|a|an|every|each)\b\s+(?:hour|day|week|month)\b<80>\b(?:home|online|part[- ]time|remote\w*|spare\s+time|flexible|no\s+experience|phone|internet|easy|tasks?)\b|)"
     R"(\b(?:home|online|part[- ]time|remote\w*|spare\s+time|flexible|tasks?|from\s+anywhere)\b<80>\b(?:earn|make|salary|get\s+paid|income)\b<25><amount><15>\b(?:per|a|an|every|each|daily|weekly)\b|)"
     R"(\b(?:extra|additional|passive|second|residual|unlimited|easy)\s+(?:income|money|cash)\b<60>\b(?:home|online|part[- ]time|internet|spare\s+time|system|opportunity|month|week|start)\b|)"
     R"(\b(?:be\s+your\s+own\s+boss|quit\s+your\s+(?:day\s+)?job|fire\s+your\s+boss|home[- ]based\s+business|make\s+money\s+(?:online|fast|from\s+home))\b|)"
     R"(\b(?:like|liking|subscribe|rate|rating|review|optimi[sz]\w+|simple\s+(?:online\s+)?tasks)\b<40>\b(?:youtube|videos|hotels?|products|apps?|merchants?|google\s+maps?)\b<60>(?:\b(?:earn|paid|commission|daily|per|income|salary)|\$)\b|)"
     R"(\b(?:von\s+zu\s+hause|von\s+zuhause|nebenjob|nebenverdienst|heimarbeit)\b<60>\b(?:verdien\w+|einkommen|täglich|pro\s+(?:tag|woche|stunde)|geld\s+verdienen)\b|)"
     R"(\b(?:travail|travaille[rz]?|emploi|revenus?)\b<20>\b(?:à\s+domicile|depuis\s+(?:chez\s+vous|votre\s+domicile)|complémentaires?)\b<60>(?:\b(?:gagn\w+|euros?|par\s+(?:jour|mois|semaine)|facile)\b|€)|)"
     R"(\b(?:trabaj\w+|trabalh\w+|ingresos?|renda|gan\w+)\b<20>\b(?:desde\s+casa|em\s+casa|de\s+casa|en\s+l[íi]nea|online|extra)\b<60>\b(?:gan\w+|por\s+(?:d[íi]a|semana|mes|hora)|diari\w+|f[áa]cil)\b|)"
     R"((?:兼职|兼職|在家工作|刷单|刷單|居家赚钱|点赞)<25>(?:元|赚|賺|收入|工资|薪|佣金)|)"
     R"((?:在宅|副業|スマホだけ|簡単な作業)<25>(?:万円|稼げ|収入|日給|報酬)|)"
     R"((?:재택|부업|알바|단순\s?작업)<25>(?:만원|수익|수입|일당)|)"
     R"(\b(?:home-?office|zu\s+hause|zuhause|handy|smartphone|online)\b<80>(?:<amount>|\beuro)<20>\b(?:am\s+tag|pro\s+tag|täglich|die\s+stunde|pro\s+stunde|pro\s+woche|im\s+monat)\b|\bbis\s+zu\s+<amount><15>\b(?:am\s+tag|pro\s+tag|täglich|in\s+der\s+woche)\b|)"
     R"(\b(?:thuis\w*|telefoon|online|liken|video['’]?s)\b<60>(?:<amount>|\beuro\b)<15>\bper\s+(?:dag|uur|week|maand)\b|\bverdien\b<15>(?:\bgeld\b|<amount>)<50>\b(?:liken|video['’]?s|telefoon|thuis|uitbetaald)\b|\btot\s+(?:<amount>|\d+\s+euro)<8>\bper\s+(?:dag|week)\b|)"
     R"(\b(?:domicile|maison|téléphone|en\s+ligne|likant|likes?|vidéos?)\b<80>(?:<amount>|\beuros?\b)<15>\b(?:par\s+jour|par\s+heure|par\s+semaine|par\s+mois|/jour)\b|\b(?:gagne[rz]?|gagner)\b<15>(?:<amount>|\b\d+\s+euros?\b)<20>\bpar\s+(?:jour|heure|semaine)\b|\bjusqu['’]à\s+<amount><10>\b(?:la\s+journée|par\s+jour|le\s+jour|par\s+semaine)\b|)"
     R"(\b(?:da\s+casa|telefono|online|video|like)\b<60>(?:<amount>|\beuro\b)<15>\b(?:al\s+giorno|all['’]ora|a\s+settimana|al\s+mese)\b|\bguadagn\w+\b<30>\b(?:like|video|da\s+casa|online|<amount>)<60>\b(?:giornalier\w+|telefono|al\s+giorno|youtube|pagamento)\b|\bcurriculum\b<40>\b(?:aggiungimi|contattami|scrivimi)\b<20>\bwhats\s?app\b|\bfino\s+a\s+<amount><8>\b(?:al\s+giorno|a\s+settimana)\b|)"
     R"(\b(?:desde\s+casa|casa|tel[ée]fono|celular|en\s+l[íi]nea|videos?|me\s+gusta|online)\b<60>(?:<amount>|\b(?:euros?|d[óo]lares|pesos))\b<20>\b(?:al\s+d[íi]a|por\s+d[íi]a|diari\w+|por\s+(?:hora|semana|video|tarea))\b|\bgan[ae]\b<25>\b(?:dinero|<amount>)<60>\b(?:me\s+gusta|likes?|videos?|desde\s+casa|pago\s+diario|tareas)\b|\bme\s+gusta\b<25>\bdesde\s+casa\b|)"
     R"(\b(?:home\s+office|em\s+casa|celular|telem[óo]vel|v[íi]deos|online)\b<60>(?:<amount>|\b(?:reais|euros|r[$]))<30>\b(?:por\s+dia|ao\s+dia|di[áa]ri\w+|por\s+(?:hora|semana))\b|\bganhe\b<30>(?:<amount>|\br[$] ?\d+|\bdinheiro\b)<60>\b(?:por\s+dia|curtindo|v[íi]deos|celular|avaliando|di[áa]rio|em\s+casa)\b|)"
     R"(\b(?:удал[её]нк\w+|лайк\w+|маркетплейс\w*|подработк\w+)\b<80>\b(?:в\s+день|ежедневн\w+|в\s+час)\b|\b(?:получай|зарабатывай)\b<20>\bот\s+\d+\b<12>\bв\s+(?:день|час|неделю)\b|\bпростые\s+задания\b<40>\b(?:оплата|\d{4,})\b|\bзадани\w\b<60>\bдо\s+\d{4,}\s+в\s+(?:сутки|день)\b|\b(?:лайк\w*|отзыв\w*)\b[\s\S]{0,50}\bруб\w*\b<4>\bв\s+день\b|\bнужны\s+люди\b<40>\bв\s+месяц\b|)"
     R"((?:在家|居家|手[机機])[\s\S]{0,20}(?:日[赚賺薪结結]|每天|月入|[赚賺][钱錢])|日[赚賺薪][\s\S]{0,4}\d|(?:刷[单單]|点赞|點讚|[关關]注).{0,10}(?:日[结結]|佣金|[赚賺]|返)|[简簡][单單]任[务務]|(?:一天|每天|日)[\s\S]{0,2}[一二三四五六七八九\d][\s\S]{0,6}(?:元|百)[\s\S]{0,6}(?:[当當][晚天日]|日)[结結]|[当當]晚[结結]清|在家[\s\S]{0,16}(?:每月|日[结結]|每天)[\s\S]{0,4}(?:最高|[\d一二三四五六七八九十])|)"
     R"((?:副業|スマホだけ|在宅|いいね|高収入)[\s\S]{0,20}(?:日給|日払い|月収)[\s\S]{0,4}\d|運ぶだけ|いいねを押すだけ|簡単な作業|一日\d+万円|(?:いいね|スマホ)[\s\S]{0,14}だけ[\s\S]{0,16}(?:日給|日払い)|)"
     R"((?:재택|휴대폰|핸드폰|집에서|알바|고수익)[\s\S]{0,30}(?:일당|하루|건당|당일 ?지급|월 ?\d)|좋아요[\s\S]{0,8}누르|(?:집에서|재택)[\s\S]{0,20}(?:급구|모집|구인)[\s\S]{0,12}만 ?원|)"
     R"(\b(?:minuten|stunden)\s+(?:am\s+tag|täglich)\b<30>\b\d{2,}|)"
     R"(\b(?:minuten|uur)\s+per\s+dag\b<30>\b\d{2,}|)"
     R"(\b(?:minutos|horas)\s+por\s+dia\b<30>\b\d{2,}|)"
     R"(\b(?:suchen|gesucht|heimarbeit\w*|nebenjob|homeoffice|minijob)\b[^!?]{0,70}\b(?:verdienst|verdienen|bis\s+zu|bis|lohn)\b[^!?]{0,8}\d[^!?]{0,15}\b(?:im\s+monat|pro\s+(?:tag|woche|monat)|monatlich|täglich|am\s+tag)\b|)"
     R"(\b(?:gezocht|zoeken|thuiswerk\w*|bijbaan|vacature)\b[^!?]{0,70}\b(?:tot|verdien\w*|loon)\b[^!?]{0,8}\d[^!?]{0,15}\b(?:per\s+(?:maand|dag|week))\b|)"
     R"(\b(?:procuramos|procura-se|contratamos|vagas?|home\s+office|trabalho\s+em\s+casa|em\s+casa)\b[^!?]{0,70}\b(?:at[ée]|ganhe\w*|renda|sal[áa]rio)\b[^!?]{0,8}\d[^!?]{0,15}\b(?:por\s+(?:m[êe]s|dia|semana)|mensais)\b|)"
     R"(<taskjob>|)"
     R"(\bbijverdienen\b<60>\b(?:rekening|pas|app|snap|telegram|cash)\b|\bper\s+(?:like|taak|review)\b|)"
     R"(\b(?:par\s+(?:like|tâche|avis|vidéo)|\d+\s*min\w*\s+par\s+jour|quotidiens?)\b|)"
     R"(\b(?:gostos|likes|curtid\w+|avalia[çc][õo]es)\b<30>\b(?:reels|v[íi]deos|print|pag\w+|ganh\w+)\b|)"
     R"(\b(?:скину|напиши)\b<10>\b(?:куратор\w*)\b|)"
     R"((?:[冲衝刷]|[点點])[\s\S]{0,4}(?:[评評][价價]|[赞讚]|[单單]|好[评評])[\s\S]{0,20}(?:[领領]|元|佣金|[结結])|日[领領]\s?\d|)"
     R"((?:いいね|スクショ|レビュー)[\s\S]{0,16}(?:だけ|円|稼)|1件\d+円|)"
     R"(<chatjob>|)"
     R"(하루[\s\S]{0,6}분[\s\S]{0,16}(?:수입|수당|만원|일급))"); }),
     true},
    {"job-mystery-shopper", "Job & goods fraud", "warn", 45,
     "recruits mystery shoppers or car-advert drivers",
     pattern([] { return std::string_view(
     R"(\b(?:mystery|secret)\s+(?:shopp(?:er|ers|ing)|evaluator|customer|store\s+evaluation)\b<150>(?:\b(?:paid|earn|che(?:que|ck)|assignment|gift\s+cards?|western\s+union|money\s?gram|apply|per|hired|position|program|weekly|task|survey|sign)|\$)\b|)"
     R"(\b(?:paid|earn|assignment|position|hiring|recruit\w*|become)\b<60>\b(?:mystery|secret)\s+(?:shopp(?:er|ers|ing)|evaluator)\b|)"
     R"(\b(?:car|vehicle|auto|truck|bike)\b<15>\b(?:wrap|wrapped|advert\w*|decal|sticker)\b<80>(?:<amount>|\b(?:paid|earn|weekly|per\s+week|week|che(?:que|ck)))\b|)"
     R"(\b(?:evaluat\w+|assess)\b<30>\b(?:western\s+union|money\s?gram|walmart|best\s+buy|store)\b<60>\b(?:che(?:que|ck)|gift\s+cards?|transfer|assignment|paid|report)\b|)"
     R"(\b(?:testkäufer|mystery\s?shopper|testkauf)\b<60>(?:\b(?:verdien\w+|euro|bezahlt|gesucht)\b|€)|)"
     R"(\b(?:client[e]?s?\s+myst[èe]re|comprador(?:es)?\s+misterioso|cliente\s+(?:misterioso|oculto))\b<60>(?:\b(?:pay\w+|gan\w+|rémun\w+|pag\w+)\b|<amount>))"); }),
     true},
    {"job-money-mule", "Job & goods fraud", "warn", 60,
     "recruits somebody to pass money or goods on through their own account",
     pattern([] { return std::string_view(
     R"(\b(?:receiv\w+|accept\w*|process\w*|collect\w*)\b<30>\b(?:payments?|funds|money|transfers?|deposits?|che(?:ques|cks))\b<60>\b(?:your|personal|own)\b<15>\b(?:bank\s+)?(?:account|paypal|zelle|cash\s?app)\b<100>\b(?:(?:forward|transfer|send|keep|commission|percent|convert|remit|withdraw|pass)\b|\d+\s?%)|\b(?:difference|rest|extra)\b<30>\b(?:movers?|carrier|driver|courier|shipper)\b|)"
     R"(\b(?:forward|transfer|send|withdraw|remit|wire)\b<50>\b(?:rest|remaining|balance|remainder|money|funds|bitcoin)\b<60>\b(?:keep|retain|minus|less|deduct\w*)\b<25>\b(?:(?:commission|percent|your\s+(?:share|cut|fee|pay))\b|\d+\s?%)|)"
     R"(\b(?:keep|retain|take|earn|get|receive)\b<15>\b\d{1,2}\s?(?:%|percent\b)<40>\b(?:of\s+(?:each|every|the|all)|commission|per|as)\b<30>\b(?:transfer|transaction|payment|amount|deposit|funds|money|che(?:que|ck)|total)\b<80>\b(?:account|forward|bank|client|customer|send|rest|balance|you)\b|)"
     R"(\b(?:payment|financial|transfer|collection|accounts?\s+receivable|money|representative)\s+(?:processing\s+)?(?:agent|representative|officer|manager|assistant|clerk)\b<100>\b(?:(?:commission|your\s+(?:bank\s+)?account|work\s+from\s+home|percent|receive\s+payments?|north\s+america|part[- ]time|company['’]s\s+behalf|che(?:ques|cks))\b|\d+\s?%)|)"
     R"(\b(?:company|firm)['’]?s?\s+(?:representative|rep|agent)\b<60>\b(?:receive|collect|process)\b<40>\b(?:payments?|che(?:ques|cks)|funds)\b|)"
     R"(\b(?:receive|re-?ship|forward|repackage|inspect)\b<30>\b(?:packages?|parcels?|goods)\b<40>\b(?:at|to|from)\s+(?:your|their)\s+(?:home|address|house)\b<80>\b(?:re-?ship\w*|forward\w*|label\w*|paid|salary|job|per\s+(?:package|parcel)|earn|work)\b|)"
     R"(\b(?:finanzagent|warenagent|paketagent|zahlungsagent)\b|)"
     R"(\b(?:geld|zahlungen|beträge)\b<40>\b(?:ihr|ihrem|dein|deinem)\s+konto\b<60>\b(?:weiterleiten|weiterüberweisen|provision|prozent|behalten)\b|)"
     R"(\b(?:recevoir|recevez|reciba|recibir|receber|receba)\b<40>\b(?:paiements?|virements?|pagos?|pagamentos?|transfer[êe]ncias?|transferencias?)\b<60>\b(?:(?:commission|comisi[óo]n|comiss[ãa]o)\b|\d+\s?%)|)"
     R"((?:出租|出售|收购|收購|借用)<8>(?:银行卡|銀行卡|银行账户|支付宝|微信号)|)"
     R"((?:口座|通帳|キャッシュカード)<10>(?:買取|売って|譲渡|貸して)|)"
     R"((?:통장|계좌|체크카드)<8>(?:대여|삽니다|매입|임대|빌려)|)"
     R"(\b(?:behalten|gebe?n?|abziehen)\b<40>\b(?:anteil|rest|provision|differenz)\b<50>\b(?:spediteur|transporteur|western\s+union|weiter\w*|fahrer|bitcoin)\b|\b(?:überweise?|zahle?|schicke?)\b<30>\bmehr\b<60>\b(?:rest|differenz)\b|)"
     R"(\b(?:garde[rz]|gardez)\b<20>\b(?:votre|ta)\s+(?:part|commission)\b<40>\b(?:reverse[rz]|envoye[rz]|transfér\w+|reste)\b|\b(?:différence|surplus|reste)\b<30>\b(?:transporteur|livreur|déménageur)\b|)"
     R"(\b(?:trattenga|tieni|trattieni|tenga)\b<20>\b(?:parte|commissione|percentuale)\b<40>\b(?:resto|vers(?!ion|us|es?\b|atil)\w+|invi(?!t|sib|nc|gor)\w+|trasferisc\w+)\b|)"
     R"(\b(?:diferencia|resto|sobrante)\b<30>\b(?:transportista|repartidor|conductor)\b|)"
     R"(\b(?:получать|принимать)\b<15>\bпереводы\b<30>\b(?:снимать|обналич\w+|переводить|процент)\b|\bнужны\s+люди\s+с\s+картами\b|\b(?:купим|сдай|аренда)\s+(?:вашу\s+)?карт[уы]\b|\bразницу\b<20>\b(?:водител\w+|перевозчик\w+|грузчик\w+)\b|)"
     R"((?:高[价價])?(?:收[购購]|收(?!款|到|取)|出租|租借)[\s\S]{0,4}(?:[银銀]行卡|手[机機]卡|[电電][话話]卡|存摺|提款卡|[账賬帐帳][户戶])|多出来的[钱錢][\s\S]{0,4}[付给給转轉]|)"
     R"((?:銀行)?口座[\s\S]{0,6}(?:買い取|売って|貸して|譲)|荷物を受け取って運ぶ|身分証を送って|差額を[\s\S]{0,6}(?:業者|運転手)|)"
     R"((?:현금|돈)[\s\S]{0,4}(?:전달|수거|인출)[\s\S]{0,16}(?:건당|당일|일당|지급)|(?:통장|체크카드|계좌)[\s\S]{0,12}(?:빌려|대여|임대|삽니다)|남는 ?금액[\s\S]{0,4}(?:기사|전달)|)"
     R"(\b(?:verschil|rest)\b<30>\b(?:transporteur|chauffeur|koerier|verhuizer)\b|)"
     R"(\b(?:differenza|resto)\b<30>\b(?:trasportatore|corriere|autista)\b)"); }),
     true},
    {"job-upfront-fee", "Job & goods fraud", "warn", 40,
     "asks an applicant or buyer to pay before anything is delivered",
     pattern([] { return std::string_view(
     R"(\b(?:pay|send|transfer|wire|deposit)\b<40>\b(?:before|to\s+(?:hold|secure|reserve)|upfront|in\s+advance)\b<30>\b(?:view\w*|keys?|flat|room|house|apartment|item|ship\w*|post|delivery)\b|\bkeys?\b<40>\b(?:courier|letterbox|lockbox|airbnb)\b|\bpaypal\s+(?:friends|f&f)\b|)"
     R"(\b(?:deposit|bond|first\s+month|holding\s+fee)\b<25>\b(?:tonight|into\s+my)\b|\b(?:friends\s+(?:&|and)\s+family|bank\s+transfer|zelle|venmo|cash\s?app)\b<20>\b(?:first|only|now|upfront|before)\b|)"
     R"(\bloans?\b<60>\b(?:no\s+credit\s+check|no\s+collateral|bad\s+credit|without\s+collateral|guaranteed\s+approval|any\s+credit)\b|\b(?:deposit|first\s+month['’]?s?\s+rent)\b<60>\b(?:mail|post|ship|send|courier)\b<12>\b(?:you\s+)?the\s+keys\b|\b(?:working|living|moved)\s+abroad\b[\s\S]{0,80}\b(?:deposit|keys|rent)\b|\b(?:insurance|processing|legal)\s+fees?\s+(?:is|are)\s+paid\s+(?:up\s+?front|first|in\s+advance)\b|\b(?:posted\s+to|abroad|transferred\s+to|working\s+in)\b[\s\S]{0,80}\b(?:deposit)\b|)"
     R"(\b(?:pay|send|transfer|deposit|cover|fee\s+of|payment\s+of)\b<40>\b(?:registration|training|application|background\s+check|visa|processing|equipment|starter\s+kit|onboarding|certification|uniform|holding|security|refundable|work\s+permit|insurance|membership|booking|reservation)\s+(?:fees?|costs?|deposit|charges?|kit)\b<80>\b(?:job|position|employment|start|hired|work|offer|apply|application|secure|before|apartment|keys|rent|viewing|loan|interview|property|refund\w*|puppy|delivery)\b|\b(?:deposit|payment|fee)\b<30>\b(?:before|prior\s+to|to\s+(?:secure|hold|reserve))\b<20>\b(?:viewing|keys|see(?:ing)?\s+the\s+(?:apartment|house|property)|the\s+(?:apartment|house|property|job|position|puppy|car|loan|visa))\b|)"
     R"(\b(?:job|position|employment|hired|offer|apartment|rental|house|property|loan|puppy|vehicle|landlord|keys|rent)\b<80>\b(?:pay|send|transfer|deposit|requires?|need)\b<40>\b(?:registration|training|application|background\s+check|visa|processing|equipment|starter\s+kit|security|refundable|work\s+permit|holding|insurance|first\s+month['’]s|upfront|booking|reservation)\s+(?:fees?|costs?|deposit|charges?|rent|payment|kit)\b|)"
     R"(\b(?:keys?|apartment|house|property)\b<60>\b(?:abroad|out\s+of\s+(?:the\s+)?(?:country|town|state)|overseas|missionary|mail(?:ed)?\s+(?:you|to\s+you)\s+the\s+keys)\b<80>\b(?:deposit|rent|payment|keys|western\s+union|transfer)\b|)"
     R"(\b(?:loan|kredit|darlehen|prêt|pr[ée]stamo|empr[ée]stimo|cr[ée]dito)\b<60>\b(?:\d+(?:[.,]\d+)?\s?%|(?:no\s+collateral|no\s+credit\s+check|without\s+collateral|bad\s+credit|any\s+amount|interest\s+rate|apply\s+(?:now|today)|ohne\s+schufa|sans\s+justificatif|sin\s+aval|sem\s+consulta|pr[ée]-?aprovad\w+|liberad[oa])\b)|)"
     R"(\b(?:vorkasse|vorauszahlung|kaution)\b<60>\b(?:schlüssel|wohnung|ausland|besichtigung|stelle|job)\b|)"
     R"(\b(?:caution|acompte|mandat\s+cash)\b<60>\b(?:clés|appartement|logement|visite|étranger)\b|)"
     R"(\b(?:kredit|darlehen|geld\s+leihen|privatkredit)\w*\b<60>\b(?:ohne\s+(?:schufa|bonität\w*|sicherheit\w*)|keine?\s+(?:schufa|sicherheiten|bonität\w*)|sofort\w*|zinsen|\d+\s?%|private[rnm]?)\b|\b(?:geldgeber|kreditgeber|darlehensgeber)\b<60>\b(?:kredit|darlehen|zinsen|person\w*|vergebe)\b|\b(?:kaution|anzahlung|erste\s+miete|miete)\b[\s\S]{0,100}\b(?:schlüssel|besichtigung|ausland|airbnb)\b[\s\S]{0,60}\b(?:post|kurier|ausland|airbnb|london|england|erhalten|schick\w*|nicht\s+möglich|überweis\w*)\b|\b(?:besichtigung|wohnung)\b[\s\S]{0,80}\b(?:im\s+ausland|in\s+london|in\s+england|beruflich)\b[\s\S]{0,120}\b(?:kaution|anzahlung|miete)\b|\b(?:schufa|bonität|kreditwürdig\w*)\b[\s\S]{0,80}\b(?:zahlen\s+\w+\s+aus|auszahl\w+|sofort|minuten|kredit|darlehen|ohne\s+papier\w*)\b|\b(?:auszahl\w+|zahlen\s+(?:wir\s+)?<20>aus|kredit|darlehen)\b[\s\S]{0,60}\b(?:negativer?\s+schufa|trotz\s+schufa|ohne\s+schufa|papierkram)\b|\b(?:booking|airbnb)\b[\s\S]{0,80}\bkaution\b|\bverleihe?\b<40>(?:<amount>|\bzinsen\b)|\b(?:kredit|darlehen|finanzieren|geld\s+leihen)\b[\s\S]{0,60}\b(?:negative\w*\s+schufa|trotzdem|ohne\s+bürgen|zusage\s+in|innerhalb\s+von\s+\d+\s+(?:stunden|minuten))\b|\b(?:beruflich\s+in|versetzt\s+nach|im\s+ausland|arbeite\s+in)\b[\s\S]{0,80}\b(?:kaution)\b|)"
     R"(\bgeldschieter\b|\b(?:borg|maand\s+huur|aanbetaling)\b[\s\S]{0,100}\b(?:buitenland|sleutels?|airbnb|bezichtiging)\b|\b(?:woning|appartement|kamer|bezichtiging)\b[\s\S]{0,80}\b(?:buitenland|vooraf)\b[\s\S]{0,100}\b(?:borg|huur|sleutels?)\b|\bbkr\b[\s\S]{0,100}\b(?:financier\w+|lening\w*|lenen|krediet\w*|uur|papieren)\b|\bborg\b[\s\S]{0,60}\bsleutels\b<30>\b(?:koerier|post|booking|airbnb)\b|\b(?:booking|airbnb)\b[\s\S]{0,80}\bborg\b|\b(?:lening|krediet|geld\s+lenen)\b[\s\S]{0,60}\b(?:bkr\w*|geen\s+borg|geen\s+garantsteller|binnen\s+\d+\s+(?:uur|minuten))\b|)"
     R"(\b(?:prêts?|crédits?)\b<50>\b(?:entre\s+particuliers?|particulier|sans\s+justificatif|sans\s+garantie|interdit\s+bancaire|rapide|taux|toute\s+personne|\d+\s?%)|\binterdits?\s+bancaires?\b|\bparticulier\b<30>\b(?:octroie|offre|accorde|prête)\b<30>\b(?:prêts?|crédits?|argent)\b|\b(?:caution|acompte|premier\s+mois|loyer)\b[\s\S]{0,100}\b(?:étranger|clés|clefs|airbnb|mission|angleterre)\b|\b(?:appartement|logement|maison|visite)\b[\s\S]{0,80}\b(?:étranger|angleterre|mission)\b[\s\S]{0,100}\b(?:caution|acompte|verse\w*|mandat|loyer)\b|\b(?:fiché|banque\s+de\s+france|ficp|interdit\s+bancaire)\b[\s\S]{0,100}\b(?:finan\w+|prêt\w*|crédit\w*|sans\s+enquête|heures?|h)\b|\b(?:caution|dépôt)\b[\s\S]{0,60}\bclés\b<30>\b(?:coursier|courrier|poste|booking|airbnb|arrivent)\b|\b(?:booking|airbnb)\b[\s\S]{0,80}\b(?:caution|dépôt)\b|\b(?:prêt|crédit|besoin\s+d[\'’]argent|financement)\b[\s\S]{0,80}\b(?:malgré\s+(?:vos\s+|des\s+)?dettes|sans\s+(?:papiers|documents|justificatifs?)|versement\s+(?:aujourd|immédiat))\b|)"
     R"(\bprestit[io]\b<60>\b(?:senza\s+(?:busta\s+paga|garanzie)|veloc[ei]|cattivi\s+pagatori|privato|persone\s+serie|al\s+\d|\d+\s?%|protestati)\b|\b(?:privato)\b<15>\boffr\w+\s+prestiti\b|\b(?:caparra|mensilità|acconto|deposito)\b[\s\S]{0,100}\b(?:estero|chiavi|airbnb|corriere)\b|\b(?:appartamento|stanza|casa)\b[\s\S]{0,60}\bestero\b[\s\S]{0,100}\b(?:caparra|chiavi|bonifico)\b|\b(?:crif|protestat[oi]|cattiv[oi]\s+pagator[ei]|segnalat[oi])\b[\s\S]{0,100}\b(?:finanzi\w+|prestit\w+|ore|scartoffie)\b|\bcaparra\b[\s\S]{0,60}\bchiavi\b<30>\b(?:corriere|posta|booking|airbnb|arrivano)\b|\b(?:booking|airbnb)\b[\s\S]{0,80}\bcaparra\b|\bprestiti?\s+tra\s+privati\b|)"
     R"(\b(?:pr[ée]stamos?|cr[ée]ditos?)\b<60>\b(?:sin\s+(?:aval|bur[óo]|garant[íi]a|requisitos)|r[áa]pidos?|inmediat\w+|prestamista|particular|personas\s+serias|al\s+\d)\b|\bprestamista\b<30>\b(?:particular|privado|ofrezco)\b|\b(?:fianza|dep[óo]sito|mes\s+por\s+adelantado|anticipo|apartar)\b[\s\S]{0,100}\b(?:extranjero|airbnb|mensajer[íi]a|antes\s+de\s+ver)\b|\b(?:fianza|dep[óo]sito)\b[\s\S]{0,60}\bllaves\b<30>\b(?:mensajer\w+|correo|booking|airbnb|llegan)\b|\b(?:booking|airbnb)\b[\s\S]{0,80}\b(?:fianza|dep[óo]sito)\b|\b(?:destinado\s+en|en\s+el\s+extranjero|trabajo\s+en|trasladado\s+a)\b[\s\S]{0,80}\b(?:fianza|dep[óo]sito|dos\s+meses)\b|)"
     R"(\b(?:empr[ée]stimos?|cr[ée]dito)\b<60>\b(?:negativado|sem\s+consulta|sem\s+garantias?|na\s+hora|particular|juros|spc|serasa|imediat\w+)\b|\b(?:cau[çc][ãa]o|m[êe]s\s+adiantado|sinal|dep[óo]sito)\b[\s\S]{0,100}\b(?:exterior|estrangeiro|airbnb|correio)\b|\b(?:cau[çc][ãa]o|dep[óo]sito)\b[\s\S]{0,60}\bchaves\b<30>\b(?:courier|correio|motoboy|booking|airbnb|chegam)\b|\b(?:booking|airbnb)\b[\s\S]{0,80}\b(?:cau[çc][ãa]o|dep[óo]sito)\b|\b(?:cau[çc][ãa]o|renda|aluguel)\b[\s\S]{0,100}\bchaves\b<20>\b(?:dhl|ctt|sedex|correios?|transportadora)\b|)"
     R"(\b(?:деньги\s+в\s+долг|дам\s+в\s+долг|даст\s+в\s+долг|займ\w?|кредит)\b<50>\b(?:без\s+отказа|без\s+залога|без\s+поручителей|плох\w+\s+кредитн\w+|без\s+предоплат\w+|без\s+справок|частный\s+инвестор|под\s+\d)\b|\bчастный\s+(?:инвестор|кредитор|займ)\b|\b(?:залог|предоплат\w+|аванс)\b[\s\S]{0,80}\b(?:отправлю\s+ключи|за\s+границей|до\s+просмотра)\b|\b(?:за\s+границей|до\s+просмотра)\b[\s\S]{0,80}\b(?:залог|предоплат\w+)\b|\b(?:booking|airbnb)\b[\s\S]{0,60}\bзалог\b|\bвнесите\s+(?:предоплату|залог)\b|)"
     R"((?:急用[钱錢]|[贷貸]款)[\s\S]{0,20}(?:[凭憑]身份[证證]|利息低|放款快|手[续續][简簡][单單]|利率低)|[凭憑]身份[证證][\s\S]{0,6}(?:即可)?(?:[办辦]理|[贷貸])|(?:[贷貸]款|借[款钱錢]|融[资資]|[额額]度)[\s\S]{0,20}(?:[无無]抵押|免抵押|[无無][担擔]保|免[担擔]保|[当當]天放款|秒[到批]|黑[户戶]|不看征信|[审審]批通[过過])|(?:[无無]抵押|[无無][担擔]保|黑[户戶]|秒到[账賬]|[当當]天放款)|(?:押金|[订訂定]金)[\s\S]{0,30}(?:[国國]外|[钥鑰]匙.{0,4}(?:快[递遞]|寄)|看房前)|(?:[国國]外|看房前)[\s\S]{0,24}(?:押金|[订訂定]金)|(?:征信|徵信)[\s\S]{0,6}(?:花了|不好|黑|有逾期)[\s\S]{0,20}(?:下款|放款|可[办辦]|[贷貸])|(?:半小[时時]|分[钟鐘]|秒)下款|(?:先交|只需先)[\s\S]{0,10}[费費]|(?:国外|國外|外地)[\s\S]{0,12}(?:定金|押金)|)"
     R"((?:融資|貸付|借り|ローン)[\s\S]{0,24}(?:無担保|保証人不要|ブラックOK|審査なし|即日|誰でも|先に保証金)|(?:無担保|審査なし|ブラックOK|即日融資)|(?:敷金|予約金|前家賃)[\s\S]{0,30}(?:鍵を|海外|内見の前)|(?:海外|内見の前)[\s\S]{0,24}(?:敷金|予約金|前家賃)|個人間?融資|(?:融資|お?振込み?)[\s\S]{0,16}(?:口座開設費|保証料|先に|まず)|借金があっても|)"
     R"((?:보증 ?보험료|선수금|공탁금|예치금)[\s\S]{0,16}(?:입금|납부)[\s\S]{0,12}(?:한도|대출|승인)|기존 ?대출[\s\S]{0,14}상환[\s\S]{0,20}(?:신용|승인|한도)|대출[\s\S]{0,30}(?:무담보|무보증|저금리|당일|신용 ?등급|승인|대환|정부 ?지원)|(?:무담보|저금리|정부 ?지원|무직자)[\s\S]{0,10}대출|(?:보증금|예약금|계약금)[\s\S]{0,30}(?:택배|해외|보시기 ?전|보기 ?전)|(?:해외|보시기 ?전|보기 ?전)[\s\S]{0,24}(?:보증금|예약금|계약금)|신용 ?불량[\s\S]{0,24}(?:가능|지급|대출|분이면)|서류 ?없이[\s\S]{0,8}(?:지급|대출|가능|바로)|신용이 ?낮아도|)"
     R"(<lender>|)"
     R"(<sidedeal>|)"
     R"(\b(?:vorkasse|reservierung|anzahlung|kaution)\b<40>\b(?:paypal|freunde|zuerst|vorher|vorab|schickt?|konto|überweis\w*)\b|)"
     R"(\b(?:borg|aanbetaling|reservering\w*|waarborg)\b<40>\b(?:vooraf|eerst|tikkie|overmaken|sleutels?|vandaag)\b|\bverzenden\s+na\s+betaling\b|)"
     R"(\b(?:caution|acompte|arrhes|premier\s+mois|réservation)\b<40>\b(?:d['’]abord|avant|vir\w+|réserv\w+|mandat|pcs|transcash)\b|\b(?:d['’]abord|avant)\b<12>\b(?:virer|verser|payer|régler)\b|\b(?:paypal|paiement)\b<15>\bentre\s+proches\b|)"
     R"(\b(?:caparra|acconto|anticipo|cauzione)\b<40>\b(?:postepay|entro|stasera|subito|bonifico|prima|ricarica)\b|)"
     R"((?:\b(?:fianza|dep[óo]sito|anticipo|se[ñn]al)\b|50\s?%)<40>\b(?:aparto|apart\w+|reserv\w+|transferencia|bizum|adelantad\w+|primero|antes)\b|\bantes\s+tiene\s+que\s+ingresar\b|\b(?:llaves)\b<40>\b(?:mensajer\w+|correo|buz[óo]n|env[íi]o|paqueter[íi]a)\b|)"
     R"(\b(?:сда[юё]\w*|сдам|квартир\w+|студи\w+|комнат\w+|аренд\w+|жиль\w+|однушк\w+|двушк\w+)\b[\s\S]{0,90}\b(?:уехал\w*|за\s+границ\w+|в\s+другом\s+городе|желающ\w+|очередь|без\s+просмотра|командировк\w+|до\s+просмотра|показать\s+не|заброн\w+|бронь\w*|придержать)\b[\s\S]{0,90}\b(?:предоплат\w+|залог\w*|депозит\w*|задат\w+|первый\s+месяц|перевед\w+|аванс\w*)\b|\b(?:сда[юё]\w*|сдам|квартир\w+|студи\w+|комнат\w+|аренд\w+|жиль\w+|однушк\w+|двушк\w+)\b[\s\S]{0,90}\b(?:предоплат\w+|залог\w*|депозит\w*|задат\w+|первый\s+месяц|перевед\w+|аванс\w*)\b[\s\S]{0,90}\b(?:ключ\w*\s+(?:\w+\s+){0,2}(?:отправ\w+|курьер\w*|вышлю|почтой|посылкой)|по\s+(?:моей\s+)?ссылке|до\s+просмотра|за\s+границ\w+|ключики)\b|\b(?:залог|предоплат\w+|бронь)\b<40>\b(?:на\s+карту|через|по\s+моей|ссылк\w+|сначала|сниму|ключ\w+)\b|)"
     R"((?:定金|[订訂]金|押金|保留[费費])[\s\S]{0,16}(?:留|先[付交转轉]|微信|看房)|先[转轉付][\s\S]{0,6}(?:再|就)[\s\S]{0,4}(?:[发發][货貨]|寄|看房)|)"
     R"((?:手付金|敷金|前金|予約金|保証金)[\s\S]{0,14}(?:先に|送って|振り?込|PayPay)|)"
     R"((?:가계약금|예약금|보증금|계약금|선금)[\s\S]{0,16}(?:먼저|입금|보내|송금)[\s\S]{0,10}(?:시면|주시|분께|하면|해야)|(?:열쇠|키|비밀번호)[\s\S]{0,8}(?:택배|우편|문자로)|(?:먼저|미리)[\s\S]{0,8}(?:입금|송금|보내)[\s\S]{0,10}(?:잡아|예약|빼|드릴)|)"
     R"(\b(?:schlüssel)\b<40>\b(?:post|kurier|briefkasten|versand|ups|dhl|schick\w*)\b|\b(?:zahl|überweis|schick)\w*\b<30>\b(?:reservier\w+|zurücklegen|freihalten|zurückhalte\w*)\b|\bnur\s+vorkasse\b|)"
     R"(\b(?:sleutels?)\b<40>\b(?:post|koerier|brievenbus|opsturen|dhl)\b|\b(?:betaal\w*|overmak\w*|stort\w*)\b<30>\b(?:reserveren|vasthouden|vrijhouden)\b|)"
     R"(\b(?:clés?|clefs?)\b<40>\b(?:poste|courrier|colis|boîte|chronopost|dhl|coursier)\b|\b(?:vir\w+|vers\w+|pay\w+)\b<30>\b(?:réserver|bloquer|garder|retenir)\b|)"
     R"(\b(?:chiavi)\b<40>\b(?:posta|corriere|spedi\w+|cassetta)\b|\b(?:bonifico|vers\w+)\b<30>\b(?:bloccar\w+|riservar\w+|tenere)\b|)"
     R"(\b(?:chaves)\b<40>\b(?:correio\w*|estafeta|transportadora|sedex|envio|caixa)\b|\b(?:transfer\w+|deposit\w+|pix)\b<30>\b(?:reserv\w+|segur\w+|guard\w+)\b|)"
     R"([钥鑰]匙[\s\S]{0,8}(?:快[递遞]|寄|[邮郵])|(?:先|只要)[\s\S]{0,4}(?:[转轉]|付|交)[\s\S]{0,8}(?:[给給]你留|保留|[预預][订訂定])|)"
     R"(<keysbypost>|)"
     R"(<buyerfraud>|)"
     R"(鍵[\s\S]{0,8}(?:郵送|宅配|送り|ポスト)|(?:先に|事前に)[\s\S]{0,8}(?:送って|払って|入金)[\s\S]{0,10}(?:押さえ|確保|キープ))"); }),
     true},

    // ---- Romance fraud -------------------------------------------------------------------------
    {"rom-love-fast", "Romance fraud", "warn", 35,
     "declares love to somebody hardly known",
     pattern([] { return std::string_view(
     R"(\b(?:love|adore|need|want)\s+you\b<40>\b(?:days|weeks|although|even\s+though|already|since\s+the\s+first|only\s+just)\b|\b(?:after|in)\s+(?:just\s+|only\s+)?(?:\w+\s+)?(?:days|weeks|chats|messages)\b<40>\b(?:love|marry|soul\s?mate|heart|wife|husband)\b|\bmade\s+for\s+each\s+other\b|)"
     R"(\b(?:nice\s+to\s+(?:meet|know)\s+you\s+anyway|since\s+we(?:['’]re|\s+are)\s+(?:talking|chatting)|make\s+(?:a\s+)?new\s+friends?|let['’]s\s+be\s+friends|meant\s+to\s+meet|happy\s+accident|lovely\s+(?:profile|picture)|can\s+we\s+(?:be\s+friends|chat|keep\s+talking)|destiny|you(?:r|['’]re)\s+(?:such\s+a\s+)?(?:polite|sweet|kind)\s+(?:person|man|woman|reply|soul)|never\s+felt\s+(?:this|so)|future\s+(?:wife|husband)|start\s+our\s+life|counting\s+the\s+days)\b|)"
     R"(\b(?:(?:you|u)\s+seem\s+(?:\w+\s+){0,2}(?:kind|nice|friendly|lovely)|(?:it['’]?s|maybe|must\s+be|was|well)\s+(?:it['’]?s\s+)?fate\b|may\s+i\s+(?:ask|know)\s+your\s+name|where\s+are\s+(?:you|u)\s+based|(?:come|want|like)\s+(?:to\s+)?(?:marry|be\s+with)\s+(?:you|u)\b|at\s+your\s+door\s+by|my\s+queen|felt\s+a?\s?love\s+like|trust\s+you\s+with\s+my\s+heart|growing\s+old\s+with\s+you|love\s+you\s+so\s+much\s+even|god\b<10>\bmade\s+you|hold\s+you\s+in\s+my\s+arms|keep\s+me\s+alive)|)"
     R"(\bmy\s+heart\b<12>\b(?:belong(?:s|ed)\s+to\s+you|is\s+yours|beats\s+for\s+you)\b|\b(?:find|seeking|looking\s+for|searching\s+for|meet)\b<20>\b(?:male|guy|dude|gentleman|charming\s+man|husband)\b|\b(?:since\s+i\s+saw\s+your\s+(?:photo|picture)|can[\'’]t\s+sleep|think\s+of\s+you\s+(?:day|night)|my\s+dearest)\b[\s\S]{0,160}\b\d{2,}|\blove\s+you\b[^.!?]{0,30}\b(?:days|weeks)\s+ago\b|\blove\s+of\s+my\s+life\b|\b(?:(?:fell|falling|am)\s+in\s+love\s+with\s+you)\b|)"
     R"(\b(?:i(?:['’]m|\s+am|\s+have|\s+think\s+i(?:['’]m|\s+am))?|i['’]ve)\s+(?:\w+\s+){0,2}(?:falling|fallen|fell)\s+(?:\w+\s+)?in\s+love\s+with\s+(?:you|your)\b<80>\b(?:profile|online|photo|picture|never|soon|meet|first|chat\w*|messages?|already|although|though|far|since|deeply|soul|god|heart)\b|)"
     R"(\b(?:soul\s?mate|love\s+of\s+my\s+life|my\s+(?:dear|sweet|darling)\s+(?:love|husband|wife)|god\s+(?:brought|sent)\s+(?:us|you)|meant\s+to\s+be|destin(?:y|ed))\b<80>\b(?:profile|online|photo|picture|met\s+on|dating|site|app|chat\w*|internet|facebook|instagram|tinder|money|visa|ticket)\b|)"
     R"(\b(?:saw|found|came\s+across|viewed|read|got|see)\b<10>\byour\s+(?:\w+\s+)?(?:profile|picture|photo|contact|e-?mail)\b<100>\b(?:attracted|interested\s+in\s+(?:you|knowing)|get\s+to\s+know|beautiful|love|relationship|friendship|friends?|soul\s?mate|honest|know\s+(?:you|more\s+about\s+you)|like\s+to\s+know|romantic|partner|lonely|single)\b|)"
     R"(\b(?:looking|searching|seeking)\b<12>\bfor\s+(?:a\s+|an\s+|my\s+|true\s+|real\s+|serious\s+|honest\s+|long[- ]term\s+)*(?:soul\s?mate|relationship|love|man|woman|husband|wife|life\s+partner|companion|gentleman|friendship|romance|serious)\b<80>\b(?:honest|caring|profile|write|reply|photos?|single|widow\w*|pictures?|trust|god|distance|age|e-?mail|divorced|me|alone|kind)\b|)"
     R"(\b(?:russian|ukrainian|asian|lonely|single|hot|beautiful|sexy|mature)\s+(?:girls?|women|ladies|woman|lady|singles|brides?)\b<60>\b(?:waiting|want|looking|meet|chat|near\s+you|your\s+area|dating|interested|message|love|marriage|husband|photos?|nearby|online)\b|)"
     R"(\b(?:einsam\w*|verliebt|seelenverwandt\w*|traummann|traumfrau)\b<60>\b(?:profil|foto|online|kennenlernen|schreib\w*|bekanntschaft|treffen)\b|)"
     R"(\b(?:âme\s+sœur|amour|relation\s+sérieuse)\b<60>\b(?:profil|photo|en\s+ligne|rencontre|écri\w+)\b|)"
     R"(\b(?:schatz|liebling|mein\s+herz|engel)\b[\s\S]{0,60}\bliebe\s+dich\b[\s\S]{0,120}\b(?:geld|ticket|euro|schick|überweis\w*|leih\w*)\b|\b(?:dein|ihr)\s+profil\b<40>\b(?:verzaubert|gefällt|gesehen|berührt|angezogen|beeindruckt|gefunden)\b[\s\S]{0,80}\b(?:schreib\w*|whats\s?app|kennen\w*|telegram|hangouts|antwort\w*)\b|\bnoch\s+nie\b<12>\b(?:so\s+geliebt|so\s+gefühlt|jemanden\s+so)\b|)"
     R"(\b(?:lieverd|schat|schatje|liefste)\b[\s\S]{0,160}\b(?:geld|ticket|overmaken|sturen|lenen|<amount>)|\bje\s+profiel\b<40>\b(?:verliefd|mooi|geraakt|leuk)\b|\b(?:opzoek|op\s+zoek)\s+naar\s+(?:een\s+)?(?:spannende|leuke|lieve)? ?(?:afspraak|date|liefde)\b|\bdurf\s+jij\b<40>\b(?:vrouw|mij|ontmoeten)\b|\bniet\s+de\s+lasten\s+van\s+een\s+(?:vaste\s+)?relatie\b|\b(?:verliefd\s+op\s+je)\b|)"
     R"(\b(?:mon\s+(?:amour|cœur|chéri)|ma\s+(?:chérie|vie|belle))\b[\s\S]{0,160}\b(?:argent|mandat|billet|envoy\w+)\b|\bvotre\s+profil\b<30>\b(?:touché|plu|attiré|séduit)\w*\b|\b(?:faire|mieux)\s+(?:votre\s+)?connaissance\b<60>\b(?:écri\w+|whats\s?app|hangouts|e-?mail|telegram)\b|\b(?:n[\'’]ai\s+)?jamais\s+(?:aimé|ressenti|éprouvé)\s+(?:ainsi|ça|cela|autant|comme)\b|\b(?:depuis\s+que\s+j[\'’]ai\s+vu\s+(?:ta|votre)\s+photo|ne\s+dors\s+plus|pense\s+à\s+(?:toi|vous)\s+jour|ma\s+douce)\b[\s\S]{0,160}\b\d{2,}|)"
     R"(\b(?:amore\s+mio|tesoro|amore)\b[\s\S]{0,160}\b(?:soldi|biglietto|mandami|inviami|prestami|<amount>)|\b(?:tuo|suo)\s+profilo\b<40>\b(?:innamorat\w+|colpit\w+|piaciut\w+)\b|\bmai\s+(?:amato|provato)\s+(?:così|niente|nulla)\b|)"
     R"(\bmi\s+(?:amor|vida|cielo|reina|rey)\b[\s\S]{0,160}\b(?:dinero|boleto|billete|env[íi](?!ron|ous|sion|able)\w+|m[áa]nd\w+|western\s+union|<amount>)|\b(?:tu|su)\s+perfil\b<40>\b(?:enamor\w+|gust\w+|cautiv\w+|llam[óo])\b|)"
     R"(\bmeu\s+(?:amor|bem|anjo)\b[\s\S]{0,160}\b(?:dinheiro|passagem|bilhete|manda|envia|mande|<amount>)|\bseu\s+perfil\b<40>\b(?:apaixon\w+|encant\w+|gost\w+)\b|)"
     R"(\b(?:увидел\w?|наш[её]л|нашла)\b<15>\b(?:твою|вашу|твой|ваш)\b<8>\b(?:анкету|фото|профиль|страницу)\b<30>\b(?:влюбил\w+|понравил\w+|познаком\w+)\b|\b(?:любимая|любимый|дорогая|милая)\b[\s\S]{0,120}\b(?:перевед\w+|деньг\w+|билет)\b<40>\b(?:увидимся|верну|скоро)\b|\bникогда\s+(?:так\s+)?(?:никого\s+)?(?:не\s+)?(?:любил\w?|чувствовал\w?)\b|\bувидел\s+тво[её]\s+фото\b|)"
     R"((?:看到|[网網]上)[\s\S]{0,8}(?:你|您)的?(?:照片|[头頭]像|主[页頁])[\s\S]{0,12}(?:好感|[认認][识識]|心[动動]|喜[欢歡])|(?:[亲親][爱愛]的|[宝寶][贝貝])[\s\S]{0,40}(?:借我|[转轉][给給]?我|[机機]票)|(?:加[错錯]人|打[错錯]了|[发發][错錯]人)[\s\S]{0,24}(?:[缘緣]分|交[个個]?朋友|[认認][识識])|认识你是我|遇[见到]你是我|)"
     R"((?:愛しています|プロフィール[\s\S]{0,6}惹かれ|写真[\s\S]{0,6}惹かれ)[\s\S]{0,60}(?:送って|盗まれ|LINE|お話し|万円|返します)|(?:番号を間違え|間違えて(?:連絡|登録|追加))[\s\S]{0,24}(?:ご縁|友達|お友達)|写真を見てから|)"
     R"((?:사진|프로필)[\s\S]{0,8}(?:보고)?[\s\S]{0,6}(?:반했|마음에 ?들|끌렸|호감)|자기야[\s\S]{0,50}(?:보내|돈|갚)|사진을? ?본 ?뒤로|)"
     R"(<suitor>|)"
     R"(\b(?:vielleicht\s+(?:war|ist)\s+(?:es|das)\s+(?:\w+\s+)?(?:schicksal|fügung|kein\s+zufall)|lust\s+(?:ein\s+bisschen\s+)?(?:zu\s+schreiben|dich\s+kennen\w+)|du\s+wirkst\s+(?:\w+\s+)?(?:nett|sympathisch|freundlich)|(?:komm|schreib)\s+(?:doch\s+)?(?:rüber\s+)?auf\s+telegram|dich\s+(?:endlich\s+)?(?:in\s+den\s+arm|umarmen))|)"
     R"(\b(?:leuke\s+(?:profiel)?foto|(?:zullen|willen)\s+we\s+(?:kennismaken|vrienden)|(?:je\s+lijkt|u\s+lijkt)\s+(?:me\s+)?(?:\w+\s+)?aardig|misschien\s+(?:is|was)\s+het\s+(?:het\s+)?lot|meestal\s+op\s+telegram|(?:nooit|niet)\s+zo\s+van\s+iemand)\b|)"
     R"(\b(?:(?:vous\s+avez|tu\s+as)\s+l['’]air\s+(?:\w+\s+)?(?:gentill?e?|sympa\w*)|(?:c['’]est|peut-être)\b<12>\bdestin|on\s+peut\s+(?:discuter|faire\s+connaissance)|puis-je\s+savoir|dans\s+quelle\s+ville|(?:venir|te)\s+te\s+voir|si\s+tu\s+m['’]?aimes?|seule?\s+sur\s+qui)|)"
     R"(\b(?:fare\s+amicizia|piacere\s+sono|(?:sembri|sembra)\s+(?:\w+\s+)?(?:gentile|simpatic\w)|sia\s+(?:stato\s+)?il\s+destino|grazie\s+della\s+gentilezza|(?:vengo|venire|arrivo)\s+da\s+te|hai\s+telegram|solo\s+tu\s+puoi)\b|)"
     R"(\b(?:de\s+d[óo]nde\s+eres|foto\s+(?:muy\s+)?(?:simp[áa]tica|bonita|linda)|pareces\s+(?:muy\s+)?(?:amable|simp[áa]tic\w)|(?:ser[áa]|es|fue)\s+(?:el\s+)?destino|podemos\s+ser\s+amigos|conocernos|eres\s+la\s+[úu]nica)\b|)"
     R"(\b(?:(?:vc|voc[êe]|tu)\s+[ée]s?\s+de\s+onde|foi\s+(?:o\s+)?destino|parece(?:s)?\s+(?:ser\s+)?(?:\w+\s+)?(?:simp[áa]tic\w|gentil)|podemos\s+ser\s+amigos|fazer\s+amizade|[ée]s\s+a\s+[úu]nica)\b|\b(?:novos\s+amigos|ser\s+amig[oa]s|prazer\s+(?:mesmo\s+assim|de\s+qualquer)|que\s+simp[áa]tic\w|destino|saudades\s+de\s+voc[êe]|te\s+abra[çc]ar|nossa\s+vida)\b|)"
     R"(\b(?:вы\s+так\s+вежлив\w*|давайте\s+(?:дружить|познакомимся)|может\s+(?:это\s+)?судьба|мечтаю\s+тебя|целую\s+твои|а\s+вы\s+чем)\b|)"
     R"((?:交[个個]朋友|做[个個]?朋友|[缘緣]分|你人(?:好|真)|[很好][有]?[礼禮]貌|[亲親]切)[\s\S]{0,20}(?:[吗嗎]|LINE|微信|加|投[资資]|我是|我叫)|)"
     R"(お?友達になり(?:ませんか|たい)|ずっと一緒にいたい|)"
     R"(친구 ?(?:해요|할래요|할까요|하고 ?싶|로 ?지내)|)"
     R"(\b(?:neue\s+freunde|freundschaft\s+schließen|woher\s+kommst\s+du|dürfte?\s+ich\s+(?:deinen|ihren)\s+namen|freut\s+mich\s+trotzdem|kein\s+zufall|zukunft\s+mit\s+dir|endlich\s+bei\s+dir|sehne\s+mich)\b|)"
     R"(\b(?:nieuwe\s+vrienden|leuk\s+je\s+te\s+(?:leren|ontmoeten)|waar\s+kom\s+je\s+vandaan|wat\s+aardig\s+van|ik\s+mis\s+je|je\s+vasthouden|ons\s+leven|toeval\s+bestaat\s+niet)\b|)"
     R"(\b(?:faire\s+connaissance|devenir\s+amis|enchantée?\s+quand\s+même|d['’]où\s+(?:viens-tu|venez-vous)|votre\s+(?:gentillesse|politesse)|le\s+destin|un\s+signe|tu\s+me\s+manques|te\s+serrer|notre\s+vie)\b|)"
     R"(\b(?:nuovi\s+amici|di\s+dove\s+(?:sei|è)|piacere\s+(?:comunque|di\s+conoscer\w+)|è\s+destino|mi\s+manchi|abbracciarti|la\s+nostra\s+vita|persona\s+gentile)\b|)"
     R"(\b(?:nuevos\s+amigos|hacer\s+amistad|ser\s+amig[oa]s|encantada\s+(?:igual|de\s+todos)|qu[ée]\s+amable\s+(?:eres|es)|es\s+el\s+destino|te\s+extra[ñn]o|abrazarte|nuestra\s+vida)\b|)"
     R"(\b(?:солнышко|любим\w+|мил(?:ая|ый)|дорог(?:ая|ой)|зайк\w+|родн(?:ая|ой)|обнять|целую|люблю|мечта\w+|судьб\w+|малыш)\b[\s\S]{0,110}\b(?:билет\w*|виз[аыу]|аэропорт\w*|таможн\w+|больниц\w+|карту\s+заблок\w+|операци\w+|контракт\w*|прилеч\w+|при[её]д\w+|командировк\w+)\b[\s\S]{0,110}\b(?:не\s+хватает|переведи\w*|одолж\w+|займи|скинь|пришли\s+денег|выручи|помоги\s+(?:деньгами|оплат\w+))\b|\b(?:ошиб\w+\s+номер\w*|номер\w*\s+(?:ошиб\w+|перепут\w+)|не\s+т(?:от|ому|уда)\s+(?:номер|написал\w*)|перепутал\w*|ошиблась|ошибся|секретар\w+\s+ошиб\w+|не\s+туда)\b[\s\S]{0,100}\b(?:познаком\w+|вежлив\w+|меня\s+зовут|дружить|общат\w+|пообща\w+|чем\s+занима\w+|а\s+вы\s+(?:чем|откуда)|судьб\w+|инвестици\w+)\b|\b(?:давайте\s+(?:общаться|дружить)|можно\s+познакомиться|вы\s+(?:очень\s+)?(?:милый|добрый|приятный)\s+человек|это\s+знак|скучаю\s+по\s+тебе|обнять\s+тебя|наша\s+встреча)\b|)"
     R"(相[识識]是|[认認][识識]一下|不打不相[识識]|想你|抱抱你|[见見]到你|)"
     R"(お話し?しませんか|仲良くして|知り合えて|会いたい(?:よ|です|な)|)"
     R"(<strayhello>|)"
     R"(<lovedebt>|)"
     R"(알고 ?지내|대화 ?나눠|보고 ?싶어|안아 ?주|만난 ?것도 ?인연)"); }),
     true},
    {"rom-stuck-abroad", "Romance fraud", "warn", 50,
     "says the sender is stranded abroad and needs money",
     pattern([] { return std::string_view(
     R"(\b(?:lost|broke|dropped|smashed|cracked|damaged|stolen)\b<12>\b(?:my\s+)?(?:phone|mobile|cell)\b[\s\S]{0,60}\b(?:this\s+is|using|new|texting\s+from|borrow\w*|friend['’]?s)\b|\b(?:please|pls)\b<10>\b(?:wire|send|lend)\b<25>\b(?:visa|ticket|flight|surgery|leave|customs)\b|\b(?:accounts?|card|wages|salary)\b<12>\b(?:is|are|got|was)\b<8>\b(?:frozen|blocked|stuck|locked)\b<25>\b(?:abroad|while|overseas|here|until|because)\b|)"
     R"(\b(?:new|temp)\s+number\s+i\s+dey\b|\b(?:need|needs|want)\b<15>\bbefore\s+(?:treatment|surgery|they\s+(?:treat|operate|release))\b|)"
     R"(\b(?:hospital|hotel|customs|company|clinic|embassy|landlord)\b<25>\b(?:won['’]?t|will\s+not|refuses?|wants?|is\s+asking|asking)\b<30>(?:<amount>|\b(?:let\s+me|treat\s+me|release)\b)|\b(?:temp(?:orary)?|mate['’]?s)\s+(?:number|phone|num)\b|\bdis\s+new\s+number\b|\bfly\s+to\s+you\b|)"
     R"(\b(?:stuck|trapped|stranded)\s+(?:in|at|on)\b<40>\b(?:stolen|pay|cent|ticket|money|wages)\b|)"
     R"(\b(?:mum|mom|mama|mummy|dad|daddy|papa|gran(?:ny|dma|dpa|dad)?|nan|nana|auntie?|uncle)\b<newnumber>[\s\S]{0,120}\b(?:(?:this|here)(?:\s+is|['’]s)\s+my\s+(?:new|temporary)\s+(?:number|phone)|using\s+(?:this|another|a\s+friend['’]?s?)\s+(?:number|phone)|(?:phone|mobile|cell)\b<30>\b(?:broke|broken|lost|stolen|dropped|smashed|dead|repair|water|toilet)|(?:dropped|lost|broke|smashed)\s+my\s+(?:phone|mobile|cell))\b|\b(?:mum|mom|dad|gran(?:ny|dma|dpa|dad)?|nan|nana)\b[\s\S]{0,80}\b(?:accident|police\s+station|arrested|jail|hospital|crash)\b[\s\S]{0,80}\b(?:bail|money|cash|lawyer|wire|send)\b|\b(?:tour|deployment|mission|contract|service)\b<40>\b(?:ends?|over|finish\w*)\b[\s\S]{0,100}\b(?:need|pay|send|short\s+of)\b<15><amount>|\b(?:lend\s+me|pay\s+for\s+my|advance\s+me)\b[\s\S]{0,60}\b(?:leave|port|ticket|permit|come\s+to\s+you)\b|\b(?:dad|mum|mom|gran|nan|auntie|uncle)\b[\s\S]{0,60}\b(?:on\s+\w+[\'’]s\s+phone|from\s+\w+[\'’]s\s+(?:phone|mobile)|a\s+friend[\'’]s\s+phone)\b[\s\S]{0,80}\b(?:send|transfer|pay)\b[^.!?]{0,15}\d|\b(?:mum|mom|dad|gran|grandma|grandpa|nan|auntie?)\b<newnumber>[\s\S]{0,60}\b(?:from\s+a\s+friend[\'’]s|(?:on|with)\s+a\s+friend[\'’]s|from\s+someone\s+else[\'’]s|borrowed\s+phone)\b|\b(?:took|stole)\s+my\s+(?:passport|wallet)\b[^.!?]{0,60}\b(?:hotel|ticket|fly|money)\b|\b(?:(?:visa|ticket|flight)[^.!?]{0,12}costs?|short\s+of\s+\d)\b[^.!?]{0,30}\bhelp\s+me\b|)"
     R"(\b(?:stuck|stranded|trapped|detained|robbed|mugged|hospital\w*|lost\s+my\s+(?:wallet|passport|bag|luggage|phone|money)|stolen|arrested|held)\b<120>\b(?:abroad|overseas|airport|embassy|hotel|country|vacation|trip|malaysia|ukraine|turkey|nigeria|ghana|philippines|london|spain|cyprus|dubai|immigration|customs|rig|passport|wallet|credit\s+cards?)\b<150>\b(?:send|lend|loan|help|need|wire|transfer|western\s+union|money\s?gram|pay\s+(?:you\s+)?back|refund|borrow)\b<60>(?:\b(?:money|me|funds|cash|hotel\s+bill|ticket|western\s+union|you|bills?|quick\s+loan)\b|<amount>)|)"
     R"(\b(?:need|send|lend|borrow|wire|loan)\b<40>(?:\b(?:money|cash|funds)\b|<amount>)<60>\b(?:flight|ticket|visa|hospital|hotel\s+bill|get\s+home|come\s+home|fly\s+home|passport|embassy|stranded|stuck|release|lawyer|surgery)\b<60>\b(?:back|pay|home|you|soon|meet|return|promise|love|can['’]t|baby|dear|honey)\b|)"
     R"(\b(?:trip|vacation|conference|visit|holiday)\b<40>\b(?:mugged|robbed|stolen|stranded)\b|)"
     R"(\b(?:festsitz\w*|gestrandet|ausgeraubt|überfallen|bestohlen)\b<100>\b(?:ausland|flughafen|hotel|pass|botschaft)\b<100>\b(?:geld|überweis\w+|leih\w*|euro)\b|)"
     R"(\b(?:coincée?|bloquée?|agressée?|volée?)\b<80>\b(?:étranger|aéroport|hôtel|passeport|ambassade)\b<80>\b(?:argent|prêt\w*|virement|mandat|aide)\b|)"
     R"(\b(?:hi|hello|hey|hallo|hola|oi|olá|salut)\b<5>\b(?:mum|mom|dad|mama|papa|m[ãa]e|pai|maman|mamá|papá|pap[áa]i|m[ãa]m[ãa]e)\b<newnumber><80>\b(?:new\s+(?:phone|number)|neue\s+(?:nummer|handynummer)|neues\s+handy|nouveau\s+numéro|nuevo\s+n[úu]mero|novo\s+n[úu]mero|nieuw(?:e)?\s+(?:nummer|telefoon)|lost\s+my\s+phone|phone\s+(?:broke|is\s+broken)|handy\s+(?:ist\s+)?kaputt)\b|)"
     R"(\b(?:hallo|hi|hey|liebe[r]?|guten\s+tag)?\s?\b(?:mama|mami|mutti|papa|papi|vati|oma|opa)\b<newnumber>[\s\S]{0,120}\b(?:neue\s+(?:handy|telefon)?nummer|neue\s+nummer|neues\s+(?:handy|telefon)|anderen?\s+nummer|handy\b<40>\b(?:kaputt|hin|defekt|verloren|gestohlen|geklaut|gefallen|geschrottet|reparatur))\b|\b(?:mama|papa|oma|opa)\b[\s\S]{0,120}\b(?:unfall|klemme|verhaftet|festgenommen|krankenhaus|polizei)\b[\s\S]{0,100}\b(?:geld|kaution|euro|überweis\w*)\b|\b(?:mama|papa|oma|opa)\b[\s\S]{0,100}\b(?:überweisung\s+(?:von|für\s+mich)|überweis(?:en|t|e)?\b<30>\b(?:für\s+mich|mir)|rechnung\s+(?:zahlen|bezahlen|überweisen))\b|\b(?:sitze|bin|stecke|hänge)\b<20>\b(?:am\s+flughafen|im\s+ausland|in\s+der\s+botschaft|im\s+krankenhaus|im\s+gefängnis|in\s+\w+)\b<20>\bfest\b[\s\S]{0,120}\b(?:geld|euro|überweis\w*|ticket|leih\w*)\b|\b(?:geld|geldbörse|brieftasche|portemonnaie|pass|koffer)\b<25>\b(?:gestohlen|geklaut|verloren|geraubt)\b[\s\S]{0,100}\b(?:schick|überweis\w*|leih\w*|send)\w*\b<40>\b(?:euro|geld|ticket|<amount>)|\b(?:mama|mami|mutti|papa|papi|oma|opa)\b[\s\S]{0,140}\b(?:(?:handy|smartphone|telefon)\b<40>\b(?:geist\s+aufgegeben|tot|im\s+eimer|funktioniert\s+nicht|geht\s+nicht\s+mehr|gesperrt)|(?:erreichst|schreib\w*)\s+(?:du\s+)?mich\s+(?:jetzt\s+|ab\s+jetzt\s+|nur\s+noch\s+)?(?:hier|unter))\b|\bfehlen\s+(?:mir\s+)?(?:noch\s+|nur\s+noch\s+)*<amount><60>\b(?:flug|ticket|rückflug|reise|visum)|\b(?:flug|ticket|visum|rückreise)\b<40>\bfehl\w+\b<20><amount>|\b(?:mama|mami|mutti|papa|papi|oma|opa)\b[\s\S]{0,160}\b(?:auslegen|vorstrecken|leihst\s+du|hilfst\s+du\s+mir|muss\s+(?:heute\s+)?raus|(?:heute|jetzt)\s+noch\s+(?:was|etwas|eine\s+rechnung)\s+(?:be)?zahlen)\b|\b(?:einsatz|mission|vertrag|dienst)\b<40>\b(?:endet|vorbei|zu\s+ende|bald)\b[\s\S]{0,140}\b(?:fehlen|brauche|leih\w*)\b|\b(?:oma|opa|mama|mutti|papa|vati)\b[\s\S]{0,100}\b(?:unfall|polizei|wache|gericht|anwalt|krankenhaus|überweisung|sim)\b[\s\S]{0,60}(?:\b\d{2,}|\bgeld\b|\bkaution\b|\bhilfe\s+bei\b)|\b(?:vorstrecken|leihst\s+du|auslegen|bezahlst\s+du)\b[\s\S]{0,60}\b(?:urlaub\w*|hafen|ticket|zu\s+dir)\b|\b(?:papa|mama|oma|opa|tante|onkel)\b[\s\S]{0,60}\b(?:ohne\s+handy|handy\s+von|\w+s\s+handy|telefon\s+von)\b[\s\S]{0,80}\b(?:schicken|überweisen|schick|überweis)\b[^.!?]{0,15}\d|\b(?:visum|ticket|flug)[^.!?]{0,12}kostet\b[^.!?]{0,30}\b(?:hilf\s+mir)\b|)"
     R"(\b(?:mam|mama|pap|papa|oma|opa|pa|ma)\b<newnumber>[\s\S]{0,120}\b(?:nieuw(?:e)?\s+nummer|nieuwe\s+(?:telefoon|mobiel)|ander\s+nummer|(?:telefoon|mobiel|gsm)\b<40>\b(?:kapot|kwijt|gestolen|gevallen|stuk|verloren))\b|\b(?:zit|sta)\s+vast\b<25>\b(?:vliegveld|buitenland|ziekenhuis|douane|luchthaven|op|in)\b[\s\S]{0,120}\b(?:stuur|sturen|overmaken|leen|lenen|geld|ticket|<amount>)|\b(?:portemonnee|paspoort|tas|koffer)\b<25>\b(?:gestolen|kwijt|verloren)\b[\s\S]{0,100}\b(?:sturen|stuur|overmaken|lenen|ticket)\b|\b(?:mama|mam|papa|pap|oma|opa)\b[\s\S]{0,140}\b(?:(?:tel|telefoon|mobiel)\b<30>\b(?:doet\s+het\s+niet|oude|dood)|(?:oude)\s+(?:tel|telefoon|mobiel)|zet\s+dit\s+n|dit\s+(?:is\s+mijn\s+)?(?:nr|nummer))\b|\btekort\b<10>\bvoor\b<12>\b(?:vlucht|ticket|visum)\b|\bkom\b<20><amount><20>\btekort\b|\b(?:missie|contract|uitzending)\b[\s\S]{0,140}\b(?:heb|nodig)\b<10><amount><30>\b(?:ticket|vlucht|nodig)\b|\b(?:oma|opa|mam|mama|pap|papa)\b[\s\S]{0,100}\b(?:ongeluk|politie|bureau|advocaat|ziekenhuis)\b[\s\S]{0,60}(?:\b\d{2,}|\bgeld\b|\bborg\b)|\b(?:leen\s+me|leen\s+mij|schiet\s+me|betaal\s+je)\b[\s\S]{0,60}\b(?:verlof|haven|ticket|naar\s+je\s+toe)\b|\b(?:pap|mam|papa|mama|oma|opa|tante)\b[\s\S]{0,60}\b(?:met\s+de\s+telefoon\s+van|telefoon\s+van\s+\w+)\b[\s\S]{0,80}\b(?:sturen|overmaken|betalen|stuur)\b[^.!?]{0,15}\d|\b(?:visum|ticket|vlucht)[^.!?]{0,12}kost\b[^.!?]{0,30}\b(?:help\s+me)\b|)"
     R"(\b(?:maman|papa|mamie|papi|papy|mamy)\b<newnumber>[\s\S]{0,120}\b(?:nouveau\s+numéro|nouveau\s+(?:portable|téléphone)|ce\s+numéro|changé\s+de\s+numéro|(?:portable|téléphone|tel)\b<40>\b(?:cassé|perdu|volé|tombé|panne|réparation|fichu))\b|\b(?:cassé|perdu|tombé|volé)\b<25>\b(?:portable|téléphone|tel)\b[\s\S]{0,80}\b(?:numéro|message|whats\s?app)\b|\b(?:bloquée?|coincée?|retenue?)\b<20>\b(?:à\s+l['’]aéroport|à\s+l['’]étranger|à\s+l['’]hôpital|en\s+\w+|au\s+\w+)\b[\s\S]{0,140}\b(?:argent|euros?|virement|mandat|billet|<amount>)|\b(?:volé|perdu)\b<25>\b(?:portefeuille|passeport|sac|argent)\b[\s\S]{0,100}\b(?:envoy\w+|prêt\w+|mandat|virement|billet)\b|\b(?:mam|maman|papa|mamie|papi|papy)\b[\s\S]{0,140}\b(?:(?:tel|tél|téléphone|portable)\b<40>\b(?:mort|hs|lâché|plus)|changé\s+de\s+(?:tel|tél|téléphone|portable)|ce\s+num(?:éro)?|ajoute\s+ce\s+numéro)\b|\b(?:manque|manquent)\b<15><amount><40>\b(?:vol|billet|visa|retour)|\b(?:vol|billet|visa)\b<40>\bmanque\w*\b<15><amount>|\b(?:en\s+mission|contrat|plateforme|déploiement)\b[\s\S]{0,140}\b(?:manque|besoin\s+de)\b<10><amount>|\b(?:mamie|papi|papy|maman|papa|tata)\b[\s\S]{0,100}\b(?:accident|commissariat|avocat|garde\s+à\s+vue|hôpital|police)\b[\s\S]{0,60}(?:\b\d{2,}|\bargent\b|\bcaution\b)|\b(?:avance-moi|prête-moi|paye-moi|avancez-moi)\b[\s\S]{0,60}\b(?:congé|port|billet|j[\'’]arrive)\b|\b(?:maman|papa|mamie|papi|papy|tata|tonton)\b<newnumber>[\s\S]{0,60}\b(?:avec\s+celui\s+d[\'’]un|depuis\s+(?:le|celui)|sur\s+celui\s+d[\'’]un|téléphone\s+d[\'’]une?\s+ami)\b|\b(?:visa|billet|vol)[^.!?]{0,12}coûte\b[^.!?]{0,30}\b(?:aide-moi)\b|)"
     R"(\b(?:mamma|papà|nonn[ao]|zi[ao]|babbo|ma)\b<newnumber>[\s\S]{0,120}\b(?:nuovo\s+numero|numero\s+nuovo|altro\s+numero|cambiato\s+numero|(?:telefono|cellulare)\b<40>\b(?:rotto|perso|rubato|caduto|guasto|riparazione))\b|\b(?:rotto|perso|rubato|caduto)\b<20>\b(?:telefono|cellulare)\b[\s\S]{0,80}\b(?:numero|whats\s?app|bonifico)\b|\b(?:nonn[ao]|mamma|papà|figlio|figlia|nipote)\b[\s\S]{0,80}\b(?:incidente|arrestat[oa]|ospedale|carabinieri|polizia|guai)\b[\s\S]{0,100}\b(?:euro|soldi|cauzione|contanti|avvocato|gioielli)\b|\b(?:bloccat[oa]|trattenut[oa])\b<25>\b(?:aeroporto|estero|dogana|ospedale)\b[\s\S]{0,120}\b(?:mand(?!at|ar|y\b)\w+|invi(?!t|sib|nc|gor)\w+|prest\w+|soldi|biglietto|<amount>)|\b(?:rubato|perso)\b<25>\b(?:portafogli\w*|passaporto|borsa|valigia)\b[\s\S]{0,100}\b(?:mand(?!at|ar|y\b)\w+|invi(?!t|sib|nc|gor)\w+|prest\w+|biglietto)\b|\b(?:mamma|ma|papà|pa|nonn[oa])\b[\s\S]{0,140}\b(?:(?:cell|cellulare|telefono)\b<30>\b(?:vecchio|morto|non\s+va|non\s+funziona)|(?:vecchio)\s+(?:cell|cellulare|telefono)|segnati\s+questo|salva\s+questo|questo\s+numero)\b|\bmanca(?:no)?\b<10><amount><40>\b(?:volo|biglietto|visto|aereo)\b|\b(?:mamma|papà|nonn[oa]|zi[oa])\b[\s\S]{0,160}\b(?:mi\s+(?:anticipi|presti|fai\s+(?:un|una)\s+(?:bonifico|ricarica))|puoi\s+farmi\s+(?:un|una)\s+(?:bonifico|ricarica)|te\s+li\s+(?:ridò|rendo))\b|\b(?:missione|contratto|piattaforma|bloccat[oa])\b[\s\S]{0,120}\bmi\s+(?:servono|mancano)\b<10><amount>|\b(?:mi\s+presti|prestami|anticipami|mi\s+anticipi)\b[\s\S]{0,60}\b(?:congedo|porto|biglietto|arrivo\s+da\s+te)\b|\b(?:mamma|papà|nonn[ao]|zi[ao])\b<newnumber>[\s\S]{0,60}\b(?:da\s+quello\s+di\s+un|dal\s+(?:telefono|cell\w*)\s+di\s+un|con\s+quello\s+di)\b|\b(?:visto|biglietto|volo)[^.!?]{0,12}costa\b[^.!?]{0,30}\b(?:aiutami)\b|)"
     R"(\b(?:perd[íi]|rompi[óo]|robaron|roto)\b<20>\b(?:m[óo]vil|celular|tel[ée]fono)\b[\s\S]{0,80}\b(?:n[úu]mero|whats\s?app|escr[íi]beme|transferencia)\b|\b(?:mam[áa]|pap[áa]|ma|pa|abuel[oa])\b[\s\S]{0,140}\b(?:(?:celu|celular|m[óo]vil|tel[ée]fono)\b<30>\b(?:viejo|muri[óo]|no\s+funciona|no\s+anda)|agenda\s+este|este\s+n[úu]mero|anota\s+este|soy\s+yo\b<60>\b(?:problema|pagar))\b|\b(?:abuel[ao]|mam[áa]|pap[áa]|t[íi][ao])\b[\s\S]{0,100}\b(?:choque|accidente|comisar[íi]a|abogado|hospital|polic[íi]a)\b[\s\S]{0,60}(?:\b\d{2,}|\bdinero\b|\bfianza\b)|\b(?:papi|mami|pap[áa]|mam[áa]|abuel[ao]|t[íi][ao])\b[\s\S]{0,60}\b(?:desde\s+el\s+(?:cel|m[óo]vil|tel[ée]fono)\s+de|del\s+(?:cel|m[óo]vil)\s+de)\b[\s\S]{0,80}\b(?:mandas|env[íi]as|transfieres|pagas)\b[^.!?]{0,15}\d|)"
     R"(\b(?:m[ãa]e|pai|v[óo]|av[óoô]|tia|tio|filho|mam[ãa]e|papai)\b<newnumber>[\s\S]{0,120}\b(?:n[úu]mero\s+novo|novo\s+n[úu]mero|outro\s+n[úu]mero|mudei\s+de\s+n[úu]mero|troquei\s+de\s+n[úu]mero|(?:celular|telem[óo]vel|telefone)\b<40>\b(?:quebrou|estragou|caiu|partiu|perdi|roubaram|avari\w+))\b|\b(?:m[ãa]e|pai|v[óo]|av[óoô]|tia|tio)\b[\s\S]{0,100}\b(?:pix|boleto|transfer[êe]ncia)\b[\s\S]{0,60}\b(?:devolvo|pago|pra\s+mim|para\s+mim|hoje)\b|\b(?:pres[oa]|ret[io]d[oa]|detid[oa])\b<25>\b(?:aeroporto|exterior|alf[âa]ndega|hospital|estrangeiro)\b[\s\S]{0,120}\b(?:manda|envia|envie|mande|empresta|dinheiro|passagem|bilhete|<amount>)|\b(?:m[ãa]e|pai|v[óo]|tia|tio)\b[\s\S]{0,140}\b(?:(?:celular|telefone|telem[óo]vel)\b<30>\b(?:velho|pifou|morreu|n[ãa]o\s+funciona)|anota\s+esse|salva\s+esse|esse\s+n[úu]mero)\b|\b(?:m[ãa]e|pai|v[óo]|tia|tio)\b[\s\S]{0,160}\b(?:consegues?\s+(?:fazer|pagar|transferir|mandar)\s+<20>(?:pix|por\s+mim|pra\s+mim|para\s+mim)|podes?\s+(?:fazer\s+a\s+transfer[êe]ncia|emprestar|adiantar)|me\s+empresta)\b|)"
     R"(\b(?:мам|мама|мамочка|пап|папа|папуль|бабушка|бабуль|дедушка|дед|тёт|сынок)\b<newnumber>[\s\S]{0,120}\b(?:нов(?:ый|ого)\s+номер|друг(?:ой|ого)\s+номера?|с\s+чужого\s+(?:телефона|номера)|(?:сломал\w*|разбил\w*|потерял\w*|украли|утопил\w*)\b<20>\b(?:телефон\w*|мобильн\w*|номер)|телефон\b<20>\b(?:сломал\w*|разбил\w*|украли|утонул))\b|\b(?:мам|мама|пап|папа|бабушка|дедушка|сын|внук|дочь)\b[\s\S]{0,80}\b(?:авари\w+|дтп|сбил\w?|задержали|полици\w+|больниц\w+|следовател\w+)\b[\s\S]{0,120}\b(?:деньг\w*|тысяч|передать|перевед\w+|курьер\w*|залог)\b|\bзастрял\w?\b<30>\b(?:аэропорт\w*|за\s+границей|таможн\w+|в\s+другой\s+стране)\b[\s\S]{0,120}\b(?:перевед\w+|вышли|пришли|одолжи|билет|деньг\w*)\b|\b(?:украли|потерял\w?)\b<25>\b(?:деньги|кошел[её]к|паспорт|сумку|документы)\b[\s\S]{0,80}\b(?:перевед\w+|вышли|пришли|одолжи|займи)\b|\b(?:мам|мама|мамуль|пап|папа|бабушка)\b[\s\S]{0,80}\b(?:сохрани\s+(?:этот|номер)|телефон\w?\b<20>\b(?:накрылся|сломан))\b|\bне\s+хватает\b<25>\b(?:на\s+билет|на\s+перел[её]т|на\s+визу)\b|\b(?:мам\w*|бабул\w*|пап\w*|дед\w*)\b[\s\S]{0,60}\b(?:авари\w+|дтп|сбил\w?)\b[\s\S]{0,120}\b(?:тысяч\w*|тыс|деньг\w*)\b|\bпомоги\b<10>\bоплатить\b<10>\b(?:отпуск|билет|визу)\b|\b(?:пап|мам|папа|мама)\b<12>\bпишу\s+с\b[\s\S]{0,60}\bскинь\b|\bмам\w*\b[\s\S]{0,20}\bпишу\s+с\s+телефона\b|)"
     R"((?:妈|媽|爸|奶奶|爷爷|爺爺|外婆|姥姥|阿姨|叔叔)<newnumber>[\s\S]{0,40}(?:换号|換號|新号码|新號碼|新的号码|新的號碼|手[机機].{0,8}(?:坏|壞|丢|掉|摔|屏|修))|(?:妈|媽|爸|奶奶|爷爷|爺爺|外婆|姥姥)[\s\S]{0,40}(?:车祸|車禍|被抓|撞人|住院|出事|派出所)[\s\S]{0,40}(?:[万萬]|急需|[钱錢]|打到|[转轉]|[汇匯])|(?:国外|國外|机场|機場|海外|出差)[\s\S]{0,20}(?:被偷|丢了|丟了|被抢|被搶|被扣)[\s\S]{0,30}(?:借|[转轉]|[汇匯]|机票|機票|[钱錢])|(?:老[妈媽]|老爸|[妈媽]|爸)<newnumber>[\s\S]{0,30}(?:打[这這][个個]号|[这這][个個]号[找码碼])|(?:就差|[还還]差|差)[\s\S]{0,8}(?:机票|機票|路[费費])|任[务務][\s\S]{0,60}(?:[垫墊]付|清[关關]|机票|機票)|(?:休假|机票|機票|手[续續])[\s\S]{0,12}(?:先帮我付|先幫我付|[垫墊])|)"
     R"((?:お?母さん|お?父さん|ママ|パパ|じいちゃん|ばあちゃん|おじいちゃん|おばあちゃん|オレだけど|俺だけど)<newnumber>[\s\S]{0,60}(?:番号[がを]?変わ|新しい番号|携帯[がを](?:壊|落と|なくし|水没)|スマホ[がを](?:壊|落と|なくし))|(?:お?母さん|お?父さん|じいちゃん|ばあちゃん|オレだけど|俺だけど|オレオレ)[\s\S]{0,60}(?:事故|示談|会社の金|なくして|使い込|妊娠させ|逮捕|横領)[\s\S]{0,60}(?:万円|振り込|渡して|お金|示談金|必要)|(?:空港|海外|外国)[\s\S]{0,20}(?:盗まれ|足止め|なくし|拘束)[\s\S]{0,40}(?:送って|振り込|貸して|万円|チケット代)|(?:母さん|父さん|ママ|パパ|ばあちゃん|じいちゃん)[\s\S]{0,30}(?:こっちに連絡|この番号に|スマホがだめ)|(?:飛行機代|航空券|帰り)[\s\S]{0,12}(?:足りません|足りない)|(?:母さん|父さん|ばあちゃん|じいちゃん|俺だけど|オレだけど)[\s\S]{0,80}(?:保証人|借金|示談|お金[をが]?貸し)|任務[\s\S]{0,60}(?:通関|立て替え|飛行機代|送金)|(?:休暇|渡航|帰国)[\s\S]{0,16}立て替え|(?:父|母)さん[\s\S]{0,8}電話から[\s\S]{0,40}送って|)"
     R"((?:엄마|아빠|어머니|아버지|할머니|할아버지|이모|삼촌|고모)<newnumber>[\s\S]{0,60}(?:(?:폰|핸드폰|휴대폰|액정|전화기)[\s\S]{0,10}(?:깨졌|깨져|고장|망가|파손|떨어|수리|잃어)|번호[\s\S]{0,4}바뀌|이\s?번호로|새\s?번호|친구\s?폰)|(?:엄마|아빠|어머니|아버지|할머니|할아버지)[\s\S]{0,60}(?:사고|합의금|경찰서|병원비|납치|다쳤)[\s\S]{0,60}(?:만 ?원|돈|입금|송금|급해|보내|말하지)|(?:엄마|아빠|어머니|아버지)[\s\S]{0,60}(?:신분증|민증|주민증|카드)[\s\S]{0,12}(?:사진|찍어|보내)|(?:공항|해외|외국)[\s\S]{0,20}(?:도둑|잃어버|뺏|억류|갇)[\s\S]{0,40}(?:돈|보내|송금|표)|(?:엄마|아빠)[\s\S]{0,30}(?:이걸로|이쪽으로|여기로) ?연락|(?:임무|파병|작전)[\s\S]{0,80}(?:통관|비행기|대신 ?내|송금)|(?:휴가|비행기)[\s\S]{0,20}대신 ?내|)"
     R"(\b(?:douane|ziekenhuis|hotel)\b<20>\blaat\s+me\s+niet\b|)"
     R"(\b(?:visa|passeport|billet|hôpital|hospitalis\w+)\b<30>\b(?:payer|avance|envo[iy]\w*|opérer|transcash|mandat)\b|\bchangé\s+de\s+(?:num|numéro|tel)\b<newnumber>|\b(?:douane|hôpital|hôtel|ambassade|entreprise)\b<30>\b(?:refuse|exige|demande|bloque|ne\s+me\s+laisse)\b|\b(?:téléphone|portable|tel)\b<12>\b(?:cassé|perdu|volé|tombé)\b[\s\S]{0,60}\b(?:nouveau|virement|avance\w*|paye\w*)\b|)"
     R"(\b(?:mi\s+(?:fai|presti|mandi))\b<12>\b(?:ricarica|bonifico|soldi|\d+)\b<60>\b(?:vengo|arrivo|treno|volo|da\s+te)\b|\b(?:nonn[oa]|zi[oa])\b<40>\btuo\s+nipote\b|)"
     R"(\b(?:мам\w*|пап\w*|бабул\w+|бабушк\w+|дедул\w+|дед|дедушк\w+|т[её]т\w*|сестр\w+|брат\w*|сынок|доченьк\w+|внучк\w*)\b(?![\s\S]{0,160}\b(?:полици\w+|мошенник\w+)\b)[\s\S]{0,110}\b(?:нов\w+\s+номер\w*|телефон\w*\s+(?:\w+\s+)?(?:разбил\w*|сломал\w*|утопил\w*|украли|потерял\w*)|(?:друг\w+|чуж\w+)\s+(?:номер\w*|телефон\w*)|номер\w*\s+(?:друга|подруги)|сменил\w*\s+номер\w*)\b[\s\S]{0,110}\b(?:перевед\w+|перевест\w+|скин[ьу]\w*|займ\w*|одолж\w+|на\s+карту|тысяч\w*|\d+\s?(?:т|тыс|руб\w*))\b|\bприлечу\s+и\s+(?:сразу\s+)?отдам\b|)"
     R"((?:同[学學]|朋友|[别別]人)的(?:[号號]|手[机機])[\s\S]{0,30}(?:[转轉]|[钱錢]|交)|)"
     R"((?:番号|スマホ)[\s\S]{0,4}(?:かわり|変わり|変え)[\s\S]{0,30}(?:払|貸|ふりこ|振り?込)|必ず返す(?:から)?[\s\S]{0,16}貸して|)"
     R"(\b(?:krankenhaus|zoll|hotel|botschaft|firma)\b<30>\b(?:lässt\s+mich\s+nicht|verlangt|will\s+erst|gibt\s+mir\s+nicht)\b|\b(?:flug|ticket|visum|op|operation)\b<25>\b(?:bezahlen|vorstrecken|überweisen)\b<40>\b(?:zu\s+dir|schatz|liebling|zurück)\b|\b(?:handy|telefon)\b<15>\b(?:kaputt|verloren|geklaut|gestohlen|ins\s+wasser)\b[\s\S]{0,60}\b(?:neue\s+nummer|schreib|überweis\w+|leihen)\b|)"
     R"(\b(?:douane|ziekenhuis|ambassade|bedrijf)\b<30>\b(?:eist|wil\s+eerst|betaalt\s+me|vraagt)\b|\b(?:telefoon|mobiel)\b<15>\b(?:kapot|kwijt|gestolen|gevallen)\b[\s\S]{0,60}\b(?:nieuwe?|betalen|overmaken|voorschieten)\b|)"
     R"(\b(?:dogana|ospedale|albergo|ambasciata|azienda)\b<30>\b(?:non\s+mi\s+(?:lascia|paga)|pretende|chiede|rifiuta)\b|\b(?:telefono|cellulare)\b<15>\b(?:rotto|perso|rubato|caduto)\b[\s\S]{0,60}\b(?:nuovo|bonifico|paga\w*|prestar\w*)\b|)"
     R"(\b(?:aduana|hospital|hotel|embajada|empresa)\b<30>\b(?:no\s+me\s+(?:deja|paga)|exige|pide|retiene)\b|)"
     R"(\b(?:telem[óo]vel|celular)\b<15>\b(?:partiu|perdi|roubad\w|caiu|quebrou)\b[\s\S]{0,60}\b(?:novo|transfer\w+|pag\w+|pix)\b|)"
     R"((?:海[关關]|[医醫]院|公司)[\s\S]{0,8}(?:不[让讓]|[扣][住留]|要求|才能)[\s\S]{0,14}(?:[费費]|[钱錢]|[转轉]|交)|手[机機][\s\S]{0,4}(?:坏|壞|丢|丟|摔)[\s\S]{0,24}(?:[转轉]|借|垫|墊|[汇匯])|)"
     R"((?:税関|病院|会社)[\s\S]{0,14}(?:足止め|払わないと|凍結|要求)|(?:スマホ|携帯)[\s\S]{0,4}(?:壊|なくし|落とし)[\s\S]{0,30}(?:振り?込|払|貸|立て替え)|)"
     R"(<kinneeds>|)"
     R"((?:세관|병원|회사)[\s\S]{0,14}(?:안 ?보내|못 ?나가|요구|묶여)|(?:핸드폰|휴대폰|폰)[\s\S]{0,6}(?:고장|액정|잃어|깨)[\s\S]{0,30}(?:이체|송금|보내|결제|빌려))"); }),
     true},
    {"rom-never-met", "Romance fraud", "warn", 30,
     "speaks of love and money between people who have never met",
     pattern([] { return std::string_view(
     R"(\b(?:misdial\w*|wrong\s+(?:chat|recipient|jessica|person)|mistyped|saved\s+(?:your|this)\s+number\s+(?:by\s+mistake|wrongly)|number\s+by\s+mistake|must\s+have\s+(?:mixed|dialled|typed|texted)|texted\s+the\s+wrong|not\s+who\s+i\s+thought)\b|)"
     R"(\b(?:(?:wrong|incorrect|mixed\s+up\s+the)\s+(?:number|contact|person)s?\b|(?:given?|have|had|saved)\s+(?:me\s+)?(?:the\s+|it\s+)?(?:wrong|under\s+the\s+wrong)\b|(?:cant?|can['’]t)\s+wait\s+to\s+(?:see|meet|hold)\s+(?:you|u)\b|for\s+the\s+first\s+time,?\s+my\s+(?:love|dear)|never\s+(?:seen|met)\s+(?:one\s+another|each\s+other)\b)|)"
     R"(\b(?:send|lend)\b<15>\b(?:the\s+)?(?:fare|sum|visa|ticket)\b<40>\b(?:hold|meet|see|hug|kiss)\s+you\b|\btrust\s+you\s+with\s+my\s+heart\b|)"
     R"(\bknow\s+each\s+other\b<10>\b(?:from|through|over|via)\b<6>\b(?:internet|net|web|chat|app)\b<40>\b(?:heart|love|trust|savings)\b|\b(?:send|reply|give|show)\b<12>\b(?:you|u)\b<6>\bmy\s+(?:photos?|pictures?|pics?)\b|\bsmall\s+talk\b<40>\b(?:reply|e-?mail|photo|picture)\b|)"
     R"(\b(?:know|met)\s+(?:each\s+other\s+)?(?:only\s+)?(?:online|through\s+(?:the\s+)?(?:internet|facebook|chat))\b<80>\b(?:love|marry|trust|money|heart|feel\w*)\b|)"
     R"(\b(?:chat|talk|write|reply|contact|add|message)\b<20>\b(?:me\s+)?(?:on|via|through|at|to)\b<10>\b(?:my\s+)?(?:private\s+|personal\s+|direct\s+)?(?:whats\s?app|telegram|hangouts|google\s+chat|e-?mail(?:\s+address)?|signal|viber|line|wechat)\b<80>\b(?:photos?|pictures?|know\s+(?:each\s+other|more|you)|love|dear|honey|beautiful|lonely|relationship|friend(?:ship)?|single|handsome|tell\s+you\s+more)\b|)"
     R"(\bschrijf\s+me\b<15>\b(?:op|via|privé\w*|e-?mail)\b|\bwedu(?:we|wnaar)\b<60>\b(?:profiel|verliefd|kennis)\b|)"
     R"(\b(?:veuf|veuve|divorcée?|célibataire)\b<60>\b(?:connaissance|profil|relation|âme\s+sœur|rencontr\w+)\b|\bécri(?:s|vez)-moi\b<15>\b(?:hangouts|whats\s?app|telegram|adresse|e-?mail)\b|)"
     R"(\bscrivimi\b<10>\b(?:in\s+privato|su|via|e-?mail)\b|\bvedov[oa]\b<60>\b(?:profilo|conoscer\w+|innamorat\w+)\b|)"
     R"(\bescr[íi]be(?:me)?\b<20>\b(?:correo|whats\s?app|telegram|hangouts)\b<40>\b(?:conoc\w+|amistad|privado)\b|\b(?:viud[oa]|divorciad[oa])\b<60>\b(?:perfil|conoc\w+|amor|enamor\w+)\b|)"
     R"(\bescreve\b<15>\b(?:no|para\s+o|e-?mail|whats\s?app|telegram)\b|\b(?:vi[úu]v[oa]|divorciad[oa])\b<60>\b(?:perfil|conhec\w+|apaixon\w+)\b|)"
     R"((?:加我|加)(?:微信|LINE|QQ)[\s\S]{0,4}(?:[慢细詳]|聊|[认認][识識])|(?:[缘緣]分)[\s\S]{0,12}(?:朋友|[认認][识識])|回[来來]就[还還]你|)"
     R"(LINEでお話し|これも(?:何かの)?ご縁|お友達になり|チャットでしか知らない|)"
     R"((?:인연|친구)[\s\S]{0,8}친구|(?:카톡|라인|텔레그램)[\s\S]{0,4}으?로[\s\S]{0,4}친구|갚을게|친구 ?할까요|친구하고 ?싶|)"
     R"(<faraway>|)"
     R"(\b(?:ticket|visa|passport|travel|flight)\s+(?:money|fees?|costs?|fare)\b<60>\b(?:come|fly|together|meet|with\s+you|hold\s+you)\b<30>\b(?:you|together|finally|forever|darling|love)\b|\b(?:only|just|merely)\b<12>\b(?:talked|chatted|written|texted|spoken|met)\b<12>\bonline\b<40>\b(?:trust|love|heart|feel\w*|savings|marry)\b|)"
     R"(\b(?:falsche\s+nummer|nummer\s+(?:vertauscht|falsch|verwechselt)|falsch\s+(?:gespeichert|verbunden|getippt)|verwählt|falsche[nr]?\s+(?:person|kontakt))\b|)"
     R"(\b(?:verkeerde?\s+(?:nummer|persoon|contact)|verkeerd\s+(?:opgeslagen|verbonden)|ben\s+je\s+\w+\s+niet)\b|)"
     R"(\b(?:trompée?\s+de\s+(?:numéro|personne|contact)|mauvais\s+(?:numéro|contact)|erreur\s+de\s+(?:numéro|destinataire)|mal\s+noté|ce\s+n['’]est\s+pas\s+vous)\b|)"
     R"(\b(?:sbagliato\s+(?:numero|persona|contatto)|numero\s+(?:sbagliato|errato)|(?:confuso|sbagliato)\s+il\s+numero|salvato\s+male|non\s+è\s+lei)\b|)"
     R"(\b(?:equivoc\w+\s+(?:de|el)\s+(?:n[úu]mero|contacto|persona)|n[úu]mero\s+equivocado|me\s+equivoqu[ée]|anot\w+\s+mal)\b|)"
     R"(\b(?:errei\s+o\s+(?:contato|n[úu]mero)|n[úu]mero\s+errado|enganei-me\s+n[oa]|engan[eo]\w*\s+(?:no|de)\s+(?:n[úu]mero|contacto)|pessoa\s+errada)\b|)"
     R"((?:加|打|[记記]|存|[发發]|[认認])[错錯](?:了)?(?:[号號][码碼]|人)?(?:了)|[号號][码碼](?:[给給][错錯]|不[对對])|)"
     R"(登録[をが]?間違え|番号[をが]?(?:間違|違)|人違い|送り間違え|)"
     R"((?:번호|연락처)[를을]?[\s\S]{0,6}잘못 ?(?:줬|저장|알|적|보)|잘못 ?(?:보냈|걸)|)"
     R"(\b(?:vergist\s+(?:in|van)|verkeerd\s+(?:getypt|nummer)|nummer\s+verwisseld)\b|)"
     R"(\b(?:j['’]ai\s+confondu|mauvaise\s+personne|faux\s+numéro|mal\s+(?:composé|enregistré|recopié))\b|)"
     R"(\b(?:ho\s+sbagliato|persona\s+sbagliata|contatto\s+sbagliato|mi\s+sono\s+sbagliat\w)\b|)"
     R"(\b(?:n[úu]mero\s+trocado|me\s+confundi|salvei\s+errado|mandei\s+(?:pra|para\s+a)\s+pessoa)\b|)"
     R"(弄[错錯]|[认認][错錯]人|[号號][码碼][输輸存][错錯]|不好意思[\s\S]{0,6}[错錯]了|)"
     R"(間違えてしまい|送り先を間違|別の方に|)"
     R"(<wrongname>|)"
     R"(<strayhello>|)"
     R"(<lovedebt>|)"
     R"(번호를? ?착각|다른 ?분께|저장을 ?잘못|번호가 ?틀렸)"); }),
     true},
    {"rom-military", "Romance fraud", "warn", 30,
     "poses as a soldier or contractor on deployment",
     pattern([] { return std::string_view(
     R"(\b(?:deployed|stationed|posted|serving|peacekeep\w+)\b<25>\b(?:in|to|with|abroad|overseas)\b<40>\b(?:lonely|wife|widow\w*|love|heart|leave|army|un\b|mission|woman|dear|account)\b|\b(?:general|sergeant|captain|colonel|major)\b<25>\b(?:us|u\.s\.|american|nato|un)\s+(?:army|forces?|troops|navy)\b|)"
     R"(\b(?:oil\s+rig|oil\s+platform|rig|offshore|vessel)\b<40>\b(?:engineer|contract|no\s+phone|ends?|sweetheart|darling|come\s+to\s+you|lonely)\b|\b(?:army|military|navy)\s+(?:surgeon|doctor|officer|engineer|nurse)\b<40>\b(?:cannot|can['’]?t|dear|lonely|yemen|syria|account)\b|\b(?:camp|base)\s+in\s+[A-Z]\w+<60>\b(?:messages|alive|leave|general)\b|)"
     R"(\b(?:i\s+am|i['’]m|my\s+name\s+is|this\s+is)\b<60>\b(?:sgt|sergeant|captain|major|general|lieutenant|colonel|soldier|army|marine|navy|military|peace\s?keep\w+|surgeon|contractor|engineer)\b<80>\b(?:deployed|deployment|stationed|serving\s+in|on\s+(?:a\s+)?(?:secret\s+)?mission|war\s+zone|(?:oil\s+)?rig|offshore|peace\s?keeping|base\s+in|camp\s+in|syria|afghanistan|iraq|yemen|kabul|baghdad|somalia|libya)\b|\b(?:surgeon|doctor|captain|engineer|officer)\b<30>\b(?:un\b|united\s+nations|widow(?:er)?|at\s+sea|peace\s+mission)\b|\b(?:soldier|contractor|engineer)\b[^.!?]{0,40}\bretire\s+soon\b|)"
     R"(\b(?:deployed|stationed|serving|deployment)\b<40>\b(?:syria|afghanistan|iraq|yemen|kabul|baghdad|somalia|libya|ukraine|oil\s+rig|offshore|overseas|peace\s?keeping)\b<80>\b(?:you|love|alone|widow\w*|chat|meet|heart|leave)\b|)"
     R"(\b(?:deployed|stationed|serving|mission)\b<25>\b(?:in|at)\s+(?:syria|afghanistan|iraq|yemen|ukraine|kabul|baghdad|somalia|libya|a\s+war\s+zone)\b<150>\b(?:love|leave\s+(?:fee|request)|trunk|consignment|box|million|fund|dear|honey|trust\s+you|relationship|retire\w*|safe\s?keeping|money\s+out)\b|)"
     R"(\b(?:us\s+army|u\.s\.\s+army|american\s+soldier|peace\s?keeping|military)\b<120>(?:\b(?:consignment|trunk\s+box|box\s+of|safe\s?keeping|found\s+(?:some\s+)?money|million)|\$\s?\d[\d,.]*\s?m\w*)\b|)"
     R"(\b(?:ich\s+bin|bin|als)\b<30>\b(?:offizier|soldat\w*|general|major|oberst|sergeant|arzt|ärztin|ingenieur\w*)\b<60>\b(?:us-?armee|armee|syrien|afghanistan|jemen|irak|bohrinsel|ölplattform|uno|un-mission|stationiert|einsatz)\b|)"
     R"(\b(?:militair|soldaat|generaal|arts|sergeant|kapitein|ingenieur)\b<40>\b(?:syrië|afghanistan|jemen|irak|missie|leger|booreiland|vn)\b|)"
     R"(\b(?:militaire|soldat|officier|ingénieur|médecin|chirurgien|capitaine|général)\b<60>\b(?:plateforme\s+pétrolière|syrie|mission|armée|afghanistan|yémen|onu|déployée?)\b|)"
     R"(\b(?:militare|soldato|generale|medico|ufficiale|sergente|capitano|ingegnere)\b<40>\b(?:siria|afghanistan|yemen|iraq|missione|onu|esercito|piattaforma)\b|\b(?:chirurgo|medico|capitano|ingegnere|ufficiale)\b<30>\b(?:onu|vedovo|in\s+mare|nazioni\s+unite|missione\s+di\s+pace)\b|)"
     R"(\b(?:militar|soldado|general|m[ée]dico|sargento|capit[áa]n|ingeniero|cirujano)\b<60>\b(?:siria|afganist[áa]n|yemen|irak|ej[ée]rcito|misi[óo]n|onu|plataforma\s+petrolera)\b|\b(?:cirujano|m[ée]dico|capit[áa]n|ingeniero|oficial)\b<30>\b(?:onu|viudo|alta\s+mar|naciones\s+unidas|misi[óo]n\s+de\s+paz)\b|)"
     R"(\b(?:militar|soldado|m[ée]dico|general|sargento|capit[ãa]o|engenheiro)\b<60>\b(?:s[íi]ria|afeganist[ãa]o|i[êe]men|iraque|ex[ée]rcito|miss[ãa]o|onu|plataforma)\b|)"
     R"(\b(?:врач|хирург|капитан|инженер)\b<30>\b(?:миротворч\w+|вдовец|оон)\b|)"
     R"((?:我是)[\s\S]{0,10}(?:美[国國军軍]|[军軍][医醫官人]|工程[师師]|[维維]和)[\s\S]{0,16}(?:[叙敘]利[亚亞]|也[门門]|阿富汗|[维維]和|石油|派[驻駐])|[联聯]合[国國]的?(?:[医醫]生|工程|[军軍])|)"
     R"((?:シリア|イエメン|アフガニスタン|国連|派遣)[\s\S]{0,20}(?:軍の?(?:医師|医)|軍人|将軍|兵士|エンジニア)|国連の(?:医師|医者|兵)|)"
     R"((?:시리아|예멘|아프간|이라크|유엔|파병)[\s\S]{0,12}(?:군인|군의관|미군|의사|장교)|(?:군인|군의관|미군|장교)[\s\S]{0,20}(?:시리아|예멘|파병)|)"
     R"(\b(?:i['’]?m|i\s+am|i\s+work|working|my\s+job|i\s+serve|serving)\b<40>\b(?:surgeon|doctor|nurse|engineer|sergeant|soldier|captain|officer|contractor|pilot|seaman|driller)\b<40>\b(?:oil\s+rig|rig|platform|syria|yemen|iraq|afghanistan|ukraine|somalia|libya|war\s+zone|at\s+sea|red\s+cross|un|nato|united\s+nations|peace\w*)\b)"); }),
     true},

    // ---- Bulk mail -----------------------------------------------------------------------------
    {"spam-unsubscribe-bulk", "Bulk mail", "warn", 15,
     "carries the unsubscribe wording of bulk mail",
          R"(\b(?:unsubscribe|opt[- ]?out|be\s+removed|remove\s+(?:me|yourself|your\s+(?:e-?mail|name|address)))\b[^.!?]{0,60}\b(?:click|here|link|reply|e-?mail|mailing|list|future|receive|below|anytime|any\s+time|instantly|communications?|newsletter|preferences)\b|)"
     R"(\b(?:click|here|link|reply|follow|visit)\b[^.!?]{0,60}\b(?:to\s+|and\s+)?(?:unsubscribe|opt[- ]?out|be\s+removed|remove\s+(?:me|yourself))\b|)"
     R"(\b(?:no\s+longer\s+(?:wish|want)|do\s+not\s+(?:wish|want)|don['’]t\s+want|prefer\s+not|if\s+you['’]d\s+rather\s+not|not\s+wish)\b[^.!?]{0,15}\bto\s+(?:receive|get|hear)\b[^.!?]{0,50}\b(?:e-?mails?|mailings?|messages?|newsletters?|offers?|communications?|promotions?|notifications?|updates|from\s+us|alerts)\b|)"
     R"(\bunsubscribe\b[^.!?]{0,8}$|)"
     R"(\b(?:manage|update|change|email)\s+(?:your\s+|my\s+)?(?:e-?mail\s+|subscription\s+|mailing\s+|communication\s+|notification\s+)?preferences\b|)"
     R"(\b(?:abmelden|abbestellen|austragen)\b[^.!?]{0,60}\b(?:newsletter|klick\w*|hier|link|mailing\w*|e-?mails?|verteiler)\b|)"
     R"(\b(?:newsletter|klick\w*|hier|link|mailing\w*|e-?mails?|wenn\s+sie)\b[^.!?]{0,60}\b(?:abmelden|abbestellen|abzumelden|abzubestellen|austragen)\b|)"
     R"(\b(?:abbestellen|abmelden|uitschrijven|afmelden|se\s+désabonner|darse\s+de\s+baja|descadastr\w+)\b[^.!?]{0,8}$|)"
     R"(\b(?:désabonn\w+|désinscri\w+|ne\s+plus\s+recevoir)\b|)"
     R"(\b(?:darse\s+de\s+baja|cancelar\s+(?:la\s+|a\s+)?(?:suscripci[óo]n|inscri[çc][ãa]o|assinatura)|descadastr\w+|dejar\s+de\s+recibir|deixar\s+de\s+receber|n[ãa]o\s+deseja(?:r)?\s+(?:mais\s+)?receber|remover\s+(?:meu|seu|o)\s+e-?mail)\b|)"
     R"(\b(?:uitschrijven|afmelden|geen\s+e-?mails\s+meer)\b|)"
     R"((?:退订|退訂|取消订阅|取消訂閱|配信停止|配信解除|購読解除|수신\s?거부))",
     true},
    {"spam-viagra", "Bulk mail", "warn", 45,
     "advertises potency drugs",
     pattern([] { return std::string_view(
     R"(\b(?:viagra|cialis|levitra|kamagra|sildenafil|tadalafil|vardenafil)\b<40>(?:\b(?:buy|order|cheap\w*|price\w*|online|discount\w*|free|generic|shipping|save|sale|super|soft|mg)\b|<amount>)|)"
     R"(\b(?:buy|order|cheap\w*|online|discount\w*|free|generic|herbal)\b<30>\b(?:viagra|cialis|levitra|kamagra|sildenafil|tadalafil|vardenafil)\b|)"
     R"(\bv[1!|l]agra\b|)"
     R"(\bv[1!|il][@4]gra\b|)"
     R"(\bc[1!|l][a@]l[1!|l]s\b|)"
     R"((?:伟哥|威而钢|威而鋼|壮阳药|壯陽藥|비아그라|バイアグラ))"); }),
     true},
    {"spam-casino", "Bulk mail", "warn", 35,
     "advertises online gambling",
     pattern([] { return std::string_view(
     R"(\b(?:online|live|internet|virtual|crypto|mobile|best|top|new|our|vegas)\b<20>\b(?:casinos?|slots?|poker|roulette|betting|sportsbook|gambling)\b<60>(?:\b(?:bonus\w*|free|win|play|deposit|jackpot\w*|sign\s?up|join|spins?|odds|register|welcome)\b|<amount>)|)"
     R"(\b(?:casinos?|slots?|poker|roulette|betting|sportsbook|jackpots?)\b<40>\b(?:bonus\w*|free\s+spins?|no\s+deposit|welcome\s+(?:offer|pack\w*|bonus)|sign\s?up|deposit|payouts?|vip|chips|match\w*|play\s+now)\b|)"
     R"(\b(?:free|bonus|gratis)\s?-?spins?\b|)"
     R"(\b(?:bonus|welcome\s+(?:pack|package|offer)|willkommens(?:paket|bonus))\b<30>\b\d{2,4}\s?(?:fs|free\s+spins|freispiele|spins)\b|)"
     R"(\b(?:höchsten?\s+auszahlungs(?:quoten?|rate)|highest\s+pay(?:out|ing)|live\s+dealers?|big\s+wins|spinnin\w*\s+those\s+reels|keine\s+einzahlung)\b|)"
     R"(\b(?:\d{2,3}%\s+(?:\w+\s+)?(?:deposit\s+|welcome\s+|match\s+)?bonus|no[- ]deposit\s+bonus|welcome\s+bonus|deposit\s+bonus|match\s+bonus)\b|)"
     R"(\b(?:play|bet|wager|gamble)\b<20>\b(?:now|today|online|here|and\s+win|to\s+win)\b<30>\b(?:casino|jackpot|win|bonus|slots?|real\s+money|spins?)\b|)"
     R"(\b(?:online-?casino|spielautomaten|freispiele|willkommensbonus|einzahlungsbonus|giros\s+gratis|tours\s+gratuits|rodadas\s+gr[áa]tis|tiradas\s+gratis|gratis\s+spins|casa\s+de\s+apuestas|apostas\s+online|tigrinho)\b|)"
     R"((?:真人娱乐|在线赌场|線上賭場|博彩|首存|百家乐|百家樂|六合彩|時時彩|时时彩|体育投注|オンラインカジノ|바카라|카지노|토토\s?사이트|첫충))"); }),
     true},
    {"spam-seo", "Bulk mail", "warn", 30,
     "offers search-engine ranking, links or web design unasked",
     pattern([] { return std::string_view(
     R"(\b(?:seo|search\s+engine\s+(?:optimi[sz]ation|ranking)|google\s+(?:ranking|rankings|first\s+page|page\s+one|top)|first\s+page\s+of\s+google|top\s+of\s+google|backlinks?|link\s+building|guest\s+post(?:s|ing)?|domain\s+authority|organic\s+traffic|web\s?site\s+traffic|keyword\s+ranking)\b<100>(?:\b(?:your|we|offer\w*|services?|package|price|rank\w*|increase|boost|improve|guarantee\w*|affordable|quote|proposal|website|site|cost|cheap)|\$)\b|)"
     R"(\b(?:rank|boost|improve|increase|get|list(?:ed)?|submit|promote|place|put)\b<30>\byour\s+(?:\w+\s+)?(?:web\s?site|site|business|page|ranking|traffic|sales|listing)\b<60>\b(?:google|search\s+engines?|yahoo|bing|first\s+page|top\s+(?:10|ten|of)|ranking\w*|traffic|visitors)\b|)"
     R"(\b(?:redesign|design|develop\w*|build|errors|issues)\b<30>\byour\s+(?:\w+\s+)?(?:web\s?site|mobile\s+app|web\s?page)\b<80>\b(?:affordable|price\w*|quote|proposal|cost|package|portfolio|services?|interested|free\s+(?:audit|report|analysis)|ranking)\b|)"
     R"(\b(?:million|thousands?|\d[\d,]{3,})\b<20>\b(?:e-?mail\s+addresses|e-?mails|leads|visitors|hits|followers|targeted\s+(?:contacts|visitors))\b<60>(?:<amount>|\b(?:only|price|buy|database|cd|list|sent|per|guaranteed|bulk|send|advertis\w+|lists?))\b|)"
     R"(\b(?:e-?mail\s+(?:list|database|marketing|leads)|bulk\s+e-?mail|mailing\s+list|contact\s+list|data\s?base)\s+of\b<60>\b(?:decision\s+makers|users|attendees|companies|professionals|contacts|customers|executives|clients)\b|)"
     R"(\b(?:suchmaschinenoptimierung|referenzierung|référencement\s+(?:naturel|google)|posicionamiento\s+(?:web|seo)|otimiza[çc][ãa]o\s+de\s+sites)\b)"); }),
     true},
    {"spam-all-caps", "Bulk mail", "warn", 20,
     "long stretches of capitals",
     R"(\b[A-Z]{2,}(?:\s+[A-Z]{2,}){6,}\b)",
     false},
    {"spam-exclaim", "Bulk mail", "warn", 15,
     "shouts with strings of exclamation marks",
     R"(!!!|)"
     R"(！！！)",
     true},
    {"spam-100-free", "Bulk mail", "warn", 25,
     "advertises something as free of charge and of obligation",
     pattern([] { return std::string_view(
     R"(\bno\s+(?:credit\s+check|collateral)\b|\bmoney\s+in\s+your\s+account\s+(?:today|now|within)\b|\b(?:no|without\s+(?:a\s+)?)\s+?guarantor\b|\b(?:loans?|lend\w*)\b<40>\bserious\s+(?:people|borrowers|applicants)\b|\bblack\s+?listed\s+(?:individuals|people|persons|clients)\b|\bdebt\s+review\b|\b(?:every\s+bank\s+said\s+no|no\s+?(?:one|body)\s+(?:has\s+to|needs\s+to)\s+(?:vouch|sign)|no\s+guarantor|within\s+\d+\s+(?:hours|minutes))\b[\s\S]{0,80}\b(?:whats\s+?app|zap|app\s+ons|bürgen|garant)\b|\b(?:in\s+spite\s+of\s+(?:your\s+)?debts?|despite\s+(?:your\s+)?debts?|no\s+(?:papers|paperwork|documents|proof)|without\s+(?:papers|documents)|(?:cash|money|paid\s+out)\s+(?:today|now))\b|)"
     R"(\b(?:100%|one\s+hundred\s+percent|hundred\s+percent|completely|totally|absolutely|entirely|all)\s+free\b|)"
     R"(\bfree\s+(?:gift|trial|access|sample|bonus|membership|money|quote|shipping|report|video|info(?:rmation)?|offer|download|consultation|preview|delivery|estimate|sign\s?up|registration|cash|vacation|cd|dvd|phone|installation|of\s+charge|month|entry|demo|credit\s+report|spins?|book|e-?book|guide|kit)\b<60>\b(?:click\s+here|call\s+now|order\s+now|claim|no\s+(?:obligation|cost|charge|strings|risk|credit\s+card)|limited|act\s+now|sign\s?up)\b|)"
     R"(\b(?:no\s+(?:obligation|cost\s+to\s+you|strings\s+attached|hidden\s+(?:fees|costs|charges)|credit\s+card\s+(?:required|needed)|catch|gimmicks?))\b|)"
     R"(\b(?:get|claim|receive|grab|order|win|try|take)\b<20>\b(?:your\s+|a\s+|it\s+|them\s+|one\s+|our\s+|the\s+)?(?:\w+\s+)?(?:free|for\s+free|freebie|complimentary)\b<40>\b(?:now|today|gift|sample|click|limited|prize|card|kit|box)\b|)"
     R"(\b(?:100\s?%\s+(?:kostenlos|gratis)|völlig\s+kostenlos|komplett\s+kostenlos|gratis\s+testen|kostenlos\s+testen|kostenlos\s+und\s+unverbindlich|jetzt\s+kostenlos|ganz\s+kostenlos|unverbindlich\s+und\s+kostenlos)\b|)"
     R"(\b(?:100\s?%\s+gratuit|totalement\s+gratuit|entièrement\s+gratuit|sans\s+engagement|gratuit\s+et\s+sans)\b|)"
     R"(\b(?:100\s?%\s+(?:gratis|gratuit[oa])|totalmente\s+(?:gratis|gratuit[oa])|completamente\s+gratis|sin\s+compromiso|sem\s+compromisso|consulta\s+gratuita|gr[áa]tis\s+agora|sem\s+custo|frete\s+gr[áa]tis)\b|)"
     R"(\b(?:100\s?%\s+gratis|helemaal\s+gratis|volledig\s+gratis|geheel\s+gratis|vrijblijvend)\b|)"
     R"((?:免费领取|免費領取|完全免费|完全免費|完全無料|登録無料|무료\s?(?:체험|증정|나눔))|)"
     R"(\b(?:erhalten\s+sie|sichern\s+sie\s+sich|hol\s+dir|get|receive|claim)\b<15>[$€£]?\s?\d[\d.,]*\s?[$€£]?<8>\b(?:gratis|kostenlos|free|bonus)\b|)"
     R"(\b\d{2,3}\s?%\s+(?:\w+\s+){0,2}(?:bonus|cash\s?back)\b|)"
     R"(\b(?:kredit|darlehen)\w*\b<60>\b(?:ohne|keine)\b<12>\b(?:schufa|sicherheit\w*|bürgen|bonität\w*|vorkosten|einkommensnachweis)\b|\b(?:schnelle|sofortige|feste)\s+(?:zusage|auszahlung|genehmigung)\b|\bohne\s+papierkram\b|\b(?:auch\s+bei|trotz)\s+(?:negativer\s+|schlechter\s+)?(?:schufa|bonität)\b|\b(?:ehrliche|seriöse|ernsthafte)\s+(?:menschen|personen|leute)\b|\bmelden\s+sie\s+sich\s+mit\s+der\s+gewünschten\s+summe\b|\b(?:negative\w*\s+schufa|trotzdem|ohne\s+bürgen|zusage\s+in|innerhalb\s+von\s+\d+\s+(?:stunden|minuten))\b[\s\S]{0,80}\b(?:whats\s+?app|zap|app\s+ons|bürgen|garant)\b|\b(?:trotz\s+(?:schlechter|schulden|negativer)\w*|keine\s+(?:unterlagen|papiere)|ohne\s+(?:unterlagen|papiere|nachweis\w*)|auszahlung\s+(?:heute|sofort))\b|)"
     R"(\b(?:lening|krediet)\b<60>\b(?:zonder|geen)\b<8>\b(?:bkr|onderpand|toetsing|borg)\b|\bgeldschieter\b<60>\b(?:binnen\s+24\s+uur|antwoord|rente)\b|\bzonder\s+(?:papieren|papierwerk|loonstroken)\b|\bgeld\s+lenen\b<20>\bzonder\b|\bzonder\s+bkr\b|\b(?:ook\s+bij|ondanks)\s+betalingsachterstand\w*\b|\bserieuze\s+(?:mensen|personen)\b|\b(?:bkr\w*|geen\s+borg|geen\s+garantsteller|binnen\s+\d+\s+(?:uur|minuten))\b[\s\S]{0,80}\b(?:whats\s+?app|zap|app\s+ons|bürgen|garant)\b|\b(?:ondanks\s+schulden|zonder\s+(?:papieren|documenten|bewijs)|vandaag\s+op\s+uw\s+rekening|direct\s+uitbetaald)\b|)"
     R"(\b(?:prêts?|crédits?)\b<60>\bsans\s+(?:justificatif|garantie|frais|caution|enquête)\b|\bréponse\s+rapide\b|\b(?:prêts?|crédits?)\s+à\s+toute\s+personne\b|\bsans\s+(?:enquête|justificatif|paperasse)\b|\bmême\s+(?:aux?\s+)?(?:fichés|interdits)\b|\bréponse\s+(?:en|sous)\s+(?:une|\d+)\s+?h\w*\b|\bsans\s+(?:justificatif\s+ni\s+)?garant\b|\b(?:même\s+(?:avec\s+)?fich\w*|ficp|aucun\s+garant|sans\s+garant|versés?\s+en|sous\s+\d+\s+?h)\b[\s\S]{0,80}\b(?:whats\s+?app|zap|app\s+ons|bürgen|garant)\b|\b(?:malgré\s+(?:vos\s+|des\s+)?dettes|sans\s+(?:papiers|documents|justificatifs?)|versement\s+(?:aujourd|immédiat))\b|)"
     R"(\bprestit[io]\b<60>\b(?:senza\s+(?:busta\s+paga|garanzie|garante|spese)|anche\s+(?:a\s+)?cattivi\s+pagatori)\b|\brisposta\s+in\s+24\s+ore\b|\bsenza\s+(?:scartoffie|burocrazia)\b|\bfinanziament\w+\b<60>\bsenza\s+(?:garanzie|garante|busta\s+paga)\b|\bsoldi\s+sul\s+conto\s+in\s+\d|\bsenza\s+garanzie\s+né\b|\b(?:anche\s+se\s+segnalat\w+|nessun\s+garante|senza\s+garante|in\s+\d+\s+ore|crif)\b[\s\S]{0,80}\b(?:whats\s+?app|zap|app\s+ons|bürgen|garant)\b|\b(?:nonostante\s+i\s+debiti|senza\s+(?:documenti|busta\s+paga|garanzie)|soldi\s+(?:oggi|subito))\b|)"
     R"(\b(?:pr[ée]stamos?|cr[ée]ditos?)\b<60>\bsin\s+(?:aval|bur[óo]|garant[íi]as?|requisitos|historial)\b|\b(?:dep[óo]sito|aprobaci[óo]n|respuesta)\s+(?:inmediat[oa]|en\s+24\s+horas)\b|\bsin\s+(?:papeleos?|nómina|avales)\b|\bpersonas\s+(?:honestas|serias|honradas)\b|\baunque\s+est[ée]s?\s+en\s+(?:asnef|el\s+bur[óo])\b|\bsin\s+aval\s+ni\b|\bingreso\s+el\s+mismo\s+d[íi]a\b|\b(?:aunque\s+tenga\s+deudas|sin\s+(?:papeles|documentos|papeleo)|dinero\s+hoy)\b|)"
     R"(\b(?:empr[ée]stimo|empresto|cr[ée]dito)\b<80>\b(?:sem\s+(?:consulta|garantias?|burocracia|fiador|comprova[çc][ãa]o)|mesmo\s+negativado)\b|\bsem\s+burocracia\b|\bmesmo\s+com\s+nome\s+sujo\b|\bsem\s+(?:fiador|garantias\s+e\s+sem)\b|\bcr[ée]dito\s+liberado\b|\b(?:mesmo\s+com\s+d[íi]vidas|sem\s+(?:documentos|comprova[çc][ãa]o|burocracia)|dinheiro\s+hoje)\b|)"
     R"(\b(?:долг|займ\w?|кредит|деньги)\b<40>\bбез\s+(?:отказа|залога|поручителей|предоплаты|справок|проверок)\b|\bбез\s+(?:лишних\s+)?(?:бумаг|документов)\b<20>\b(?:займ|деньги|оформ\w+)\b|\bс\s+любой\s+кредитной\s+историей\b|\bбез\s+звонков\b|\bдаже\s+с\s+долгами\b|\bденьги\s+сегодня\b|)"
     R"([凭憑]身份[证證]即可|放款快|秒批|(?:[无無]抵押|[无無][担擔]保|免[担擔]保|免息|不[查看]征信|黑[户戶]也)|秒到[账賬]|(?:征信|徵信)[\s\S]{0,4}(?:花了|不好|黑)[\s\S]{0,4}(?:[没沒][关關]系|也)|手[续續][简簡]便|[无無]需征信|(?:[十\d]+分[钟鐘])到[账賬]|信用不好也|不用[资資]料|今天就到[账賬]|)"
     R"((?:無担保|保証人不要|審査なし|ブラックOK|誰でも借りられ)|(?:他社で断られ|来店不要|書類不要)|保証人も?担保も?不要|最短\d*[一二三四五六十]*分で|ブラックの方も|即日お?振込|書類不要|本日お?振込|)"
     R"(무담보|무보증|무서류|신용 ?등급 ?(?:상관|무관|관계)|(?:당일|즉시) ?(?:입금|대출|승인)|기존 ?대출[\s\S]{0,8}상환|서류 ?없이|신용 ?불량자?도|10분 ?만에|신용이 ?낮아도|서류 ?없이|오늘 ?입금|)"
     R"(<lender>|)"
     R"(\bprêts?\b<30>\bsans\s+(?:garantie|caution)\b|\bfichée?\s+banque\b|)"
     R"(\bcr[ée]dito\b<40>\b(?:pr[ée]-?aprovado|sem\s+an[áa]lise)\b|)"
     R"(個人間融資|お金に困って)"); }),
     true},

    // ---- Abuse ---------------------------------------------------------------------------------
    {"hate-generic-group", "Abuse", "warn", 60,
     "attacks a whole group of people",
     pattern([] { return std::string_view(
     R"(\b(?:foreigners|immigrants|migrants|refugees|muslims|jews|gypsies|gays)\b<25>\b(?:don['’]?t\s+belong|ruin\w*|poison\w*|destroy\w*|scum|parasites?|thieves|vermin|filth\w*)\b|)"
     R"(\b(?:all|these|those)\s+(?:the\s+)?(?:foreigners|immigrants|migrants|refugees|muslims|jews|gypsies)\b<12>\bare\b<12>\b(?:scum|thieves|liars|criminals|rats|parasites)\b|\b(?:foreigners|immigrants|migrants|refugees)\b<6>\bare\s+all\s+(?:thieves|liars|criminals|scum)\b|\b(?:all|those|these|the|dirty|filthy|fucking|damn|bloody)\s+(?:\w+\s+)?(?:jews?|muslims?|blacks?|asians?|mexicans?|arabs?|gays?|homosexuals?|immigrants?|refugees?|foreigners|gypsies|migrants|africans)\b<12>\b(?:are|is)\s+(?:\w+\s+)?(?:criminals|thieves|terrorists|rapists|animals|stupid|inferior|disgusting|evil|lazy|dirty|the\s+(?:problem|enemy)|a\s+(?:plague|disease|cancer)|ruining|destroying|liars|savages|parasites)\b|)"
     R"(\b(?:i|we)\s+(?:really\s+|fucking\s+|absolutely\s+)?(?:hate|despise|loathe|detest|can['’]t\s+stand)\s+(?:all\s+|these\s+|those\s+|the\s+|every\s+)?(?:jews?|muslims?|christians?|hindus?|blacks?|whites?|asians?|mexicans?|arabs?|gays?|lesbians?|homosexuals?|transgenders?|trannies|immigrants?|refugees?|foreigners|gypsies|migrants|africans|indians|chinese|women|niggers?|faggots?)\b|)"
     R"(\b(?:send|ship|kick|throw|get\s+rid\s+of|deport|keep|ban)\s+(?:\w+\s+){0,3}(?:jews?|muslims?|blacks?|asians?|mexicans?|arabs?|gays?|immigrants?|refugees?|foreigners|gypsies|migrants|africans)\s+(?:back|out|away|home|off)\b|)"
     R"(\b(?:niggers?|kikes?|spics?|chinks?|gooks?|wetbacks?|ragheads?|towelheads?|sandniggers?|faggots?)\b|)"
     R"(\b(?:ausländer\s+raus|scheiß\s+(?:ausländer|juden|moslems|türken|flüchtlinge)|judenschwein\w*|kanaken|sales?\s+(?:arabes?|juifs?|noirs?)|putos\s+(?:moros|negros|judíos|inmigrantes)|malditos\s+(?:inmigrantes|judíos|imigrantes|judeus))\b)"); }),
     true},
    {"hate-subhuman", "Abuse", "warn", 60,
     "calls people inferior by birth",
     pattern([] { return std::string_view(
     R"(\b(?:inferior|lesser|lower|subhuman)\b<12>\b(?:race|races|breed|beings?|blood|people)\b|\bless\s+than\s+human\b|)"
     R"(\b(?:of\s+)?(?:lesser|lower|inferior)\s+(?:worth|value|stock|breed|kind)\b<12>\bthan\s+(?:ourselves|us|we|our)\b|)"
     R"(\b(?:born|by\s+(?:birth|nature|blood|descent)|genetic\w*|biological\w*|racial\w*|inherently|naturally)\b<15>\b(?:inferior|lesser|lower|beneath\s+us|stupid|worthless|unfit|defective|less\s+(?:intelligent|human|worthy|than)|criminals?|slaves?|to\s+serve)\b|)"
     R"(\b(?:inferior|lesser|worth\s+less|beneath\s+us|not\s+(?:fully\s+|really\s+)?human|less\s+than\s+human)\b<15>\b(?:by\s+(?:birth|nature|blood|descent)|from\s+birth|race|blood|genes|stock|breed)\b|)"
     R"(\b(?:people|those|these|they|them|immigrants|foreigners)\s+(?:\w+\s+){0,2}(?:are|is)\s+(?:\w+\s+){0,2}(?:inferior|subhuman|sub-human)\b|)"
     R"(\b(?:inferior|lesser|subhuman|sub-human|degenerate|mongrel|filthy|mud|master|superior)\s+(?:race|races|species|people|breed|blood|beings?|humans?)\b<60>\b(?:are|is|should|must|will|they|we|our|jews?|blacks?|muslims?|them|white|immigrants?)\b|)"
     R"(\b(?:are|is|they['’]re)\s+(?:all\s+|just\s+|nothing\s+but\s+|like\s+|no\s+better\s+than\s+|genetically\s+|intellectually\s+|biologically\s+)+(?:inferior|sub-?humans?|animals|apes|monkeys|savages|insects|dogs|pigs|a\s+disease|a\s+cancer|vermin|cockroaches)\b|)"
     R"(\b(?:white\s+(?:power|genocide|supremacy\s+is)|great\s+replacement|racial\s+purity|racially\s+pure|ethnic\s+cleansing\s+is|gas\s+the|heil\s+hitler|sieg\s+heil|14\s?/\s?88|blood\s+and\s+soil|untermensch\w*)\b|)"
     R"(\b(?:minderwertige\s+rasse|herrenrasse|race\s+inférieure|sous-hommes?|raza\s+inferior|ra[çc]a\s+inferior)\b)"); }),
     true},
    {"abuse-doxx", "Abuse", "warn", 55,
     "publishes or threatens to publish somebody's private details",
     pattern([] { return std::string_view(
     R"(\b(?:here(?:['’]s|\s+is|\s+are)|this\s+is|post(?:ing|ed)?|publish(?:ing|ed)?|leak(?:ing|ed)?|dox+(?:ed|ing)?|releas(?:e|ing|ed)|expos(?:e|ing|ed)|got|found)\b<20>\b(?:his|her|their|this\s+(?:guy|woman|person|idiot|bitch|creep)['’]s)\s+(?:\w+\s+)?(?:home\s+address|address|phone\s+number|real\s+name|workplace|personal\s+(?:info|information|details)|employer|house|school|private\s+(?:info|details))\b<80>\b(?:go|make|call|visit|let|show|know|pay|everyone|spread|share|flood|harass|him|her|them|online|internet|twitter)\b|)"
     R"(\b(?:i|we)(?:['’]ll|\s+will|['’]m\s+going\s+to|\s+am\s+going\s+to|['’]m\s+gonna|\s+are\s+going\s+to)\b<10>\b(?:dox+|post|publish|leak|release|put)\b<10>\b(?:you|your|his|her|their)\b<12>\b(?:address|phone\s+number|real\s+name|workplace|personal\s+(?:info|information|details)|number|private|home|identity|everything)\b<40>\b(?:online|internet|twitter|public\w*|everyone|everywhere|forums?|reddit|facebook|web|telegram)\b|)"
     R"(\b(?:dox+\s+(?:him|her|them|this|that|you)|(?:full|complete)\s+dox+|doxxed\s+(?:him|her|them))\b)"); }),
     true},
    {"abuse-brigade", "Abuse", "warn", 45,
     "calls on others to harass somebody",
     pattern([] { return std::string_view(
     R"(\b(?:let['’]s|lets|everyone|everybody|guys|all\s+of\s+you|we\s+should|we\s+need\s+to|you\s+all|go|please)\s+(?:all\s+|go\s+)?(?:mass[- ])?(?:report|spam|flood|raid|brigade|harass|bombard|attack|swarm|troll|downvote|review[- ]bomb|dogpile)\b<30>\b(?:him|her|their|his|them|this\s+(?:guy|account|channel|page|user|person|business|restaurant|woman|stream|server)|the\s+(?:account|channel|page|comments|inbox|stream|server)|inbox|page|profile|account|channel|until)\b|)"
     R"(\b(?:mass[- ]report|review[- ]bomb|raid|brigade|swat)\b<8>\b(?:him|her|them|his|their|this)\b|)"
     R"(\b(?:leave|post|write|drop)\b<20>\b(?:one[- ]star|1[- ]star|fake|negative|bad)\b<8>\breviews?\b<40>\b(?:everyone|all|ruin|destroy|bury|business|shut|together|until|their)\b|)"
     R"(\b(?:make|let['’]s\s+make)\s+(?:his|her|their)\s+(?:life|lives)\s+(?:a\s+)?(?:hell|miserable|unbearable)\b)"); }),
     true},
    {"abuse-revenge", "Abuse", "warn", 55,
     "threatens to take revenge on somebody",
     pattern([] { return std::string_view(
     R"(\b(?:i|we)(?:['’]ll|\s+will|['’]m\s+going\s+to|\s+am\s+going\s+to|['’]m\s+gonna|\s+shall|['’]re\s+going\s+to)\b<15>\b(?:get\s+(?:my\s+|our\s+)?revenge|take\s+(?:my\s+|our\s+)?revenge|get\s+(?:back\s+at|even\s+with)|make\s+(?:you|him|her|them)\s+(?:pay|suffer|regret|sorry)|ruin\s+(?:you|him|her|them|your|his|her|their)|destroy\s+(?:you|him|her|them|your\s+(?:life|career|reputation|business|marriage))|teach\s+(?:you|him|her|them)\s+a\s+lesson|end\s+(?:you|your\s+career|him|her))\b|)"
     R"(\b(?:you|he|she|they)(?:['’]ll|\s+will|\s+are\s+going\s+to|['’]re\s+going\s+to)\s+(?:pay\s+(?:dearly\s+)?for\s+(?:this|what|that)|regret\s+(?:this|ever|what|messing|crossing)|be\s+sorry|wish\s+you(?:['’]d|\s+had)\s+never)\b|)"
     R"(\b(?:revenge|payback|vengeance)\b<30>\b(?:ex|boss|cheat\w*|him|her|them|you|coming|on)\b<25>\b(?:pay|suffer|ruin|destroy|nudes?|photos?|cold|life|will|post)\b|)"
     R"(\b(?:das\s+wirst\s+du\s+(?:bereuen|büßen)|ich\s+mach(?:e)?\s+dich\s+fertig|tu\s+vas\s+le\s+(?:regretter|payer)|te\s+vas\s+a\s+arrepentir|vas\s+a\s+pagar\s+por\s+esto|voc[êe]\s+vai\s+(?:se\s+arrepender|pagar\s+por\s+isso))\b)"); }),
     true},

    // ---- Misuse --------------------------------------------------------------------------------
    {"misc-chain", "Misuse", "warn", 30,
     "is a chain letter that wants to be passed on",
     pattern([] { return std::string_view(
     R"(\bshare\s+share\b|\bshare\s+this\s+(?:everywhere|widely)\b|)"
     R"(\b(?:forward|send|pass|share|repost|copy\s+and\s+paste|re-?post|fwd)\b<20>\b(?:this|it)\b<25>\b(?:to|with|on\s+to)\b<15>\b(?:all|everyone|everybody|at\s+least|\d+|ten|five|seven|fifteen|twenty|as\s+many|every)\b<25>\b(?:people|friends|contacts|you\s+know|groups?|others?|persons?|list|your|love|care)\b|)"
     R"(\b(?:break|broke|breaking)\b<8>\b(?:the|this)\s+chain\b|)"
     R"(\b(?:bad\s+luck|good\s+luck|a\s+miracle|something\s+(?:good|wonderful|bad)|your\s+wish|money|blessing)\b<40>\b(?:will\s+(?:come|happen|follow)|if\s+you\s+(?:don['’]t|do\s+not|forward|send|break))\b<40>\b(?:forward|send|days?|minutes|hours|people|chain|tomorrow|years)\b|)"
     R"(\b(?:schick\w*|leite\w*|send\w*)\b<20>\b(?:diese\s+nachricht|das|dies|es)\b<20>\b(?:an\s+(?:alle|\d+|mindestens)|weiter\s+an)\b|)"
     R"(\b(?:transfère[sz]?|envoye[sz]?|partage[sz]?)\b<20>\b(?:ce\s+message|ceci)\b<15>\bà\s+(?:tous|\d+|toutes)\b|)"
     R"(\b(?:reenv[íi]\w*|comparte|compartilhe|repasse|mande|envie)\b<20>\b(?:este\s+mensaje|esta\s+mensagem|isto|esto)\b<15>\b(?:a|para|con|com)\s+(?:todos|\d+|tus|seus)\b|)"
     R"(\b(?:doe|pix|chave)\b[\s\S]{0,60}\bcompartilhe\b|)"
     R"(\bперевед\w+\b[\s\S]{0,60}\bкарт\w+\b[\s\S]{0,60}\bперешл\w+\b|)"
     R"([转轉][发發][\s\S]{0,4}功德|)"
     R"((?:후원|입금|계좌)[\s\S]{0,60}(?:공유해|퍼뜨려|전달해) ?주세요|)"
     R"((?:寄付|支援|募金)[\s\S]{0,40}拡散|)"
     R"(\bdeel\s+dit\s+(?:massaal|verder|bericht)\b|)"
     R"(\b(?:compart[ae]n?|difund\w+|reenv[íi]\w+)\b<15>\b(?:por\s+favor|a\s+todos|\d+\s+(?:amigos|contactos))\b|)"
     R"(\bquem\s+n[ãa]o\s+ajudar\s+compartilha\b|\bcompartilh\w+\b<15>\b(?:grupos|todos|\d+)\b|)"
     R"(\bперешл\w+\b<20>\b\d+\s+друзьям\b|\bрепост\s+обязател\w+|)"
     R"(拡散(?:希望|お願い))"); }),
     true},
    {"misc-fake-signature", "Misuse", "warn", 50,
     "claims a Quillseal verification inside the text itself — the verification link is the only thing that proves this, and text saying so is exactly what a forger would write",
     R"((?:this message was|content) (?:verified|signed) by (?:quillseal|quill ?seal))",
     true},
    {"misc-ai-disclaim", "Misuse", "warn", 25,
     "carries the boilerplate of a text generator",
     pattern([] { return std::string_view(
     R"(\bas\s+an?\s+(?:ai|artificial\s+intelligence|large\s+language|ai\s+language|language)[- ]?(?:language\s+)?(?:model|assistant|chatbot)\b|)"
     R"(\b(?:i\s+am|i['’]m)\s+(?:just\s+|only\s+|merely\s+)?an?\s+(?:ai|artificial\s+intelligence|language\s+model|large\s+language\s+model)(?:\s+language)?(?:\s+model|\s+assistant|\s+chatbot)?\b|)"
     R"(\b(?:certainly|sure|of\s+course)!\s+here(?:['’]s|\s+is|\s+are)\s+(?:a|an|the|your|some)\b<40>\b(?:e-?mail|letter|draft|message|version|post|essay|response|rewrite|revised|polished|statement)\b|)"
     R"(\b(?:regenerate\s+response|my\s+knowledge\s+cut-?off|as\s+of\s+my\s+last\s+(?:update|training)|i\s+cannot\s+(?:fulfil+|assist\s+with|complete)\s+(?:this|that)\s+request|i\s+hope\s+this\s+(?:draft|version)\s+(?:helps|meets))\b|)"
     R"(\[(?:your|recipient['’]s|recipient|company|sender['’]s|insert|client|customer|manager['’]s)\s+(?:full\s+|first\s+|last\s+)?(?:name|company|position|title|date|address|job\s+title|contact\s+information|email|phone\s+number)\]|)"
     R"(\b(?:als\s+(?:ki|künstliche\s+intelligenz|ki-sprachmodell|sprachmodell)|en\s+tant\s+qu(?:e|['’])\s?(?:modèle\s+de\s+langage|ia|intelligence\s+artificielle)|como\s+(?:un\s+)?modelo\s+de\s+lengua?j?e|como\s+(?:uma\s+)?ia|作为(?:一个)?(?:AI|人工智能)|AI言語モデルとして|AI\s+언어\s?모델)\b)"); }),
     true},
    {"misc-blank-cheque", "Misuse", "warn", 40,
     "gives somebody unlimited authority in advance",
     pattern([] { return std::string_view(
     R"(\b(?:blank|open)\s+che(?:que|ck)\b<60>\b(?:give|gives|given|you|sign\w*|have|authori\w+|hereby|enclosed|attached|spend)\b|)"
     R"(\b(?:sign\w*|give|giving|enclos\w+|issue|write|send)\b<20>\b(?:a\s+|the\s+|you\s+a\s+|several\s+)?(?:blank|open|undated|pre-?signed)\s+che(?:ques?|cks?)\b|)"
     R"(\b(?:i|we)\s+(?:hereby\s+)?(?:approve|authori[sz]e|agree\s+to|accept|consent\s+to|give\s+(?:you\s+)?(?:full\s+|my\s+|our\s+)?(?:permission|authority|approval|consent|authori[sz]ation)\s+(?:for|to))\b<25>\b(?:any|all|whatever|everything|anything|every)\b<25>\b(?:you|future|charges?|expenses?|costs?|amounts?|payments?|changes|terms|decisions?|purchases?|documents|requests?|actions?)\b<40>\b(?:without\s+(?:further|limit\w*|asking|any|prior|restriction)|unconditional\w*|in\s+advance|you\s+(?:decide|want|choose|need|see\s+fit|make|like|propose|wish)|no\s+matter|regardless|whatsoever|of\s+any\s+(?:kind|amount|size)|on\s+my\s+behalf|in\s+my\s+name|in\s+the\s+future)\b|)"
     R"(\b(?:whatever|any\s+amount|any\s+sum|everything|anything)\b<15>\b(?:you\s+(?:decide|want|choose|need|see\s+fit|propose|ask))\b<30>\b(?:i\s+(?:approve|agree|accept|authori[sz]e|consent)|is\s+(?:approved|authori[sz]ed|fine\s+with\s+me)|approved\s+in\s+advance)\b|)"
     R"(\b(?:blankoscheck|blankovollmacht|chèque\s+en\s+blanc|cheque\s+en\s+blanco|cheque\s+em\s+branco|blanco\s+cheque)\b)"); }),
     true},
    {"misc-power-attorney", "Misuse", "warn", 35,
     "grants a power of attorney or authority to act in one's name",
     pattern([] { return std::string_view(
     R"(\b(?:i|we)\b<15>\b(?:hereby\s+)?(?:grant|give|appoint|authori[sz]e|empower|designate|nominate|confer)\b<60>\b(?:power\s+of\s+attorney|attorney[- ]in[- ]fact|my\s+(?:attorney|agent|proxy|legal\s+representative)|act\s+(?:on\s+my\s+behalf|in\s+my\s+name|for\s+me)|sign\s+(?:on\s+my\s+behalf|in\s+my\s+name|for\s+me|documents?\s+(?:on|in))|full\s+authority|manage\s+my\s+(?:bank\s+)?accounts?|access\s+my\s+(?:bank\s+)?accounts?)\b|)"
     R"(\b(?:full|general|durable|unlimited|limited|special|irrevocable|lasting)\s+powers?\s+of\s+attorney\b<60>\b(?:to|over|hereby|granted?|give|for|my|sign\w*)\b|)"
     R"(\b(?:power\s+of\s+attorney)\b<30>\b(?:to|over)\b<25>\b(?:you|my\s+(?:bank|accounts?|finances|property|estate|assets|affairs))\b|)"
     R"(\b(?:ich|wir)\b<15>\b(?:erteile\w*|bevollmächtige\w*)\b<40>\b(?:vollmacht|generalvollmacht|in\s+meinem\s+namen|mich\s+zu\s+vertreten|meine\s+konten)\b|)"
     R"(\b(?:je|nous)\s+(?:donne|donnons|soussigné\w*)\b<30>\b(?:procuration|pouvoir\s+de\s+signer|mandat\s+(?:général|pour))\b|)"
     R"(\b(?:otorgo|confiero|concedo|outorgo)\b<20>\b(?:poder(?:es)?|procura[çc][ãa]o|plenos\s+poderes)\b)"); }),
     true},

    // ---- Callback phishing ---------------------------------------------------------------------
    {"toad-callback", "Callback phishing", "warn", 90,
     "a fake subscription charge with a phone number to call — the caller then takes over your computer",
     R"((?=[\s\S]*\b(?:norton|mcafee|geek ?squad|paypal|ebay|symantec|best buy|lifelock|quickbooks|antivirus)\b))"
     R"((?=[\s\S]*\b(?:subscription|renewal|auto-?renew|invoice|receipt|charged|refund|cancel)\b))"
     R"((?=[\s\S]*(?:\+?\d{1,2}[\s.\-]?\(?\d{3}\)?[\s.\-]?\d{3}[\s.\-]?\d{4})))"
     R"((?=[\s\S]*\b(?:call|contact us at|help ?line|helpdesk|support team)\b))",
     true},

    // ---- Crypto fraud --------------------------------------------------------------------------
    {"crypto-drainer", "Crypto fraud", "warn", 80,
     "leads to a page that empties a wallet once it is connected",
     pattern([] { return std::string_view(
     R"(\b(?:refund|compensation|claim)\b<60>\bconnect\b<12>\b(?:confirm|sign|approve)\b|)"
     R"(\b(?:connect|link|sync|synchroni[sz]e|authori[sz]e|approve|sign)\b<25>\b(?:your\s+|ur\s+|a\s+|the\s+)?(?:\w+\s+){0,2}(?:wallet|metamask|phantom|trust\s?wallet|ledger|walletconnect)\b<100>\b(?:claim|air-?drop|mint|reward\w*|allocation|bonus|eligible|eligibility|receive|token\w*|refund|migrat\w+|unlock|withdraw|compensation|giveaway|whitelist|free)\b|)"
     R"(\b(?:claim|air-?drop|mint|reward\w*|allocation|bonus|eligible|eligibility|receive|migrat\w+|compensation|giveaway|refund)\b<100>\b(?:connect(?:ing)?|link(?:ing)?|sync(?:ing)?|synchroni[sz]\w+|approv(?:e|ing)|add|import|enter|submit|bind)\b<25>\b(?:your\s+|ur\s+|a\s+|the\s+)?(?:\w+\s+){0,2}(?:wallet|metamask|phantom|walletconnect)\b|)"
     R"(\b(?:set\s?approval\s?for\s?all|increase\s?allowance|permit2?|unlimited\s+(?:token\s+)?(?:approval|allowance))\b<80>\b(?:wallet|sign|claim|transaction|token)\b|)"
     R"(\b(?:wallet|ledger|metamask|trezor|recovery|seed)\s?(?:phrase)?\b<60>\b(?:enter|import|type|provide|input|confirm|verify|submit)\b<25>\b(?:12|24|twelve|twenty[- ]four)[- ]?(?:words?|word\s+phrase)\b|)"
     R"(\b(?:wallet\s+verbinden|verbinden\s+sie\s+ihre?\s+(?:\w+\s+)?wallet|connecte[rz]\s+votre\s+(?:portefeuille|wallet)|conect[ea]r?\s+(?:su|tu|sua|a)\s+(?:billetera|carteira|wallet))\b<100>\b(?:airdrop|token\w*|belohnung\w*|récompense\w*|recompensa\w*|claim|beanspruch\w+|reclam\w+|réclame\w*|resgat\w+)\b|)"
     R"((?:连接|連接|绑定|授权|授權)<6>(?:钱包|錢包)<30>(?:空投|领取|領取|奖励|獎勵|代币)|)"
     R"((?:空投|领取|領取|奖励|獎勵)<30>(?:连接|連接|绑定|授权|授權)<6>(?:钱包|錢包))"); }),
     true},

    // ---- Payment redirection -------------------------------------------------------------------
    {"payroll-divert", "Payment redirection", "warn", 80,
     "asks for salary to be redirected to a different account",
     R"((?=[\s\S]*\b(?:payroll|paycheck|pay ?date|direct deposit|\bACH\b|salary)\b))"
     R"((?=[\s\S]*\b(?:change|update|switch|amend|new)\b))"
     R"((?=[\s\S]*\b(?:bank|account|routing|sort code)\b))"
     R"((?=[\s\S]*\b(?:effective immediately|before the next|this month|asap|as soon as possible)\b))",
     true},

    // ---- Impersonation -------------------------------------------------------------------------
    {"univ-safe-account", "Impersonation", "block", 100,
     "tells the reader to move money to a “safe account” — no bank or police force has ever asked this, in any country",
     R"(^(?![\s\S]*(?:never ask|will never|so-?called|do not fall|is a scam|fraudsters|impersonation))[\s\S]*?(?:)"
     R"((?:安全账户|安全賬戶|안전계좌|conta\s+segura|conta\s+espelho|compte\s+s[ée]curis[ée]|sicheres?\s+Verwahrkonto|safe\s+account|secure\s+account)[^.!?。]{0,80}(?:转账|轉賬|이체|transfer|transfira|virement|überweis|move (?:your )?(?:money|funds))|)"
     R"((?:转账|轉賬|이체|transfer|transfira|virement|überweis|move (?:your )?(?:money|funds))[^.!?。]{0,80}(?:安全账户|安全賬戶|안전계좌|conta\s+segura|compte\s+s[ée]curis[ée]|safe\s+account|secure\s+account)))",
     true},
    {"univ-coach-to-lie", "Impersonation", "block", 100,
     "coaches the reader on what to tell their bank — an honest transaction never needs a cover story",
     R"((?:if (?:the |your )?(?:bank|teller|cashier|they) (?:asks?|questions?|wants? to know)|銀行で[^。]{0,20}聞かれたら|如果银行问|if anyone asks)[^.!?。]{0,80}(?:say|tell them|answer|说是|說是|ごまかし|とか言って))",
     true},

    // ---- Pressure ------------------------------------------------------------------------------
    {"univ-secrecy-isolation", "Pressure", "warn", 60,
     "instructs the reader to tell nobody, which isolates them from anyone who would check",
     R"((?:不得告诉任何人|不要告诉任何人|案件需要保密|誰にも言わないで|누구에게도 말하지)|)"
     R"((?:must not|do not|don't|cannot|ne pas|nicht)\s+(?:tell|inform|discuss|mention|en parler)[^.!?。]{0,40}(?:anyone|anybody|police|family|colleagues|comptabilit[ée]))",
     true},

    // ---- Generic approval ----------------------------------------------------------------------
    {"univ-generic-approval", "Generic approval", "block", 100,
     "message consists entirely of generic approvals, confirmations, green-lights, introductions, and filler contact phrases with no specific context, making it highly vulnerable to cross-context replay attacks",
     R"(^(?:\s*(?:)"
     R"((?:this is|i am|it'?s|my name is|hi,? (?:this|it)'?s|hello,? (?:this|it)'?s) [A-Za-z '\u4e00-\u9fa5]{2,40}|)"
     R"(i (?:approve|agree|authorize|authorise|confirm)(?: (?:this|it|everything|all|the same))?|)"
     R"(approved|)"
     R"((?:please |go )?(?:go ahead|proceed)|)"
     R"((?:your |this |that |it )?(?:answer |statement |submission )?(?:is |looks )?(?:correct|right|valid|verified|confirmed|accepted)|)"
     R"((?:sounds|looks) (?:good|fine|great|ok|okay|correct)|)"
     R"(all (?:good|clear|set)|)"
     R"(everything (?:is |looks )?(?:good|fine|ok|okay|clear)|)"
     R"((?:that|this|it) (?:is |looks )?fine|)"
     R"(fine with me|)"
     R"(works for me|)"
     R"(that works|)"
     R"(give me a call(?: (?:back|later|tomorrow|today|when free|when you can|at your convenience|on my cell|anytime))?|)"
     R"(call me(?: (?:back|later|tomorrow|today|when free|when you can|at your convenience|on my cell|anytime))?|)"
     R"((?:please )?let me know(?: if (?:you have )?(?:any )?questions?)?|)"
     R"((?:feel free to )?reach out(?: to me)?|)"
     R"((?:feel free to )?contact me(?: (?:back|later|tomorrow|today|when free|when you can|at your convenience|anytime))?|)"
     R"((?:many )?thanks(?: in advance)?|)"
     R"((?:best|warm|kind)?\s*regards|)"
     R"(talk soon|)"
     R"(speak soon|)"
     R"(have a (?:nice|great|good) day)"
     R"()[.,!?。]*)+\s*$)",
     true},

    // ---- Credential phishing -------------------------------------------------------------------
    {"pivot-scan-device", "Credential phishing", "warn", 70,
     "asks the reader to scan a code with another device, which leaves the protected one",
     pattern([] { return std::string_view(
     R"(\b(?:scan|use|point)\b<25>\b(?:the\s+|this\s+|our\s+)?(?:\w+\s+){0,2}(?:qr|q\.r\.|bar)[- ]?code\b<100>\b(?:phone|mobile|camera|smartphone|device|verify|authenticat\w+|mfa|2fa|sign\s?in|log\s?in|password|account|review\s+(?:the\s+)?document|access\s+(?:the\s+)?(?:document|file)|re-?enrol\w*|update|secure|payroll|salary)\b|)"
     R"(\b(?:phone|mobile|camera|smartphone|mfa|2fa|multi-?factor|authenticat\w+|verify|re-?authenticate|password|secure\s+document|payroll|salary)\b<100>\b(?:scan|scanning)\b<20>\b(?:the\s+|this\s+|our\s+)?(?:\w+\s+){0,2}(?:qr|q\.r\.|bar)[- ]?code\b|)"
     R"(\b(?:open|use|continue\s+on|switch\s+to|view\s+(?:it\s+|this\s+)?on|log\s?in\s+(?:on|from))\b<25>\b(?:your\s+)?(?:personal|own|private|other|another|mobile)\s+(?:phone|device|mobile|smartphone)\b<60>\b(?:verify|authenticat\w+|scan|sign\s?in|log\s?in|link|complete|access)\b|)"
     R"(\b(?:scannen|scanne)\b<30>\bqr-?code\b<60>\b(?:smartphone|handy|mobil\w*|anmeld\w+|bestätig\w+|verifizier\w+|konto|photoTAN|pushTAN|gerät)\b|)"
     R"(\b(?:qr-?code)\b<40>\b(?:scannen|einscannen)\b<60>\b(?:anmeld\w+|bestätig\w+|verifizier\w+|konto|gerät)\b|)"
     R"(\bscanne[rz]\b<20>\b(?:le\s+)?(?:qr\s?code|code\s+qr)\b<60>\b(?:téléphone|mobile|compte|vérif\w+|authentif\w+|connex\w+)\b|)"
     R"(\b(?:escane[ea]r?|escanear|leia|escaneie|scan)\b<20>\b(?:el\s+|o\s+)?(?:c[óo]digo\s+qr|qr\s?code)\b<60>\b(?:tel[ée]fono|celular|m[óo]vil|cuenta|conta|verific\w+|autentic\w+)\b|)"
     R"((?:扫描|掃描|扫码|掃碼)<15>(?:二维码|二維碼|QR)<20>(?:登录|登入|验证|驗證|领取|領取|补贴|認證)|)"
     R"((?:QRコード)<12>(?:スキャン|読み取)<20>(?:ログイン|認証|確認))"); }),
     true},

    // ---- Bulk mail -----------------------------------------------------------------------------
    {"sa-gtube", "Bulk mail", "warn", 60,
     "contains the standard test string of mail filters",
     R"(XJS\*C4JDBQADN1\.NSBN3\*2IDNEN\*GTUBE-STANDARD-ANTI-UBE-TEST-EMAIL\*C\.34X)",
     true},
    {"sa-email-rot13", "Bulk mail", "warn", 12,
     "hides an e-mail address in a simple letter shift",
     R"(\b[a-z0-9._-]{1,40}@[a-z0-9-]{1,40}\.(?:pbz|arg|bet|rqh|tbi|vasb|ovm|pb\.hx)\b)",
     true},
    {"sa-drug-dosage", "Bulk mail", "warn", 12,
     "lists the doses of medicines for sale",
     pattern([] { return std::string_view(
     R"(\b\d+\s?mg\b<12>\b(?:and|,)<12>\d+\s?mg\b<25>\bprices?\b|)"
     R"(\b(?:viagra|cialis|levitra|xanax|valium|ambien|tramadol|phentermine|soma|vicodin|adipex|meridia|ativan|lipitor|zoloft|prozac|propecia|sildenafil|tadalafil|hydrocodone|oxycodone|codeine|modafinil)\b[^.!?\n]{0,20}\b\d{1,4}\s?(?:mg|mcg)\b|)"
     R"(\b\d{1,4}\s?mg\b[^.!?\n]{0,12}\b(?:x|×|-|tabs?|tablets?|pills?|capsules?|caps?)\b[^.!?\n]{0,12}<amount>|)"
     R"(\b\d{2,4}\s?(?:pills?|tabs|tablets|capsules)\b[^.!?\n]{0,10}<amount>)"); }),
     true},
    {"sa-drug-ed-caps", "Bulk mail", "warn", 34,
     "writes the name of a potency drug letter by letter",
     R"(\bc[\W_]{1,3}i[\W_]{1,3}a[\W_]{1,3}l[\W_]{1,3}i[\W_]{1,3}s\b|)"
     R"(\bl[\W_]{1,3}e[\W_]{1,3}v[\W_]{1,3}i[\W_]{1,3}t[\W_]{1,3}r[\W_]{1,3}a\b|)"
     R"(\bk[\W_]{1,3}a[\W_]{1,3}m[\W_]{1,3}a[\W_]{1,3}g[\W_]{1,3}r[\W_]{1,3}a\b|)"
     R"(\bs[\W_]{1,3}i[\W_]{1,3}l[\W_]{1,3}d[\W_]{1,3}e[\W_]{1,3}n[\W_]{1,3}a[\W_]{1,3}f[\W_]{1,3}i[\W_]{1,3}l\b|)"
     R"(\bv[\W_]{0,3}[i1!|l][\W_]{1,3}a[\W_]{1,3}g[\W_]{1,3}r[\W_]{0,3}[a@4]\b)",
     true},
    {"sa-drug-ed-sild", "Bulk mail", "warn", 10,
     "names the active substance of a potency drug",
     R"(\b(?:sildenafil|tadalafil|vardenafil|avanafil)(?:\s+citrate)?\b)",
     true},
    {"sa-drug-ed-generic", "Bulk mail", "warn", 12,
     "offers a generic potency drug",
     pattern([] { return std::string_view(
     R"(\bgeneric\s+(?:viagra|cialis|levitra|sildenafil|tadalafil|vardenafil)\b|)"
     R"(\b(?:viagra|cialis|levitra)\b<15>\bgenerics?\b)"); }),
     true},
    {"sa-drug-ed-online", "Bulk mail", "warn", 12,
     "sells a potency drug online",
     pattern([] { return std::string_view(
     R"(\b(?:buy|order|get|purchase|shop)\b<25>\b(?:viagra|cialis|levitra|sildenafil|tadalafil)\b<25>\b(?:on-?line|internet|web|here|now)\b|)"
     R"(\b(?:on-?line|internet)\b<25>\b(?:viagra|cialis|levitra|sildenafil|tadalafil)\b|)"
     R"(\b(?:viagra|cialis|levitra|sildenafil|tadalafil)\s+(?:on-?line|without)\b)"); }),
     true},
    {"sa-online-pharmacy", "Bulk mail", "warn", 28,
     "advertises an online pharmacy",
     pattern([] { return std::string_view(
     R"(\b(?:on-?line|internet|web|canadian|canada|discount|overseas|offshore|mexican|cheap|licensed|trusted|world['’]?s?\s+(?:best|leading))\s+(?:\w+\s+)?(?:pharmac(?:y|ies)|drug\s?stores?|meds|apotheke)\b|)"
     R"(\b(?:pharmac(?:y|ies)|drug\s?store|meds|medications?)\b<20>\bon-?line\b|)"
     R"(\b(?:cheap|discount|affordable|low[- ]cost)\b<15>\b(?:meds|medications?|prescription\s+drugs|prescriptions)\b|)"
     R"(\b(?:online-?apotheke|versandapotheke|pharmacie\s+en\s+ligne|farmacia\s+(?:en\s+l[íi]nea|online))\b|)"
     R"(\b(?:order|buy|get|purchase)\b<20>\b(?:medicines?|medications?|meds|drugs|pills|tablets)\b<30>\b(?:from|at|through|via)\b<15>\b(?:our|web|online|internet|canadian)\b)"); }),
     true},
    {"sa-no-prescription", "Bulk mail", "warn", 29,
     "offers medicines without a prescription",
     R"(\b(?:no|without\s+(?:a|any)?|don['’]t\s+need\s+a|not\s+need\s+a|no\s+prior)\s?(?:doctor['’]?s?\s+|dr\s+|prior\s+|medical\s+|written\s+)?prescriptions?\b|)"
     R"(\bprescriptions?\s+(?:is\s+|are\s+)?(?:not\s+(?:required|needed|necessary)|free|unnecessary)\b|)"
     R"(\b(?:ohne\s+rezept|rezeptfrei\w*|sans\s+ordonnance|sin\s+receta|sem\s+receita|zonder\s+recept)\b)",
     true},
    {"sa-via-gap-gra", "Bulk mail", "warn", 12,
     "splits the name of a potency drug with a gap",
     R"(\bvia[\W_]{1,4}gra\b|)"
     R"(\bcia[\W_]{1,4}lis\b|)"
     R"(\bvi[\W_]{1,3}agra\b|)"
     R"(\bviag[\W_]{1,3}ra\b|)"
     R"(\blevi[\W_]{1,4}tra\b)",
     true},
    {"sa-drugs-smear1", "Bulk mail", "warn", 12,
     "runs the names of several medicines together",
     R"((?:viagra|cialis|levitra|xanax|valium|ambien|tramadol|phentermine|vicodin|prozac|zoloft|propecia|meridia|adipex)[\W_]{0,5}(?:viagra|cialis|levitra|xanax|valium|ambien|tramadol|phentermine|vicodin|prozac|zoloft|propecia|meridia|adipex)|)"
     R"(\b(?:viagra|cialis|levitra|xanax|valium|ambien|tramadol|phentermine|soma|vicodin|prozac|zoloft|propecia|meridia|adipex|zyban|celebrex|hydrocodone|percocet|oxycontin|paxil)\b[\W_]{1,5}(?:and\s+|or\s+|&\s+)?(?:viagra|cialis|levitra|xanax|valium|ambien|tramadol|phentermine|soma|vicodin|prozac|zoloft|propecia|meridia|adipex|zyban|celebrex|hydrocodone|percocet|oxycontin|paxil)\b)",
     true},
    {"sa-remove-before-link", "Bulk mail", "warn", 10,
     "tells the reader to take something out of a link before using it",
     pattern([] { return std::string_view(
     R"(\b(?:remove|delete|take|drop|erase|strip|cut|leave|replace)\b<40>\b(?:out\s+of|from|in|inside|within)\s+(?:the|this|our)\s+(?:\w+\s+)?(?:link|url|address|domain|hyperlink|site\s+name)\b|)"
     R"(\b(?:link|url|address|domain)\b<40>\b(?:remove|delete|take|drop|erase|strip|cut|leave)\b<25>\b(?:out|first|before|spaces?|dots?|stars?|characters?|brackets?|letters?|word)\b|)"
     R"(\b(?:without|minus)\s+the\s+(?:spaces?|stars?|asterisks?|brackets?|dots?|underscores?|quotes?)\b<40>\b(?:link|url|address|browser)\b|)"
     R"(\b(?:remove|delete|take\s+out|drop|erase)\b<30>\b(?:space|spaces|dots?|stars?|asterisk|brackets?|characters?|letters?|xx+|the\s+word|underscores?)\b<40>\b(?:link|url|address|domain|web\s?site|browser|site)\b|)"
     R"(\b(?:link|url|address|site)\b<40>\b(?:remove|delete|take\s+out|without)\s+(?:the\s+|all\s+|any\s+)?(?:space|spaces|dots?|stars?|asterisks?|brackets?)\b|)"
     R"(\b(?:copy|type)\b<30>\b(?:link|url|address|site)\b<30>\b(?:without|remove|removing)\s+(?:the\s+)?(?:spaces?|stars?|brackets?)\b)"); }),
     true},
    {"sa-guaranteed-100-percent", "Bulk mail", "warn", 32,
     "promises a hundred per cent guarantee",
     pattern([] { return std::string_view(
     R"(\b(?:100\s?(?:%|percent|per\s+cent)|one\s+hundred\s+(?:percent|per\s+cent)|hundred\s+percent)\s+(?:\w+\s+)?(?:guarante\w+|satisfaction|money[- ]?back|success\s+rate|risk[- ]free|legal|legit(?:imate)?|safe\s+and\s+(?:secure|legal)|proven|effective|anonymous|discreet)\b|)"
     R"(\b(?:guarante\w+|satisfaction)\b<12>\b(?:100\s?(?:%|percent|per\s+cent)|one\s+hundred\s+percent)|)"
     R"(\b(?:100\s?%\s+(?:garant\w+|sicher|legal|zufriedenheit\w*)|garanti\s+à\s+100\s?%|garantizado\s+al\s+100\s?%|100\s?%\s+garantizado|100\s?%\s+garantido))"); }),
     true},
    {"sa-dear-something", "Bulk mail", "warn", 24,
     "opens with a form of address that fits anybody",
     pattern([] { return std::string_view(
     R"(\bdear\s+(?:[\w.]+\s+){0,2}(?:community|holders?|supporters?|enthusiasts?|participants?|recipients?|account\s+holder)\b|)"
     R"(\bdear\s+(?:valued\s+|esteemed\s+|respected\s+|beloved\s+|our\s+|my\s+|most\s+|sir\s?/\s?|sir\s+or\s+|e-?mail\s+|mail\s+|account\s+|bank\s+|web\s?mail\s+|mailbox\s+|online\s+|paypal\s+|amazon\s+|apple\s+|netflix\s+|facebook\s+|crypto\s+|wallet\s+|lucky\s+|good\s+|prospective\s+|potential\s+|loyal\s+|home\s?|web\s?site\s+|domain\s+|business\s+|internet\s+|fellow\s+|card\s?|credit\s+|premium\s+|intended\s+|investment\s+|trading\s+|[\w.+-]{1,40}\s+)?(?:sir(?:\s?/\s?|\s+or\s+)?(?:madam|ma['’]?am)?|madam|friend|customer|client|user|member|account\s?(?:owner|holder|user)|beneficiary|subscriber|winner|owner|sir\(s\)|valued|sirs?|investor|applicant|e-?mail\s+(?:user|owner)|recipient|candidate|card\s?holder|purchaser|buyer|consumer|homeowner|webmaster|partner|shopper|taxpayer|citizen|entrepreneur|one|beloved|in\s+christ|good\s+day|participant|guest|tax\s?payer|supporter|holder|participant)\b|)"
     R"(\bdear\s+[\w.+-]{1,40}@[\w.-]{2,40}|)"
     R"(\b(?:hello|hi|hey|greetings|attention|attn|good\s+day)\s+(?:dear\b<2>$|dear,|(?:valued\s+customer|customer|beneficiary|user|friend|my\s+friend|dear\s+friend|sir|winner|beloved|account\s+(?:owner|holder)|e-?mail\s+(?:user|owner)|[\w.+-]{1,40}@[\w.-]{2,40})\b)|)"
     R"(\b(?:sehr\s+geehrte(?:r|/r|\(r\))?|lieber?|hallo|guten\s+tag)\s+(?:geschätzte[r]?\s+|liebe[r]?\s+|verehrte[r]?\s+)?(?:kunde|kundin|kunden|nutzer|nutzerin|benutzer|kontoinhaber\w*|gewinner\w*|mitglied\w*|teilnehmer\w*|freund|empfänger\w*|kundinnen|karteninhaber\w*|begünstigte\S*|[\w.+-]{1,40}@[\w.-]{2,40})\b|)"
     R"(\b(?:cher|chère|bonjour|chers?)\s+(?:\w+\s+)?(?:client|cliente|clients|utilisateur|utilisatrice|membre|ami|amie|bénéficiaire|abonnée?|titulaire|allocataire)\b|)"
     R"(\b(?:estimad[oa]|querid[oa]|prezad[oa]|car[oa]|ol[áa]|hola)s?\s?(?:\([ao]\))?,?\s+(?:se[ñn]hor(?:\(a\))?\s+)?(?:cliente|usuari[oa]|usu[áa]ri[oa]|amig[oa]|membro|miembro|benefici[áa]ri[oa]|beneficiari[oa]|titular|contribuinte|cidad[ãa]o|consumidor|socio|assinante|correntista|associado|motorista|condutor|[\w.+-]{1,40}@[\w.-]{2,40})\b|)"
     R"(\b(?:beste|geachte|hallo)\s+(?:heer\s?/\s?mevrouw|klant|gebruiker|relatie|lid|cliënt|rekeninghouder|winnaar|[\w.+-]{1,40}@[\w.-]{2,40})\b|)"
     R"((?:尊敬的|亲爱的|親愛的)(?:朋友|受益人|幸[运運]|中[奖獎]|投[资資]者)|)"
     R"(親愛なる(?:友人?|受益者|お客様|投資家)|)"
     R"((?:존경하는|친애하는|사랑하는)\s?(?:고객|회원|친구|투자자|수혜자))"); }),
     true},
    {"sa-billion-dollars", "Bulk mail", "warn", 20,
     "mentions billions of dollars",
     pattern([] { return std::string_view(
     R"(\b(?:billions?|trillions?)\s+(?:of\s+)?(?:us\s+|u\.s\.\s+)?(?:dollars?|usd|euros?|pounds)\b|)"
     R"(<amount>\s?(?:billion|trillion|bn)\b|)"
     R"(\b(?:milliarden\s+(?:us-)?(?:dollar|euro)|milliards?\s+(?:de\s+dollars|d['’]euros)|mil\s+millones\s+de\s+d[óo]lares|bilh[õo]es\s+de\s+(?:d[óo]lares|reais))\b)"); }),
     true},
    {"sa-excuse-4", "Bulk mail", "warn", 29,
     "excuses itself for coming unasked and offers removal",
     pattern([] { return std::string_view(
     R"(\bunsubscribe\b<60>\bby\s+writing\s+to\b|\b(?:reached|received|sent)\b<12>\b(?:by\s+mistake|in\s+error)\b<40>\b(?:take\s+you|remove|off)\b|)"
     R"(\byou\s+may\s+also\s+write\s+to\s+us\s+at\b|)"
     R"(\bthis\s+is\s+a\s+marketing\s+message\b|)"
     R"(\b(?:to|if\s+you\s+(?:wish|want|would\s+like|prefer|choose))\s+(?:to\s+)?(?:be\s+)?(?:removed|remove\s+yourself|remove\s+your\s+(?:name|address|e-?mail)|taken\s+off)\b<25>\b(?:from|off)\b<25>\b(?:e-?mails?\s+list|mailing\s+list|mailings?|database|lists?)\b|)"
     R"(\b(?:you\s+may|please|to)\s+follow\s+this\s+link\s+to\s+be\s+removed\b|)"
     R"(\b(?:removed|removal|opt[- ]?out)\b<20>\b(?:reply|send|e-?mail|simply|visit|type)\b<20>\b(?:with|word|subject|remove|to)\b|)"
     R"(\b(?:reply|respond|e-?mail|send)\b<25>\b(?:with|word|subject)\b<20>(?:"?remove"?|\btake\s+me\s+off)\b|)"
     R"(\bunsubscribe\s+from\s+all\s+e-?mail\s+lists?\b|)"
     R"(\bthis\s+is\s+an\s+advertisement\b|)"
     R"(\b(?:taken|removed|deleted|dropped)\s+(?:off|from)\s+(?:our|this|the)\s+(?:\w+\s+)?(?:list|mailings?|database)\b<40>\b(?:answer|reply|write|send|click|remove)\b|\b(?:answer|reply|respond)\s+with\s+(?:the\s+word\s+)?[\"“']?(?:remove|stop|unsubscribe|no)\b)"); }),
     true},
    {"sa-excuse-remove", "Bulk mail", "warn", 40,
     "excuses a mass mailing as wanted and harmless",
     pattern([] { return std::string_view(
     R"(\b(?:not|isn['’]t|never)\s+spam\b<60>\b(?:signed\s+up|because|friends|partners)\b|\bbecause\s+you\s+signed\s+up\b<60>\bnot\s+spam\b|)"
     R"(\b(?:this\s+(?:\w+\s+)?(?:is|was)\s+not|not\s+(?:a\s+)?|isn['’]t|never\s+send|do\s+not\s+send)\s?(?:spam|junk\s+mail|unsolicited)\b<80>\b(?:opted|signed\s+up|agreed|partners?|opt-?in|our\s+list|requested\s+(?:it|this))\b|\bcomplies\s+with\b<30>\b(?:law|act|regulation)s?\b<15>\b(?:bulk|spam|commercial)\b|\byou\s+are\s+on\s+this\s+list\s+because\b|)"
     R"(\b(?:receiv(?:e|ed|ing)|got|getting|sent)\b<30>\b(?:this|our)\s+(?:\w+\s+)?(?:e-?mail|message|mailing|offer|mail|newsletter)\b<20>\b(?:because|since|as)\s+you\s+(?:\w+\s+)?(?:opted|signed\s+up|subscribed|registered|agreed|requested|asked|expressed|visited|indicated)\b<60>\b(?:partner\w*|affiliate\w*|third\s+part\w+)\b|)"
     R"(\b(?:you\s+(?:asked|agreed|opted|signed\s+up|consented|requested))\b<25>\bto\s+(?:receive|get|be\s+sent|hear)\b<40>\b(?:offers?|promotions?|mailings?|partners?|advertis\w*)\b|)"
     R"(\bremove\s+(?:yourself|your\s+(?:name|e-?mail|address|e-?mail\s+address))\s+from\s+(?:our|all|any)\s+(?:\w+\s+)?(?:e-?mails?|mails?|mailing)\s?lists?\b|)"
     R"(\bunsubscribe\s+from\s+all\s+e-?mails?\s+lists?\b|)"
     R"(\b(?:this|our)\s+(?:e-?mail|message|mailing|mail)\s+(?:is\s+not|isn['’]t|cannot\s+be\s+considered|can\s+not\s+be\s+considered|may\s+not\s+be\s+considered|is\s+never|was\s+not\s+sent\s+as)\s+(?:\w+\s+){0,2}(?:spam|unsolicited|junk)\b|)"
     R"(\b(?:not\s+spam|is\s+no\s+spam|not\s+unsolicited)\b<60>\b(?:remove|opt|requested|address|bill|law|compliance|partner)\b|)"
     R"(\byou\s+(?:are|were|have|['’]re)\b<20>\b(?:receiv(?:ed|ing)|sent|getting)\b<40>\b(?:because|since|as)\b<40>\b(?:opted[- ]?in|our\s+(?:\w+\s+)?(?:affiliates?|partners?)|partner\s+sites?|affiliate|have\s+(?:inquired|expressed|submitted)|requested\s+(?:more\s+)?information)\b|)"
     R"(\b(?:follow|use|click)\s+(?:this|the)\s+link\s+to\s+be\s+removed\b|)"
     R"(\b(?:we|i)\s+(?:apologi[sz]e|are\s+sorry|am\s+sorry)\b<30>\b(?:for\s+)?(?:this|the|any)\b<15>\b(?:intrusion|unsolicited|unwanted\s+e-?mail|received\s+(?:this|it)\s+in\s+error)\b|)"
     R"(\b(?:bill\s+s\.?\s?1618|section\s+301|murkowski|105th\s+(?:u\.?s\.?\s+)?congress)\b|)"
     R"(\b(?:your\s+)?(?:e-?mail\s+)?address\s+(?:was|has\s+been)\s+(?:obtained|taken|purchased|collected)\b<40>\b(?:opt-?in|list|database|third\s+party|purchased|public|internet|source|directory)\b)"); }),
     true},
    {"sa-strong-buy", "Bulk mail", "warn", 12,
     "recommends a share as a strong buy",
     pattern([] { return std::string_view(
     R"(\bstrong\s+buy\b|)"
     R"(\b(?:hot|undervalued|explosive|red[- ]hot|micro\s?cap|penny|small\s?cap)\s+(?:\w+\s+)?(?:stocks?|pick|picks|shares|play)\b<60>(?:\b(?:buy|target|gain\w*|watch|alert|profits?|explode|soar|now|week|move)\b|%)|)"
     R"(\b(?:target\s+price|price\s+target|projected\s+(?:price|gain)|short[- ]term\s+target)\b<40>(?:\b(?:buy|strong|stock)\b|<amount>|%)<40>\b(?:stock|shares?|alert|buy|otc|symbol|ticker|watch)\b)"); }),
     true},
    {"sa-stock-alert", "Bulk mail", "warn", 12,
     "is a share tip dressed as an alert",
     R"(\b(?:stocks?|shares?|market|investor|trading|trader|penny\s+stock|otc|micro\s?cap)\s+(?:watch\s+)?(?:alerts?|tips?|picks?|watch\s?list|news\s?flash|profile|report\s+alert)\b|\b(?:pick|ticker|stock|share|trade|investor)\s+alert\b|)"
     R"(\b(?:symbol|ticker|otc(?:bb|pk)?)\b\s?[:=]\s?[A-Z]{3,5}\b|)"
     R"(\b(?:börsen|aktien)(?:tipp|alarm|brief|geheimtipp)\w*\b)",
     true},
    {"sa-not-advisor", "Bulk mail", "warn", 12,
     "disclaims being a registered investment adviser",
     pattern([] { return std::string_view(
     R"(\b(?:not|neither)\b<25>\b(?:a\s+|an\s+)?(?:registered|licensed|qualified|certified)?<20>\b(?:investment|financial|broker|securities)<20>\b(?:advis[eo]rs?|broker|dealer|counsel\w*|planner)\b|\b(?:no|not\s+an?|neither)\b<20>\b(?:licen[sc]ed|registered|certified)\b<12>\b(?:financial|investment|securities)\s+(?:advis[eo]r|planner|broker)s?\b|)"
     R"(\b(?:nor|not)\s+(?:a\s+)?(?:broker|dealer)\b<20>\b(?:advis[eo]rs?|dealer)\b)"); }),
     true},
    {"sa-prest-non-accredited", "Bulk mail", "warn", 12,
     "offers degrees from universities without accreditation",
     pattern([] { return std::string_view(
     R"(\b(?:bachelor|doctorate|master|degree|diploma)\b<60>\b(?:non-accredited|without\s+(?:any\s+)?(?:exams?|study|tests?))\b|)"
     R"(\b(?:prestigious|recogni[sz]ed|leading|reputable)\b<15>\bnon[- ]?accredited\b|\b(?:degree|bachelor|master|phd|doctorate|diploma|mba)(?:[\'’]s)?\b<40>\b(?:life|work)\s+experience\b|)"
     R"(\b(?:university|college|bachelor['’]?s?|master['’]?s?|mba|doctorate|phd|ph\.d)\b<15>\b(?:diplomas?|degrees?)\b<60>\b(?:no\s+(?:required\s+)?(?:tests?|classes|books|exams?|interviews?|study)|life\s+experience|without\s+(?:study\w*|exams?|attending)|days|call|within|non[- ]?accredited|confidential\w*|buy)\b|)"
     R"(\bdiplomas?\b<40>\b(?:life\s+experience|work\s+experience|no\s+(?:tests?|classes|exams?|books)|non[- ]?accredited)\b)"); }),
     true},
    {"sa-body-enhancement", "Bulk mail", "warn", 19,
     "advertises the enlargement of a body part",
     pattern([] { return std::string_view(
     R"(\b(?:penis|breasts?|bust|manhood|member|cock|dick|butt|booty)\b<25>\b(?:enlarge\w*|enhanc\w+|bigger|larger|growth|grow|longer|thicker|increase|extension|gain|size|lift)\b|\b(?:add|gain|grow)\b<20>\b(?:inch(?:es)?|cm|size)\b<12>\b(?:manhood|penis|member|bust|breasts?)\b|)"
     R"(\b(?:enlarge\w*|enhanc\w+|bigger|larger|grow|longer|thicker|increase|add\s+\d+\s+inches)\b<25>\b(?:penis|breasts?|bust|manhood|cock|dick|cup\s+size)\b|)"
     R"(\b(?:penisverlängerung|penisvergrößerung|brustvergrößerung|agrandissement\s+du\s+pénis|alargamiento\s+de\s+pene|aumento\s+peniano)\b)"); }),
     true},
    {"sa-body-enhancement2", "Bulk mail", "warn", 10,
     "advertises pills or creams that change the body",
     pattern([] { return std::string_view(
     R"(\b(?:breast|bust|penis|bum)\s+(?:enhancement|enlargement|growth)\s+(?:pills?|cream|capsules)\b|)"
     R"(\b(?:pills?|tablets?|cream|capsules?|supplement|formula|gel)\b<30>\b(?:make|makes|give|gives|help|helps)\s+(?:your|you)\b<25>\b(?:grow|bigger|larger|firmer|fuller|taller|slimmer|thicker|stronger)\b|\b(?:herbal|natural)\b<15>\b(?:capsules?|pills?|cream|tablets?|gel)\b<30>\b(?:size|bigger|larger|fuller|growth)\b|)"
     R"(\b(?:pills?|tablets?|patch|cream|lotion|serum|gel|drops|capsules?|herbal|supplement|formula|oil|powder|spray)\b<60>\b(?:firm\w*|lift\w*|tighten\w*|enlarge\w*|grow\w*|bigger|larger|fuller|taller|thicker|longer|slim\w*|shrink\w*|smooth\w*|build\w*|reshape\w*|erase\w*|remove\w*|melt\w*)\b<30>\b(?:breasts?|bust|bottom|butt|skin|wrinkles?|muscles?|hair|body|belly|waist|height|inches|lips|penis|size|thighs?|cellulite|curves)\b|)"
     R"(\b(?:breasts?|bust|muscles?|hair|body|belly|waist|height|lips|skin|wrinkles?|curves)\b<40>\b(?:with|from|thanks\s+to|by\s+using|using|using\s+our|after)\b<20>\b(?:pills?|tablets?|patch|cream|lotion|serum|gel|drops|capsules?|supplement|formula)\b|)"
     R"(\b(?:pills?|patch|cream|herbal|formula|supplement|exercise|pump|gel|capsules?)\b<40>\b(?:bigger|larger|longer|thicker|firmer|fuller|enlarge\w*|enhance\w*|grow)\b<25>\b(?:penis|breasts?|bust|manhood|erections?|size|inches|muscles?|butt|hair)\b|)"
     R"(\b(?:gain|add|grow|increase)\b<15>\b(?:\d|one|two|three|four|several|extra|up\s+to)\b<12>\binch(?:es)?\b<30>\b(?:penis|length|size|weeks?|days|manhood|naturally|girth|pills?)\b)"); }),
     true},
    {"sa-impotence", "Bulk mail", "warn", 36,
     "advertises a remedy for impotence",
     pattern([] { return std::string_view(
     R"(\b(?:trouble|problems?)\s+in\s+bed\b|\b(?:stay|get)\s+hard\b<20>\b(?:pills?|capsules?|drops|herbal)?|\bcan['’]?t\s+get\s+it\s+up\b|)"
     R"(\b(?:impotence|impotent|erectile\s+dysfunction|erection\s+problems?|premature\s+ejaculation|sexual\s+dysfunction|low\s+libido)\b<60>\b(?:cure[sd]?|treat\w*|solution|remedy|pills?|drug|natural|no\s+more|fix|medication|suffer\w*|formula|online|order|overcome|supplement)\b|\b(?:goodbye\s+to|end|cure|beat|forget|overcome)\b<12>\b(?:erectile\s+(?:dysfunction|problems?)|impotence)\b|)"
     R"(\b(?:cure|treat|solution|remedy|end|fix|overcome|suffer\w*|beat|reverse)\b<25>\b(?:impotence|impotent|erectile\s+dysfunction|erection\s+problems?|premature\s+ejaculation|sexual\s+dysfunction)\b|)"
     R"(\b(?:harder|stronger|rock[- ]?hard|longer[- ]lasting|firmer|powerful)\s+(?:\w+\s+)?erections?\b|)"
     R"(\b(?:potenzmittel|erektionsstörung\w*)\b<40>\b(?:rezeptfrei|bestell\w+|kauf\w+|online|günstig\w*|natürlich\w*)\b|)"
     R"(\b(?:impuissance|disfunci[óo]n\s+er[ée]ctil|disfun[çc][ãa]o\s+er[ée]til|impot[êe]ncia)\b<40>\b(?:trait\w+|solu\w+|remed\w+|tratamiento|tratamento|natural)\b)"); }),
     true},
    {"sa-money-back", "Bulk mail", "warn", 12,
     "offers money back in advertising style",
     pattern([] { return std::string_view(
     R"(\b(?:refund|return)\b<8>\bevery\s+(?:cent|penny)\b|\bno\s+questions\s+asked\b|)"
     R"(\bmoney[- ]?back\b<15>\bguarantee\w*|\byour\s+money\s+back\b|)"
     R"(\b(?:guarantee\w*|full|complete|\d+[- ]day|unconditional|lifetime)\b<25>\bmoney[- ]?back\b|)"
     R"(\b(?:full|complete|100\s?%)\s+refund\b<30>\b(?:guarantee\w*|no\s+questions|days|not\s+(?:completely\s+|fully\s+|100%\s+)?satisfied|if\s+you)\b|)"
     R"(\b(?:geld-?zurück-?garantie|satisfait\s+ou\s+remboursé|garant[íi]a\s+de\s+devoluci[óo]n|garantia\s+de\s+devolu[çc][ãa]o|dinheiro\s+de\s+volta|niet[- ]goed[- ]geld[- ]terug)\b)"); }),
     true},
    {"sa-free-quote-instant", "Bulk mail", "warn", 12,
     "offers a free or instant quote",
     pattern([] { return std::string_view(
     R"(\b(?:free|instant|no[- ]obligation|fast|quick|complimentary)\b<12>\b(?:\w+\s+)?(?:quotes?|quotation|rate\s+quote|estimates?)\b|)"
     R"(\bquotes?\b<12>\b(?:for\s+free|free\s+of\s+charge|instantly|in\s+(?:seconds|minutes)|no\s+obligation|within\s+minutes)\b|)"
     R"(\b(?:kostenloses?\s+angebot|unverbindliches?\s+angebot|devis\s+gratuit|cotizaci[óo]n\s+gratuita|cota[çc][ãa]o\s+gr[áa]tis|simula[çc][ãa]o\s+gr[áa]tis|gratis\s+offerte)\b)"); }),
     true},
    {"sa-refinance-your-home", "Bulk mail", "warn", 12,
     "offers to refinance the reader's home",
     pattern([] { return std::string_view(
     R"(\b(?:refi|refinance|remortgage)\s+(?:ur|your|the)\s+(?:house|home|mortgage)\b|)"
     R"(\b(?:re-?financ\w+|re-?mortgag\w+|lower|reduce|consolidate|mortgage)\b<25>\byour\s+(?:current\s+|existing\s+|own\s+)?(?:home|house|mortgage|property|home\s+loan|mortgage\s+payments?|mortgage\s+rate)\b|)"
     R"(\b(?:your\s+)(?:home|house|mortgage)\b<25>\b(?:re-?financ\w+|re-?mortgag\w+)\b|)"
     R"(\b(?:mortgage|refinanc\w+|home\s+equity)\b<30>\b(?:rates?\s+(?:are|have|as\s+low)|lenders\s+compete|low(?:est)?\s+rates?|bad\s+credit|approv\w+)\b|)"
     R"(\b(?:rates?|interest)\b<25>\b(?:fallen|dropped|low|lowest|falling|down)\b<40>\brefinanc\w+\b<20>\b(?:your|mortgage|home|house|loan)\b)"); }),
     true},
    {"sa-refinance-now", "Bulk mail", "warn", 12,
     "presses the reader to refinance now",
     pattern([] { return std::string_view(
     R"(\b(?:re-?financ\w+|re-?mortgag\w+|mortgage)\b<40>\b(?:now|today|before\s+rates|lowest\s+(?:rates?|in)|immediately|while\s+rates|apply|don['’]t\s+wait|record\s+low|historic)\b|)"
     R"(\b(?:now|today|time)\s+(?:is\s+the\s+(?:best\s+|perfect\s+)?time\s+)?to\s+(?:re-?finance|consolidate)\b|)"
     R"(\brates?\b<20>\b(?:lowest|never\s+been\s+lower|record\s+low|historic\w*|drop\w*|fallen)\b<40>\b(?:re-?financ\w+|mortgage|home|loan)\b|)"
     R"(대환 ?대출|저금리[\s\S]{0,6}(?:전환|대환))"); }),
     true},
    {"sa-diet-1", "Bulk mail", "warn", 10,
     "advertises effortless loss of weight",
     pattern([] { return std::string_view(
     R"(\b(?:lose|shed|drop|burn|melt|losing|burning)\b<20>\b(?:weight|pounds|lbs|kilos?|kg|fat|inches|belly\s+fat)\b<50>\b(?:fast|quick\w*|easy|easily|without|effortless\w*|days?|weeks?|guaranteed|naturally|overnight|diet\w*|pills?|while\s+you\s+sleep|exercise|free|metabolism|now)\b|)"
     R"(\b(?:weight[- ]loss|fat[- ]burn\w*|diet|slimming|keto|appetite)\b<25>\b(?:pills?|patch|miracle|supplement|gummies|secret|formula|breakthrough|product|drops|program|system|tea|plan|hack|suppress\w*)\b|)"
     R"(\b(?:abnehmen\s+ohne|kilo\s+abnehmen|fettverbrenn\w+|schlank\s+ohne|perdre\s+du\s+poids|br[ûu]le-graisse|perder\s+peso|bajar\s+de\s+peso|quemar?\s+grasa|emagre[cç]\w+|afvallen\s+zonder)\b|)"
     R"(\b(?:melt|burn|shed|drop|lose)\b<12>\b(?:away\s+)?(?:\w+\s+){0,2}(?:pounds|fat|weight|kilos|inches)\b<30>\b(?:without|no)\b<15>\b(?:exercise|diet\w*|gym|effort|hunger|starving)\b)"); }),
     true},
    {"sa-fin-free", "Bulk mail", "warn", 10,
     "promises financial freedom",
     pattern([] { return std::string_view(
     R"(\b(?:quit|leave)\s+your\s+job\b<30>\b(?:never|money|free)\b|\bnever\s+worry\s+about\s+money\b|)"
     R"(\bfinancial(?:ly)?\s+(?:freedom|independen\w+|free|security\s+for\s+life)\b|)"
     R"(\b(?:debt[- ]free|out\s+of\s+debt|eliminate\s+(?:your\s+|all\s+)?(?:\w+\s+)?debts?|get\s+rid\s+of\s+(?:your\s+)?debts?)\b<60>\b(?:you|your|today|now|month\w*|year\w*|fast|call|credit|free)\b|)"
     R"(\b(?:finanzielle\s+(?:freiheit|unabhängigkeit)|liberté\s+financière|libertad\s+financiera|liberdade\s+financeira|financiële\s+vrijheid|财务自由|財務自由|財富自由|财富自由|経済的自由|경제적\s?자유))"); }),
     true},
    {"sa-forward-looking", "Bulk mail", "warn", 12,
     "carries the forward-looking-statements disclaimer of share promoters",
     pattern([] { return std::string_view(
     R"(\bforward[- ]looking\s+statements?\b|\bforward[-\s+]looking\s+and\b|\bare\s+forward[-\s+]looking\b|)"
     R"(\bsafe\s+harbou?r\b<40>\b(?:statements?|act|provisions?)\b)"); }),
     true},
    {"sa-one-time", "Bulk mail", "warn", 12,
     "says the mail is sent once only",
     pattern([] { return std::string_view(
     R"(\b(?:this\s+is\s+a|is\s+a)\s+(?:one|1)[- ]?time[- ](?:only\s+)?(?:mailing|e-?mail|message|mail|offer|opportunity|posting)\b|\b(?:receive|get)\s+this\b<12>\bonly\s+once\b|)"
     R"(\b(?:one|1)[- ]time\s+(?:mailing|e-?mail|message|mail)\b|)"
     R"(\b(?:you\s+(?:will|['’]ll)\s+(?:not|never)\s+(?:receive|hear|be\s+contacted|get)|will\s+not\s+be\s+(?:mailed|contacted|e-?mailed))\b<30>\b(?:again|another|further|in\s+(?:the\s+)?future|any\s+more)\b|)"
     R"(\b(?:never|not)\s+(?:be\s+)?(?:contact(?:ed)?|e-?mail(?:ed)?|mail(?:ed)?)\s+(?:you\s+)?again\b)"); }),
     true},
    {"sa-join-millions", "Bulk mail", "warn", 10,
     "asks the reader to join millions of others",
     pattern([] { return std::string_view(
     R"(\b(?:become\s+)?one\s+of\s+(?:the\s+)?(?:more\s+than|over)\b<15>\bmillion\b|\bjoin\b<20>\bmillion\s+(?:members|users|people|customers)\b|)"
     R"(\bjoin\b<12>\b(?:the\s+)?(?:over\s+|more\s+than\s+|thousands\s+and\s+|hundreds\s+of\s+)?(?:millions?|thousands|\d[\d,.]*(?:\s+million|k|\+)?)\b<40>\b(?:people|users?|members?|subscribers?|others|of|who|investors?|traders?|customers?|men|women|players|readers)\b|\b(?:million|millions|thousands)\b<12>\b(?:people|users|customers|members)\b<4>\b(?:have\s+)?(?:already\s+)?(?:signed\s+up|joined|registered)\b|)"
     R"(\b(?:millions|thousands)\s+(?:of\s+(?:people|others|users|men|women|customers|investors|traders|players|happy\s+\w+|satisfied\s+\w+)\s+)?(?:have|are|who)\s+(?:already\s+|now\s+)?(?:joined|using|earning|making|discovered|switched|tried|making\s+money|benefit\w*)\b)"); }),
     true},
    {"sa-marketing-partners", "Bulk mail", "warn", 10,
     "says the address came from marketing partners",
     pattern([] { return std::string_view(
     R"(\b(?:our|its|their|one\s+of\s+our|through|from|via|by)\b<20>\b(?:marketing|advertising|affiliate|opt-?in|promotional|e-?mail|network|web\s?site|trusted)\s+(?:and\s+\w+\s+)?partners?\b|\b(?:address|details|name)\b<12>\b(?:supplied|provided|given|obtained)\s+(?:to\s+us\s+)?(?:by|from)\b<12>\bpartners?\b|)"
     R"(\b(?:partner|affiliate|member)\s+(?:web\s?)?sites?\b<50>\b(?:opt\w*|registered|sign\w*|subscri\w*|agreed|offers?|e-?mail|receiv\w+)\b|)"
     R"(\b(?:third[- ]part(?:y|ies))\b<15>\b(?:offers?|promotions?|advertis\w+|marketing)\b)"); }),
     true},
    {"sa-unclaimed-money", "Bulk mail", "warn", 32,
     "says unclaimed money is waiting",
     pattern([] { return std::string_view(
     R"(\b(?:unclaimed|abandoned|forgotten|dormant|hidden|missing|uncollected|lost)\b<12>\b(?:money|funds?|cash|assets?|property|account|prize|estate|inheritance|refunds?|balance|winnings?|benefits|sum|deposits?)\b<60>\b(?:you|your|name|claim\w*|waiting|owed?|search|find|million|billion|deceased|government|transfer\w*|release\w*|account)\b|\b(?:state|government|treasury)\b<12>\b(?:holding|holds|keeping)\b<8>\b(?:cash|money|funds|property)\b|)"
     R"(\b(?:cash|money|funds?)\s+(?:is\s+|are\s+)?(?:waiting|owed|sitting|held)\b<20>\b(?:for|to)\s+you\b|)"
     R"(\b(?:government|state|federal)\b<25>\b(?:owes\s+you|grant\s+money|free\s+money|grants?)\b<40>\b(?:free|you|never|qualify|apply|claim|repay)\b|)"
     R"(\b(?:nicht\s+beanspruchte\w*|herrenlose\w*|argent\s+non\s+réclamé|fonds\s+non\s+réclamés|dinero\s+no\s+reclamado|valores\s+a\s+receber|dinheiro\s+esquecido|valores\s+esquecidos)\b|)"
     R"(\b(?:government|state|treasury|bank|office)\b<15>\b(?:is\s+)?(?:holding|holds|keeps|owes)\b<12>\b(?:money|funds|cash|<amount>)\b<30>\b(?:your\s+name|you|never\s+(?:collected|claimed))\b)"); }),
     true},
    {"sa-obscured-email", "Bulk mail", "warn", 12,
     "writes an e-mail address in a way that machines cannot read",
     R"(\b[\w.+-]{1,40}\s?(?:\[|\(|\{|<|--?|_)\s?(?:at|@)\s?(?:\]|\)|\}|>|--?|_)\s?[\w-]{1,40}\s?(?:(?:\[|\(|\{|<|--?|_)\s?(?:dot|\.)\s?(?:\]|\)|\}|>|--?|_)|\.|dot)\s?(?:com|net|org|info|biz|co|de|fr|io|ru|edu|uk)\b|\b[\w.+-]{1,40}\s?[\[({]\s?at\s?[\])}]\s?[\w-]{1,40}\s?[\[({]\s?dot\s?[\])}]|)"
     R"(\b[\w.+-]{1,40}\s+at\s+[\w-]{1,40}\s+dot\s+(?:com|net|org|info|biz|co|de|fr|io|ru|edu)\b)",
     true},
    {"sa-bang-oprah", "Bulk mail", "warn", 12,
     "name-drops a television host with an exclamation mark",
     R"(\boprah\b[^.?\n]{0,40}!|)"
     R"(\b(?:as\s+seen\s+on|featured\s+on|seen\s+on)\b[^.?\n]{0,15}\b(?:oprah|tv|television|national\s+tv|cnn|nbc|abc|cbs|fox|shark\s+tank|dr\.?\s+oz|bbc)\b[^.?\n]{0,30}!|)"
     R"(\b(?:as\s+seen\s+on|featured\s+on)\s+(?:tv|oprah|national\s+tv|shark\s+tank|dr\.?\s+oz|cnn|nbc)\b)",
     true},
    {"sa-more-sex", "Bulk mail", "warn", 34,
     "promises a better or busier sex life",
     pattern([] { return std::string_view(
     R"(\b(?:have|enjoy|get|want|having|need|wanting|crave)\b<12>\b(?:more|better|great|hot|amazing|wild|incredible|longer|unforgettable)\b<12>\b(?:sex|love\s?making|orgasms?|intimacy|nights?\s+in\s+bed|nights?\s+of\s+passion)\b|)"
     R"(\b(?:better|hotter|busier|exciting|richer|new|great)\s+(?:sex|love)\s?(?:life|lives)\b|)"
     R"(\b(?:women|girls|men|partners?|singles|wives)\b<25>\b(?:will\s+)?(?:want|beg|crave|desire|wait\w*|lust)\b<15>\b(?:you|more|for\s+you|sex)\b<30>\b(?:tonight|bed|night|sex|near\s+you|your\s+area|hook\s?up)\b|)"
     R"(\b(?:more|better|great|amazing|incredible|hot|improve\w*|boost|spice\s+up|enhance\w*|increase\w*)\b<12>\b(?:sex(?:ual)?(?:\s+life|\s+drive|\s+performance|\s+pleasure|\s+desire|\s+stamina|\s+partners)?|libido|orgasms?|love\s?making)\b<50>\b(?:you|your|her|pills?|naturally|night|longer|try|order|natural|formula|all\s+night|guaranteed|women|men|partner|today|now)\b|)"
     R"(\b(?:satisfy|please|drive)\b<12>\b(?:her|your\s+(?:woman|wife|girlfriend|lover|partner)|women)\b<30>\b(?:bed|sexual\w*|night|wild|every\s+time|crazy|more)\b|)"
     R"(\b(?:last\s+longer|sexual\s+(?:performance|stamina|power|health)|sex\s+drive|staying\s+power)\b<40>\b(?:bed|you|your|her|increase\w*|boost|improve\w*|natural\w*|pills?)\b|)"
     R"(\b(?:meet|fuck|bang|hook\s?up\s+with|date|find|chat\s+with)\b<15>\b(?:hot|horny|sexy|local|single|naughty|lonely|real|married)\b<10>\b(?:girls?|women|singles|milfs?|moms?|housewives|wives|ladies|babes)\b)"); }),
     true},
    {"sa-bang-guar", "Bulk mail", "warn", 12,
     "shouts a guarantee",
     R"(\bguarante{1,2}d?\b[^.?!\n]{0,30}!|)"
     R"(\b(?:garantiert|garanti|garantizado|garantido|gegarandeerd)\b[^.?!\n]{0,25}!)",
     true},
    {"sa-investment-advice", "Bulk mail", "warn", 10,
     "carries the no-investment-advice disclaimer",
     pattern([] { return std::string_view(
     R"(\b(?:not|no|nor|isn['’]t|never)\b<30>\b(?:investment|financial|trading)\s+advice\b|\b(?:nothing|none)\b<15>\b(?:is|constitutes|as)\s+(?:investment|financial)\s+advice\b|)"
     R"(\b(?:investment|financial)\s+advice\b<30>\b(?:not|no|purposes|consult|disclaimer)\b|)"
     R"(\b(?:keine\s+anlageberatung|pas\s+un\s+conseil\s+en\s+investissement|no\s+es\s+(?:un\s+)?consejo\s+(?:financiero|de\s+inversi[óo]n)|n[ãa]o\s+[ée]\s+(?:recomenda[çc][ãa]o|conselho)\s+de\s+investimento)\b)"); }),
     true},
    {"sa-male-enhance", "Bulk mail", "warn", 37,
     "advertises male enhancement",
     pattern([] { return std::string_view(
     R"(\binch(?:es)?\b<15>\bto\s+(?:your|ur)\s+(?:manhood|size|length)\b|)"
     R"(\b(?:male|men['’]?s?|penile|natural|herbal)\b<12>\b(?:enhance(?:ment|r|rs)?|enlarge(?:ment|r)?|virility|potency|performance\s+(?:pill|supplement|enhancer)|sexual\s+(?:enhance\w+|performance|health)|stamina)\b|)"
     R"(\b(?:enhance|enlarge|increase|improve)\s+your\s+(?:manhood|penis|virility|male|size|erection\w*|potency|sexual)\b|)"
     R"(\b(?:penis|manhood)\s+(?:enlarge\w*|growth|size|patch|pills?|extender)\b|)"
     R"(\b(?:testosterone|t-level|t\s+level)\b<25>\b(?:boost\w*|booster|increase|supplement|naturally)\b|)"
     R"(\b(?:männliche\s+potenz|virilité\s+masculine|potencia\s+masculina|virilidad|virilidade)\b)"); }),
     true},
    {"sa-prices-are-affordable", "Bulk mail", "warn", 13,
     "praises its own low prices",
     pattern([] { return std::string_view(
     R"(\b(?:super|really|incredibly)\s+(?:cheap|low)\s+prices\b|\bcheapest\s+in\s+(?:town|the)\b|)"
     R"(\b(?:prices?|rates?|costs?|fees?|packages?|services?)\s+(?:are|is|start\w*)\b<15>\b(?:very\s+|so\s+|extremely\s+|really\s+|quite\s+|more\s+)?(?:affordable|unbeatable|the\s+(?:lowest|cheapest|best)|low(?:est|er)?|cheap(?:er|est)?|reasonable|competitive|incredibl\w+|unbelievabl\w+)\b|)"
     R"(\b(?:affordable|unbeatable|rock[- ]bottom|lowest|wholesale|incredible|unbelievable|best|factory|discount(?:ed)?|dirt[- ]cheap|competitive)\s+(?:and\s+\w+\s+)?(?:prices?|rates?|pricing)\b|)"
     R"(\b(?:unschlagbare\w*\s+preis\w*|günstigste\w*\s+preis\w*|prix\s+imbattables?|prix\s+abordables?|precios?\s+(?:imbatibles?|bajos|asequibles)|pre[çc]os?\s+(?:imbat[íi]ve[il]s?|baixos|acess[íi]ve[il]s?))\b)"); }),
     true},
    {"sa-replica-watch", "Bulk mail", "warn", 49,
     "sells replica watches or bags",
     pattern([] { return std::string_view(
     R"(\b(?:replicas?|imitation|knock-?offs?|fake|copies\s+of|identical)\b<25>\b(?:watch(?:es)?|rolex(?:es)?|handbags?|bags|purses?|timepieces?|omega|cartier|breitling|louis\s+vuitton|gucci|jewel(?:le)?ry|sneakers|designer)\b|)"
     R"(\b(?:watch(?:es)?|rolex(?:es)?|handbags?|timepieces?|omega|cartier|breitling|louis\s+vuitton|gucci)\b<20>\b(?:replicas?|imitations?|knock-?offs?|copies)\b|)"
     R"(\b(?:luxury|swiss|designer|brand[- ]name)\s+(?:watch(?:es)?|timepieces?)\b<40>(?:<amount>|\b(?:cheap\w*|discount\w*|sale|fraction|wholesale|off|order|from|price\w*))\b|)"
     R"(\b(?:replica-?uhren|uhrenreplik\w*|montres?\s+répliques?|relojes?\s+réplicas?|réplicas?\s+de\s+relógios?)\b|)"
     R"((?:高仿|精仿|复刻|複刻)<8>(?:手表|手錶|名表|包包|鞋)|)"
     R"(\b(?:watches?|handbags?|bags|timepieces?)\b<30>\b(?:look|looks|looking|feel|identical|exactly|indistinguishable)\b<25>\b(?:originals?|real\s+thing|genuine|authentic)\b|\b(?:fraction|tenth)\s+of\s+the\s+(?:original\s+)?price\b<30>\b(?:watches?|rolex|handbags?|brands?)\b|\b(?:watches?|rolex|handbags?)\b<40>\bfraction\s+of\s+the\s+(?:\w+\s+)?price\b)"); }),
     true},
    {"sa-em-rolex", "Bulk mail", "warn", 12,
     "advertises a famous make of watch",
     pattern([] { return std::string_view(
     R"(\brolex(?:es)?\b<50>(?:<amount>|\b(?:cheap\w*|sale|buy|order|price\w*|discount\w*|free|replicas?|only|off|win|genuine|online|watch(?:es)?|swiss))\b|)"
     R"(\b(?:cheap\w*|sale|buy|order|discount\w*|free|win|genuine|get|own|wear)\b<25>\brolex(?:es)?\b)"); }),
     true},

    // ---- Adult spam ----------------------------------------------------------------------------
    {"sa-free-porn", "Adult spam", "warn", 12,
     "advertises free pornography",
     pattern([] { return std::string_view(
     R"(\b(?:adult|erotic|xxx)\s+(?:films?|movies?|videos?|clips?)\b<25>\bfree\b|)"
     R"(\bfree\b<20>\b(?:porn\w*|xxx|sex\s+(?:videos?|pics?|movies?|cams?|site)|adult\s+(?:videos?|pics?|movies?|site|content|chat)|hardcore|nude\s+(?:pics?|photos?|cams?)|live\s+sex)\b|\b(?:xxx|porn\w*)\s+(?:movies?|videos?|clips?|films?)\b<8>\bat\s+no\s+(?:cost|charge)\b|)"
     R"(\b(?:porn\w*|xxx|hardcore|adult\s+(?:videos?|site|movies?))\b<25>\b(?:free|for\s+free|no\s+charge|trial|gratis|membership|pass(?:word)?s?)\b)"); }),
     true},
    {"sa-cum-shot", "Adult spam", "warn", 12,
     "advertises explicit sexual pictures",
     pattern([] { return std::string_view(
     R"(\bcum[- ]?shots?\b|)"
     R"(\b(?:cum(?:ming)?|facials?|blow\s?jobs?|gang\s?bangs?|creampies?|deep\s?throat|anal)\b<30>\b(?:pics?|pictures?|videos?|movies?|galler\w+|site|girls?|teens?|sluts?|whores?|action|scenes?|hardcore|amateurs?)\b|)"
     R"(\b(?:horny|slutty|nasty|naughty|wet|busty)\s+(?:\w+\s+)?(?:teens?|sluts?|whores?|girls?|housewives|milfs?|babes|amateurs?|lesbians?|pussy|pussies)\b)"); }),
     true},
    {"sa-live-porn", "Adult spam", "warn", 12,
     "advertises live sex shows",
     pattern([] { return std::string_view(
     R"(\blive\b<15>\b(?:porn\w*|sex|xxx|nude|naked|adult|cam\s?girls?|girls?|strip\w*|web\s?cams?)\b<15>\b(?:cams?|shows?|chat|girls?|video|on|now|sex|action|web\s?cams?|free|24|nude|online)\b|)"
     R"(\b(?:sex|adult|nude|cam|xxx)\s+(?:cams?|cam\s?girls?|web\s?cams?|chat(?:s|\s+rooms?)?|shows?)\b|)"
     R"(\b(?:web\s?cam|cam)\s+(?:girls?|sex|models?|babes)\b|)"
     R"(\b(?:live-?(?:sex|cams?|strip)|sexcam\w*|telefonsex|camgirls?|sexo\s+(?:ao\s+vivo|en\s+vivo)|sexe\s+en\s+direct)\b)"); }),
     true},
});
// clang-format on

}  // namespace

const std::span<const Rule> all = table;

std::string expanded(std::string_view written) {
  std::string pieces;
  replaceShorthands(written, [&](std::string_view piece) { pieces += piece; });
  return pieces;
}

std::string abbreviated(std::string_view pattern) {
  std::string written(pattern);
  const std::string gapStart = std::string(gap) + "{0,";
  for (std::size_t at = 0; (at = written.find(gapStart, at)) != std::string::npos; ++at) {
    written.replace(at, gapStart.size(), "<");
    written[written.find('}', at)] = '>';
  }
  for (const auto& [name, meaning] : shorthands)
    for (std::size_t at = 0; (at = written.find(meaning, at)) != std::string::npos; ++at)
      written.replace(at, meaning.size(), name);
  return written;
}

}  // namespace quillseal::ContentRules
