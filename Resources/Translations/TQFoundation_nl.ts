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
        <translation>1.

Elke levende cel met minder dan twee levende buren sterft, als het ware door onderbevolking.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <translation>2.

Elke levende cel met twee of drie levende buren leeft voort in de volgende generatie.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <translation>3.

Elke levende cel met meer dan drie levende buren sterft, als het ware door overbevolking.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <translation>4.

Elke dode cel met precies drie levende buren wordt een levende cel, als het ware door voortplanting.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <translation>En nu veel plezier met Hazel Grid.

Hartelijke groeten</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <translation>Welkom bij ‘青岚’ (Qinglan).

In dit spel voert u het ene na het andere Chinese karakter in. Aan de hand van de streken en hun volgorde raadt u in zes pogingen het juiste karakter.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <translation>Voer een geldig Chinees karakter in en druk op de returntoets om het te bevestigen.

Na elke poging kunnen de kleuren van de streken veranderen:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <translation>Groen betekent:

Het juiste karakter bevat deze streek en ook de plaats in de streekvolgorde klopt.

Zulke streken worden allemaal getoond, zowel in het juiste als in het ingevoerde karakter.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <translation>Grijs betekent:

Het juiste karakter bevat deze streek wel, maar de plaats in de streekvolgorde klopt niet.

Zijn meerdere van deze streken gelijk, dan wordt er in het juiste karakter maar één getoond, terwijl ze in het ingevoerde karakter allemaal te zien zijn.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
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
        <extracomment>What a screen reader calls the button that leads to the next page of an introduction.</extracomment>
        <translation>Volgende</translation>
    </message>
</context>
</TS>
