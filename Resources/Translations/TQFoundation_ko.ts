<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="ko" sourcelanguage="en">
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
        <translation>개발자의 다른 앱 보기</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>Hazel Grid에 오신 것을 환영합니다.

이곳은 정사각형 세포가 끝없이 펼쳐진 2차원 직교 격자입니다. 모든 세포는 살아 있거나 죽어 있거나, 둘 중 한 가지 상태에 있습니다.

시간이 한 단계 흐를 때마다 다음과 같은 변화가 일어납니다.</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <translation>1.

살아 있는 세포는 살아 있는 이웃이 둘보다 적으면 개체 수 부족을 겪듯 죽습니다.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <translation>2.

살아 있는 세포는 살아 있는 이웃이 둘 또는 셋이면 다음 세대까지 살아남습니다.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <translation>3.

살아 있는 세포는 살아 있는 이웃이 셋보다 많으면 개체 수 과잉을 겪듯 죽습니다.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <translation>4.

죽은 세포는 살아 있는 이웃이 정확히 셋이면 번식이 일어나듯 살아 있는 세포가 됩니다.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <translation>이제 Hazel Grid를 즐겨 보세요.

좋은 하루 보내시기 바랍니다.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <translation>‘청람(青岚)’에 오신 것을 환영합니다.

‘청람’은 한자를 한 글자씩 입력하며 획과 필순을 실마리 삼아 여섯 번의 기회 안에 정답 글자를 맞히는 게임입니다.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <translation>유효한 중국어 한자를 한 글자 입력한 뒤 리턴 키를 눌러 제출해 주십시오.

제출하실 때마다 글자의 획 색깔이 달라질 수 있습니다.</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <translation>초록색은

정답 글자에 이 획이 있으며 필순도 올바르다는 뜻입니다.

해당하는 획은 정답 글자와 제출한 글자 양쪽에 빠짐없이 표시됩니다.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <translation>회색은

정답 글자에 이 획이 있지만 필순이 올바르지 않다는 뜻입니다.

이때 같은 획이 여럿이면 정답 글자에는 한 번만, 제출한 글자에는 모두 표시됩니다.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <translation>이제 ‘청람’을 즐겨 주십시오.

내내 평안하시기를 빕니다.</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>개인정보 처리방침</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>문의하기</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>App Store에서 평가하기</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>SNS에서 팔로우하기</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>개인 웹사이트 방문하기</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>버전</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>문의: </translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>What a screen reader calls the button that leads to the next page of an introduction.</extracomment>
        <translation>다음</translation>
    </message>
</context>
</TS>
