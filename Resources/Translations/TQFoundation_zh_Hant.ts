<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh_Hant" sourcelanguage="en">
<context>
    <name>TQFoundation</name>
    <message>
        <source>https://tqstudio.example/privacy-policy-en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/privacy-policy</translation>
    </message>
    <message>
        <source>https://tqstudio.example/contact-en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/contact</translation>
    </message>
    <message>
        <source>https://tqstudio.example/en</source>
        <extracomment>A page of the website: the page in this language if the site has one, else the same address.</extracomment>
        <translation>https://tqstudio.example/zh</translation>
    </message>
    <message>
        <source>ICP-2099000001-</source>
        <extracomment>Begins the number under which an app is filed in mainland China; only Chinese gives it in full.</extracomment>
        <translation>京ICP备2099000001号-</translation>
    </message>
    <message>
        <source>More Apps I Developed</source>
        <extracomment>Title of a row that leads to the developer&apos;s other apps.</extracomment>
        <translation>我開發的其他 App</translation>
    </message>
    <message>
        <source>Welcome to the Hazel Grid.

The game is an infinite, two-dimensional orthogonal grid of square cells, each of which is in one of two possible states, live or dead.

At each step in time, the following transitions occur:</source>
        <extracomment>First of six pages that explain the game of life to a new user; &quot;Hazel Grid&quot; is the app&apos;s name.</extracomment>
        <translation>歡迎來到 Hazel Grid。

這是一張在二維平面上無限延伸的正交網格，每個方格都是一個細胞，處於「生」或「死」兩種狀態之一。

每經過一個時間步，細胞都會依下列規則演變：</translation>
    </message>
    <message>
        <source>1.

Any live cell with fewer than two live neighbours dies, as if by underpopulation.</source>
        <extracomment>Second page: the first rule of the game.</extracomment>
        <translation>1.

活細胞的活鄰居若少於兩個，便會死去，猶如族群過疏。</translation>
    </message>
    <message>
        <source>2.

Any live cell with two or three live neighbours lives on to the next generation.</source>
        <extracomment>Third page: the second rule.</extracomment>
        <translation>2.

活細胞的活鄰居若有兩個或三個，便會存活至下一代。</translation>
    </message>
    <message>
        <source>3.

Any live cell with more than three live neighbours dies, as if by overpopulation.</source>
        <extracomment>Fourth page: the third rule.</extracomment>
        <translation>3.

活細胞的活鄰居若多於三個，便會死去，猶如族群過密。</translation>
    </message>
    <message>
        <source>4.

Any dead cell with exactly three live neighbours becomes a live cell, as if by reproduction.</source>
        <extracomment>Fifth page: the last rule.</extracomment>
        <translation>4.

死細胞的活鄰居若恰好有三個，便會成為活細胞，猶如族群繁殖。</translation>
    </message>
    <message>
        <source>Next, please enjoy the Hazel Grid.

Best regards.</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>接下來，請盡情享受 Hazel Grid 的樂趣。

順頌時祺。</translation>
    </message>
    <message>
        <source>欢迎使用「青岚」。

「青岚」需要阁下输入一个个文字，并根据笔画、笔顺在六次机会中猜出正确文字。</source>
        <extracomment>First of five pages that explain a game of guessing a written character; 「青岚」 is the app&apos;s name.</extracomment>
        <translation>歡迎使用「青嵐」。

「青嵐」需要閣下輸入一個個文字，並根據筆畫、筆順，在六次機會中猜出正確文字。</translation>
    </message>
    <message>
        <source>输入一个有效中文文字，按下回车按钮提交。

每次提交之后，文字的笔画颜色也许会发生变化：</source>
        <extracomment>Second page: how to make a guess. The colours are those of the next two pages.</extracomment>
        <translation>輸入一個有效的中文字，按下換行鍵送出。

每次送出之後，文字的筆畫顏色也許會發生變化：</translation>
    </message>
    <message>
        <source>绿色，

表示正确文字包含此笔画，并且笔顺正确。

在正确文字和所提交的文字的中都会全部显示。</source>
        <extracomment>Third page: what a green stroke means.</extracomment>
        <translation>綠色，

表示正確文字包含此筆畫，並且筆順正確。

在正確文字與所送出的文字中，都會全部顯示。</translation>
    </message>
    <message>
        <source>灰色，

代表正确文字虽然包含此笔画，但是笔顺不正确。

如果这些笔画相同，在正确文字中只会显示一次，在所提交的文字中则会全部显示。</source>
        <extracomment>Fourth page: what a grey stroke means.</extracomment>
        <translation>灰色，

代表正確文字雖然包含此筆畫，但是筆順不正確。

如果這些筆畫相同，在正確文字中只會顯示一次，在所送出的文字中則會全部顯示。</translation>
    </message>
    <message>
        <source>接下来请使用「青岚」。

敬颂时祺。</source>
        <extracomment>Last page, before the game begins.</extracomment>
        <translation>接下來請使用「青嵐」。

敬頌時祺。</translation>
    </message>
    <message>
        <source>Privacy Policy</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>隱私權政策</translation>
    </message>
    <message>
        <source>Contact</source>
        <extracomment>Title of a row of the More screen that leads to writing to the developer.</extracomment>
        <translation>聯絡我</translation>
    </message>
    <message>
        <source>Rate on the App Store</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>在 App Store 評分</translation>
    </message>
    <message>
        <source>Follow me on Social Media Platforms</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>在社群平台追蹤我</translation>
    </message>
    <message>
        <source>Browse My Personal Website</source>
        <extracomment>Title of a row of the More screen.</extracomment>
        <translation>造訪我的個人網站</translation>
    </message>
    <message>
        <source>Version</source>
        <extracomment>Stands before the version number, as in &quot;Version 2.3.1(57)&quot;.</extracomment>
        <translation>版本</translation>
    </message>
    <message>
        <source>Contact: </source>
        <extracomment>Begins the subject of a feedback mail, before the app&apos;s name; ends in one blank.</extracomment>
        <translation>聯絡：</translation>
    </message>
</context>
<context>
    <name>TQFoundationInterface</name>
    <message>
        <source>Next</source>
        <extracomment>Name, for screen readers, of the button that leads to the next page of an introduction.</extracomment>
        <translation>下一步</translation>
    </message>
    <message>
        <source>This page could not be loaded. Check your connection and try again.</source>
        <extracomment>Stands in place of a web page.</extracomment>
        <translation>無法載入此網頁。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>The connection to this site is not secure, so the page was not opened.</source>
        <extracomment>Stands in place of a web page whose certificate is not valid.</extracomment>
        <translation>與此網站的連線不安全，因此未開啟網頁。</translation>
    </message>
    <message>
        <source>This page has stopped working.</source>
        <extracomment>Stands in place of a web page whose process has ended.</extracomment>
        <translation>此網頁已停止運作。</translation>
    </message>
    <message>
        <source>This page takes too long to load.</source>
        <extracomment>Stands in place of, or below, a web page.</extracomment>
        <translation>此網頁載入時間過長。</translation>
    </message>
    <message>
        <source>Close</source>
        <extracomment>Button that closes the in-app browser.</extracomment>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Back</source>
        <extracomment>Button that leads to the previous page, in the in-app browser.</extracomment>
        <translation>返回</translation>
    </message>
    <message>
        <source>Reload</source>
        <extracomment>Button that loads the page once more, in the in-app browser.</extracomment>
        <translation>重新載入</translation>
    </message>
    <message>
        <source>Loading…</source>
        <extracomment>Below the name of a site while a page is being loaded, in the in-app browser.</extracomment>
        <translation>正在載入…</translation>
    </message>
    <message>
        <source>There is no mail program on this device.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>此裝置上沒有郵件程式。</translation>
    </message>
    <message>
        <source>The mail program on this device is not set up.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>此裝置上的郵件程式尚未設定。</translation>
    </message>
    <message>
        <source>The mail server cannot be reached. Check your connection and try again.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>無法連線到郵件伺服器。請檢查網路連線，然後再試一次。</translation>
    </message>
    <message>
        <source>The mail server did not accept your message.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>郵件伺服器未接受您的郵件。</translation>
    </message>
    <message>
        <source>Your message could not be sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>無法傳送您的郵件。</translation>
    </message>
    <message>
        <source>The mail program stopped unexpectedly. Your message may not have been sent.</source>
        <extracomment>Why a mail was not sent.</extracomment>
        <translation>郵件程式意外停止，您的郵件可能未傳送。</translation>
    </message>
    <message>
        <source>There has been no answer for 30 seconds. Your message may already have been sent; if so, trying again sends it twice.</source>
        <extracomment>Why a mail was not sent. It must say that another attempt may send the mail twice.</extracomment>
        <translation>30 秒內沒有回應。您的郵件可能已經寄出；若是如此，再試一次會重複傳送。</translation>
    </message>
    <message>
        <source>New Message</source>
        <extracomment>Title of the sheet in which the user writes a mail.</extracomment>
        <translation>新郵件</translation>
    </message>
    <message>
        <source>Sending…</source>
        <extracomment>Title of the sheet while the mail is being sent.</extracomment>
        <translation>正在傳送…</translation>
    </message>
    <message>
        <source>Cancel</source>
        <extracomment>Button that closes the sheet without sending the mail.</extracomment>
        <translation>取消</translation>
    </message>
    <message>
        <source>Send</source>
        <extracomment>Button that sends the mail.</extracomment>
        <translation>傳送</translation>
    </message>
    <message>
        <source>Try Again</source>
        <extracomment>Button that sends the mail, or loads the page, once more after that failed.</extracomment>
        <translation>再試一次</translation>
    </message>
    <message>
        <source>To:</source>
        <extracomment>Label before the recipient&apos;s address.</extracomment>
        <translation>收件人：</translation>
    </message>
    <message>
        <source>Subject:</source>
        <extracomment>Label before the subject of a mail.</extracomment>
        <translation>主旨：</translation>
    </message>
    <message>
        <source>Message</source>
        <extracomment>Name of the field for the text of a mail, for screen readers.</extracomment>
        <translation>郵件內文</translation>
    </message>
    <message>
        <source>More text, which cannot be shown here, is sent along below yours.</source>
        <extracomment>Note below the text that the user writes in a mail.</extracomment>
        <translation>其餘文字無法在此顯示，將附在您所寫的內容下方一併傳送。</translation>
    </message>
    <message>
        <source>Discard this message? What you have written will be lost.</source>
        <extracomment>Asked before the sheet is closed; answered by &quot;Discard&quot; or &quot;Keep Writing&quot;.</extracomment>
        <translation>要捨棄這封郵件嗎？您所寫的內容將會遺失。</translation>
    </message>
    <message>
        <source>Discard</source>
        <extracomment>Button that closes the sheet; the text that the user has written is lost.</extracomment>
        <translation>捨棄</translation>
    </message>
    <message>
        <source>Keep Writing</source>
        <extracomment>Button that leads back to the mail that is being written.</extracomment>
        <translation>繼續撰寫</translation>
    </message>
    <message>
        <source>Stop sending this message? It may already have been sent.</source>
        <extracomment>Asked if the user cancels while the mail is being sent; answered by &quot;Stop Sending&quot; or &quot;Keep Sending&quot;.</extracomment>
        <translation>要停止傳送這封郵件嗎？它可能已經寄出。</translation>
    </message>
    <message>
        <source>Stop Sending</source>
        <extracomment>Button that stops the sending of a mail.</extracomment>
        <translation>停止傳送</translation>
    </message>
    <message>
        <source>Keep Sending</source>
        <extracomment>Button that lets the sending of a mail continue.</extracomment>
        <translation>繼續傳送</translation>
    </message>
</context>
</TS>
