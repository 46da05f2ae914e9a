<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="pt_BR" sourcelanguage="en">
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
        <translation>Conheça meus outros apps</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Boas-vindas ao Hazel Grid.

O jogo é uma grade ortogonal, bidimensional e infinita, formada por células quadradas. Cada célula está em um de dois estados possíveis: viva ou morta.

A cada passo de tempo, ocorrem as seguintes transições:</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <translation>1.

Toda célula viva com menos de duas vizinhas vivas morre, como que por subpopulação.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <translation>2.

Toda célula viva com duas ou três vizinhas vivas continua viva na geração seguinte.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <translation>3.

Toda célula viva com mais de três vizinhas vivas morre, como que por superpopulação.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <translation>4.

Toda célula morta com exatamente três vizinhas vivas se torna uma célula viva, como que por reprodução.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <translation>Agora, divirta-se com o Hazel Grid.

Um abraço.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <translation>Boas-vindas a “青岚” (Qinglan).

Digite um caractere chinês após o outro e descubra o caractere certo em seis tentativas, guiando-se pelos traços e pela ordem deles.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <translation>Digite um caractere chinês válido e pressione a tecla Retorno para enviá-lo.

Após cada envio, a cor dos traços pode mudar:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <translation>Verde:

O caractere certo contém este traço, e a posição dele na ordem dos traços está correta.

Todos os traços nessa situação são exibidos, tanto no caractere certo quanto no enviado.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <translation>Cinza:

O caractere certo contém este traço, mas a posição dele na ordem dos traços não está correta.

Se vários desses traços forem iguais, apenas um será exibido no caractere certo, ao passo que todos serão exibidos no enviado.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <translation>Agora, desejo-lhe bons momentos com “青岚”.

Receba meus sinceros votos de estima e consideração.</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Política de privacidade</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>Contato</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Avalie na App Store</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Siga-me nas redes sociais</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Visite meu site pessoal</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>Versão</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>Contato: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>What a screen reader calls the button that leads to the next page of an introduction.</extracomment>
        <translation>Avançar</translation>
    </message>
</context>
</TS>
