<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="nl" sourcelanguage="en">
<context>
    <name>TQFoundation</name>
    <message>
        <source>https://tqstudio.example/privacy-policy-en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/privacy-policy-en</translation>
    </message>
    <message>
        <source>https://tqstudio.example/contact-en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/contact-en</translation>
    </message>
    <message>
        <source>https://tqstudio.example/en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/en</translation>
    </message>
    <message>
        <source>ICP-2099000001-</source>
        <extracomment>Begins the number under which an app is filed in mainland China; only Chinese gives it in full.</extracomment>
        <translation>ICP-2099000001-</translation>
    </message>
    <message>
        <source>More Apps I Developed</source>
        <extracomment>Title of a row that leads to the developer&apos;s other apps.</extracomment>
        <translation>Bekijk mijn andere apps</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Welkom bij Hazel Grid.

Het spel is een oneindig, tweedimensionaal, orthogonaal raster van vierkante cellen. Elke cel bevindt zich in een van twee mogelijke toestanden: levend of dood.

Bij elke tijdstap vinden de volgende overgangen plaats:</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <extracomment>Second page: the first rule of the game.</extracomment>
        <translation>1.

Elke levende cel met minder dan twee levende buren sterft, als het ware door onderbevolking.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <extracomment>Third page: the second rule.</extracomment>
        <translation>2.

Elke levende cel met twee of drie levende buren leeft voort in de volgende generatie.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <extracomment>Fourth page: the third rule.</extracomment>
        <translation>3.

Elke levende cel met meer dan drie levende buren sterft, als het ware door overbevolking.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <extracomment>Fifth page: the last rule.</extracomment>
        <translation>4.

Elke dode cel met precies drie levende buren wordt een levende cel, als het ware door voortplanting.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>En nu veel plezier met Hazel Grid.

Hartelijke groeten</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <extracomment>First of five pages that explain a game of guessing a written character; 「青岚」 is the app&apos;s name.</extracomment>
        <translation>Welkom bij ‘青岚’ (Qinglan).

In dit spel voert u het ene na het andere Chinese karakter in. Aan de hand van de streken en hun volgorde raadt u in zes pogingen het juiste karakter.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <extracomment>Second page: how to make a guess. The colours are those of the next two pages.</extracomment>
        <translation>Voer een geldig Chinees karakter in en druk op de returntoets om het te bevestigen.

Na elke poging kunnen de kleuren van de streken veranderen:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <extracomment>Third page: what a green stroke means.</extracomment>
        <translation>Groen betekent:

Het juiste karakter bevat deze streek en ook de plaats in de streekvolgorde klopt.

Zulke streken worden allemaal getoond, zowel in het juiste als in het ingevoerde karakter.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <extracomment>Fourth page: what a grey stroke means.</extracomment>
        <translation>Grijs betekent:

Het juiste karakter bevat deze streek wel, maar de plaats in de streekvolgorde klopt niet.

Zijn meerdere van deze streken gelijk, dan wordt er in het juiste karakter maar één getoond, terwijl ze in het ingevoerde karakter allemaal te zien zijn.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>En nu wens ik u veel plezier met ‘青岚’.

Met de meeste hoogachting en mijn beste wensen</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Privacybeleid</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>Contact</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Beoordeel in de App Store</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Volg mij op sociale media</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Bezoek mijn persoonlijke website</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>Versie</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>Contact: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>Name, for screen readers, of the button that leads to the next page of an introduction.</extracomment>
        <translation>Volgende</translation>
    </message>
    <message>
        <source>This page could not be loaded. Check your connection and try again.</source>
        <extracomment>Stands in place of a web page.</extracomment>
        <translation>Deze pagina kon niet worden geladen. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The connection to this site is not secure, so the page was not opened.</source>
        <extracomment>Stands in place of a web page whose certificate is not valid.</extracomment>
        <translation>De verbinding met deze site is niet beveiligd, dus de pagina is niet geopend.</translation>
    </message>
    <message>
        <source>This page has stopped working.</source>
        <extracomment>Stands in place of a web page whose process has ended.</extracomment>
        <translation>Deze pagina werkt niet meer.</translation>
    </message>
    <message>
        <source>This page takes too long to load.</source>
        <extracomment>Stands in place of, or below, a web page.</extracomment>
        <translation>Het laden van deze pagina duurt te lang.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the in-app browser.</extracomment>
        <translation>Sluit</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button that leads to the previous page, in the in-app browser.</extracomment>
        <translation>Terug</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>Button that loads the page once more, in the in-app browser.</extracomment>
        <translation>Herlaad</translation>
    </message>
    <message>
        <source>Loading…</source>
        <extracomment>Below the name of a site while a page is being loaded, in the in-app browser.</extracomment>
        <translation>Laden…</translation>
    </message>
    <message>
        <source>There is no mail program on this device.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Er is geen mailprogramma op dit apparaat.</translation>
    </message>
    <message>
        <source>The mail program on this device is not set up.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Het mailprogramma op dit apparaat is niet ingesteld.</translation>
    </message>
    <message>
        <source>The mail server cannot be reached. Check your connection and try again.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>De mailserver is niet bereikbaar. Controleer je verbinding en probeer het opnieuw.</translation>
    </message>
    <message>
        <source>The mail server did not accept your message.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>De mailserver heeft je bericht niet geaccepteerd.</translation>
    </message>
    <message>
        <source>Your message could not be sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Je bericht kon niet worden verzonden.</translation>
    </message>
    <message>
        <source>The mail program stopped unexpectedly. Your message may not have been sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Het mailprogramma is onverwacht gestopt. Je bericht is misschien niet verzonden.</translation>
    </message>
    <message>
        <source>There has been no answer for 30 seconds. Your message may already have been sent; if so, trying again sends it twice.</source>
        <extracomment>Why a mail was not sent. It must say that another attempt may send the mail twice.</extracomment>
        <translation>Er is al 30 seconden geen antwoord. Je bericht is misschien al verzonden; in dat geval wordt het bij een nieuwe poging twee keer verzonden.</translation>
    </message>
    <message>
        <source>New Message</source>
        <extracomment>Title of the sheet in which the user writes a mail.</extracomment>
        <translation>Nieuw bericht</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>Title of the sheet while the mail is being sent.</extracomment>
        <translation>Verzenden…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the sheet without sending the mail.</extracomment>
        <translation>Annuleer</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that sends the mail.</extracomment>
        <translation>Verstuur</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that sends the mail, or loads the page, once more after that failed.</extracomment>
        <translation>Probeer opnieuw</translation>
    </message>
    <message>
        <source>To:</source>
        <extracomment>Label before the recipient&apos;s address.</extracomment>
        <translation>Aan:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <extracomment>Label before the subject of a mail.</extracomment>
        <translation>Onderwerp:</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name of the field for the text of a mail, for screen readers.</extracomment>
        <translation>Bericht</translation>
    </message>
    <message>
        <source>More text, which cannot be shown here, is sent along below yours.</source>
        <extracomment>Note below the text that the user writes in a mail.</extracomment>
        <translation>Meer tekst, die hier niet kan worden getoond, wordt onder die van jou meegestuurd.</translation>
    </message>
    <message>
        <source>Discard this message? What you have written will be lost.</source>
        <extracomment>Asked before the sheet is closed; answered by &quot;Discard&quot; or &quot;Keep Writing&quot;.</extracomment>
        <translation>Dit bericht weggooien? Wat je hebt geschreven, gaat verloren.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button that closes the sheet; the text that the user has written is lost.</extracomment>
        <translation>Gooi weg</translation>
    </message>
    <message>
        <source>Keep Writing</source>
        <extracomment>Button that leads back to the mail that is being written.</extracomment>
        <translation>Schrijf verder</translation>
    </message>
    <message>
        <source>Stop sending this message? It may already have been sent.</source>
        <extracomment>Asked if the user cancels while the mail is being sent; answered by &quot;Stop Sending&quot; or &quot;Keep Sending&quot;.</extracomment>
        <translation>Stoppen met het verzenden van dit bericht? Het is misschien al verzonden.</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <extracomment>Button that stops the sending of a mail.</extracomment>
        <translation>Stop verzenden</translation>
    </message>
    <message>
        <source>Keep Sending</source>
        <extracomment>Button that lets the sending of a mail continue.</extracomment>
        <translation>Ga door met verzenden</translation>
    </message>
</context>
</TS>
