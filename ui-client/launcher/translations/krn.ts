<?xml version="1.0" encoding="utf-8"?>
<!DOCTYPE TS>
<TS version="2.1">
<context>
    <name>global</name>
    <message>
        <source>Lumora has stopped syncing because of an unexpected problem. Please check the connection status.</source>
        <translation>예기치 않은 문제로 인해 Lumora가 동기화를 중지했습니다. 연결 상태를 확인하십시오.</translation>
    </message>
    <message>
        <source>Enable Sharing</source>
        <translation>공유 활성화</translation>
    </message>
    <message>
        <source>Standby</source>
        <translation>대기</translation>
    </message>
    <message>
        <source>A newer version of Lumora is already installed.\nDo you want to continue?</source>
        <translation>최신 버전의 Lumora가 이미 설치되어 있습니다.\n계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Upgrading Lumora. Please wait...</source>
        <translation>Lumora를 업그레이드하는 중입니다. 잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>Progress</source>
        <translation>진행 상황</translation>
    </message>
    <message>
        <source>[ProductName] Setup</source>
        <translation>[ProductName] 설치</translation>
    </message>
    <message>
        <source>Select the operation you want to perform.</source>
        <translation>수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>Connecting to the server...</source>
        <translation>서버에 연결하는 중...</translation>
    </message>
    <message>
        <source>Connection Unstable</source>
        <translation>연결 불안정</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard ended prematurely</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사가 중간에 종료되었습니다</translation>
    </message>
    <message>
        <source>The shared folder is not mounted. Please mount it and try again.</source>
        <translation>공유 폴더가 마운트되지 않았습니다. 마운트한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Download completed.</source>
        <translation>다운로드가 완료되었습니다.</translation>
    </message>
    <message>
        <source>Your changes have not been saved. Do you want to save them now?</source>
        <translation>변경 내용이 저장되지 않았습니다. 지금 저장하시겠습니까?</translation>
    </message>
    <message>
        <source>Removes [ProductName] from your computer.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거합니다.</translation>
    </message>
    <message>
        <source>Lumora could not be upgraded. Please try again later.</source>
        <translation>Lumora를 업그레이드할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>A shared folder with the same name already exists. Please choose a different folder.</source>
        <translation>같은 이름의 공유 폴더가 이미 있습니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>You have read-only access to this folder. Changes you make here will not be synced.</source>
        <translation>이 폴더에 대한 읽기 전용 권한만 있습니다. 여기에서 변경한 내용은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Sync Stopped</source>
        <translation>동기화 중지됨</translation>
    </message>
    <message>
        <source>Connect to a New Server</source>
        <translation>새 서버에 연결</translation>
    </message>
    <message>
        <source>Port:</source>
        <translation>포트:</translation>
    </message>
    <message>
        <source>Download Only</source>
        <translation>다운로드만</translation>
    </message>
    <message>
        <source>Selective Sync for Files</source>
        <translation>파일 선택적 동기화</translation>
    </message>
    <message>
        <source>&amp;Print</source>
        <translation>인쇄(&amp;P)</translation>
    </message>
    <message>
        <source>Resume</source>
        <translation>재개</translation>
    </message>
    <message>
        <source>Select Files to Sync</source>
        <translation>동기화할 파일 선택</translation>
    </message>
    <message>
        <source>Mount Point Error</source>
        <translation>마운트 지점 오류</translation>
    </message>
    <message>
        <source>Close these applications and click Retry to continue, or click Ignore to continue without closing them.</source>
        <translation>이 응용 프로그램을 닫고 [다시 시도]를 클릭하여 계속하거나, 닫지 않고 계속하려면 [무시]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Computer Name</source>
        <translation>컴퓨터 이름</translation>
    </message>
    <message>
        <source>All files are up to date.</source>
        <translation>모든 파일이 최신 상태입니다.</translation>
    </message>
    <message>
        <source>Internet (WAN)</source>
        <translation>인터넷(WAN)</translation>
    </message>
    <message>
        <source>Downloading...</source>
        <translation>다운로드하는 중...</translation>
    </message>
    <message>
        <source>An error occurred (error code: %1). Please contact Quennet Online Support for help.</source>
        <translation>오류가 발생했습니다(오류 코드: %1). Quennet 온라인 지원 센터에 문의하십시오.</translation>
    </message>
    <message>
        <source>Lumora is starting...</source>
        <translation>Lumora를 시작하는 중...</translation>
    </message>
    <message>
        <source>Are you sure you want to unlink this connection? Files will no longer be synced with the server.</source>
        <translation>이 연결의 링크를 해제하시겠습니까? 파일이 더 이상 서버와 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>E&amp;xit</source>
        <translation>끝내기(&amp;X)</translation>
    </message>
    <message>
        <source>The proxy server requires authentication</source>
        <translation>프록시 서버에 인증 필요</translation>
    </message>
    <message>
        <source>&amp;Finish</source>
        <translation>마침(&amp;F)</translation>
    </message>
    <message>
        <source>Upgrade</source>
        <translation>업그레이드</translation>
    </message>
    <message>
        <source>The sync folder on the server has changed. Please relink this connection.</source>
        <translation>서버의 동기화 폴더가 변경되었습니다. 이 연결을 다시 링크하십시오.</translation>
    </message>
    <message>
        <source>Manage</source>
        <translation>관리</translation>
    </message>
    <message>
        <source>You can run the Setup Wizard again later to install [ProductName]. Click Finish to exit.</source>
        <translation>나중에 설치 마법사를 다시 실행하여 [ProductName]을(를) 설치할 수 있습니다. 끝내려면 [마침]을 클릭하십시오.</translation>
    </message>
    <message>
        <source>&amp;Remove</source>
        <translation>제거(&amp;R)</translation>
    </message>
    <message>
        <source>&amp;Install</source>
        <translation>설치(&amp;I)</translation>
    </message>
    <message>
        <source>Detecting the connection mode...</source>
        <translation>연결 모드를 감지하는 중...</translation>
    </message>
    <message>
        <source>Recently Updated Files</source>
        <translation>최근 업데이트된 파일</translation>
    </message>
    <message>
        <source>The user name or password is incorrect.</source>
        <translation>사용자 이름 또는 암호가 잘못되었습니다.</translation>
    </message>
    <message>
        <source>A secure connection to the server could not be established. The server certificate may not be trusted.</source>
        <translation>서버에 대한 보안 연결을 설정할 수 없습니다. 서버 인증서를 신뢰할 수 없을 수도 있습니다.</translation>
    </message>
    <message>
        <source>Transfer Statistics</source>
        <translation>전송 통계</translation>
    </message>
    <message>
        <source>Unable to reach the connection service. Please try again later.</source>
        <translation>연결 서비스에 연결할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Security Warning</source>
        <translation>보안 경고</translation>
    </message>
    <message>
        <source>Select what Lumora should do when setup is finished.</source>
        <translation>설치가 끝난 후 Lumora가 수행할 작업을 선택하십시오.</translation>
    </message>
    <message>
        <source>OK</source>
        <translation>확인</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Its contents will be merged with the files on the server.</source>
        <translation>선택한 폴더가 비어 있지 않습니다. 폴더의 내용이 서버의 파일과 병합됩니다.</translation>
    </message>
    <message>
        <source>%1 cannot be synced due to access permission denied, or it is in use.</source>
        <translation>액세스 권한이 거부되었거나 사용 중이므로 %1을(를) 동기화할 수 없습니다.</translation>
    </message>
    <message>
        <source>&amp;Retry</source>
        <translation>다시 시도(&amp;R)</translation>
    </message>
    <message>
        <source>Copy Sharing Link</source>
        <translation>공유 링크 복사</translation>
    </message>
    <message>
        <source>Storage Full</source>
        <translation>저장 공간 부족</translation>
    </message>
    <message>
        <source>Sync is paused.</source>
        <translation>동기화가 일시 중지되었습니다.</translation>
    </message>
    <message>
        <source>Folder Name</source>
        <translation>폴더 이름</translation>
    </message>
    <message>
        <source>The remote folder is not available. Please make sure the volume on the server is mounted.</source>
        <translation>원격 폴더를 사용할 수 없습니다. 서버의 볼륨이 마운트되어 있는지 확인하십시오.</translation>
    </message>
    <message>
        <source>Your local disk is full. Please free up some space to continue syncing.</source>
        <translation>로컬 디스크가 가득 찼습니다. 동기화를 계속하려면 디스크 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>Download History</source>
        <translation>다운로드 기록</translation>
    </message>
    <message>
        <source>The program features you selected are being installed.</source>
        <translation>선택한 프로그램 기능을 설치하고 있습니다.</translation>
    </message>
    <message>
        <source>Help</source>
        <translation>도움말</translation>
    </message>
    <message>
        <source>&amp;Next &gt;</source>
        <translation>다음(&amp;N) &gt;</translation>
    </message>
    <message>
        <source>Maximum file size:</source>
        <translation>최대 파일 크기:</translation>
    </message>
    <message>
        <source>Change Folder</source>
        <translation>폴더 변경</translation>
    </message>
    <message>
        <source>Sync Tasks</source>
        <translation>동기화 작업</translation>
    </message>
    <message>
        <source>Proxy</source>
        <translation>프록시</translation>
    </message>
    <message>
        <source>Sharing Status</source>
        <translation>공유 상태</translation>
    </message>
    <message>
        <source>Updated %1 files.</source>
        <translation>파일 %1개를 업데이트했습니다.</translation>
    </message>
    <message>
        <source>User Name</source>
        <translation>사용자 이름</translation>
    </message>
    <message>
        <source>Lumora keeps the files on your computer in sync with your server. Copyright (C) Quennet. All rights reserved.</source>
        <translation>Lumora는 컴퓨터의 파일을 서버와 동기화된 상태로 유지합니다. Copyright (C) Quennet. All rights reserved.</translation>
    </message>
    <message>
        <source>Management Page</source>
        <translation>관리 페이지</translation>
    </message>
    <message>
        <source>&amp;Close the applications automatically and try to restart them.</source>
        <translation>응용 프로그램을 자동으로 닫고 다시 시작 시도(&amp;C)</translation>
    </message>
    <message>
        <source>View connection and sync information.</source>
        <translation>연결 및 동기화 정보를 봅니다.</translation>
    </message>
    <message>
        <source>Click the Finish button to exit the Setup Wizard.</source>
        <translation>설치 마법사를 끝내려면 [마침] 단추를 클릭하십시오.</translation>
    </message>
    <message>
        <source>About Lumora</source>
        <translation>Lumora 정보</translation>
    </message>
    <message>
        <source>Manual proxy configuration</source>
        <translation>수동 프록시 구성</translation>
    </message>
    <message>
        <source>Show sync status icons on files and folders</source>
        <translation>파일 및 폴더에 동기화 상태 아이콘 표시</translation>
    </message>
    <message>
        <source>File conflicts occurred. The file is now renamed as %1.</source>
        <translation>파일 충돌이 발생했습니다. 파일 이름이 %1(으)로 변경되었습니다.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Change, repair, or remove installation</source>
        <translation>[DlgTitleFont]설치 변경, 복구 또는 제거</translation>
    </message>
    <message>
        <source>Stop Sharing</source>
        <translation>공유 중지</translation>
    </message>
    <message>
        <source>File Name</source>
        <translation>파일 이름</translation>
    </message>
    <message>
        <source>Lets you change the way features are installed.</source>
        <translation>기능이 설치되는 방식을 변경할 수 있습니다.</translation>
    </message>
    <message>
        <source>Authentication Failed</source>
        <translation>인증 실패</translation>
    </message>
    <message>
        <source>Share Not Found</source>
        <translation>공유를 찾을 수 없음</translation>
    </message>
    <message>
        <source>Launch [ProductName]</source>
        <translation>[ProductName] 실행</translation>
    </message>
    <message>
        <source>Pause</source>
        <translation>일시 중지</translation>
    </message>
    <message>
        <source>Downloading</source>
        <translation>다운로드 중</translation>
    </message>
    <message>
        <source>Password:</source>
        <translation>암호:</translation>
    </message>
    <message>
        <source>A protocol error occurred while communicating with the server.</source>
        <translation>서버와 통신하는 동안 프로토콜 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>&amp;No</source>
        <translation>아니요(&amp;N)</translation>
    </message>
    <message>
        <source>Selective sync requires a newer version of the server package. Please update the package on your server.</source>
        <translation>선택적 동기화를 사용하려면 최신 버전의 서버 패키지가 필요합니다. 서버의 패키지를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>Repair the installation</source>
        <translation>설치 복구</translation>
    </message>
    <message>
        <source>Loading...</source>
        <translation>로드하는 중...</translation>
    </message>
    <message>
        <source>The following applications are using files that need to be updated by this setup:</source>
        <translation>다음 응용 프로그램이 이 설치 프로그램에서 업데이트해야 하는 파일을 사용하고 있습니다:</translation>
    </message>
    <message>
        <source>Your files, in sync on every computer.</source>
        <translation>모든 컴퓨터에서 동기화되는 나의 파일.</translation>
    </message>
    <message>
        <source>Error</source>
        <translation>오류</translation>
    </message>
    <message>
        <source>Show icons on files that are excluded from sync</source>
        <translation>동기화에서 제외된 파일에 아이콘 표시</translation>
    </message>
    <message>
        <source>Please restart %1 to apply the new language settings.</source>
        <translation>새 언어 설정을 적용하려면 %1을(를) 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Time</source>
        <translation>시간</translation>
    </message>
    <message>
        <source>Checking user name and password...</source>
        <translation>사용자 이름 및 암호를 확인하는 중...</translation>
    </message>
    <message>
        <source>Monitoring file changes...</source>
        <translation>파일 변경 내용을 모니터링하는 중...</translation>
    </message>
    <message>
        <source>New Share</source>
        <translation>새 공유</translation>
    </message>
    <message>
        <source>[ProductName] has no features that can be selected separately.</source>
        <translation>[ProductName]에는 개별적으로 선택할 수 있는 기능이 없습니다.</translation>
    </message>
    <message>
        <source>A new version is available. Click to update.</source>
        <translation>새 버전을 사용할 수 있습니다. 업데이트하려면 클릭하십시오.</translation>
    </message>
    <message>
        <source>Select Folders to Sync</source>
        <translation>동기화할 폴더 선택</translation>
    </message>
    <message>
        <source>Service Disabled</source>
        <translation>서비스 비활성화됨</translation>
    </message>
    <message>
        <source>Relink</source>
        <translation>다시 링크</translation>
    </message>
    <message>
        <source>Action</source>
        <translation>작업</translation>
    </message>
    <message>
        <source>Changes on network drives cannot be detected immediately. Lumora will check them at regular intervals.</source>
        <translation>네트워크 드라이브의 변경 내용은 즉시 감지할 수 없습니다. Lumora가 일정한 간격으로 변경 내용을 확인합니다.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Maintenance</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 유지 관리 시작</translation>
    </message>
    <message>
        <source>&lt; &amp;Back</source>
        <translation>&lt; 뒤로(&amp;B)</translation>
    </message>
    <message>
        <source>Created</source>
        <translation>만든 날짜</translation>
    </message>
    <message>
        <source>The server version is too old. Please update the Lumora server package.</source>
        <translation>서버 버전이 너무 오래되었습니다. Lumora 서버 패키지를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>I &amp;accept the terms in the License Agreement</source>
        <translation>사용권 계약의 조건에 동의함(&amp;A)</translation>
    </message>
    <message>
        <source>The sync service on the server is disabled. Please ask your administrator to enable it.</source>
        <translation>서버의 동기화 서비스가 비활성화되어 있습니다. 관리자에게 활성화를 요청하십시오.</translation>
    </message>
    <message>
        <source>Browse Previous Versions</source>
        <translation>이전 버전 찾아보기</translation>
    </message>
    <message>
        <source>No proxy</source>
        <translation>프록시 사용 안 함</translation>
    </message>
    <message>
        <source>No settings have been changed.</source>
        <translation>변경된 설정이 없습니다.</translation>
    </message>
    <message>
        <source>Edit</source>
        <translation>편집</translation>
    </message>
    <message>
        <source>Show desktop notifications</source>
        <translation>바탕 화면 알림 표시</translation>
    </message>
    <message>
        <source>This version of Lumora is already installed.\nDo you want to reinstall it?</source>
        <translation>이 버전의 Lumora가 이미 설치되어 있습니다.\n다시 설치하시겠습니까?</translation>
    </message>
    <message>
        <source>[ProductName] Setup Wizard ended prematurely because of an error. Your system has not been modified.</source>
        <translation>오류로 인해 [ProductName] 설치 마법사가 중간에 종료되었습니다. 시스템은 수정되지 않았습니다.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Files in Use</source>
        <translation>[DlgTitleFont]사용 중인 파일</translation>
    </message>
    <message>
        <source>Settings</source>
        <translation>설정</translation>
    </message>
    <message>
        <source>Back</source>
        <translation>뒤로</translation>
    </message>
    <message>
        <source>&amp;Yes</source>
        <translation>예(&amp;Y)</translation>
    </message>
    <message>
        <source>Network Settings</source>
        <translation>네트워크 설정</translation>
    </message>
    <message>
        <source>Edit Exclusion List</source>
        <translation>제외 목록 편집</translation>
    </message>
    <message>
        <source>Merge existing files when linking a folder</source>
        <translation>폴더를 링크할 때 기존 파일 병합</translation>
    </message>
    <message>
        <source>Download canceled.</source>
        <translation>다운로드가 취소되었습니다.</translation>
    </message>
    <message>
        <source>Indexing the folder. Please wait...</source>
        <translation>폴더를 인덱싱하는 중입니다. 잠시 기다려 주십시오...</translation>
    </message>
    <message>
        <source>An unexpected error occurred. Please try again later.</source>
        <translation>예기치 않은 오류가 발생했습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Sharing %1</source>
        <translation>%1 공유 중</translation>
    </message>
    <message>
        <source>The server ID is invalid or does not exist.</source>
        <translation>서버 ID가 잘못되었거나 존재하지 않습니다.</translation>
    </message>
    <message>
        <source>Keep your files up to date on all your computers.</source>
        <translation>모든 컴퓨터에서 파일을 항상 최신 상태로 유지합니다.</translation>
    </message>
    <message>
        <source>General Options</source>
        <translation>일반 옵션</translation>
    </message>
    <message>
        <source>Unlink</source>
        <translation>링크 해제</translation>
    </message>
    <message>
        <source>Unable to connect to the server. Please check your network connection.</source>
        <translation>서버에 연결할 수 없습니다. 네트워크 연결을 확인하십시오.</translation>
    </message>
    <message>
        <source>Inactive</source>
        <translation>비활성</translation>
    </message>
    <message>
        <source>Read Only</source>
        <translation>읽기 전용</translation>
    </message>
    <message>
        <source>The selected folder is a mount point. Please choose a different folder.</source>
        <translation>선택한 폴더는 마운트 지점입니다. 다른 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Checking data...</source>
        <translation>데이터를 확인하는 중...</translation>
    </message>
    <message>
        <source>Are you sure you want to stop sharing this folder?</source>
        <translation>이 폴더의 공유를 중지하시겠습니까?</translation>
    </message>
    <message>
        <source>Language:</source>
        <translation>언어:</translation>
    </message>
    <message>
        <source>&amp;Ignore</source>
        <translation>무시(&amp;I)</translation>
    </message>
    <message>
        <source>System Default</source>
        <translation>시스템 기본값</translation>
    </message>
    <message>
        <source>Start Lumora automatically when I sign in</source>
        <translation>로그인할 때 Lumora 자동 시작</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to install [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 설치 준비 완료</translation>
    </message>
    <message>
        <source>Sharing enabled</source>
        <translation>공유 활성화됨</translation>
    </message>
    <message>
        <source>Re&amp;pair</source>
        <translation>복구(&amp;P)</translation>
    </message>
    <message>
        <source>Please enter a valid port number (1-65535).</source>
        <translation>올바른 포트 번호(1-65535)를 입력하십시오.</translation>
    </message>
    <message>
        <source>Please read the following license agreement carefully.</source>
        <translation>다음 사용권 계약을 주의 깊게 읽으십시오.</translation>
    </message>
    <message>
        <source>Installing Lumora requires administrator privileges.\nDo you want to continue anyway?</source>
        <translation>Lumora를 설치하려면 관리자 권한이 필요합니다.\n그래도 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>The local sync folder cannot be found. It may have been moved or deleted.</source>
        <translation>로컬 동기화 폴더를 찾을 수 없습니다. 이동되었거나 삭제되었을 수 있습니다.</translation>
    </message>
    <message>
        <source>Direct Connection</source>
        <translation>직접 연결</translation>
    </message>
    <message>
        <source>Selective Sync for Folders</source>
        <translation>폴더 선택적 동기화</translation>
    </message>
    <message>
        <source>Share Name</source>
        <translation>공유 이름</translation>
    </message>
    <message>
        <source>File names to exclude:</source>
        <translation>제외할 파일 이름:</translation>
    </message>
    <message>
        <source>No previous versions are available for this file.</source>
        <translation>이 파일에 사용할 수 있는 이전 버전이 없습니다.</translation>
    </message>
    <message>
        <source>Version</source>
        <translation>버전</translation>
    </message>
    <message>
        <source>The server is out of disk space. Please free up space on the server to continue syncing.</source>
        <translation>서버의 디스크 공간이 부족합니다. 동기화를 계속하려면 서버의 디스크 공간을 확보하십시오.</translation>
    </message>
    <message>
        <source>A system error occurred while connecting to the server.</source>
        <translation>서버에 연결하는 동안 시스템 오류가 발생했습니다.</translation>
    </message>
    <message>
        <source>The file sharing link for %1 has been copied to your clipboard.</source>
        <translation>%1의 파일 공유 링크가 클립보드에 복사되었습니다.</translation>
    </message>
    <message>
        <source>Use system proxy settings</source>
        <translation>시스템 프록시 설정 사용</translation>
    </message>
    <message>
        <source>Are you sure you want to delete this share?</source>
        <translation>이 공유를 삭제하시겠습니까?</translation>
    </message>
    <message>
        <source>You have used up your storage quota on the server. Please delete some files or contact your administrator.</source>
        <translation>서버의 저장 공간 할당량을 모두 사용했습니다. 일부 파일을 삭제하거나 관리자에게 문의하십시오.</translation>
    </message>
    <message>
        <source>Change Local Folder</source>
        <translation>로컬 폴더 변경</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}[ProductName] Setup Wizard was interrupted</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사가 중단되었습니다</translation>
    </message>
    <message>
        <source>Click Repair to repair the installation of [ProductName]. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>[ProductName] 설치를 복구하려면 [복구]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Connection Mode</source>
        <translation>연결 모드</translation>
    </message>
    <message>
        <source>Folders that you deselect will be removed from this computer but will remain on the server. Do you want to continue?</source>
        <translation>선택을 해제한 폴더는 이 컴퓨터에서 제거되지만 서버에는 남아 있습니다. 계속하시겠습니까?</translation>
    </message>
    <message>
        <source>Version Mismatch</source>
        <translation>버전 불일치</translation>
    </message>
    <message>
        <source>Connected successfully.</source>
        <translation>연결되었습니다.</translation>
    </message>
    <message>
        <source>Some files that need to be updated are currently in use.</source>
        <translation>업데이트해야 하는 일부 파일이 현재 사용 중입니다.</translation>
    </message>
    <message>
        <source>Applying settings...</source>
        <translation>설정을 적용하는 중...</translation>
    </message>
    <message>
        <source>Permission Denied</source>
        <translation>권한 거부됨</translation>
    </message>
    <message>
        <source>Continue Anyway</source>
        <translation>그래도 계속</translation>
    </message>
    <message>
        <source>Cancel</source>
        <translation>취소</translation>
    </message>
    <message>
        <source>Preparing...</source>
        <translation>준비하는 중...</translation>
    </message>
    <message>
        <source>Name</source>
        <translation>이름</translation>
    </message>
    <message>
        <source>Next</source>
        <translation>다음</translation>
    </message>
    <message>
        <source>Setup is complete. Lumora will now start syncing your files.</source>
        <translation>설정이 완료되었습니다. 이제 Lumora가 파일 동기화를 시작합니다.</translation>
    </message>
    <message>
        <source>Folder Not Empty</source>
        <translation>폴더가 비어 있지 않음</translation>
    </message>
    <message>
        <source>Unable to retrieve the previous versions of this file.</source>
        <translation>이 파일의 이전 버전을 가져올 수 없습니다.</translation>
    </message>
    <message>
        <source>Connection Information</source>
        <translation>연결 정보</translation>
    </message>
    <message>
        <source>Done</source>
        <translation>완료</translation>
    </message>
    <message>
        <source>The SSL certificate of the server could not be verified.</source>
        <translation>서버의 SSL 인증서를 확인할 수 없습니다.</translation>
    </message>
    <message>
        <source>Continue</source>
        <translation>계속</translation>
    </message>
    <message>
        <source>IP Address</source>
        <translation>IP 주소</translation>
    </message>
    <message>
        <source>The sync folder on the server does not match the folder that this connection was linked to.</source>
        <translation>서버의 동기화 폴더가 이 연결에 링크된 폴더와 일치하지 않습니다.</translation>
    </message>
    <message>
        <source>Local Storage</source>
        <translation>로컬 저장소</translation>
    </message>
    <message>
        <source>Uploading</source>
        <translation>업로드 중</translation>
    </message>
    <message>
        <source>Disabled</source>
        <translation>사용 안 함</translation>
    </message>
    <message>
        <source>This version of Lumora is too old to connect to the server. Please update Lumora.</source>
        <translation>이 Lumora 버전은 너무 오래되어 서버에 연결할 수 없습니다. Lumora를 업데이트하십시오.</translation>
    </message>
    <message>
        <source>User name:</source>
        <translation>사용자 이름:</translation>
    </message>
    <message>
        <source>Summary</source>
        <translation>요약</translation>
    </message>
    <message>
        <source>Use a monochrome tray icon</source>
        <translation>흑백 트레이 아이콘 사용</translation>
    </message>
    <message>
        <source>The selected folder is not empty. Please choose an empty folder or merge its contents with the server.</source>
        <translation>선택한 폴더가 비어 있지 않습니다. 빈 폴더를 선택하거나 폴더의 내용을 서버와 병합하십시오.</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to remove [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 제거 준비 완료</translation>
    </message>
    <message>
        <source>Processing %1 file(s)...</source>
        <translation>파일 %1개를 처리하는 중...</translation>
    </message>
    <message>
        <source>Options</source>
        <translation>옵션</translation>
    </message>
    <message>
        <source>Merge</source>
        <translation>병합</translation>
    </message>
    <message>
        <source>The selected folder is read-only. Please choose a folder that you can write to.</source>
        <translation>선택한 폴더는 읽기 전용입니다. 쓰기 가능한 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Choose a Local Folder</source>
        <translation>로컬 폴더 선택</translation>
    </message>
    <message>
        <source>Unlink Connection</source>
        <translation>연결 링크 해제</translation>
    </message>
    <message>
        <source>Use a secure connection (SSL)</source>
        <translation>보안 연결(SSL) 사용</translation>
    </message>
    <message>
        <source>Files that match these rules will not be synced.</source>
        <translation>이 규칙과 일치하는 파일은 동기화되지 않습니다.</translation>
    </message>
    <message>
        <source>Click Remove to remove [ProductName] from your computer. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>컴퓨터에서 [ProductName]을(를) 제거하려면 [제거]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Choose Another Folder</source>
        <translation>다른 폴더 선택</translation>
    </message>
    <message>
        <source>Selective Sync</source>
        <translation>선택적 동기화</translation>
    </message>
    <message>
        <source>Start Now</source>
        <translation>지금 시작</translation>
    </message>
    <message>
        <source>You have chosen to remove the program from your computer.</source>
        <translation>컴퓨터에서 프로그램을 제거하도록 선택했습니다.</translation>
    </message>
    <message>
        <source>Lumora failed to initialize. Please restart the application.</source>
        <translation>Lumora를 초기화하지 못했습니다. 응용 프로그램을 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>Authentication failed. Please check your user name and password.</source>
        <translation>인증에 실패했습니다. 사용자 이름과 암호를 확인하십시오.</translation>
    </message>
    <message>
        <source>Finish</source>
        <translation>마침</translation>
    </message>
    <message>
        <source>Set up Lumora to start syncing your files.</source>
        <translation>파일 동기화를 시작하려면 Lumora를 설정하십시오.</translation>
    </message>
    <message>
        <source>The share could not be deleted. Please try again.</source>
        <translation>공유를 삭제할 수 없습니다. 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Files in this folder will be merged with the files on the server. If two files have the same name, both are kept and one is renamed.</source>
        <translation>이 폴더의 파일이 서버의 파일과 병합됩니다. 이름이 같은 파일이 있으면 두 파일 모두 유지되며 그중 하나의 이름이 변경됩니다.</translation>
    </message>
    <message>
        <source>This file cannot be downloaded.</source>
        <translation>이 파일은 다운로드할 수 없습니다.</translation>
    </message>
    <message>
        <source>Server ID</source>
        <translation>서버 ID</translation>
    </message>
    <message>
        <source>This server folder is already linked to another sync folder on this computer.</source>
        <translation>이 서버 폴더는 이미 이 컴퓨터의 다른 동기화 폴더에 링크되어 있습니다.</translation>
    </message>
    <message>
        <source>Exit</source>
        <translation>끝내기</translation>
    </message>
    <message>
        <source>IP Address Details</source>
        <translation>IP 주소 세부 정보</translation>
    </message>
    <message>
        <source>Double-Click Action</source>
        <translation>두 번 클릭 시 동작</translation>
    </message>
    <message>
        <source>Value</source>
        <translation>값</translation>
    </message>
    <message>
        <source>Sync Error</source>
        <translation>동기화 오류</translation>
    </message>
    <message>
        <source>Synchronization Mode</source>
        <translation>동기화 모드</translation>
    </message>
    <message>
        <source>Size</source>
        <translation>크기</translation>
    </message>
    <message>
        <source>Information</source>
        <translation>정보</translation>
    </message>
    <message>
        <source>Separate multiple names with commas. Use * to match any characters.</source>
        <translation>여러 이름은 쉼표로 구분하십시오. *는 모든 문자와 일치합니다.</translation>
    </message>
    <message>
        <source>Please enter the address and port of the proxy server.</source>
        <translation>프록시 서버의 주소와 포트를 입력하십시오.</translation>
    </message>
    <message>
        <source>Remove the installation</source>
        <translation>설치 제거</translation>
    </message>
    <message>
        <source>The Setup Wizard allows you to change the way [ProductName] features are installed on your computer or to remove it from your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사를 사용하면 컴퓨터에 [ProductName] 기능이 설치되는 방식을 변경하거나 컴퓨터에서 제거할 수 있습니다. 계속하려면 [다음]을 클릭하고, 설치 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Advanced Settings</source>
        <translation>고급 설정</translation>
    </message>
    <message>
        <source>Testing the connection...</source>
        <translation>연결을 테스트하는 중...</translation>
    </message>
    <message>
        <source>Read-Only Folder</source>
        <translation>읽기 전용 폴더</translation>
    </message>
    <message>
        <source>Change the installation</source>
        <translation>설치 변경</translation>
    </message>
    <message>
        <source>Server Folder Changed</source>
        <translation>서버 폴더 변경됨</translation>
    </message>
    <message>
        <source>Enabled</source>
        <translation>사용</translation>
    </message>
    <message>
        <source>Sharing links are not available while you are connected through the relay service.</source>
        <translation>릴레이 서비스를 통해 연결된 동안에는 공유 링크를 사용할 수 없습니다.</translation>
    </message>
    <message>
        <source>Destination</source>
        <translation>대상</translation>
    </message>
    <message>
        <source>Apply</source>
        <translation>적용</translation>
    </message>
    <message>
        <source>Excluded Files</source>
        <translation>제외된 파일</translation>
    </message>
    <message>
        <source>Status</source>
        <translation>상태</translation>
    </message>
    <message>
        <source>Overview</source>
        <translation>개요</translation>
    </message>
    <message>
        <source>Open Lumora Folder</source>
        <translation>Lumora 폴더 열기</translation>
    </message>
    <message>
        <source>The connection to the server was lost. Lumora will try to reconnect.</source>
        <translation>서버와의 연결이 끊어졌습니다. Lumora가 다시 연결을 시도합니다.</translation>
    </message>
    <message>
        <source>Secure Connection</source>
        <translation>보안 연결</translation>
    </message>
    <message>
        <source>A database error occurred. Please restart Lumora.</source>
        <translation>데이터베이스 오류가 발생했습니다. Lumora를 다시 시작하십시오.</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Welcome to the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사 시작</translation>
    </message>
    <message>
        <source>[DlgTitleFont]End-User License Agreement</source>
        <translation>[DlgTitleFont]최종 사용자 사용권 계약</translation>
    </message>
    <message>
        <source>Sharing</source>
        <translation>공유</translation>
    </message>
    <message>
        <source>Sync direction:</source>
        <translation>동기화 방향:</translation>
    </message>
    <message>
        <source>Currently syncing %1 files.</source>
        <translation>현재 파일 %1개를 동기화하는 중입니다.</translation>
    </message>
    <message>
        <source>Folder Path</source>
        <translation>폴더 경로</translation>
    </message>
    <message>
        <source>Status:</source>
        <translation>상태:</translation>
    </message>
    <message>
        <source>Welcome to %1</source>
        <translation>%1에 오신 것을 환영합니다</translation>
    </message>
    <message>
        <source>A sharing link cannot be created for this item.</source>
        <translation>이 항목에 대한 공유 링크를 만들 수 없습니다.</translation>
    </message>
    <message>
        <source>Status Information</source>
        <translation>상태 정보</translation>
    </message>
    <message>
        <source>Choose a local folder to sync with the server.</source>
        <translation>서버와 동기화할 로컬 폴더를 선택하십시오.</translation>
    </message>
    <message>
        <source>Are you sure you want to cancel the [ProductName] installation?</source>
        <translation>[ProductName] 설치를 취소하시겠습니까?</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Installing [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 설치 중</translation>
    </message>
    <message>
        <source>The sync folder is on a drive that is not connected. Please connect the drive and try again.</source>
        <translation>동기화 폴더가 연결되지 않은 드라이브에 있습니다. 드라이브를 연결한 후 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Address:</source>
        <translation>주소:</translation>
    </message>
    <message>
        <source>Please enter a user name.</source>
        <translation>사용자 이름을 입력하십시오.</translation>
    </message>
    <message>
        <source>Sharing could not be enabled. Please try again later.</source>
        <translation>공유를 활성화할 수 없습니다. 나중에 다시 시도하십시오.</translation>
    </message>
    <message>
        <source>Password</source>
        <translation>암호</translation>
    </message>
    <message>
        <source>Local Network (LAN)</source>
        <translation>로컬 네트워크(LAN)</translation>
    </message>
    <message>
        <source>Lumora is ready.</source>
        <translation>Lumora 사용 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the repair of [ProductName].</source>
        <translation>설치 마법사에서 [ProductName] 복구를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Quennet Lumora</source>
        <translation>Quennet Lumora</translation>
    </message>
    <message>
        <source>Click Install to begin the installation. Click Back to review or change any of your installation settings. Click Cancel to exit the wizard.</source>
        <translation>설치를 시작하려면 [설치]를 클릭하십시오. 설치 설정을 검토하거나 변경하려면 [뒤로]를 클릭하십시오. 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>Do not sync files larger than the maximum size</source>
        <translation>최대 크기보다 큰 파일은 동기화하지 않음</translation>
    </message>
    <message>
        <source>Download failed.</source>
        <translation>다운로드하지 못했습니다.</translation>
    </message>
    <message>
        <source>Re&amp;move</source>
        <translation>제거(&amp;M)</translation>
    </message>
    <message>
        <source>Edit Connection</source>
        <translation>연결 편집</translation>
    </message>
    <message>
        <source>Retry Sync</source>
        <translation>동기화 다시 시도</translation>
    </message>
    <message>
        <source>Add</source>
        <translation>추가</translation>
    </message>
    <message>
        <source>A new folder has been shared with you.</source>
        <translation>새 폴더가 공유되었습니다.</translation>
    </message>
    <message>
        <source>[ProductName] has been installed successfully.</source>
        <translation>[ProductName]이(가) 설치되었습니다.</translation>
    </message>
    <message>
        <source>To install the program later, run the Setup Wizard again. Click the Finish button to close this wizard.</source>
        <translation>나중에 프로그램을 설치하려면 설치 마법사를 다시 실행하십시오. 이 마법사를 닫으려면 [마침] 단추를 클릭하십시오.</translation>
    </message>
    <message>
        <source>[ProductName] setup was interrupted. Your system has not been modified.</source>
        <translation>[ProductName] 설치가 중단되었습니다. 시스템은 수정되지 않았습니다.</translation>
    </message>
    <message>
        <source>&amp;Change</source>
        <translation>변경(&amp;C)</translation>
    </message>
    <message>
        <source>I &amp;do not accept the terms in the License Agreement</source>
        <translation>사용권 계약의 조건에 동의 안 함(&amp;D)</translation>
    </message>
    <message>
        <source>Local Sync Folder</source>
        <translation>로컬 동기화 폴더</translation>
    </message>
    <message>
        <source>Updating...</source>
        <translation>업데이트하는 중...</translation>
    </message>
    <message>
        <source>Delete</source>
        <translation>삭제</translation>
    </message>
    <message>
        <source>Do you want to unlink this computer from the server? Your local files will not be deleted.</source>
        <translation>이 컴퓨터와 서버의 링크를 해제하시겠습니까? 로컬 파일은 삭제되지 않습니다.</translation>
    </message>
    <message>
        <source>Sync files and folders with the prefix %1.</source>
        <translation>접두사가 %1인 파일 및 폴더를 동기화합니다.</translation>
    </message>
    <message>
        <source>You have reached the maximum number of shares.</source>
        <translation>최대 공유 수에 도달했습니다.</translation>
    </message>
    <message>
        <source>Add Connection</source>
        <translation>연결 추가</translation>
    </message>
    <message>
        <source>When a conflict occurs:</source>
        <translation>충돌 발생 시:</translation>
    </message>
    <message>
        <source>ID</source>
        <translation>ID</translation>
    </message>
    <message>
        <source>The Setup Wizard is ready to begin the [ProductName] installation.</source>
        <translation>설치 마법사에서 [ProductName] 설치를 시작할 준비가 되었습니다.</translation>
    </message>
    <message>
        <source>Exclusion list:</source>
        <translation>제외 목록:</translation>
    </message>
    <message>
        <source>The Setup Wizard will install [ProductName] on your computer. Click Next to continue or Cancel to exit the Setup Wizard.</source>
        <translation>설치 마법사가 컴퓨터에 [ProductName]을(를) 설치합니다. 계속하려면 [다음]을 클릭하고, 설치 마법사를 끝내려면 [취소]를 클릭하십시오.</translation>
    </message>
    <message>
        <source>This connection is inactive.</source>
        <translation>이 연결은 비활성 상태입니다.</translation>
    </message>
    <message>
        <source>Lumora is already running.</source>
        <translation>Lumora가 이미 실행 중입니다.</translation>
    </message>
    <message>
        <source>Open Lumora</source>
        <translation>Lumora 열기</translation>
    </message>
    <message>
        <source>Lumora is initializing...</source>
        <translation>Lumora 초기화 중...</translation>
    </message>
    <message>
        <source>Relay Connection</source>
        <translation>릴레이 연결</translation>
    </message>
    <message>
        <source>[DlgTitleFont]Ready to repair [ProductName]</source>
        <translation>[DlgTitleFont][ProductName] 복구 준비 완료</translation>
    </message>
    <message>
        <source>Please wait while the Setup Wizard installs [ProductName]. This may take several minutes.</source>
        <translation>설치 마법사가 [ProductName]을(를) 설치하는 동안 기다려 주십시오. 몇 분 정도 걸릴 수 있습니다.</translation>
    </message>
    <message>
        <source>&amp;Repair</source>
        <translation>복구(&amp;R)</translation>
    </message>
    <message>
        <source>File extensions:</source>
        <translation>파일 확장명:</translation>
    </message>
    <message>
        <source>Repairs errors in the most recent installation by replacing missing or damaged files and shortcuts.</source>
        <translation>누락되거나 손상된 파일 및 바로 가기를 바꿔서 가장 최근 설치의 오류를 복구합니다.</translation>
    </message>
    <message>
        <source>&amp;Do not close the applications. A restart will be required.</source>
        <translation>응용 프로그램을 닫지 않음(다시 시작 필요)(&amp;D)</translation>
    </message>
    <message>
        <source>{\VerdanaBold13}Completed the [ProductName] Setup Wizard</source>
        <translation>{\VerdanaBold13}[ProductName] 설치 마법사 완료</translation>
    </message>
</context>
</TS>
