<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1" language="zh" sourcelanguage="it">
<context>
    <name>QFileSharing</name>
    <message>
        <source>Il progetto risulta in uso da:
Computer: %1	Utente: %2
Vuoi aprirlo con accesso in lettura ?</source>
        <translation>該專案正在被以下使用者使用：
電腦：%1	使用者：%2
是否以唯讀方式開啟？</translation>
    </message>
    <message>
        <source>Il progetto è aperto in sola lettura.
 Vuoi salvarlo cambiandogli il nome ?</source>
        <translation>該專案以唯讀方式開啟。
是否以新名稱另存？</translation>
    </message>
    <message>
        <source>Attenzione: progetto in uso!!
Obbligatorio cambiargli il nome!!</source>
        <translation>注意：專案正在使用中！
必須更改名稱！</translation>
    </message>
    <message>
        <source>Il progetto è bloccato da:
Computer: %1.
Utente: %2.
Vuoi sbloccarlo ?</source>
        <translation>該專案已被以下使用者鎖定：
電腦：%1。
使用者：%2。
是否解除鎖定？</translation>
    </message>
</context>
<context>
    <name>QNodrixCom</name>
    <message>
        <source>Piano cilindro</source>
        <translation>針筒平面</translation>
    </message>
    <message>
        <source>Piano BodyKnit</source>
        <translation>BodyKnit 平面</translation>
    </message>
    <message>
        <source>Piano BodyMap</source>
        <translation>BodyMap 平面</translation>
    </message>
    <message>
        <source>Piano BodyShape</source>
        <translation>BodyShape 平面</translation>
    </message>
    <message>
        <source>Piano maglia</source>
        <translation>線圈平面</translation>
    </message>
    <message>
        <source>Piano guidafili</source>
        <translation>導紗器平面</translation>
    </message>
    <message>
        <source>Piano comandi</source>
        <translation>指令平面</translation>
    </message>
    <message>
        <source>Inserisci Pat</source>
        <translation>插入 Pat</translation>
    </message>
    <message>
        <source>Sostituisci Pat</source>
        <translation>替換 Pat</translation>
    </message>
    <message>
        <source>Modifica Pat</source>
        <translation>修改 Pat</translation>
    </message>
    <message>
        <source>Copia Pat</source>
        <translation>複製 Pat</translation>
    </message>
    <message>
        <source>Incolla Pat</source>
        <translation>貼上 Pat</translation>
    </message>
    <message>
        <source>Salva con Nome Pat</source>
        <translation>Pat 另存新檔</translation>
    </message>
    <message>
        <source>Rimuovi Pat</source>
        <translation>移除 Pat</translation>
    </message>
    <message>
        <source>Visualizza Pat</source>
        <translation>檢視 Pat</translation>
    </message>
    <message>
        <source>Sostituisci GDF</source>
        <translation>替換 GDF</translation>
    </message>
    <message>
        <source>0 Fili</source>
        <translation>0 根紗</translation>
    </message>
    <message>
        <source>1 Filo</source>
        <translation>1 根紗</translation>
    </message>
    <message>
        <source>2 Fili</source>
        <translation>2 根紗</translation>
    </message>
    <message>
        <source>3 Fili</source>
        <translation>3 根紗</translation>
    </message>
</context>
<context>
    <name>QNodrixMessageBox</name>
    <message>
        <source>Si</source>
        <translation>是</translation>
    </message>
    <message>
        <source>No</source>
        <translation>否</translation>
    </message>
    <message>
        <source>Ignora</source>
        <translation>忽略</translation>
    </message>
    <message>
        <source>ADATTA
Acquisizione SCS</source>
        <translation>調整
SCS 採集</translation>
    </message>
    <message>
        <source>ANNULLA
Modifica</source>
        <translation>取消
修改</translation>
    </message>
    <message>
        <source>Chiudi</source>
        <translation>關閉</translation>
    </message>
    <message>
        <source>Ok</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Dettagli</source>
        <translation>詳細資料</translation>
    </message>
    <message>
        <source>Salva con nome</source>
        <translation>另存新檔</translation>
    </message>
    <message>
        <source>Errore</source>
        <translation>錯誤</translation>
    </message>
    <message>
        <source>Classe:	%1
Versione:	%2
Versione caricata:	%3
Funzione:	%4

Messaggio:	%5
</source>
        <translation>類別：	%1
版本：	%2
已載入版本：	%3
函式：	%4

訊息：	%5
</translation>
    </message>
    <message>
        <source>Classe:	%1
Funzione:	%2

Messaggio:	%3
</source>
        <translation>類別：	%1
函式：	%2

訊息：	%3
</translation>
    </message>
    <message>
        <source>Attenzione</source>
        <translation>注意</translation>
    </message>
    <message>
        <source>Informazione</source>
        <translation>資訊</translation>
    </message>
    <message>
        <source>%1
</source>
        <translation>%1
</translation>
    </message>
    <message>
        <source>Attenzione:
questo software macchina richiede sia installata 
la Piattaforma Nodrix versione %1 o superiore 
Non è possibile continuare senza aggiornare la Piattaforma !</source>
        <translation>注意：
此機器軟體需要安裝
Nodrix 平台 %1 或更高版本。
不更新平台將無法繼續！</translation>
    </message>
    <message>
        <source>Continua</source>
        <translation>繼續</translation>
    </message>
    <message>
        <source>Annulla</source>
        <translation>取消</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>OK</translation>
    </message>
    <message>
        <source>Salva</source>
        <translation>儲存</translation>
    </message>
    <message>
        <source>Esci</source>
        <translation>離開</translation>
    </message>
    <message>
        <source>Attenzione:
Selezionando &apos;Continua&apos; si renderà possibile
entrare in modalità &apos;PIANO COMANDI LIBERO&apos; !
Si avverte che tale modalità è consigliata
ai soli UTENTI ESPERTI !!!</source>
        <translation>注意：
選擇「繼續」後將可以
進入「自由指令平面」模式！
請注意，該模式僅建議
資深使用者使用！</translation>
    </message>
    <message>
        <source>Attenzione:
Stai entrando sul &apos;Piano Comandi Manuale&apos; 
   ALLINEATO   al &apos;Piano Comandi Automatico&apos;:
le modifiche fatte al &apos;Piano Comandi Manuale&apos;
potranno essere recuperate.</source>
        <translation>注意：
您正在進入與「自動指令平面」
保持同步的「手動指令平面」：
對「手動指令平面」所做的修改
將可以恢復。</translation>
    </message>
    <message>
        <source>Attenzione:
Il &apos;PIANO COMANDI LIBERO&apos; è stato modificato!.
Vuoi salvare le modifiche fatte ?</source>
        <translation>注意：
「自由指令平面」已被修改！
是否儲存所做的修改？</translation>
    </message>
    <message>
        <source>Attenzione:
Modalità &apos;PIANO COMANDI LIBERO&apos;
   NON CONFERMATA CON OK ! 
Sei sicuro di voler uscire ?</source>
        <translation>注意：
「自由指令平面」模式
未以 OK 確認！
確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
NON sono state applicate ! 
Continuando verranno PERSE. Sei sicuro di voler uscire ?</source>
        <translation>注意：
在「自由指令平面」上所做的修改
尚未套用！
繼續操作將遺失這些修改。確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Sul &apos;PIANO COMANDI LIBERO&apos; le modifiche fatte
     NON sono state confermate con Ok! 
Continuando verranno Perse. Sei sicuro di voler uscire ?</source>
        <translation>注意：
在「自由指令平面」上所做的修改
尚未以 OK 確認！
繼續操作將遺失這些修改。確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Prima di uscire dalla modalità &apos;PIANO COMANDI LIBERO&apos;
è necessario completare e chiudere la finestra Report !</source>
        <translation>注意：
離開「自由指令平面」模式之前，
必須先完成並關閉 Report 視窗！</translation>
    </message>
    <message>
        <source>Attenzione:
Sono state rilevate modifiche al Setup del progetto !
L&apos;ingresso in modalità Piano Comandi Libero comporta:
- riallineamento del Piano Comandi all&apos;ultima elaborazione automatica
- cancellazione dei comandi manuali non congruenti con i dati di Setup
Vuoi continuare ?</source>
        <translation>注意：
偵測到專案的 Setup 已被修改！
進入自由指令平面模式將會：
- 使指令平面重新與最近一次自動處理的結果同步
- 刪除與 Setup 資料不一致的手動指令
是否繼續？</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile agire sui comandi con il Report attivo!
</source>
        <translation>注意：
Report 處於啟用狀態時無法操作指令！
</translation>
    </message>
    <message>
        <source>Attenzione:
NESSUN comando è stato recuperato.
Uscendo non sarà più possibile alcun recupero.
Sei sicuro di voler uscire ?</source>
        <translation>注意：
沒有恢復任何指令。
離開後將無法再進行任何恢復。
確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Per eliminare un comando spostato
è necessario prima annullare lo spostamento!
</source>
        <translation>注意：
要刪除已移動的指令，
必須先取消該移動！
</translation>
    </message>
    <message>
        <source>Attenzione:
SCS &apos;Piano Comandi Manuale&apos; in Controllo Taglia !
L&apos;Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>注意：
「手動指令平面」的 SCS 處於尺碼控制狀態！
SCS 採集將被刪除！
是否繼續？</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi guidafilo con accessori associati!
non compatibili con quelli già in uso nel progetto
%1
I comandi di questi accessori verranno ignorati !
Vuoi continuare ?</source>
        <translation>注意：
存在關聯了附件的導紗器指令，
這些附件與專案中已使用的附件不相容：
%1
這些附件的指令將被忽略！
是否繼續？</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente una asociazione 
PAT manuale al colore %1 da importare !
Il colore importato verrà sostituito 
con il colore selezionato o con il primo libero !
</source>
        <translation>注意：
專案中已存在要匯入的顏色 %1 的
手動 PAT 關聯！
匯入的顏色將被替換為
所選顏色或第一個可用的顏色！
</translation>
    </message>
    <message>
        <source>Attenzione:
Nel progetto è già presente un PAT manuale con nome %1 !
Il PAT importato verrà rinominato e associato come : %2 !
</source>
        <translation>注意：
專案中已存在名為 %1 的手動 PAT！
匯入的 PAT 將被重新命名並關聯為：%2！
</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute deve essere almeno di %1 passi!</source>
        <translation>注意：
4 路區域至少應有 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra 2 zone a 4 cadute ci devono essere almeno %1 passi!</source>
        <translation>注意：
兩個 4 路區域之間至少應相隔 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultima zona e la fine disegno ci devono essere almeno %1 passi!</source>
        <translation>注意：
最後一個區域與花型結尾之間至少應相隔 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire una zona sovrapposta alle esistenti!</source>
        <translation>注意：
無法插入與現有區域重疊的區域！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto alla zona!</source>
        <translation>注意：
無法向該區域新增所請求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto alla zona!</source>
        <translation>注意：
無法從該區域移除所請求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Un Bordo deve essere almeno di %1 passi !</source>
        <translation>注意：
扎口至少應有 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra due bordi ci devono essere almeno %1 passi non bordo !</source>
        <translation>注意：
兩個扎口之間至少應有 %1 個非扎口步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile aggiungere il passo richiesto al bordo !</source>
        <translation>注意：
無法向扎口新增所請求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile togliere il passo richiesto al bordo !</source>
        <translation>注意：
無法從扎口移除所請求的步！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra l&apos;ultimo bordo e la fine disegno ci devono essere almeno %1 passi !</source>
        <translation>注意：
最後一個扎口與花型結尾之間至少應相隔 %1 步！</translation>
    </message>
    <message>
        <source>Attenzione:
Il primo bordo deve partire al passo 1 oppure dopo il passo %1!</source>
        <translation>注意：
第一個扎口必須從第 1 步開始，或在第 %1 步之後開始！</translation>
    </message>
    <message>
        <source>Attenzione:
Il bordo che inizia al passo %1 NON ha il check del guidafilo abilitato!</source>
        <translation>注意：
從第 %1 步開始的扎口未啟用導紗器檢查！</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche precedentemente apportate al
Piano Comandi verranno Eliminate !!
Vuoi continuare ?</source>
        <translation>注意：
之前對指令平面
所做的修改將被刪除！
是否繼續？</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;articolo deve iniziare con un bordo uncini !</source>
        <translation>注意：
織件必須以鉤子扎口開始！</translation>
    </message>
    <message>
        <source>Attenzione:
Fili in lavoro non definiti !</source>
        <translation>注意：
未定義工作紗線！</translation>
    </message>
    <message>
        <source>Attenzione:
- Durante lo Scarico Maglia ad 1 filo, su tutte le cadute, non è possibile avere
  il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

- Durante lo Scarico Maglia a 2 fili, su tutte le cadute, non è possibile avere
  entrambi i guidafili associati ad una pinza !

- Durante lo Scarico Maglia a 2 fili, solo sulla 5a caduta, non è possibile avere
  un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
- 單紗落布時，所有成圈系統上都不允許
  第 2 組導紗器（導紗器 4-5-6）關聯到夾紗器！

- 雙紗落布時，所有成圈系統上都不允許
  兩個導紗器都關聯到夾紗器！

- 雙紗落布時，僅在成圈系統 5 上不允許
  第 2 組的導紗器（導紗器 4-5-6）關聯到夾紗器！

必須在導紗器圖中選擇一個導紗器，用它執行
換紗以結束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia ad 1 filo, sulla caduta %1, non è possibile avere
il guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
單紗落布時，在成圈系統 %1 上不允許
第 2 組導紗器（導紗器 4-5-6）關聯到夾紗器！

必須在導紗器圖中選擇一個導紗器，用它執行
換紗以結束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla caduta %1, non è possibile avere
entrambi i guidafili associati ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
雙紗落布時，在成圈系統 %1 上不允許
兩個導紗器都關聯到夾紗器！

必須在導紗器圖中選擇一個導紗器，用它執行
換紗以結束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Durante lo Scarico Maglia a 2 fili, sulla 5a caduta, non è possibile avere
un guidafilo del gruppo 2 (guidafili 4-5-6) associato ad una pinza !

E&apos; necessario, nella Mappa Guidafili, selezionare un guidafilo con cui eseguire
il cambio per terminare lo Scarico Maglia.</source>
        <translation>注意：
雙紗落布時，在成圈系統 5 上不允許
第 2 組的導紗器（導紗器 4-5-6）關聯到夾紗器！

必須在導紗器圖中選擇一個導紗器，用它執行
換紗以結束落布。</translation>
    </message>
    <message>
        <source>Attenzione:
Punto maglia &apos;%1&apos; non identificato nel Pat :
%2</source>
        <translation>注意：
在 Pat 中無法識別針法「%1」：
%2</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire zone maglie sul passo !</source>
        <translation>注意：
無法在該步上插入線圈區域！</translation>
    </message>
    <message>
        <source>Attenzione:
Non ci sono alimentatori %1 attivi nella zona !</source>
        <translation>注意：
該區域中沒有已啟用的 %1 送紗器！</translation>
    </message>
    <message>
        <source>Attenzione:
Platò abbassato con uncini attivi al passo %1 !</source>
        <translation>注意：
第 %1 步：鉤子處於工作狀態時針盤已降下！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile inserire il comando platò sul passo !</source>
        <translation>注意：
無法在該步上插入針盤指令！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è possibile avere la camme rientro parziale uncini
 insieme alla camme uscita uncini al passo %1 !</source>
        <translation>注意：
鉤子部分收回三角不能在第 %1 步
與鉤子伸出三角同時使用！</translation>
    </message>
    <message>
        <source>Attenzione:
Passo %1: Platò Motorizzato basso/alto con uncini attivi!</source>
        <translation>注意：
第 %1 步：鉤子處於工作狀態時電動針盤處於低位/高位！</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Platò Motorizzato!&apos;</source>
        <translation>注意：
無法在該步上插入「電動針盤」指令！</translation>
    </message>
    <message>
        <source>Attenzione:
Sul passo Non è possibile inserire il comando &apos;Stop Espulsore Articolo!&apos;</source>
        <translation>注意：
無法在該步上插入「停止織件頂出器」指令！</translation>
    </message>
    <message>
        <source>Attenzione: Piano Body n. %1
Colore %2 non assegnato</source>
        <translation>注意：第 %1 號 Body 平面
顏色 %2 未分配</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone maglia</source>
        <translation>注意：
不存在線圈區域</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyMap</source>
        <translation>注意：
不存在 BodyMap 送紗器區域</translation>
    </message>
    <message>
        <source>Attenzione:
Non sono presenti zone alimentatori BodyShape</source>
        <translation>注意：
不存在 BodyShape 送紗器區域</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona maglie per il passo %1</source>
        <translation>注意：
第 %1 步沒有線圈區域</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyMap per il passo %1</source>
        <translation>注意：
第 %1 步沒有 BodyMap 送紗器區域</translation>
    </message>
    <message>
        <source>Attenzione:
Non è presente la zona alimentatori BodyShape per il passo %1</source>
        <translation>注意：
第 %1 步沒有 BodyShape 送紗器區域</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Motor=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值低於允許的最小值
馬達=%1 橫列=%2 針=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Motore=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值高於允許的最大值
馬達=%1 橫列=%2 針=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento inferiore al minimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值低於允許的最小值
送紗器=%1 橫列=%2 針=%3</translation>
    </message>
    <message>
        <source>Attenzione:
Valore di sbilanciamento superiore al massimo consentito
Alimentatore=%1 Rango=%2 Ago=%3</source>
        <translation>注意：
不平衡值高於允許的最大值
送紗器=%1 橫列=%2 針=%3</translation>
    </message>
    <message>
        <source>Attenzione!
Non è stato inserito alcun nome !</source>
        <translation>注意！
未輸入任何名稱！</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina 
 NON deve essere più lungo di %1 caratteri</source>
        <translation>注意：該機器的專案名稱
長度不得超過 %1 個字元</translation>
    </message>
    <message>
        <source>Attenzione:
Carattere &gt;%1&lt; non ammesso.</source>
        <translation>注意：
不允許使用字元 &gt;%1&lt;。</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Nodrix NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>注意：
Nodrix 專案名稱不能包含以下字元：
	 %1</translation>
    </message>
    <message>
        <source>Attenzione:
Ammessi solo caratteri occidentali</source>
        <translation>注意：
僅允許使用西文字元</translation>
    </message>
    <message>
        <source>Attenzione:
Ammesso nome progetto solo con estensione .ndx minuscolo</source>
        <translation>注意：
專案名稱只允許使用小寫副檔名 .ndx</translation>
    </message>
    <message>
        <source>Attenzione: Il nome dei progetti per la macchina
 NON deve essere più lungo di %1 caratteri</source>
        <translation>注意：該機器的專案名稱
長度不得超過 %1 個字元</translation>
    </message>
    <message>
        <source>Attenzione:
Il nome dei progetti Veskar NON può contenere i seguenti caratteri:
	 %1</source>
        <translation>注意：
Veskar 專案名稱不能包含以下字元：
	 %1</translation>
    </message>
    <message>
        <source>Attenzione!
Applicazione macchina non definita</source>
        <translation>注意！
未定義機器應用程式</translation>
    </message>
    <message>
        <source>Attenzione!
Il progetto è di una macchina diversa da quella dell&apos;applicazione attiva!</source>
        <translation>注意！
該專案所屬的機器與目前應用程式的機器不同！</translation>
    </message>
    <message>
        <source>Attenzione!
L&apos;ultimo percorso selezionato NON risulta accessibile !!!
Verrà selezionato il percorso di default !!!</source>
        <translation>注意！
上次選擇的路徑無法存取！
將選擇預設路徑！</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte NON sono state salvate.
Continuando verranno perse.
Sei sicuro di voler uscire ?</source>
        <translation>注意：
所做的修改尚未儲存。
繼續操作將遺失這些修改。
確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte non sono state confermate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>注意：
所做的修改尚未確認。
繼續操作將遺失這些修改。確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Le modifiche fatte e confermate non sono state salvate.
Continuando verranno perseSei sicuro di voler uscire ?</source>
        <translation>注意：
已確認的修改尚未儲存。
繼續操作將遺失這些修改。確定要離開嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Con il pulsante &apos;Ripristina&apos;:
-Saranno eliminate tutte le modifiche fatte dall&apos;utente!
-Saranno ripristinati tutti i default del Nodrix!
Sei sicuro di voler continuare ?</source>
        <translation>注意：
使用「還原」按鈕將會：
- 刪除使用者所做的全部修改！
- 還原 Nodrix 的全部預設設定！
確定要繼續嗎？</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti comandi non recuperati!
Continuando verranno persi.
Sei sicuro di voler uscire ?</source>
        <translation>注意：
存在未恢復的指令！
繼續操作將遺失這些指令。
確定要離開嗎？</translation>
    </message>
    <message>
        <source>Impossibile leggere il file di configurazione macchina %1:
%2.</source>
        <translation>無法讀取機器設定檔 %1：
%2。</translation>
    </message>
    <message>
        <source>Impossibile leggere il file macchina : %1</source>
        <translation>無法讀取機器檔案：%1</translation>
    </message>
    <message>
        <source>File macchina : %1
versione installata : %2  incompatibile 
con versione progetto : %3</source>
        <translation>機器檔案：%1
已安裝版本：%2 與
專案版本：%3 不相容</translation>
    </message>
    <message>
        <source>File macchina non riconosciuto</source>
        <translation>無法識別機器檔案</translation>
    </message>
    <message>
        <source>Macchina o costruttore non supportati</source>
        <translation>不支援該機器或製造商</translation>
    </message>
    <message>
        <source>Impossibile caricare i files macchina !</source>
        <translation>無法載入機器檔案！</translation>
    </message>
    <message>
        <source>Files macchina presenti nel progetto
non congruenti con quelli installati !</source>
        <translation>專案中的機器檔案
與已安裝的機器檔案不一致！</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- %2
linea : %3 --- colonna : %4</source>
        <translation>XML 檔案錯誤：%1 --- %2
行：%3 --- 欄：%4</translation>
    </message>
    <message>
        <source>Errore in file Xml : %1 --- linea %2
tag : %3
attributi : %4 --- %5</source>
        <translation>XML 檔案錯誤：%1 --- 第 %2 行
標籤：%3
屬性：%4 --- %5</translation>
    </message>
    <message>
        <source>Nodrix</source>
        <translation>Nodrix</translation>
    </message>
    <message>
        <source>Impossibile aprire il file %1:
%2</source>
        <translation>無法開啟檔案 %1：
%2</translation>
    </message>
    <message>
        <source>Impossibile leggere il file %1:
%2</source>
        <translation>無法讀取檔案 %1：
%2</translation>
    </message>
    <message>
        <source>Impossibile scrivere il file %1:
%2</source>
        <translation>無法寫入檔案 %1：
%2</translation>
    </message>
    <message>
        <source>Archivio corrotto !!</source>
        <translation>封存檔已損毀！</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Status : %4</source>
        <translation>類別：%1
版本：%2 --- 已載入版本：%3
Status：%4</translation>
    </message>
    <message>
        <source>Classe : %1
Versione : %2 --- Versione caricata : %3
Funzione : %4
Versione oggetto sconosciuta</source>
        <translation>類別：%1
版本：%2 --- 已載入版本：%3
函式：%4
未知的物件版本</translation>
    </message>
    <message>
        <source>Nel pat %1 alla caduta n° %2 non è configurato il numero di fili in lavoro</source>
        <translation>Pat %1 的成圈系統 %2 未設定工作紗線數</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia non sono sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
成圈系統 %3 上 Pat %1 和 Pat %2 中使用的某些針法需要三角動作。
只有當這些針法不在同一線圈橫列上時，才能進行這些動作。
要繼續，必須修改其中一個 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Alcuni punti maglia utilizzati nel pat %1 e nel pat %2
sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono possibili solo se questi punti maglia distano almeno %4 passi.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
Pat %1 和 Pat %2 中使用的某些針法
在成圈系統 %3 上需要三角動作。
只有當這些針法至少相隔 %4 步時，才能進行這些動作。
要繼續，必須修改其中一個 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di carico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
成圈系統 %3 上的 Pat %1 和 Pat %2 需要三角動作。
在選擇掛鉤時，這些動作間隔過近。
這些動作之間必須至少相隔 %4 步。
要繼續，必須修改其中一個 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 ed il pat %2 sulla caduta %3 prevedono movimenti di camme.
Tali movimenti sono troppo ravvicinati in presenza della selezione di scarico uncini
E&apos; necessario che fra questi movimenti vi siano almeno %4 passo(i).
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
成圈系統 %3 上的 Pat %1 和 Pat %2 需要三角動作。
在選擇脫鉤時，這些動作間隔過近。
這些動作之間必須至少相隔 %4 步。
要繼續，必須修改其中一個 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat %1 ed il Pat %2  richiedono:
- cambi Posizione del Guidafilo %3 gruppo %4
E&apos; possibile se fra questi cambi
ci sono almeno %5 aghi di distanza.
E&apos; necessario modificare il Disegno !</source>
        <translation>注意：
Pat %1 和 Pat %2 需要：
- 第 %4 組導紗器 %3 的位置更換
只有當這些更換之間
至少相隔 %5 針時才可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessari dei cambi di guidafili con sovrapposizione.
Tali movimenti non sono possibili sullo stesso rango di maglia.
Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
Pat %1 和 Pat %2 之間需要進行重疊的導紗器更換。
這些動作不能在同一線圈橫列上進行。
要繼續，必須修改其中一個 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Fra il pat %1 ed il pat %2  sono necessarie entrate o uscite di guidafili.
Tali entrate o uscite non sono possibili sullo stesso rango di maglia.
 Per procedere è necessario modificare uno dei due pat</source>
        <translation>注意：
Pat %1 和 Pat %2 之間需要導紗器進入或退出。
這些進入或退出不能在同一線圈橫列上進行。
要繼續，必須修改其中一個 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Il pat %1 necessita di entrata e/o uscita di guidafili.
Tali cambi non sono possibili in presenza di camma di trattenuto.
Per procedere è necessario modificare il pat</source>
        <translation>注意：
Pat %1 需要導紗器進入和/或退出。
存在集圈三角時無法進行這些更換。
要繼續，必須修改該 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Disegno sono presenti Punti Maglia:
Flottato + Fuori Lavoro + Trattenuto.
E necessario eliminare uno dei tre !</source>
        <translation>注意：
花型中同時存在以下針法：
浮線 + 不編織 + 集圈。
必須刪除其中一種！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo nel Primo Transfer.
E&apos; necessario modificare i Pat !</source>
        <translation>注意：
從 Pat %1 到 Pat %2 需要：
- 導紗器進入/退出/更換
這僅能在第一次移圈中進行。
必須修改這些 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel Primo Transfer è previsto : 
- entrata/uscita/cambio di Guidafilo
Questo è possibile solo se c&apos;è il
trasferimento di Tutti i Settori.
E&apos; necessario modificare Disegno o Pat !</source>
        <translation>注意：
第一次移圈中需要：
- 導紗器進入/退出/更換
只有在
所有針段都進行移圈時才可行。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal Pat %1 al Pat %2 c&apos;è un cambio di guidafili : 
- è possibile cambiare il guidafilo 1 con il 2 o il 3
- è possibile cambiare il guidafilo 2 con il 3
- altre sequenze non sono possibili
E&apos; necessario modificare i Pat !</source>
        <translation>注意：
從 Pat %1 到 Pat %2 有一次導紗器更換：
- 導紗器 1 可以更換為 2 或 3
- 導紗器 2 可以更換為 3
- 其他順序均不可行
必須修改這些 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Guidafilo N.%1 assegnato al primo Pat applicato :
deve essere mantenuto in Tutti i Pat successivi !
E&apos; necessario modificare Pat successivi !</source>
        <translation>注意：
分配給第一個應用的 Pat 的 %1 號導紗器：
必須在所有後續 Pat 中保持不變！
必須修改後續 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- fine movimento entrata camme Trattenuto/Scaricato
Tali movimenti non sono possibili sullo stesso Rango di Maglia.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>注意：
第 %1 步成圈系統 %2 上同時存在：
- 導紗器進入-退出-更換
- 集圈/成圈三角進入動作結束
這些動作不能在同一線圈橫列上進行。
要繼續，必須修改花型或相關的 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 carico uncini) sulla caduta %2
  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>注意：
第 %1 步（掛鉤第 3 步）成圈系統 %2 上
同時存在：
- 導紗器進入-退出-更換
- 需要部分退出的集圈/成圈三角
這些動作間隔過近，
不能在同一線圈橫列上進行。
要繼續，必須修改花型或相關的 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 scarico uncini) sulla caduta %2  sono presenti :
- entrata-uscita-cambio di guidafili
- camme Trattenuto/Scaricato che richiedono una uscita parziale
Tali movimenti non sono possibili sullo stesso Rango di Maglia
perchè troppo ravvicinati.
Per procedere è necessario modificare il Disegno o il(i) Pat coinvolti</source>
        <translation>注意：
第 %1 步（脫鉤第 3 步）成圈系統 %2 上同時存在：
- 導紗器進入-退出-更換
- 需要部分退出的集圈/成圈三角
這些動作間隔過近，
不能在同一線圈橫列上進行。
要繼續，必須修改花型或相關的 Pat</translation>
    </message>
    <message>
        <source>Attenzione:
L&apos;offset maglie per lo sbilanciamento del(i) colore(i)  %1  è stato azzerato perchè
dall&apos;ago di inizio all&apos;ago di fine del(i) colore(i) ci sono meno di %2 aghi di distanza.
In alternativa è necessario modificare il disegno!</source>
        <translation>注意：
顏色 %1 的不平衡線圈偏移量已歸零，因為
該顏色的起始針與結束針之間相隔不足 %2 針。
否則，必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Disegno Nitido&quot; richiede
il guidafilo 6 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
成圈系統 %1 上的「清晰花型」要求
在整個專案中使用導紗器 6。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
Pat「%1」和 Pat「%2」需要：
- 導紗器退出和進入
只有當這些更換之間
至少相隔 %3 針時才可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel primo e ultimo rango della caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %1 的第一個和最後一個橫列中，
「清晰花型」下無法新增顏色。
參見 Pat：%2
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia:
non è possibile associare PAT
di &quot;Disegno Nitido&quot; con altri PAT.E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一線圈橫列上：
不能將「清晰花型」的 PAT
與其他 PAT 關聯。必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %2 掛鉤的第 %1 步中，
「清晰花型」下無法新增顏色。
參見 Pat：%3
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini sulla caduta %2
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %2 掛鉤的第 %1 步中，
「清晰花型」下無法新增顏色。
參見 Pat：%3
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %1 脫鉤的第 1 和第 2 步中，
「清晰花型」下無法新增顏色。
參見 Pat：%2
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini sulla caduta %1
in &quot;Disegno Nitido&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %1 脫鉤的第 3 步中，
「清晰花型」下無法新增顏色。
參見 Pat：%2
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sulla caduta %1 il &quot;Colore&quot; richiede
il guidafilo 1-2-3 in tutto il progetto.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
成圈系統 %1 上的「顏色」要求
在整個專案中使用導紗器 1-2-3。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Il Pat &apos;%1&apos; ed il Pat &apos;%2&apos; richiedono :
- uscita ed entrata guidafili colore
E&apos; possibile se fra questi cambi
ci sono almeno %3 aghi di distanza
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
Pat「%1」和 Pat「%2」需要：
- 顏色導紗器退出和進入
只有當這些更換之間
至少相隔 %3 針時才可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nel primo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
從 Pat「%1」過渡到 Pat「%2」時，
在成圈系統 %3 的第一個橫列中，
無法在顏色區域內新增顏色。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
nell&apos;ultimo rango della caduta %3
nell&apos;area colore non è possibile aggiungere il colore.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
從 Pat「%1」過渡到 Pat「%2」時，
在成圈系統 %3 的最後一個橫列中，
無法在顏色區域內新增顏色。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系統 %3 上從 Pat「%1」過渡到 Pat「%2」時
需要三角動作，
這在同一「清晰」模式內不可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;NITIDO&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系統 %3 上從 Pat「%1」過渡到 Pat「%2」時
需要三角動作，
在「清晰」模式之間，只有在 %4 步之後才可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系統 %3 上從 Pat「%1」過渡到 Pat「%2」時
需要三角動作，
這在同一「顏色」模式內不可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di camme
Fra modalità &apos;COLORE&apos; questo e&apos; possibile solo dopo %4 passi.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系統 %3 上從 Pat「%1」過渡到 Pat「%2」時
需要三角動作，
在「顏色」模式之間，只有在 %4 步之後才可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;NITIDO&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系統 %3 上從 Pat「%1」過渡到 Pat「%2」時
需要導紗器動作，
這在同一「清晰」模式內不可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passaggio tra il Pat &apos;%1&apos; ed il Pat &apos;%2&apos;
della caduta %3 è richiesto un movimento di guidafili
NON è possibile all&apos;interno della stessa modalità &apos;COLORE&apos;.
E&apos; necessario modificare il disegno!</source>
        <translation>注意：
在成圈系統 %3 上從 Pat「%1」過渡到 Pat「%2」時
需要導紗器動作，
這在同一「顏色」模式內不可行。
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT &apos;COLORE&apos; di modalità diversa (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一線圈橫列上，不能將：
「顏色」PAT（%1）與其他不同模式的「顏色」PAT（%2）關聯。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia non è possibile associare :
PAT &apos;COLORE&apos; (%1) con altri PAT NON &apos;COLORE&apos; (%2).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一線圈橫列上，不能將：
「顏色」PAT（%1）與其他非「顏色」PAT（%2）關聯。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi %1 del carico uncini sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %2 掛鉤的第 %1 步中，
「顏色模式」下無法新增顏色。
參見 Pat：%3
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 del carico uncini per i primi %2 aghi sulla caduta %3
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %4
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %3 掛鉤第 %1 步的前 %2 針中，
「顏色模式」下無法新增顏色。
參見 Pat：%4
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo %1 (passo 3 del carico uncini) sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
in presenza di :
- entrate/uscite/cambi di guidafili
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %2 的第 %1 步（掛鉤第 3 步）中，
「顏色模式」下無法新增顏色，
當存在以下情況時：
- 導紗器進入/退出/更換
參見 Pat：%3
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nei passi 1 e 2 dello scarico uncini sulla caduta %1
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %2
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %1 脫鉤的第 1 和第 2 步中，
「顏色模式」下無法新增顏色。
參見 Pat：%2
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel passo 3 dello scarico uncini per i primi %1 aghi sulla caduta %2
in &quot;Modo Colore&quot; non è possibile aggiungere il colore.
Vedi Pat : %3
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
在成圈系統 %2 脫鉤第 3 步的前 %1 針中，
「顏色模式」下無法新增顏色。
參見 Pat：%3
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con altri PAT di modalità incompatibile (%3).
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一線圈橫列 %1 上，不能將：
「特殊」PAT（%2）與其他模式不相容的 PAT（%3）關聯。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con guidafili incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一線圈橫列 %1 上，不能將：
「特殊」PAT（%2）與導紗器不相容的 PAT（%3）關聯。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Sullo stesso rango di maglia %1 non è possibile associare :
PAT &apos;SPECIALE&apos; (%2) con PAT (%3) con configurazione camme incompatibili.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在同一線圈橫列 %1 上，不能將：
「特殊」PAT（%2）與三角配置不相容的 PAT（%3）關聯。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Passaggio da PAT &apos;SPECIALE&apos; (%1) rango %2 a PAT (%3)
e&apos; possibile solo dopo almeno un rango completo in modalità &apos;SPECIALE&apos;.
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
在橫列 %2 從「特殊」PAT（%1）過渡到 PAT（%3），
只有在「特殊」模式下至少完成一個完整橫列後才可行。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
從 PAT %1 到 PAT %2（橫列 %3）需要：
- GR1 組導紗器 2/3 進入/退出。
只有至少相隔 %4 針時才可行！
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 al PAT %2 rango %3 è richiesta :
- USCITA/ENTRATA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %4 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
從 PAT %1 到 PAT %2（橫列 %3）需要：
- GR1 組導紗器 2/3 退出/進入。
只有至少相隔 %4 針時才可行！
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Dal PAT %1 allo Scarico Maglia rango %2 è richiesta :
- ENTRATA/USCITA del GUIDAFILO 2/3 GR1.
E&apos; possibile se ci sono almeno %3 aghi di distanza!
E&apos; necessario modificare il Disegno!</source>
        <translation>注意：
從 PAT %1 到落布（橫列 %2）需要：
- GR1 組導紗器 2/3 進入/退出。
只有至少相隔 %3 針時才可行！
必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili 2 e 3 del GR1.
Non e&apos; possibile sullo stesso rango di maglia!
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>注意：
橫列 %1：從特殊模式 PAT（%2）
到特殊模式 PAT（%3）需要：
- 更換 GR1 組的導紗器 2 和 3。
這不能在同一線圈橫列上進行！
要繼續，必須修改花型或 PAT！</translation>
    </message>
    <message>
        <source>Attenzione:
Rango %1 : Dal PAT modalità SPECIALE (%2)
 al PAT modalità SPECIALE (%3) è richiesto :
- Cambio di guidafili GR2/GR1.
E&apos; possibile solo se nell&apos;ultimo rango di maglia :
- Tutti gli aghi sono in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>注意：
橫列 %1：從特殊模式 PAT（%2）
到特殊模式 PAT（%3）需要：
- 更換 GR2/GR1 組導紗器。
只有當最後一個線圈橫列滿足以下條件時才可行：
- 所有針都處於特殊模式
要繼續，必須修改花型或 PAT！</translation>
    </message>
    <message>
        <source>Attenzione:
Nel %1 passo Carico Uncini sulla caduta 5 (rango %2)
con presenza di PAT in modalità SPECIALE (%3) :
- Tutti gli aghi devono essere in modalità SPECIALE
Per continuare e&apos; necessario modificare Disegno o PAT!</source>
        <translation>注意：
在成圈系統 5（橫列 %2）掛鉤的第 %1 步中，
如果存在特殊模式的 PAT（%3）：
- 所有針都必須處於特殊模式
要繼續，必須修改花型或 PAT！</translation>
    </message>
    <message>
        <source>Attenzione:
Usata &quot;Camma Rientro Parziale Uncini&quot; nel Bordo n. %1.
Passo di movimento incompatibile con la dimensione del bordo.
Anticipare il movimento di %2 passo(i) o ampliare il bordo!</source>
        <translation>注意：
第 %1 號扎口中使用了「鉤子部分收回三角」。
動作步與扎口尺寸不相容。
請將動作提前 %2 步，或擴大扎口！</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 4 cadute alla linea %2
non può essere usato in una zona a 8 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
第 %2 行的 4 路 PAT %1
不能用於 8 路區域。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Il PAT %1 a 8 cadute alla linea %2
non può essere usato in una zona a 4 cadute
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意：
第 %2 行的 8 路 PAT %1
不能用於 4 路區域。
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o inizia al primo passo o dopo %1 passi!</source>
        <translation>注意：
4 路區域必須從第一步開始，或在 %1 步之後開始！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 8 a 4 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意（第 %1 步）：
從 8 路切換到 4 路之前的最後 3 步中：
不允許存在顏色模式或清晰模式！
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione:
Una zona a 4 cadute o termina all&apos;ultimo passo o %1 passi prima!</source>
        <translation>注意：
4 路區域必須在最後一步結束，或提前 %1 步結束！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Negli ultimi 3 passi prima di passare da 4 a 8 cadute:
NON è consentita la presenza di Modalità Colore o Nitido!
E&apos; necessario modificare Disegno o Pat!</source>
        <translation>注意（第 %1 步）：
從 4 路切換到 8 路之前的最後 3 步中：
不允許存在顏色模式或清晰模式！
必須修改花型或 Pat！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 3 passi della zona a 8 cadute !
- nel primo passo della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
從 8 路區域過渡到 4 路區域時，
帶鉤子的扎口不允許開始於：
- 8 路區域中的最後 3 步！
- 4 路區域中的第一步！
必須解決此衝突！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 8 cadute a zona 4 cadute
Non è consentito la fine bordo con uncini
negli ultimi 3 passi della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
從 8 路區域過渡到 4 路區域時，
帶鉤子的扎口不允許結束於
8 路區域中的最後 3 步！
必須解決此衝突！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito la fine bordo con uncini
negli ultimi 2 passi della zona a 4 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
從 4 路區域過渡到 8 路區域時，
帶鉤子的扎口不允許結束於
4 路區域中的最後 2 步！
必須解決此衝突！</translation>
    </message>
    <message>
        <source>Attenzione al passo %1:
Nel passaggio zona 4 cadute a zona 8 cadute
Non è consentito l&apos;inizio bordo con uncini:
- negli ultimi 2 passi della zona a 4 cadute !
- nel primo passo della zona a 8 cadute !
E&apos; necessario risolvere il conflitto!</source>
        <translation>注意（第 %1 步）：
從 4 路區域過渡到 8 路區域時，
帶鉤子的扎口不允許開始於：
- 4 路區域中的最後 2 步！
- 8 路區域中的第一步！
必須解決此衝突！</translation>
    </message>
    <message>
        <source>Attenzione:
Non è consentito avere la Modalità Fili 0:
- nel 1° passo dopo il carico maglia !
- nell&apos;ultimo passo prima dello scarico maglia !
Per continuare è necessario modificare il Disegno !</source>
        <translation>注意：
以下位置不允許使用 0 紗線模式：
- 起針後的第 1 步！
- 落布前的最後一步！
要繼續，必須修改花型！</translation>
    </message>
    <message>
        <source>Attenzione:
Nessuna zona SCS presente !
Per continuare è necessario inserire almeno una zona o disabilitare l&apos;SCS.
Vuoi inserire una zona iniziale ?</source>
        <translation>注意：
不存在 SCS 區域！
要繼續，必須至少插入一個區域或停用 SCS。
是否插入一個初始區域？</translation>
    </message>
    <message>
        <source>Attenzione:
Sono presenti Zone SCS !
Disabilitando l&apos;SCS vuoi eliminare anche le zone ?</source>
        <translation>注意：
存在 SCS 區域！
停用 SCS 時是否同時刪除這些區域？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Inserire/Eliminare Zone SCS:
può comportare l&apos;eliminazione
dell&apos;Acquisizione SCS !!</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
插入/刪除 SCS 區域
可能導致
SCS 採集被刪除！</translation>
    </message>
    <message>
        <source>Attenzione :
SCS è in Controllo Taglia !!!
 Alcune modifiche al progetto non sono possibili !
Per sbloccarle è necessario selezionare:
&quot;Abilita Acquisizione&quot;
ed eliminare l&apos;Acquisizione SCS
Il Controllo Taglia verrà perso !</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
無法對專案進行某些修改！
要解除限制，必須選擇：
「啟用採集」
並刪除 SCS 採集。
尺碼控制將會遺失！</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Apportando modifiche potrebbe essere richiesta l&apos;eliminazione dell&apos;Acquisizione SCS.</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
進行修改可能需要刪除 SCS 採集。</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Acquisizione SCS verrà eliminata !
Vuoi continuare ?</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
SCS 採集將被刪除！
是否繼續？</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi salvare anche l&apos;acquisizione SCS presente nel progetto ?</source>
        <translation>注意：
是否同時儲存專案中的 SCS 採集？</translation>
    </message>
    <message>
        <source>Attenzione:
Vuoi Salvare le Modifiche Fatte ?</source>
        <translation>注意：
是否儲存所做的修改？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Per continuare è necessario associare tutti i Vector Active
di default ad un guidafilo o eliminare l&apos;acquisizione SCS
Vuoi eliminare Acquisizione SCS ?</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
要繼續，必須將所有預設的 Vector Active
關聯到導紗器，或刪除 SCS 採集。
是否刪除 SCS 採集？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Esegui solo le piccole modifiche al disegno
necessarie dopo un &quot;Crea Taglia&quot; altrimenti
&quot;Acquisizione SCS&quot; non sarà più idonea
Vuoi Continuare ?</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
請僅對花型進行「建立尺碼」後
必需的小幅修改，否則
「SCS 採集」將不再適用。
是否繼續？</translation>
    </message>
    <message>
        <source>Attenzione:
SCS è in Controllo Taglia !!!
Operazioni possibili:
- Adattare i dati Acq. SCS al ridimensionamento
- Annullare la modifica del ridimensionamento</source>
        <translation>注意：
SCS 處於尺碼控制狀態！
可執行的操作：
- 調整 SCS 採集資料以配合尺寸調整
- 取消尺寸調整</translation>
    </message>
    <message>
        <source>Attenzione:
SCS abilitato !
Non tutte le cadute abilitate al controllo nelle zone %1
hanno un alimentatore BodyScs in lavoro
Queste cadute verranno automaticamente disabilitate al controllo</source>
        <translation>注意：
SCS 已啟用！
區域 %1 中並非所有已啟用控制的成圈系統
都有正在工作的 BodyScs 送紗器。
這些成圈系統的控制將被自動停用。</translation>
    </message>
    <message>
        <source>Nuova Taglia Creata con Successo !</source>
        <translation>新尺碼建立成功！</translation>
    </message>
    <message>
        <source>Progetto ridimensionato con successo !</source>
        <translation>專案尺寸調整成功！</translation>
    </message>
    <message>
        <source>Ridimensionamento matrice pixel fallito !</source>
        <translation>像素矩陣尺寸調整失敗！</translation>
    </message>
    <message>
        <source>Ridimensionamento piani disegno fallito !</source>
        <translation>花型平面尺寸調整失敗！</translation>
    </message>
    <message>
        <source>Ridimensionamento struttura progetto fallita !</source>
        <translation>專案結構尺寸調整失敗！</translation>
    </message>
    <message>
        <source>Adattamento piani disegno fallito !</source>
        <translation>花型平面調整失敗！</translation>
    </message>
    <message>
        <source>IL PROGETTO SORGENTE E&apos; IN CONTROLLO TAGLIA,
I DATI DELL&apos;ACQUISIZIONE SCS SARANNO ADATTATI
AUTOMATICAMENTE AL PROGETTO DESTINAZIONE</source>
        <translation>來源專案處於尺碼控制狀態，
SCS 採集資料將
自動調整至目標專案。</translation>
    </message>
    <message>
        <source>Attenzione :
Creazione Nuova Taglia fallita !!
Ripetere l&apos;operazione ed eventualmente
deselezionare l&apos;opzione &quot;Adatta i Ranghi&quot;</source>
        <translation>注意：
新尺碼建立失敗！
請重試該操作，必要時
取消勾選「調整橫列」選項。</translation>
    </message>
    <message>
        <source>Ridimensionamento fallito !!
Ripetere l&apos;operazione o
inserire un diverso N. ranghi.</source>
        <translation>尺寸調整失敗！
請重試該操作，或
輸入不同的橫列數。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano SCS: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone SCS !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
SCS 平面：尺寸調整需要
刪除一個或多個 SCS 區域！
無法執行此操作！
請輸入不同的橫列數，
或修改這些區域。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Maglia !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
指令平面：尺寸調整需要
刪除一個或多個線圈區域！
無法執行此操作！
請輸入不同的橫列數，
或修改這些區域。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone %1 !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
指令平面：尺寸調整需要
刪除一個或多個 %1 區域！
無法執行此操作！
請輸入不同的橫列數，
或修改這些區域。</translation>
    </message>
    <message>
        <source>Attenzione :
Piano Comandi: il ridimensionamento richiede
l&apos;eliminazione di una o più Zone Velocità !!
Operazione non possibile !
Inserire un diverso N. di ranghi
o modificare queste Zone.</source>
        <translation>注意：
指令平面：尺寸調整需要
刪除一個或多個速度區域！
無法執行此操作！
請輸入不同的橫列數，
或修改這些區域。</translation>
    </message>
    <message>
        <source>Attenzione :
dal progetto sono stati rimossi comandi
insriti manualmente dall&apos;utente.
E&apos; necessario inserirli di nuovo manualmente :
%1</source>
        <translation>注意：
已從專案中移除
使用者手動插入的指令。
必須重新手動插入這些指令：
%1</translation>
    </message>
    <message>
        <source>Attenzione :
le modifiche fatte comportano :
%1
%2
</source>
        <translation>注意：
所做的修改導致：
%1
%2
</translation>
    </message>
    <message>
        <source>VUOI PASSARE IL PROGETTO IN MODALITA&apos; PROTETTA ?

Scegliendo Si: 
- il progetto verrà automaticamente salvato
- gli strumenti grafici opereranno in modalità speciale
- sarà possibile uscire da questa modalità in qualsiasi momento

Scegliendo No: 
- sul progetto si potrà operare normalmente</source>
        <translation>是否將專案切換到保護模式？

選擇「是」：
- 專案將自動儲存
- 圖形工具將以特殊模式執行
- 可隨時離開此模式

選擇「否」：
- 可正常操作專案</translation>
    </message>
    <message>
        <source>- rimozione zone comandi utente</source>
        <translation>- 移除使用者指令區域</translation>
    </message>
    <message>
        <source>- inserimento valori default zone comandi</source>
        <translation>- 插入指令區域預設值</translation>
    </message>
</context>
</TS>
