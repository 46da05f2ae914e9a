<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="fr" sourcelanguage="en">
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
        <translation>Découvrir mes autres apps</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Bienvenue dans Hazel Grid.

Le jeu se déroule sur une grille orthogonale infinie, à deux dimensions, faite de cellules carrées. Chaque cellule se trouve dans l’un des deux états possibles&#xa0;: vivante ou morte.

À chaque pas de temps, les transitions suivantes se produisent&#xa0;:</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <extracomment>Second page: the first rule of the game.</extracomment>
        <translation>1.

Toute cellule vivante ayant moins de deux voisines vivantes meurt, comme par sous-population.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <extracomment>Third page: the second rule.</extracomment>
        <translation>2.

Toute cellule vivante ayant deux ou trois voisines vivantes reste en vie à la génération suivante.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <extracomment>Fourth page: the third rule.</extracomment>
        <translation>3.

Toute cellule vivante ayant plus de trois voisines vivantes meurt, comme par surpopulation.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <extracomment>Fifth page: the last rule.</extracomment>
        <translation>4.

Toute cellule morte ayant exactement trois voisines vivantes devient une cellule vivante, comme par reproduction.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>Et maintenant, amusez-vous bien avec Hazel Grid.

Bien à vous.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <extracomment>First of five pages that explain a game of guessing a written character; 「青岚」 is the app&apos;s name.</extracomment>
        <translation>Bienvenue dans «&#xa0;青岚&#xa0;» (Qinglan).

Saisissez des caractères chinois, l’un après l’autre, et devinez le bon en six essais, en vous fiant aux traits et à leur ordre.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <extracomment>Second page: how to make a guess. The colours are those of the next two pages.</extracomment>
        <translation>Saisissez un caractère chinois valide, puis appuyez sur la touche Entrée pour le proposer.

Après chaque essai, la couleur des traits peut changer&#xa0;:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <extracomment>Third page: what a green stroke means.</extracomment>
        <translation>Vert&#xa0;:

Le bon caractère contient ce trait, et sa place dans l’ordre des traits est juste.

Tous les traits concernés s’affichent, dans le bon caractère comme dans le caractère proposé.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <extracomment>Fourth page: what a grey stroke means.</extracomment>
        <translation>Gris&#xa0;:

Le bon caractère contient bien ce trait, mais sa place dans l’ordre des traits n’est pas la bonne.

Si plusieurs de ces traits sont identiques, un seul s’affiche dans le bon caractère, alors que tous s’affichent dans le caractère proposé.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>Il ne me reste plus qu’à vous souhaiter beaucoup de plaisir avec «&#xa0;青岚&#xa0;».

Veuillez agréer l’expression de mes sentiments les meilleurs.</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Politique de confidentialité</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>Me contacter</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Noter sur l’App Store</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Me suivre sur les réseaux sociaux</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Visiter mon site personnel</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>Version</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>Contact&#xa0;: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>Name, for screen readers, of the button that leads to the next page of an introduction.</extracomment>
        <translation>Suivant</translation>
    </message>
    <message>
        <source>This page could not be loaded. Check your connection and try again.</source>
        <extracomment>Stands in place of a web page.</extracomment>
        <translation>Cette page n’a pas pu être chargée. Vérifiez votre connexion, puis réessayez.</translation>
    </message>
    <message>
        <source>The connection to this site is not secure, so the page was not opened.</source>
        <extracomment>Stands in place of a web page whose certificate is not valid.</extracomment>
        <translation>La connexion à ce site n’est pas sécurisée&#xa0;; la page n’a donc pas été ouverte.</translation>
    </message>
    <message>
        <source>This page has stopped working.</source>
        <extracomment>Stands in place of a web page whose process has ended.</extracomment>
        <translation>Cette page a cessé de fonctionner.</translation>
    </message>
    <message>
        <source>This page takes too long to load.</source>
        <extracomment>Stands in place of, or below, a web page.</extracomment>
        <translation>Le chargement de cette page prend trop de temps.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the in-app browser.</extracomment>
        <translation>Fermer</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button that leads to the previous page, in the in-app browser.</extracomment>
        <translation>Retour</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>Button that loads the page once more, in the in-app browser.</extracomment>
        <translation>Recharger</translation>
    </message>
    <message>
        <source>Loading…</source>
        <extracomment>Below the name of a site while a page is being loaded, in the in-app browser.</extracomment>
        <translation>Chargement…</translation>
    </message>
    <message>
        <source>There is no mail program on this device.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Aucun programme de messagerie n’est installé sur cet appareil.</translation>
    </message>
    <message>
        <source>The mail program on this device is not set up.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Le programme de messagerie de cet appareil n’est pas configuré.</translation>
    </message>
    <message>
        <source>The mail server cannot be reached. Check your connection and try again.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Le serveur de messagerie est injoignable. Vérifiez votre connexion, puis réessayez.</translation>
    </message>
    <message>
        <source>The mail server did not accept your message.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Le serveur de messagerie n’a pas accepté votre message.</translation>
    </message>
    <message>
        <source>Your message could not be sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Votre message n’a pas pu être envoyé.</translation>
    </message>
    <message>
        <source>The mail program stopped unexpectedly. Your message may not have been sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>Le programme de messagerie s’est arrêté de façon inattendue. Votre message n’a peut-être pas été envoyé.</translation>
    </message>
    <message>
        <source>There has been no answer for 30 seconds. Your message may already have been sent; if so, trying again sends it twice.</source>
        <extracomment>Why a mail was not sent. It must say that another attempt may send the mail twice.</extracomment>
        <translation>Aucune réponse depuis 30&#xa0;secondes. Votre message est peut-être déjà parti&#xa0;; dans ce cas, un nouvel essai l’enverra une deuxième fois.</translation>
    </message>
    <message>
        <source>New Message</source>
        <extracomment>Title of the sheet in which the user writes a mail.</extracomment>
        <translation>Nouveau message</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>Title of the sheet while the mail is being sent.</extracomment>
        <translation>Envoi…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the sheet without sending the mail.</extracomment>
        <translation>Annuler</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that sends the mail.</extracomment>
        <translation>Envoyer</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that sends the mail, or loads the page, once more after that failed.</extracomment>
        <translation>Réessayer</translation>
    </message>
    <message>
        <source>To:</source>
        <extracomment>Label before the recipient&apos;s address.</extracomment>
        <translation>À&#xa0;:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <extracomment>Label before the subject of a mail.</extracomment>
        <translation>Objet&#xa0;:</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name of the field for the text of a mail, for screen readers.</extracomment>
        <translation>Message</translation>
    </message>
    <message>
        <source>More text, which cannot be shown here, is sent along below yours.</source>
        <extracomment>Note below the text that the user writes in a mail.</extracomment>
        <translation>La suite du texte, qui ne peut pas être affichée ici, est envoyée en dessous du vôtre.</translation>
    </message>
    <message>
        <source>Discard this message? What you have written will be lost.</source>
        <extracomment>Asked before the sheet is closed; answered by &quot;Discard&quot; or &quot;Keep Writing&quot;.</extracomment>
        <translation>Supprimer ce message&#xa0;? Ce que vous avez écrit sera perdu.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button that closes the sheet; the text that the user has written is lost.</extracomment>
        <translation>Supprimer</translation>
    </message>
    <message>
        <source>Keep Writing</source>
        <extracomment>Button that leads back to the mail that is being written.</extracomment>
        <translation>Continuer à écrire</translation>
    </message>
    <message>
        <source>Stop sending this message? It may already have been sent.</source>
        <extracomment>Asked if the user cancels while the mail is being sent; answered by &quot;Stop Sending&quot; or &quot;Keep Sending&quot;.</extracomment>
        <translation>Arrêter l’envoi de ce message&#xa0;? Il est peut-être déjà parti.</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <extracomment>Button that stops the sending of a mail.</extracomment>
        <translation>Arrêter l’envoi</translation>
    </message>
    <message>
        <source>Keep Sending</source>
        <extracomment>Button that lets the sending of a mail continue.</extracomment>
        <translation>Poursuivre l’envoi</translation>
    </message>
</context>
</TS>
