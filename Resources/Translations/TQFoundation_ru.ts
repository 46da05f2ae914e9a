<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ru" sourcelanguage="en">
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
        <translation>Другие мои приложения</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Добро пожаловать в&#xa0;Hazel Grid.

Игра представляет собой бесконечную двумерную ортогональную сетку из квадратных клеток, каждая из которых находится в&#xa0;одном из двух состояний: живая или мёртвая.

На каждом шаге времени происходят следующие переходы:</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <translation>1.

Любая живая клетка, у&#xa0;которой меньше двух живых соседей, погибает, словно от одиночества.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <translation>2.

Любая живая клетка, у&#xa0;которой два или три живых соседа, продолжает жить в&#xa0;следующем поколении.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <translation>3.

Любая живая клетка, у&#xa0;которой больше трёх живых соседей, погибает, словно от перенаселённости.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <translation>4.

Любая мёртвая клетка, у&#xa0;которой ровно три живых соседа, становится живой, словно в&#xa0;результате размножения.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <translation>А&#xa0;теперь&#xa0;— приятной игры в&#xa0;Hazel Grid.

С&#xa0;наилучшими пожеланиями.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <translation>Добро пожаловать в&#xa0;«青岚» (Цинлань).

В&#xa0;«青岚» Вам предстоит вводить иероглифы один за другим и, опираясь на черты и&#xa0;порядок их написания, найти загаданный иероглиф за шесть попыток.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <translation>Введите существующий китайский иероглиф и&#xa0;нажмите клавишу «Ввод», чтобы отправить его.

После каждой попытки цвет черт может измениться:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <translation>Зелёный

Эта черта есть в&#xa0;загаданном иероглифе, и&#xa0;порядок её написания верен.

Все такие черты показываются и&#xa0;в&#xa0;загаданном, и&#xa0;в&#xa0;отправленном иероглифе.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <translation>Серый

Эта черта есть в&#xa0;загаданном иероглифе, но порядок её написания неверен.

Если такие черты одинаковы, в&#xa0;загаданном иероглифе будет показана лишь одна из них, а&#xa0;в&#xa0;отправленном&#xa0;— все.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <translation>А&#xa0;теперь&#xa0;— приятной игры в&#xa0;«青岚».

С&#xa0;глубоким почтением и&#xa0;пожеланием всех благ.</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Политика конфиденциальности</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>Обратная связь</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Оценить в&#xa0;App Store</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Я&#xa0;в&#xa0;соцсетях</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Мой личный сайт</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>Версия</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>Обратная связь: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>What a screen reader calls the button that leads to the next page of an introduction.</extracomment>
        <translation>Далее</translation>
    </message>
</context>
</TS>
