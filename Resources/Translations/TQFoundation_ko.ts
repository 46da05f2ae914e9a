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
        <extracomment>Second page: the first rule of the game.</extracomment>
        <translation>1.

살아 있는 세포는 살아 있는 이웃이 둘보다 적으면 개체 수 부족을 겪듯 죽습니다.</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <extracomment>Third page: the second rule.</extracomment>
        <translation>2.

살아 있는 세포는 살아 있는 이웃이 둘 또는 셋이면 다음 세대까지 살아남습니다.</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <extracomment>Fourth page: the third rule.</extracomment>
        <translation>3.

살아 있는 세포는 살아 있는 이웃이 셋보다 많으면 개체 수 과잉을 겪듯 죽습니다.</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <extracomment>Fifth page: the last rule.</extracomment>
        <translation>4.

죽은 세포는 살아 있는 이웃이 정확히 셋이면 번식이 일어나듯 살아 있는 세포가 됩니다.</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>이제 Hazel Grid를 즐겨 보세요.

좋은 하루 보내시기 바랍니다.</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <extracomment>First of five pages that explain a game of guessing a written character; 「青岚」 is the app&apos;s name.</extracomment>
        <translation>‘청람(青岚)’에 오신 것을 환영합니다.

‘청람’은 한자를 한 글자씩 입력하며 획과 필순을 실마리 삼아 여섯 번의 기회 안에 정답 글자를 맞히는 게임입니다.</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <extracomment>Second page: how to make a guess. The colours are those of the next two pages.</extracomment>
        <translation>유효한 중국어 한자를 한 글자 입력한 뒤 리턴 키를 눌러 제출해 주십시오.

제출하실 때마다 글자의 획 색깔이 달라질 수 있습니다.</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <extracomment>Third page: what a green stroke means.</extracomment>
        <translation>초록색은

정답 글자에 이 획이 있으며 필순도 올바르다는 뜻입니다.

해당하는 획은 정답 글자와 제출한 글자 양쪽에 빠짐없이 표시됩니다.</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <extracomment>Fourth page: what a grey stroke means.</extracomment>
        <translation>회색은

정답 글자에 이 획이 있지만 필순이 올바르지 않다는 뜻입니다.

이때 같은 획이 여럿이면 정답 글자에는 한 번만, 제출한 글자에는 모두 표시됩니다.</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <extracomment>Last page, before the game begins.</extracomment>
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
        <extracomment>Name, for screen readers, of the button that leads to the next page of an introduction.</extracomment>
        <translation>다음</translation>
    </message>
    <message>
        <source>This page could not be loaded. Check your connection and try again.</source>
        <extracomment>Stands in place of a web page.</extracomment>
        <translation>이 페이지를 불러오지 못했습니다. 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The connection to this site is not secure, so the page was not opened.</source>
        <extracomment>Stands in place of a web page whose certificate is not valid.</extracomment>
        <translation>이 사이트와의 연결이 안전하지 않아 페이지를 열지 않았습니다.</translation>
    </message>
    <message>
        <source>This page has stopped working.</source>
        <extracomment>Stands in place of a web page whose process has ended.</extracomment>
        <translation>이 페이지의 작동이 중지되었습니다.</translation>
    </message>
    <message>
        <source>This page takes too long to load.</source>
        <extracomment>Stands in place of, or below, a web page.</extracomment>
        <translation>이 페이지를 불러오는 데 너무 오래 걸립니다.</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the in-app browser.</extracomment>
        <translation>닫기</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button that leads to the previous page, in the in-app browser.</extracomment>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>Button that loads the page once more, in the in-app browser.</extracomment>
        <translation>새로 고침</translation>
    </message>
    <message>
        <source>Loading…</source>
        <extracomment>Below the name of a site while a page is being loaded, in the in-app browser.</extracomment>
        <translation>불러오는 중…</translation>
    </message>
    <message>
        <source>There is no mail program on this device.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>이 기기에 메일 프로그램이 없습니다.</translation>
    </message>
    <message>
        <source>The mail program on this device is not set up.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>이 기기의 메일 프로그램이 설정되어 있지 않습니다.</translation>
    </message>
    <message>
        <source>The mail server cannot be reached. Check your connection and try again.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>메일 서버에 연결할 수 없습니다. 연결을 확인하고 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>The mail server did not accept your message.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>메일 서버가 메시지를 받아들이지 않았습니다.</translation>
    </message>
    <message>
        <source>Your message could not be sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>메시지를 보내지 못했습니다.</translation>
    </message>
    <message>
        <source>The mail program stopped unexpectedly. Your message may not have been sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>메일 프로그램이 예기치 않게 종료되었습니다. 메시지가 전송되지 않았을 수 있습니다.</translation>
    </message>
    <message>
        <source>There has been no answer for 30 seconds. Your message may already have been sent; if so, trying again sends it twice.</source>
        <extracomment>Why a mail was not sent. It must say that another attempt may send the mail twice.</extracomment>
        <translation>30초 동안 응답이 없습니다. 메시지가 이미 전송되었을 수 있으며, 그렇다면 다시 시도할 때 두 번 전송됩니다.</translation>
    </message>
    <message>
        <source>New Message</source>
        <extracomment>Title of the sheet in which the user writes a mail.</extracomment>
        <translation>새로운 메시지</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>Title of the sheet while the mail is being sent.</extracomment>
        <translation>보내는 중…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the sheet without sending the mail.</extracomment>
        <translation>취소</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that sends the mail.</extracomment>
        <translation>보내기</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that sends the mail, or loads the page, once more after that failed.</extracomment>
        <translation>다시 시도</translation>
    </message>
    <message>
        <source>To:</source>
        <extracomment>Label before the recipient&apos;s address.</extracomment>
        <translation>받는 사람:</translation>
    </message>
    <message>
        <source>Subject:</source>
        <extracomment>Label before the subject of a mail.</extracomment>
        <translation>제목:</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name of the field for the text of a mail, for screen readers.</extracomment>
        <translation>메시지</translation>
    </message>
    <message>
        <source>More text, which cannot be shown here, is sent along below yours.</source>
        <extracomment>Note below the text that the user writes in a mail.</extracomment>
        <translation>여기에 표시할 수 없는 나머지 텍스트는 작성한 내용 아래에 함께 전송됩니다.</translation>
    </message>
    <message>
        <source>Discard this message? What you have written will be lost.</source>
        <extracomment>Asked before the sheet is closed; answered by &quot;Discard&quot; or &quot;Keep Writing&quot;.</extracomment>
        <translation>이 메시지를 버리겠습니까? 작성한 내용이 사라집니다.</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button that closes the sheet; the text that the user has written is lost.</extracomment>
        <translation>버리기</translation>
    </message>
    <message>
        <source>Keep Writing</source>
        <extracomment>Button that leads back to the mail that is being written.</extracomment>
        <translation>계속 쓰기</translation>
    </message>
    <message>
        <source>Stop sending this message? It may already have been sent.</source>
        <extracomment>Asked if the user cancels while the mail is being sent; answered by &quot;Stop Sending&quot; or &quot;Keep Sending&quot;.</extracomment>
        <translation>이 메시지 전송을 중단하겠습니까? 이미 전송되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <extracomment>Button that stops the sending of a mail.</extracomment>
        <translation>전송 중단</translation>
    </message>
    <message>
        <source>Keep Sending</source>
        <extracomment>Button that lets the sending of a mail continue.</extracomment>
        <translation>계속 전송</translation>
    </message>
</context>
</TS>
