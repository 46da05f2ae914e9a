<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="tr" sourcelanguage="en">
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
        <translation>Diğer Uygulamalarım</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Hazel Grid’e hoş geldiniz.

Oyun; kare hücrelerden oluşan sonsuz, iki boyutlu, ortogonal bir ızgaradır. Her hücre iki olası durumdan birindedir: canlı ya da ölü.

Zamanın her adımında şu geçişler gerçekleşir:</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <translation>1.

İkiden az canlı komşusu olan her canlı hücre, âdeta yalnızlıktan ölür.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <translation>2.

İki veya üç canlı komşusu olan her canlı hücre, bir sonraki nesilde yaşamaya devam eder.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <translation>3.

Üçten fazla canlı komşusu olan her canlı hücre, âdeta aşırı kalabalıktan ölür.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <translation>4.

Tam olarak üç canlı komşusu olan her ölü hücre, âdeta üreme yoluyla canlı bir hücreye dönüşür.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <translation>Şimdi sıra Hazel Grid’in keyfini çıkarmakta.

En iyi dileklerimle.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <translation>“青岚” (Qinglan) oyununa hoş geldiniz.

“青岚” sizden karakterleri birer birer girmenizi ve çizgilerle çizgi sırasına bakarak doğru karakteri altı denemede bulmanızı rica eder.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <translation>Geçerli bir Çince karakter yazın ve Return tuşuna basarak gönderin.

Her gönderimden sonra karakterin çizgilerinin rengi değişebilir:</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <translation>Yeşil

Doğru karakterde bu çizgi vardır ve çizgi sırası da doğrudur.

Bu çizgilerin tümü hem doğru karakterde hem de gönderilen karakterde gösterilir.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <translation>Gri

Doğru karakterde bu çizgi vardır ancak çizgi sırası yanlıştır.

Bu çizgiler birbirinin aynısıysa doğru karakterde yalnızca biri, gönderilen karakterde ise tümü gösterilir.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <translation>Şimdi buyurun, “青岚” sizi bekliyor.

Saygılarımı sunar, esenlikler dilerim.</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Gizlilik Politikası</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>İletişim</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>App Store’da Değerlendir</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Sosyal Medyada Takip Et</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>Kişisel Web Sitem</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>Sürüm</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>İletişim: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>What a screen reader calls the button that leads to the next page of an introduction.</extracomment>
        <translation>İleri</translation>
    </message>
</context>
</TS>
